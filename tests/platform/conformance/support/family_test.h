#pragma once
// Two pop-ups, and in the upper one a child with a child of its own. On the screen: "other" from
// 500,100 to 600,200; "top" from 100,100 to 300,300; "parent" from 120,120 to 220,220; "child" from
// 130,130 to 180,180.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {

class FamilyTest : public WindowTest {
 protected:
  const HWND other_ = settled_popup("other", 500, 100, 100, 100);
  const HWND top_ = settled_popup("top", 100, 100, 200, 200);
  const HWND parent_ = settled_child("parent", top_, 20, 20, 100, 100);
  const HWND child_ = settled_child("child", parent_, 10, 10, 50, 50);
};

}  // namespace corvane::conformance
