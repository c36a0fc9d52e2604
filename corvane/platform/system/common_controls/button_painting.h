#pragma once
// How buttons look: flat, light, with soft corners of marks. Knows no window.
#include <string>

#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/user/constants.h"

namespace corvane::system {

enum class ButtonKind { push, check, radio, group };
ButtonKind kind_of_button(UINT type);  // BS_PUSHBUTTON ... BS_AUTORADIOBUTTON

struct ButtonLook {
  std::wstring text;  // with & before its mnemonic
  DWORD style = 0;
  WPARAM check = BST_UNCHECKED;
  bool pushed = false;
  bool focused = false;
  bool enabled = true;
  HBRUSH background = nullptr;  // what lies under it already
};

// Into the area, client coordinates, in the device context's font.
void paint_button(HDC dc, const RECT& area, const ButtonLook& look);

}  // namespace corvane::system
