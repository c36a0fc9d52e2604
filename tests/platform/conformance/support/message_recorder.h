#pragma once
// Windows whose procedure writes down every message. (q) marks what came out of the queue; the
// depth of a line is how many messages were being handled when it came.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "corvane/platform/platform.h"
#include "tests/platform/conformance/support/message_names.h"

namespace corvane::conformance {

struct WindowPlace {
  int x = 0;
  int y = 0;
  int width = 100;
  int height = 100;
};

struct WindowPlan {
  HWND parent = nullptr;  // parent or owner
  DWORD style = WS_POPUP;
  WindowPlace place = {};
  DWORD ex_style = 0;
  int id = 0;
  UINT class_style = 0;
  HBRUSH brush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  HCURSOR cursor = nullptr;
  LPVOID parameter = nullptr;
};

struct LogLine {
  std::string window;
  UINT message;
  std::string text;  // all of it, indented by the depth
};

class MessageRecorder {
 public:
  // Nothing: the default handling follows.
  using Hook = std::function<std::optional<LRESULT>(const Message&)>;
  using Action = std::function<void()>;
  using Painter = std::function<void(const PAINTSTRUCT&)>;

  MessageRecorder() { live = this; }
  ~MessageRecorder() { live = nullptr; }
  MessageRecorder(const MessageRecorder&) = delete;
  MessageRecorder& operator=(const MessageRecorder&) = delete;

  // The name stands for the window in logs and hooks from its very first message.
  HWND create(const std::string& name, const WindowPlan& plan);
  std::wstring class_for(const WindowPlan& plan);  // registers it when it is new
  HWND window(const std::string& name) const;      // null when there was none
  std::string name_of(HWND window) const;          // "none" for null
  const std::map<std::string, HWND>& windows() const { return windows_; }  // also those gone

  // One hook per window and message; a new one replaces it.
  void on(const std::string& window, UINT message, Hook hook);
  void answer(const std::string& window, UINT message, LRESULT result);
  void before_default(const std::string& window, UINT message, Action action);
  void after_default(const std::string& window, UINT message, Action action);
  // Between BeginPaint and EndPaint.
  void on_paint(const std::string& window, Painter painter) {
    painters_[window] = std::move(painter);
  }
  void remove_hooks() {
    hooks_.clear();
    painters_.clear();
  }

  // What is recorded from now on. only() replaces earlier choices and ignore() adds to them.
  void only(std::set<UINT> messages);
  void ignore(std::set<UINT> messages);
  void only_windows(std::set<std::string> names) { only_windows_ = std::move(names); }
  // WM_ACTIVATEAPP, which is left out otherwise: it comes once for each window system.
  void record_activation_of_application() { ignored_.erase(WM_ACTIVATEAPP); }

  // Announces the message that DispatchMessageW is about to deliver.
  void dispatching(const MSG& message) { dispatched_ = message; }

  void clear() { log_.clear(); }
  const std::vector<LogLine>& log() const { return log_; }
  int count(const std::string& window, UINT message) const;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT handle(const Message& sent);
  LRESULT paint(HWND window, std::optional<std::size_t> line);
  void adopt(HWND window);
  bool is_recorded(const std::string& window, UINT message) const;
  std::optional<std::size_t> record(const std::string& window, const Message& sent);
  void append(std::optional<std::size_t> line, const std::string& text);

  static MessageRecorder* live;

  std::map<HWND, std::string> names_;
  std::map<std::string, HWND> windows_;
  std::set<HWND> alive_;
  std::vector<std::string> being_created_;
  std::map<std::pair<std::string, UINT>, Hook> hooks_;
  std::map<std::string, Painter> painters_;
  std::set<UINT> only_;
  std::set<UINT> ignored_ = {WM_ACTIVATEAPP};
  std::set<std::string> only_windows_;
  std::optional<MSG> dispatched_;
  std::vector<LogLine> log_;
  std::size_t depth_ = 0;
  std::set<std::wstring> classes_;
};

}  // namespace corvane::conformance
