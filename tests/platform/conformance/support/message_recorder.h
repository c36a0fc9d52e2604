#pragma once
// Windows whose procedure writes down every message, so that a case is a table of what is expected:
//
//   child WM_NCCREATE > WM_CREATE > parent WM_PARENTNOTIFY WM_CREATE 7 child > child (q) WM_PAINT
//   pop WM_ACTIVATE 1 old { old WM_KILLFOCUS pop > pop WM_SETFOCUS old }
//
// A > B is order, { } holds what was sent while the message before it was being handled, (q) marks
// what came out of the queue. A step without a window's name is about the window of the step
// before. Parameters may be left out from the right; flags joined by | are compared as sets; ~FLAG
// means "at least this flag".
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "corvane/platform/platform.h"

namespace corvane::conformance {

struct Message {
  HWND window;
  UINT message;
  WPARAM wparam;
  LPARAM lparam;
};

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
  int depth;
  std::string text;
};

enum class Nesting { compared, ignored };

class MessageRecorder {
 public:
  // Nothing: the default handling follows.
  using Hook = std::function<std::optional<LRESULT>(const Message&)>;
  using Action = std::function<void()>;

  MessageRecorder();
  ~MessageRecorder();
  MessageRecorder(const MessageRecorder&) = delete;
  MessageRecorder& operator=(const MessageRecorder&) = delete;

  // The name stands for the window in logs and hooks from its very first message.
  HWND create(const std::string& name, const WindowPlan& plan);
  std::wstring class_for(const WindowPlan& plan);  // registers it when it is new
  HWND window(const std::string& name) const;      // null when there was none
  std::string name_of(HWND window) const;          // "none" for null

  // One hook per window and message; a new one replaces it.
  void on(const std::string& window, UINT message, Hook hook);
  void answer(const std::string& window, UINT message, LRESULT result);
  void before_default(const std::string& window, UINT message, Action action);
  void after_default(const std::string& window, UINT message, Action action);
  void remove_hooks() { hooks_.clear(); }

  // What is recorded from now on. only() replaces earlier choices and ignore() adds to them.
  void only(std::set<UINT> messages);
  void ignore(std::set<UINT> messages);
  void only_windows(std::set<std::string> names) { only_windows_ = std::move(names); }
  void record_everything();

  // Announces the message that DispatchMessageW is about to deliver.
  void dispatching(const MSG& message);

  void clear() { log_.clear(); }
  const std::vector<LogLine>& log() const { return log_; }
  int count(const std::string& window, UINT message) const;
  testing::AssertionResult matches(std::string_view expected,
                                   Nesting nesting = Nesting::compared) const;
  std::string text() const;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT handle(const Message& message);
  LRESULT default_handling(const Message& message, std::optional<std::size_t> line);
  LRESULT paint(const Message& message, std::optional<std::size_t> line);
  void adopt(HWND window);
  bool is_recorded(const std::string& window, UINT message) const;
  std::optional<std::size_t> record(const std::string& window, const Message& message);

  std::map<HWND, std::string> names_;
  std::map<std::string, HWND> windows_;
  std::set<HWND> alive_;
  std::vector<std::string> being_created_;
  std::map<std::pair<std::string, UINT>, Hook> hooks_;
  std::set<UINT> only_;
  std::set<UINT> ignored_;
  std::set<std::string> only_windows_;
  std::optional<MSG> dispatched_;
  std::vector<LogLine> log_;
  int depth_ = 0;
  std::set<std::wstring> classes_;
  MessageRecorder* previous_;
};

}  // namespace corvane::conformance
