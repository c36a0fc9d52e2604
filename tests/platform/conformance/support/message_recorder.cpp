#include "tests/platform/conformance/support/message_recorder.h"

#include <algorithm>

#include "tests/platform/conformance/support/message_names.h"
#include "tests/support/rects.h"

namespace corvane::conformance {

namespace {

thread_local MessageRecorder* current_recorder = nullptr;

}  // namespace

MessageRecorder::MessageRecorder() : previous_(current_recorder) {
  current_recorder = this;
  record_everything();
}

MessageRecorder::~MessageRecorder() {
  for (const std::wstring& name : classes_)
    UnregisterClassW(name.c_str(), GetModuleHandleW(nullptr));
  current_recorder = previous_;
}

std::wstring MessageRecorder::class_for(const WindowPlan& plan) {
  std::wstring name = L"Recorded." + std::to_wstring(plan.class_style) + L"." +
                      std::to_wstring(reinterpret_cast<UINT_PTR>(plan.brush)) + L"." +
                      std::to_wstring(reinterpret_cast<UINT_PTR>(plan.cursor));
  if (!classes_.insert(name).second) return name;
  WNDCLASSW window_class{};
  window_class.style = plan.class_style;
  window_class.lpfnWndProc = &MessageRecorder::procedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hCursor = plan.cursor;
  window_class.hbrBackground = plan.brush;
  window_class.lpszClassName = name.c_str();
  EXPECT_NE(RegisterClassW(&window_class), 0);
  return name;
}

HWND MessageRecorder::create(const std::string& name, const WindowPlan& plan) {
  const std::wstring class_name = class_for(plan);
  being_created_.push_back(name);
  const std::size_t pending = being_created_.size();
  const HWND window = CreateWindowExW(
      plan.ex_style, class_name.c_str(), std::wstring(name.begin(), name.end()).c_str(), plan.style,
      plan.place.x, plan.place.y, plan.place.width, plan.place.height, plan.parent,
      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(plan.id)), GetModuleHandleW(nullptr),
      plan.parameter);
  // A refused creation may never have sent a message.
  if (being_created_.size() == pending) being_created_.pop_back();
  return window;
}

HWND MessageRecorder::window(const std::string& name) const {
  const auto found = windows_.find(name);
  return found == windows_.end() ? nullptr : found->second;
}

std::string MessageRecorder::name_of(HWND window) const {
  if (window == nullptr) return "none";
  const auto found = names_.find(window);
  return found == names_.end() ? "?" : found->second;
}

void MessageRecorder::on(const std::string& window, UINT message, Hook hook) {
  hooks_[{window, message}] = std::move(hook);
}

void MessageRecorder::answer(const std::string& window, UINT message, LRESULT result) {
  on(window, message, [result](const Message&) { return result; });
}

void MessageRecorder::before_default(const std::string& window, UINT message, Action action) {
  on(window, message, [action = std::move(action)](const Message&) -> std::optional<LRESULT> {
    action();
    return std::nullopt;
  });
}

void MessageRecorder::after_default(const std::string& window, UINT message, Action action) {
  on(window, message, [action = std::move(action)](const Message& sent) -> std::optional<LRESULT> {
    const LRESULT result = DefWindowProcW(sent.window, sent.message, sent.wparam, sent.lparam);
    action();
    return result;
  });
}

void MessageRecorder::only(std::set<UINT> messages) {
  only_ = std::move(messages);
  ignored_.clear();
}

void MessageRecorder::ignore(std::set<UINT> messages) { ignored_.merge(messages); }

void MessageRecorder::record_everything() {
  only_.clear();
  only_windows_.clear();
  ignored_ = {WM_ACTIVATEAPP};
}

void MessageRecorder::dispatching(const MSG& message) { dispatched_ = message; }

int MessageRecorder::count(const std::string& window, UINT message) const {
  const std::string plain = window + " " + message_name(message) + " ";
  const std::string queued = window + " (q) " + message_name(message) + " ";
  return static_cast<int>(std::count_if(log_.begin(), log_.end(), [&](const LogLine& line) {
    return (line.text + " ").starts_with(plain) || (line.text + " ").starts_with(queued);
  }));
}

LRESULT CALLBACK MessageRecorder::procedure(HWND window, UINT message, WPARAM wparam,
                                            LPARAM lparam) {
  if (current_recorder == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  return current_recorder->handle({window, message, wparam, lparam});
}

void MessageRecorder::adopt(HWND window) {
  if (being_created_.empty() || !alive_.insert(window).second) return;
  names_[window] = being_created_.back();
  windows_[being_created_.back()] = window;
  being_created_.pop_back();
}

LRESULT MessageRecorder::handle(const Message& message) {
  adopt(message.window);
  const std::string name = name_of(message.window);
  const std::optional<std::size_t> line = record(name, message);
  if (line) ++depth_;
  const auto found = hooks_.find({name, message.message});
  std::optional<LRESULT> result;
  if (found != hooks_.end()) {
    const Hook hook = found->second;  // it may remove or replace itself
    result = hook(message);
  }
  if (!result) result = default_handling(message, line);
  if (line) --depth_;
  if (line && *line < log_.size() && *result != 0) {
    log_[*line].text += " = " + std::to_string(*result);
  }
  if (message.message == WM_NCDESTROY) alive_.erase(message.window);
  return *result;
}

LRESULT MessageRecorder::default_handling(const Message& message, std::optional<std::size_t> line) {
  if (message.message == WM_PAINT) return paint(message, line);
  return DefWindowProcW(message.window, message.message, message.wparam, message.lparam);
}

LRESULT MessageRecorder::paint(const Message& message, std::optional<std::size_t> line) {
  PAINTSTRUCT paint{};
  BeginPaint(message.window, &paint);
  if (line && *line < log_.size()) {
    log_[*line].text +=
        " " + test::text_of(paint.rcPaint) + " fErase=" + std::to_string(paint.fErase);
  }
  EndPaint(message.window, &paint);
  return 0;
}

bool MessageRecorder::is_recorded(const std::string& window, UINT message) const {
  if (message_name(message).empty()) return false;
  if (!only_windows_.empty() && only_windows_.count(window) == 0) return false;
  return (only_.empty() || only_.count(message) != 0) && ignored_.count(message) == 0;
}

std::optional<std::size_t> MessageRecorder::record(const std::string& window,
                                                   const Message& message) {
  const bool queued =
      dispatched_ && dispatched_->hwnd == message.window && dispatched_->message == message.message;
  if (queued) dispatched_.reset();
  if (!is_recorded(window, message.message)) return std::nullopt;
  const std::string details = message_details(message.message, message.wparam, message.lparam,
                                              [this](HWND other) { return name_of(other); });
  log_.push_back({depth_, window + (queued ? " (q) " : " ") + message_name(message.message) +
                              (details.empty() ? "" : " " + details)});
  return log_.size() - 1;
}

}  // namespace corvane::conformance
