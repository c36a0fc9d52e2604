#pragma once
#include "corvane/platform/framework/framework.h"
#include "tests/support/desktop.h"

namespace corvane::test {

// A desktop with an application object, whose filters see each message first.
class AppDesktop : public Desktop {
 public:
  template <class Behind>  // what a Desktop is made of
  explicit AppDesktop(Behind behind) : Desktop(std::move(behind)) {
    filter_messages(&PreTranslateInput);
  }
  CWinApp& app() { return app_; }

 private:
  CWinApp app_;
};

}  // namespace corvane::test
