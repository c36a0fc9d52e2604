#include "corvane/platform/system/shell/dropped_files.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

#include "corvane/platform/system/shell/memory_api.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace corvane::system {
namespace {

constexpr DWORD kHead = (sizeof(DROPFILES) + alignof(wchar_t) - 1) / alignof(wchar_t) *
                        static_cast<DWORD>(alignof(wchar_t));

// A list as long as it lives. What a program made itself may be of any size.
class OpenDrop {
 public:
  explicit OpenDrop(HDROP drop) : drop_(drop), size_(GlobalSize(drop)) {
    if (size_ >= sizeof(DROPFILES)) memory_ = static_cast<const char*>(GlobalLock(drop));
    if (memory_ != nullptr) std::memcpy(&head_, memory_, sizeof(head_));
  }
  ~OpenDrop() {
    if (memory_ != nullptr) GlobalUnlock(drop_);
  }
  OpenDrop(const OpenDrop&) = delete;
  OpenDrop& operator=(const OpenDrop&) = delete;

  explicit operator bool() const { return memory_ != nullptr; }
  const DROPFILES& head() const { return head_; }
  std::vector<std::wstring_view> files() const {
    std::vector<std::wstring_view> found;
    std::wstring_view rest = texts();
    for (std::size_t end = 0; !rest.empty() && rest.front() != 0; rest.remove_prefix(end + 1)) {
      end = rest.find(L'\0');
      if (end == rest.npos) break;
      found.push_back(rest.substr(0, end));
    }
    return found;
  }

 private:
  std::wstring_view texts() const {
    if (memory_ == nullptr || head_.fWide == FALSE || head_.pFiles > size_ ||
        head_.pFiles % alignof(wchar_t) != 0) {
      return {};
    }
    return {reinterpret_cast<const wchar_t*>(memory_ + head_.pFiles),
            (size_ - head_.pFiles) / sizeof(wchar_t)};
  }

  HDROP drop_;
  std::size_t size_;
  const char* memory_ = nullptr;
  DROPFILES head_{};
};

}  // namespace

HDROP make_drop(const std::vector<std::string>& files, POINT point, bool outside_client) {
  std::wstring texts;
  for (const std::string& file : files) texts += wide_path(file) + L'\0';
  texts += L'\0';
  HGLOBAL const memory = GlobalAlloc(GHND, kHead + texts.size() * sizeof(wchar_t));
  auto* const bytes = static_cast<char*>(GlobalLock(memory));
  if (bytes == nullptr) return nullptr;
  const DROPFILES head{kHead, point, outside_client ? TRUE : FALSE, TRUE};
  std::memcpy(bytes, &head, sizeof(head));
  std::copy(texts.begin(), texts.end(), reinterpret_cast<wchar_t*>(bytes + kHead));
  GlobalUnlock(memory);
  return static_cast<HDROP>(memory);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

UINT DragQueryFileW(HDROP drop, UINT index, LPWSTR buffer, UINT capacity) {
  const OpenDrop open(drop);
  const auto files = open.files();
  if (index == 0xFFFFFFFF) return static_cast<UINT>(files.size());
  if (index >= files.size()) return 0;
  const std::wstring_view file = files[index];
  if (buffer == nullptr) return static_cast<UINT>(file.size());
  if (capacity == 0) return 0;
  const std::size_t length = std::min<std::size_t>(file.size(), capacity - 1);
  file.copy(buffer, length);
  buffer[length] = 0;
  return static_cast<UINT>(length);
}

BOOL DragQueryPoint(HDROP drop, LPPOINT point) {
  const OpenDrop open(drop);
  if (!open || point == nullptr) return FALSE;
  *point = open.head().pt;
  return open.head().fNC == FALSE ? TRUE : FALSE;
}

void DragFinish(HDROP drop) { GlobalFree(drop); }

}  // namespace corvane_system
