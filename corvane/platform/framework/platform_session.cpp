#include "corvane/platform/framework/platform_session.h"

#include "corvane/platform/platform.h"
#ifndef _WIN32
#include "corvane/platform/system/display/open_display.h"
#include "corvane/platform/system/user/window_system.h"
#endif

namespace corvane {

#ifdef _WIN32
struct PlatformSession::Resources {
  ULONG_PTR token = 0;
  Resources() {
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) token = 0;
  }
  ~Resources() {
    if (token) Gdiplus::GdiplusShutdown(token);
  }
};
#else
struct PlatformSession::Resources {
  std::unique_ptr<system::WindowSystem> windows;
  Resources() {
    if (system::WindowSystem::current() != nullptr) return;
    if (auto display = system::open_display()) {
      windows = std::make_unique<system::WindowSystem>(std::move(display));
    }
  }
};
#endif

PlatformSession::PlatformSession() : resources_(std::make_unique<Resources>()) {}
PlatformSession::~PlatformSession() = default;

}  // namespace corvane
