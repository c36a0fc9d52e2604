#pragma once
// A user's session with a layer that is played once for every message that comes in it, each time
// with a deed at that message: nothing may crash, nothing may be left.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/app_desktop.h"
#include "tests/support/host_window.h"
#include "tests/support/message_trap.h"
#include "tests/support/test_skin.h"

namespace corvane::test {

// A host with layers, what a user does to them, and what may go wrong.
class Scene {
 public:
  Scene(Desktop& desktop, MessageTrap& trap) : desktop_(desktop), trap_(trap) {}
  virtual ~Scene() = default;

  virtual void play() = 0;
  virtual void delete_layer() = 0;
  virtual void destroy_layer() = 0;
  virtual void destroy_part(int which) = 0;
  void destroy_host() { host_.DestroyWindow(); }

 protected:
  Desktop& desktop_;
  MessageTrap& trap_;
  HostWindow host_;
};

// A scene around one layer, which play() makes. It may be null after whatever sends a message.
template <class Layer>
class LayerScene : public Scene {
 public:
  using Scene::Scene;

  void delete_layer() override { layer_.reset(); }
  void destroy_layer() override {
    if (layer_ != nullptr) layer_->DestroyWindow();
  }

 protected:
  std::unique_ptr<Layer> layer_;
};

struct DestroyCase {
  const char* name;
  std::function<void(Scene&)> deed;
};
// For a parameterised test.
std::vector<DestroyCase> destroy_cases();
inline std::string name_of(const DestroyCase& destroy_case) { return destroy_case.name; }

// The desktop that the sessions take place on.
inline constexpr SIZE session_screen = {240, 180};
inline constexpr RECT session_host = {10, 10, 230, 170};

using SceneMaker = std::function<std::unique_ptr<Scene>(Desktop& desktop, MessageTrap& trap)>;
// Before and after the handling of each message. A session has to come to more than 50 of them.
void destroy_at_every_message(const SceneMaker& make_scene, const DestroyCase& destroy_case);
template <class Session>
void destroy_at_every_message(const DestroyCase& destroy_case) {
  destroy_at_every_message(
      [](Desktop& desktop, MessageTrap& trap) { return std::make_unique<Session>(desktop, trap); },
      destroy_case);
}

}  // namespace corvane::test
