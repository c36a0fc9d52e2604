#include "corvane/platform/system/user/clipboard/clipboard.h"

#include <algorithm>
#include <utility>

#include "corvane/platform/system/shell/memory_api.h"
#include "corvane/platform/system/user/clipboard/clipboard_api.h"
#include "corvane/platform/system/user/clipboard/clipboard_changes.h"
#include "corvane/platform/system/user/clipboard/clipboard_text.h"
#include "corvane/platform/system/user/messages/post_message.h"
#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane::system {

ClipboardMemory::ClipboardMemory(ClipboardMemory&& other) noexcept
    : format_(other.format_), handle_(std::exchange(other.handle_, nullptr)) {}

ClipboardMemory& ClipboardMemory::operator=(ClipboardMemory&& other) noexcept {
  if (this == &other) return *this;
  free();
  format_ = other.format_;
  handle_ = std::exchange(other.handle_, nullptr);
  return *this;
}

// Private formats are the owner's own matter.
void ClipboardMemory::free() {
  if (handle_ == nullptr || (format_ >= CF_PRIVATEFIRST && format_ <= CF_PRIVATELAST)) return;
  if (format_ == CF_BITMAP || (format_ >= CF_GDIOBJFIRST && format_ <= CF_GDIOBJLAST)) {
    DeleteObject(handle_);
  } else {
    GlobalFree(handle_);
  }
}

ClipboardEntry* ClipboardState::find(UINT format) {
  const auto found = std::find_if(entries.begin(), entries.end(), [format](const auto& entry) {
    return entry.memory.format() == format;
  });
  return found == entries.end() ? nullptr : &*found;
}

void note_change(ClipboardState& clipboard) {
  ++clipboard.sequence;
  clipboard.changed = true;
}

void add_made_formats(ClipboardState& clipboard) {
  UINT source = 0;
  for (const ClipboardEntry& entry : clipboard.entries) {
    const bool first = source == 0 && entry.made_from == 0;
    if (first && is_text_format(entry.memory.format())) source = entry.memory.format();
  }
  if (source == 0) return;
  for (const UINT format : {CF_LOCALE, CF_TEXT, CF_OEMTEXT, CF_UNICODETEXT}) {
    if (clipboard.find(format) != nullptr) continue;
    clipboard.entries.push_back({{format, nullptr}, source});
  }
}

void remove_made_formats(ClipboardState& clipboard) {
  std::erase_if(clipboard.entries, [](const auto& entry) { return entry.made_from != 0; });
}

namespace {

void ask_to_render(ClipboardState& clipboard, UINT format) {
  struct Rendering {
    bool& flag;
    ~Rendering() { flag = false; }
  };
  const Rendering rendering{clipboard.rendering = true};
  send(clipboard.owner, WM_RENDERFORMAT, format, 0);
}

}  // namespace

HANDLE clipboard_memory(System& state, UINT format) {
  ClipboardState& clipboard = state.clipboard;
  ClipboardEntry* found = clipboard.find(format);
  if (found == nullptr || !found->memory.promised()) {
    return found != nullptr ? found->memory.handle() : nullptr;
  }
  if (const UINT source = found->made_from; source != 0) {
    HANDLE const original = clipboard_memory(state, source);
    if (original == nullptr) return nullptr;
    HANDLE const made = memory_of_text(format, text_in_memory(source, original));
    found = clipboard.find(format);
    if (found != nullptr) found->memory = {format, made};
    return made;
  }
  ask_to_render(clipboard, format);
  found = clipboard.find(format);
  return found != nullptr ? found->memory.handle() : nullptr;
}

void tell_listeners(const System& state) {
  for (HWND listener : state.clipboard.listeners) post(listener, WM_CLIPBOARDUPDATE, 0, 0);
}

void give_text_to_desktop(System& state) {
  std::string text;
  if (HANDLE const memory = clipboard_memory(state, CF_UNICODETEXT)) {
    text = with_desktop_line_ends(text_in_memory(CF_UNICODETEXT, memory));
  }
  if (!state.display->set_clipboard_text(text)) {
    text.clear();
    state.display->set_clipboard_text(text);
  }
  state.clipboard.desktop_text = text;
}

void take_desktop_text(System& state) {
  ClipboardState& clipboard = state.clipboard;
  if (!clipboard.desktop_changed || clipboard.open) return;
  clipboard.desktop_changed = false;
  std::string text = state.display->clipboard_text();
  if (text == clipboard.desktop_text) return;
  HWND const old_owner = std::exchange(clipboard.owner, nullptr);
  clipboard.entries.clear();
  if (!text.empty()) {
    HANDLE const memory = memory_of_text(CF_UNICODETEXT, with_platform_line_ends(text));
    clipboard.entries.push_back({{CF_UNICODETEXT, memory}, 0});
    add_made_formats(clipboard);
  }
  clipboard.desktop_text = std::move(text);
  ++clipboard.sequence;
  tell_listeners(state);
  send(old_owner, WM_DESTROYCLIPBOARD);
}

void desktop_clipboard_changed(System& state) {
  const ClipboardState& clipboard = state.clipboard;
  if (clipboard.owner != nullptr || !clipboard.listeners.empty()) take_desktop_text(state);
}

void render_promised_formats(HWND window) {
  const System& state = *system();
  const auto& entries = state.clipboard.entries;
  if (window != state.clipboard.owner) return;
  const bool promises = std::any_of(entries.begin(), entries.end(), [](const auto& entry) {
    return entry.made_from == 0 && entry.memory.promised();
  });
  if (promises) send(window, WM_RENDERALLFORMATS);
}

void forget_clipboard_window(System& state, HWND window) {
  ClipboardState& clipboard = state.clipboard;
  std::erase(clipboard.listeners, window);
  if (clipboard.owner == window) {
    clipboard.owner = nullptr;
    std::erase_if(clipboard.entries, [](const auto& entry) {
      return entry.made_from == 0 && entry.memory.promised();
    });
    std::erase_if(clipboard.entries, [&](const auto& entry) {
      return entry.made_from != 0 && entry.memory.promised() &&
             clipboard.find(entry.made_from) == nullptr;
    });
  }
  if (!clipboard.open || clipboard.opener != window) return;
  clipboard.opener = nullptr;  // whoever changes it meanwhile must not make the window its owner
  CloseClipboard();
}

}  // namespace corvane::system
