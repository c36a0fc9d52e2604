#pragma once
// Objects by handle. A handle is a number that names one object of one table: it is looked up,
// never dereferenced, so a stale, foreign or made-up handle finds nothing.
#include <atomic>
#include <cassert>
#include <cstdint>
#include <deque>
#include <optional>
#include <utility>
#include <vector>

namespace corvane::system {

// A fresh owner tag for a table, so that handles of two tables differ. Thread-safe; the tags come
// round again after 65535 calls.
inline std::uint16_t next_owner_tag() {
  static std::atomic<std::uint32_t> counter{0};
  return static_cast<std::uint16_t>(1 + counter.fetch_add(1) % 0xFFFF);
}

// Value of a handle: 16 bits owner tag (not 0), 24 bits generation (not 0), 24 bits index. A place
// whose generations are used up is never used again, so a stale handle never comes back to life.
// Pointers to objects stay valid until the object is removed.
template <class Object>
class HandleTable {
 public:
  explicit HandleTable(std::uint16_t owner_tag) : tag_(owner_tag) {}

  // 0 when the table is full.
  std::uint64_t insert(Object object) {
    if (free_.empty() && slots_.size() > kIndexMask) return 0;
    if (free_.empty()) {
      free_.push_back(static_cast<std::uint32_t>(slots_.size()));
      slots_.emplace_back();
    }
    const std::uint32_t index = free_.back();
    slots_[index].object.emplace(std::move(object));
    free_.pop_back();
    ++live_;
    return value_of(index);
  }
  template <class Handle>
  Handle insert_as(Object object) {
    return reinterpret_cast<Handle>(static_cast<std::uintptr_t>(insert(std::move(object))));
  }

  // Null for a handle that names nothing here.
  Object* find(std::uint64_t handle) {
    const std::optional<std::uint32_t> index = index_of(handle);
    return index ? &*slots_[*index].object : nullptr;
  }
  Object* find(const void* handle) { return find(reinterpret_cast<std::uintptr_t>(handle)); }

  // Takes the object out; nothing when the handle names none.
  std::optional<Object> remove(std::uint64_t handle) {
    const std::optional<std::uint32_t> index = index_of(handle);
    if (!index) return std::nullopt;
    Slot& slot = slots_[*index];
    std::optional<Object> object = std::move(slot.object);
    slot.object.reset();
    if (++slot.generation <= kGenerationMask) free_.push_back(*index);
    assert(live_ > 0);
    --live_;
    return object;
  }
  std::optional<Object> remove(const void* handle) {
    return remove(reinterpret_cast<std::uintptr_t>(handle));
  }

  int size() const { return live_; }

  // Calls visit(handle value, object) for each live object; visit must not insert or remove.
  template <class Visit>
  void for_each(Visit visit) {
    for (std::uint32_t index = 0; index < slots_.size(); ++index) {
      if (slots_[index].object) visit(value_of(index), *slots_[index].object);
    }
  }

 private:
  static constexpr std::uint64_t kIndexMask = 0xFFFFFF;
  static constexpr std::uint64_t kGenerationMask = 0xFFFFFF;
  struct Slot {
    std::uint32_t generation = 1;
    std::optional<Object> object;
  };

  std::uint64_t value_of(std::uint32_t index) const {
    return (std::uint64_t{tag_} << 48) | (std::uint64_t{slots_[index].generation} << 24) | index;
  }
  std::optional<std::uint32_t> index_of(std::uint64_t handle) const {
    const std::uint64_t index = handle & kIndexMask;
    if (index >= slots_.size() || !slots_[index].object) return std::nullopt;
    if (value_of(static_cast<std::uint32_t>(index)) != handle) return std::nullopt;
    return static_cast<std::uint32_t>(index);
  }

  std::uint16_t tag_;
  int live_ = 0;
  std::deque<Slot> slots_;
  std::vector<std::uint32_t> free_;
};

}  // namespace corvane::system
