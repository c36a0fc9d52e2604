#include "apps/capture/clipboard.h"

#include <algorithm>
#include <string>

namespace capture {
namespace {

std::wstring with_platform_line_ends(std::wstring_view text) {
  std::wstring result;
  for (const wchar_t character : text) {
    if (character == L'\n' && !result.ends_with(L'\r')) result += L'\r';
    result += character;
  }
  return result;
}

HGLOBAL in_memory(const std::wstring& text) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  auto* const to = memory != nullptr ? static_cast<wchar_t*>(GlobalLock(memory)) : nullptr;
  if (to == nullptr) return nullptr;
  std::copy_n(text.c_str(), text.size() + 1, to);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool copy_text(HWND window, std::wstring_view text) {
  const HGLOBAL memory = in_memory(with_platform_line_ends(text));
  if (memory == nullptr) return false;
  if (!OpenClipboard(window)) {
    GlobalFree(memory);
    return false;
  }
  EmptyClipboard();
  const bool taken = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
  CloseClipboard();
  if (!taken) GlobalFree(memory);
  return taken;
}

}  // namespace capture
