#pragma once
// What the clipboard of a window system holds, and its exchange with the desktop.
#include <string>
#include <vector>

#include "corvane/platform/system/types.h"
#include "corvane/platform/system/user/window_system.h"

namespace corvane::system {

// Memory or a drawing object that the clipboard owns, freed as its format asks for.
class ClipboardMemory {
 public:
  ClipboardMemory(UINT format, HANDLE handle) : format_(format), handle_(handle) {}
  ~ClipboardMemory() { free(); }
  ClipboardMemory(ClipboardMemory&& other) noexcept;
  ClipboardMemory& operator=(ClipboardMemory&& other) noexcept;

  UINT format() const { return format_; }
  HANDLE handle() const { return handle_; }
  bool promised() const { return handle_ == nullptr; }

 private:
  void free();

  UINT format_;
  HANDLE handle_;
};

struct ClipboardEntry {
  ClipboardMemory memory;
  UINT made_from = 0;  // of another format, when it is asked for; 0: was set
};

struct ClipboardState {
  std::vector<ClipboardEntry> entries;  // in the order of setting
  bool open = false;
  bool changed = false;    // since it was opened
  bool rendering = false;  // the owner keeps a promise
  HWND opener = nullptr;
  HWND owner = nullptr;
  DWORD sequence = 1;
  std::vector<HWND> listeners;
  std::string desktop_text;     // what the desktop has, as far as it is known
  bool desktop_changed = true;  // it may have another text by now

  ClipboardEntry* find(UINT format);
};

// Asks the desktop for its text if that may have changed; a new one replaces what was there.
void take_desktop_text(WindowSystem::Impl& state);
// After the desktop's notice: for those who have to be told at once.
void desktop_clipboard_changed(WindowSystem::Impl& state);

// The owner keeps its promises while it lives.
void render_promised_formats(HWND window);
void forget_clipboard_window(WindowSystem::Impl& state, HWND window);

}  // namespace corvane::system
