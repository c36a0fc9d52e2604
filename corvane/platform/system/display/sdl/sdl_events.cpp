#include "corvane/platform/system/display/sdl/sdl_events.h"

#include <algorithm>
#include <utility>

#include "corvane/platform/system/display/sdl/sdl_keys.h"
#include "corvane/platform/system/display/sdl/x_key_text.h"

namespace corvane::system {

namespace {

constexpr float kWheelNotch = 120;

InputEvent event_of(InputKind kind, POINT position = {}) {
  InputEvent event;
  event.kind = kind;
  event.position = position;
  return event;
}

// The platform's code of a mouse button, 0 for those that it does not know.
int virtual_button(Uint8 button) {
  switch (button) {
    case SDL_BUTTON_LEFT:
      return 0x01;
    case SDL_BUTTON_RIGHT:
      return 0x02;
    case SDL_BUTTON_MIDDLE:
      return 0x04;
    default:
      return 0;
  }
}

std::wstring wide(const char* utf8) {
  char* const converted = SDL_iconv_string("WCHAR_T", "UTF-8", utf8, SDL_strlen(utf8) + 1);
  if (converted == nullptr) return {};
  std::wstring text = reinterpret_cast<const wchar_t*>(converted);
  SDL_free(converted);
  return text;
}

}  // namespace

const SdlEvents::Row SdlEvents::kRows[] = {
    {SDL_MOUSEMOTION, &SdlEvents::motion},   {SDL_MOUSEBUTTONDOWN, &SdlEvents::button},
    {SDL_MOUSEBUTTONUP, &SdlEvents::button}, {SDL_MOUSEWHEEL, &SdlEvents::wheel},
    {SDL_KEYDOWN, &SdlEvents::key},          {SDL_KEYUP, &SdlEvents::key},
    {SDL_TEXTINPUT, &SdlEvents::text},       {SDL_WINDOWEVENT, &SdlEvents::window},
    {SDL_SYSWMEVENT, &SdlEvents::native},    {SDL_DROPBEGIN, &SdlEvents::drop},
    {SDL_DROPFILE, &SdlEvents::drop},        {SDL_DROPTEXT, &SdlEvents::drop},
    {SDL_DROPCOMPLETE, &SdlEvents::drop}};

void SdlEvents::translate(const SDL_Event& event, std::vector<InputEvent>& events) {
  for (const Row& row : kRows) {
    if (row.type == event.type) (this->*row.handler)(event, events);
  }
}

void SdlEvents::motion(const SDL_Event& event, std::vector<InputEvent>& events) {
  events.push_back(event_of(InputKind::mouse_move, {event.motion.x, event.motion.y}));
}

void SdlEvents::button(const SDL_Event& event, std::vector<InputEvent>& events) {
  InputEvent made = event_of(InputKind::mouse_button, {event.button.x, event.button.y});
  made.button = virtual_button(event.button.button);
  made.down = event.type == SDL_MOUSEBUTTONDOWN;
  if (made.button != 0) events.push_back(made);
}

void SdlEvents::wheel(const SDL_Event& event, std::vector<InputEvent>& events) {
  const bool flipped = event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED;
  wheel_rest_ += event.wheel.preciseY * (flipped ? -kWheelNotch : kWheelNotch);
  InputEvent made = event_of(InputKind::mouse_wheel);
  int x = 0;
  int y = 0;
  SDL_GetMouseState(&x, &y);
  made.position = {x, y};
  made.wheel = static_cast<int>(wheel_rest_);
  wheel_rest_ -= static_cast<float>(made.wheel);
  if (made.wheel != 0) events.push_back(made);
}

void SdlEvents::key(const SDL_Event& event, std::vector<InputEvent>& events) {
  modifiers_ = event.key.keysym.mod;
  InputEvent made = event_of(InputKind::key);
  made.virtual_key = virtual_key_of(event.key.keysym);
  made.down = event.type == SDL_KEYDOWN;
  made.repeat = event.key.repeat != 0;
  made.makes_char = !writes_text(event.key.keysym);
  if (made.virtual_key != 0) events.push_back(made);
  if (made.down) finish(events);
}

// SDL's event of the same key follows, if SDL knows the key.
void SdlEvents::native(const SDL_Event& event, std::vector<InputEvent>& events) {
  auto text = x_key_text(event);
  if (!text) return;
  finish(events);
  key_text_ = std::move(*text);
}

void SdlEvents::finish(std::vector<InputEvent>& events) {
  InputEvent written = event_of(InputKind::text);
  written.text = std::exchange(key_text_, {});
  if (!written.text.empty() && SDL_IsTextInputActive() == SDL_FALSE) events.push_back(written);
}

void SdlEvents::text(const SDL_Event& event, std::vector<InputEvent>& events) {
  if (commands(modifiers_)) return;
  InputEvent made = event_of(InputKind::text);
  made.text = wide(event.text.text);
  if (!made.text.empty()) events.push_back(made);
}

// The list of files may hold comments and addresses of the network, which come as files too.
void SdlEvents::drop(const SDL_Event& event, std::vector<InputEvent>& events) {
  const std::string file = event.drop.file != nullptr ? event.drop.file : "";
  SDL_free(event.drop.file);
  if (event.type == SDL_DROPBEGIN) dropped_.clear();
  if (event.type == SDL_DROPFILE && file.starts_with('/')) dropped_.push_back(file);
  if (event.type != SDL_DROPCOMPLETE || dropped_.empty()) return;
  InputEvent made = event_of(InputKind::drop);
  made.files = std::exchange(dropped_, {});
  events.push_back(made);
}

void SdlEvents::window(const SDL_Event& event, std::vector<InputEvent>& events) {
  InputEvent made;
  switch (event.window.event) {
    case SDL_WINDOWEVENT_SIZE_CHANGED:
      made = event_of(InputKind::resize, {std::max(event.window.data1, kMinWindowSize.cx),
                                          std::max(event.window.data2, kMinWindowSize.cy)});
      break;
    case SDL_WINDOWEVENT_LEAVE:
      made = event_of(InputKind::mouse_leave);
      break;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
    case SDL_WINDOWEVENT_FOCUS_LOST:
      made = event_of(InputKind::focus);
      made.down = event.window.event == SDL_WINDOWEVENT_FOCUS_GAINED;
      break;
    case SDL_WINDOWEVENT_CLOSE:
      made = event_of(InputKind::close);
      break;
    default:
      return;
  }
  events.push_back(made);
}

}  // namespace corvane::system
