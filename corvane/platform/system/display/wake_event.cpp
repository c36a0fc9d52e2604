#include "corvane/platform/system/display/wake_event.h"

#include <sys/eventfd.h>
#include <unistd.h>

namespace corvane::system {

WakeEvent::WakeEvent() : fd_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

WakeEvent::~WakeEvent() {
  if (fd_ >= 0) close(fd_);
}

void WakeEvent::set() { eventfd_write(fd_, 1); }

bool WakeEvent::clear() {
  eventfd_t count = 0;
  return eventfd_read(fd_, &count) == 0;
}

}  // namespace corvane::system
