#include "corvane/platform/system/user/windows/system_classes.h"

#include "corvane/platform/system/common_controls/button_control.h"
#include "corvane/platform/system/common_controls/scroll_bar_control.h"
#include "corvane/platform/system/common_controls/static_control.h"

namespace corvane::system {

std::span<const SystemClass> system_classes() {
  constexpr UINT kStyle = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  static constexpr SystemClass kClasses[] = {
      {L"Button", kStyle, control_procedure<ButtonControl>, kControlExtra},
      {L"ScrollBar", kStyle, control_procedure<ScrollBarControl>, kControlExtra},
      {L"Static", kStyle, control_procedure<StaticControl>, kControlExtra},
  };
  return kClasses;
}

}  // namespace corvane::system
