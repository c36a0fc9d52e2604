#pragma once
// A call out of a handler (showing, moving, capturing, creating) may delete the layer whose handler
// it is. The layer holds a Liveness; the handler takes a watch before the call and asks it
// afterwards, touching no member of a layer that is gone.
#include <memory>

namespace corvane {

class Liveness {
 public:
  class Watch {
   public:
    explicit Watch(const Liveness& liveness) : mark_(liveness.mark_) {}
    bool gone() const { return mark_.expired(); }

   private:
    std::weak_ptr<const char> mark_;
  };

  Liveness() : mark_(std::make_shared<const char>()) {}
  Liveness(const Liveness&) = delete;
  Liveness& operator=(const Liveness&) = delete;
  Watch watch() const { return Watch(*this); }

 private:
  std::shared_ptr<const char> mark_;
};

}  // namespace corvane
