// GlobalAlloc and its family: the memory of the process that goes by handle.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <unordered_map>

#include "corvane/platform/system/handle_table.h"
#include "corvane/platform/system/shell/memory_api.h"

namespace corvane_system {
namespace {

// Beyond this an allocation is a miscalculation, and the allocator may end the process over it.
constexpr SIZE_T kLargestBlock = SIZE_T{1} << 36;
constexpr UINT kMostLocks = GMEM_LOCKCOUNT;

struct Freer {
  void operator()(void* memory) const { std::free(memory); }
};
using Bytes = std::unique_ptr<void, Freer>;

struct Block {
  Bytes bytes;  // null: moveable, and of no size
  SIZE_T size = 0;
  UINT locks = 0;
};

struct Memory {
  std::mutex lock;
  corvane::system::HandleTable<Block> moveable{corvane::system::next_owner_tag()};
  std::unordered_map<const void*, Block> fixed;
};

Memory& memory() {
  static Memory all;
  return all;
}

// Both are to be called with the lock held.
Block* moveable_block(HGLOBAL handle) { return memory().moveable.find(handle); }
Block* fixed_block(HGLOBAL handle) {
  const auto found = memory().fixed.find(handle);
  return found == memory().fixed.end() ? nullptr : &found->second;
}
Block* block_of(HGLOBAL handle) {
  Block* const moveable = moveable_block(handle);
  Block* const found = moveable != nullptr ? moveable : fixed_block(handle);
  if (found == nullptr) SetLastError(ERROR_INVALID_HANDLE);
  return found;
}

Bytes allocate(SIZE_T size, UINT flags) {
  if (size > kLargestBlock) return nullptr;
  const SIZE_T real = std::max<SIZE_T>(size, 1);
  return Bytes((flags & GMEM_ZEROINIT) != 0 ? std::calloc(1, real) : std::malloc(real));
}

HGLOBAL no_memory() {
  SetLastError(ERROR_NOT_ENOUGH_MEMORY);
  return nullptr;
}

// Changes the size where the memory is.
bool resize_in_place(Block& block, SIZE_T size) {
  if (size > block.size) return false;
  block.size = size;
  return true;
}

bool resize(Block& block, SIZE_T size, UINT flags) {
  Bytes bytes = allocate(size, flags);
  if (bytes == nullptr) return false;
  const auto* const old = static_cast<const std::byte*>(block.bytes.get());
  std::copy_n(old, old != nullptr ? std::min(size, block.size) : 0,
              static_cast<std::byte*>(bytes.get()));
  block.bytes = std::move(bytes);
  block.size = size;
  return true;
}

HGLOBAL move_fixed(HGLOBAL handle, SIZE_T size, UINT flags) {
  Block block = std::move(memory().fixed.extract(handle).mapped());
  const bool moved = resize(block, size, flags);
  HGLOBAL const place = block.bytes.get();
  memory().fixed.emplace(place, std::move(block));
  return moved ? place : no_memory();
}

}  // namespace

HGLOBAL GlobalAlloc(UINT flags, SIZE_T size) {
  const bool moveable = (flags & GMEM_MOVEABLE) != 0;
  Block block{moveable && size == 0 ? nullptr : allocate(size, flags), size, 0};
  if (block.bytes == nullptr && (!moveable || size != 0)) return no_memory();
  const std::lock_guard guard(memory().lock);
  if (moveable) {
    HGLOBAL const handle = memory().moveable.insert_as<HGLOBAL>(std::move(block));
    return handle != nullptr ? handle : no_memory();
  }
  HGLOBAL const place = block.bytes.get();
  memory().fixed.emplace(place, std::move(block));
  return place;
}

HGLOBAL GlobalReAlloc(HGLOBAL handle, SIZE_T size, UINT flags) {
  const std::lock_guard guard(memory().lock);
  Block* const block = block_of(handle);
  if (block == nullptr) return nullptr;
  if ((flags & GMEM_MODIFY) != 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  const bool fixed = moveable_block(handle) == nullptr;
  const bool may_move = (flags & GMEM_MOVEABLE) != 0 || (!fixed && block->locks == 0);
  if (resize_in_place(*block, size)) return handle;
  if (!may_move) return no_memory();
  if (fixed) return move_fixed(handle, size, flags);
  return resize(*block, size, flags) ? handle : no_memory();
}

HGLOBAL GlobalFree(HGLOBAL handle) {
  if (handle == nullptr) return nullptr;
  const std::lock_guard guard(memory().lock);
  if (memory().moveable.remove(handle) || memory().fixed.erase(handle) != 0) return nullptr;
  SetLastError(ERROR_INVALID_HANDLE);
  return handle;
}

LPVOID GlobalLock(HGLOBAL handle) {
  const std::lock_guard guard(memory().lock);
  Block* const block = block_of(handle);
  if (block == nullptr) return nullptr;
  if (moveable_block(handle) != nullptr) block->locks = std::min(block->locks + 1, kMostLocks);
  return block->bytes.get();
}

BOOL GlobalUnlock(HGLOBAL handle) {
  const std::lock_guard guard(memory().lock);
  Block* const block = block_of(handle);
  if (block == nullptr) return FALSE;
  if (moveable_block(handle) == nullptr) return TRUE;
  SetLastError(block->locks > 0 ? ERROR_SUCCESS : ERROR_NOT_LOCKED);
  if (block->locks > 0) --block->locks;
  return block->locks > 0 ? TRUE : FALSE;
}

SIZE_T GlobalSize(HGLOBAL handle) {
  const std::lock_guard guard(memory().lock);
  const Block* const block = block_of(handle);
  return block != nullptr ? block->size : 0;
}

UINT GlobalFlags(HGLOBAL handle) {
  const std::lock_guard guard(memory().lock);
  const Block* const block = block_of(handle);
  return block != nullptr ? block->locks : GMEM_INVALID_HANDLE;
}

}  // namespace corvane_system
