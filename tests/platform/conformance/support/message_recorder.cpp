#include "tests/platform/conformance/support/message_recorder.h"

#include <algorithm>

#include "tests/support/rects.h"

namespace corvane::conformance {

MessageRecorder* MessageRecorder::live = nullptr;

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

int MessageRecorder::count(const std::string& window, UINT message) const {
  return static_cast<int>(std::count_if(log_.begin(), log_.end(), [&](const LogLine& line) {
    return line.window == window && line.message == message;
  }));
}

LRESULT CALLBACK MessageRecorder::procedure(HWND window, UINT message, WPARAM wparam,
                                            LPARAM lparam) {
  if (live == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  return live->handle({window, message, wparam, lparam});
}

void MessageRecorder::adopt(HWND window) {
  if (being_created_.empty() || !alive_.insert(window).second) return;
  names_[window] = being_created_.back();
  windows_[being_created_.back()] = window;
  being_created_.pop_back();
}

LRESULT MessageRecorder::handle(const Message& sent) {
  adopt(sent.window);
  const std::string name = name_of(sent.window);
  const std::optional<std::size_t> line = record(name, sent);
  if (line) ++depth_;
  const auto found = hooks_.find({name, sent.message});
  const Hook hook = found != hooks_.end() ? found->second : nullptr;  // it may replace itself
  std::optional<LRESULT> result = hook ? hook(sent) : std::nullopt;
  if (!result && sent.message == WM_PAINT) result = paint(sent.window, line);
  if (!result) result = DefWindowProcW(sent.window, sent.message, sent.wparam, sent.lparam);
  if (line) --depth_;
  if (*result != 0) append(line, " = " + std::to_string(*result));
  if (sent.message == WM_NCDESTROY) alive_.erase(sent.window);
  return *result;
}

LRESULT MessageRecorder::paint(HWND window, std::optional<std::size_t> line) {
  PAINTSTRUCT paint{};
  BeginPaint(window, &paint);
  append(line, test::text_of(paint.rcPaint).insert(0, 1, ' ') +
                   " fErase=" + std::to_string(paint.fErase));
  const auto painter = painters_.find(name_of(window));
  if (painter != painters_.end()) painter->second(paint);
  EndPaint(window, &paint);
  return 0;
}

bool MessageRecorder::is_recorded(const std::string& window, UINT message) const {
  return !message_name(message).empty() && ignored_.count(message) == 0 &&
         (only_.empty() || only_.count(message) != 0) &&
         (only_windows_.empty() || only_windows_.count(window) != 0);
}

// Which line it is.
std::optional<std::size_t> MessageRecorder::record(const std::string& window, const Message& sent) {
  const bool queued =
      dispatched_ && dispatched_->hwnd == sent.window && dispatched_->message == sent.message;
  if (queued) dispatched_.reset();
  if (!is_recorded(window, sent.message)) return std::nullopt;
  log_.push_back({window, sent.message,
                  std::string(2 * depth_, ' ') + window + (queued ? " (q) " : " ") +
                      message_name(sent.message) +
                      message_details(sent, [this](HWND other) { return name_of(other); })});
  return log_.size() - 1;
}

// Unless the log was cleared since.
void MessageRecorder::append(std::optional<std::size_t> line, const std::string& text) {
  if (line && *line < log_.size()) log_[*line].text += text;
}

}  // namespace corvane::conformance
