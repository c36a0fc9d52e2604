#pragma once

namespace corvane::system {

// A flag with a file descriptor that is readable while the flag is set.
class WakeEvent {
 public:
  WakeEvent();
  ~WakeEvent();
  WakeEvent(const WakeEvent&) = delete;
  WakeEvent& operator=(const WakeEvent&) = delete;

  void set();                     // from any thread
  bool clear();                   // whether it was set
  int fd() const { return fd_; }  // -1: the process has no descriptor left; never set then

 private:
  int fd_;
};

}  // namespace corvane::system
