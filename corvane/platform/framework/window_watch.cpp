#include "corvane/platform/framework/window_watch.h"

#include <cassert>
#include <utility>

#include "corvane/platform/framework/wnd.h"

namespace corvane {

WindowWatch::WindowWatch(const CWnd& object)
    : object_(&object), window_(object.m_hWnd), outer_(std::exchange(object.watch_, this)) {}

WindowWatch::~WindowWatch() {
  if (object_ == nullptr) return;
  assert(object_->watch_ == this);
  object_->watch_ = outer_;
}

bool WindowWatch::window_gone() const {
  return object_ == nullptr || CWnd::FromHandlePermanent(window_) != object_;
}

}  // namespace corvane
