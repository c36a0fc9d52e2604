#pragma once
#include <SDL.h>

#include <string>
#include <vector>

#include "corvane/platform/system/display/input_event.h"

namespace corvane::system {

// Makes the window system's events from SDL's, for one native window.
class SdlEvents {
 public:
  void translate(const SDL_Event& event, std::vector<InputEvent>& events);
  // To be called when there are no more events for now.
  void finish(std::vector<InputEvent>& events);

 private:
  using Handler = void (SdlEvents::*)(const SDL_Event&, std::vector<InputEvent>&);
  struct Row {
    Uint32 type;
    Handler handler;
  };
  static const Row kRows[];

  void motion(const SDL_Event& event, std::vector<InputEvent>& events);
  void button(const SDL_Event& event, std::vector<InputEvent>& events);
  void wheel(const SDL_Event& event, std::vector<InputEvent>& events);
  void key(const SDL_Event& event, std::vector<InputEvent>& events);
  void native(const SDL_Event& event, std::vector<InputEvent>& events);
  void text(const SDL_Event& event, std::vector<InputEvent>& events);
  void drop(const SDL_Event& event, std::vector<InputEvent>& events);
  void window(const SDL_Event& event, std::vector<InputEvent>& events);

  std::vector<std::string> dropped_;  // of the drop that is arriving
  std::wstring key_text_;             // of the key whose event follows
  Uint16 modifiers_ = KMOD_NONE;      // as of the last key
  float wheel_rest_ = 0;              // what is left of fine turns, in 1/120 of a notch
};

// The least size that the native window and the desktop in it can get, pixels.
constexpr SIZE kMinWindowSize{320, 240};

}  // namespace corvane::system
