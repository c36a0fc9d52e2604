// The clipboard's functions under the platform's names.
#include <algorithm>

#include "corvane/platform/system/shell/memory_api.h"
#include "corvane/platform/system/user/clipboard/clipboard_api.h"
#include "corvane/platform/system/user/clipboard/clipboard_changes.h"
#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

// The system whose clipboard shows what the desktop has by now, or null.
System* current_clipboard() {
  System* const state = corvane::system::system();
  if (state != nullptr) take_desktop_text(*state);
  return state;
}

System* open_clipboard() {
  System* const state = corvane::system::system();
  if (state != nullptr && state->clipboard.open) return state;
  SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
  return nullptr;
}

bool is_memory_format(UINT format) {
  return format != CF_BITMAP && !(format >= CF_PRIVATEFIRST && format <= CF_GDIOBJLAST);
}

// Closes it at the end of the scope, also when an owner throws instead of keeping its promise.
struct Closing {
  ClipboardState& clipboard;
  ~Closing() {
    clipboard.changed = false;
    clipboard.open = false;
    clipboard.opener = nullptr;
  }
};

// The entry that owns this memory already, or null.
ClipboardEntry* entry_with(ClipboardState& clipboard, HANDLE memory) {
  const auto found = std::ranges::find_if(clipboard.entries, [memory](const auto& entry) {
    return entry.memory.handle() == memory && is_memory_format(entry.memory.format());
  });
  return found != clipboard.entries.end() ? &*found : nullptr;
}

HANDLE refused(DWORD error) {
  SetLastError(error);
  return nullptr;
}

}  // namespace

BOOL OpenClipboard(HWND window) {
  System* const state = current_clipboard();
  // Only now: the former owner, which hears that it lost the clipboard, may destroy the window.
  if (state == nullptr || (window != nullptr && checked(window) == nullptr)) return FALSE;
  ClipboardState& clipboard = state->clipboard;
  if (clipboard.open && clipboard.opener != window) {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
  }
  clipboard.open = true;
  clipboard.opener = window;
  return TRUE;
}

BOOL CloseClipboard() {
  System* const state = open_clipboard();
  if (state == nullptr) return FALSE;
  ClipboardState& clipboard = state->clipboard;
  const Closing closing{clipboard};
  if (!clipboard.changed) return TRUE;
  add_made_formats(clipboard);
  tell_listeners(*state);
  give_text_to_desktop(*state);
  return TRUE;
}

BOOL EmptyClipboard() {
  System* const state = open_clipboard();
  if (state == nullptr) return FALSE;
  send(state->clipboard.owner, WM_DESTROYCLIPBOARD);
  if (!state->clipboard.open) return FALSE;
  state->clipboard.entries.clear();
  state->clipboard.owner = state->clipboard.opener;
  note_change(state->clipboard);
  return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE memory) {
  System* const state = corvane::system::system();
  if (state == nullptr || !(state->clipboard.open || state->clipboard.rendering)) {
    return refused(ERROR_CLIPBOARD_NOT_OPEN);
  }
  ClipboardState& clipboard = state->clipboard;
  const bool promise = memory == nullptr;
  if (format == 0 || (promise && clipboard.owner == nullptr)) {
    return refused(ERROR_INVALID_PARAMETER);
  }
  const bool checks = !promise && is_memory_format(format);
  if (checks && GlobalFlags(memory) == GMEM_INVALID_HANDLE) return refused(ERROR_INVALID_HANDLE);
  if (ClipboardEntry* const owned = checks ? entry_with(clipboard, memory) : nullptr) {
    if (owned->memory.format() != format) return refused(ERROR_INVALID_HANDLE);
    owned->made_from = 0;
  }
  if (!clipboard.rendering) {
    remove_made_formats(clipboard);
    note_change(clipboard);
  }
  ClipboardEntry* const known = clipboard.find(format);
  const bool same = known != nullptr && known->memory.handle() == memory;
  if (known == nullptr) {
    clipboard.entries.push_back({{format, memory}, 0});
  } else if (!same) {
    *known = {{format, memory}, 0};
  }
  return memory;
}

HANDLE GetClipboardData(UINT format) {
  System* const state = open_clipboard();
  return state != nullptr ? clipboard_memory(*state, format) : nullptr;
}

BOOL IsClipboardFormatAvailable(UINT format) {
  System* const state = current_clipboard();
  return state != nullptr && state->clipboard.find(format) != nullptr ? TRUE : FALSE;
}

int CountClipboardFormats() {
  const System* const state = current_clipboard();
  return state != nullptr ? static_cast<int>(state->clipboard.entries.size()) : 0;
}

UINT EnumClipboardFormats(UINT format) {
  const System* const state = open_clipboard();
  if (state == nullptr) return 0;
  const auto& entries = state->clipboard.entries;
  auto next = entries.begin();
  if (format != 0) {
    next = std::find_if(entries.begin(), entries.end(),
                        [format](const auto& entry) { return entry.memory.format() == format; });
    if (next != entries.end()) ++next;
  }
  if (next == entries.end()) SetLastError(ERROR_SUCCESS);
  return next != entries.end() ? next->memory.format() : 0;
}

int GetPriorityClipboardFormat(UINT* formats, int count) {
  if (CountClipboardFormats() == 0) return 0;
  for (int at = 0; formats != nullptr && at < count; ++at) {
    if (IsClipboardFormatAvailable(formats[at]) != FALSE) return static_cast<int>(formats[at]);
  }
  return -1;
}

HWND GetClipboardOwner() {
  const System* const state = current_clipboard();
  return state != nullptr ? state->clipboard.owner : nullptr;
}

HWND GetOpenClipboardWindow() {
  const System* const state = corvane::system::system();
  return state != nullptr ? state->clipboard.opener : nullptr;
}

DWORD GetClipboardSequenceNumber() {
  const System* const state = current_clipboard();
  return state != nullptr ? state->clipboard.sequence : 0;
}

// Messages and formats are numbered together.
UINT RegisterClipboardFormatW(LPCWSTR name) { return RegisterWindowMessageW(name); }

BOOL AddClipboardFormatListener(HWND window) {
  if (checked(window) == nullptr) return FALSE;
  auto& listeners = corvane::system::system()->clipboard.listeners;
  if (std::find(listeners.begin(), listeners.end(), window) != listeners.end()) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  listeners.push_back(window);
  return TRUE;
}

BOOL RemoveClipboardFormatListener(HWND window) {
  if (checked(window) == nullptr) return FALSE;
  if (std::erase(corvane::system::system()->clipboard.listeners, window) != 0) return TRUE;
  SetLastError(ERROR_INVALID_PARAMETER);
  return FALSE;
}

}  // namespace corvane_system
