#pragma once
// A desktop with a skin and a host window for each case.
#include <gtest/gtest.h>

#include "tests/support/app_desktop.h"
#include "tests/support/host_window.h"
#include "tests/support/rects.h"
#include "tests/support/test_skin.h"

namespace corvane::test {

class HostTest : public testing::Test {
 protected:
  static constexpr RECT host_place = {40, 30, 740, 530};

  void SetUp() override {
    ASSERT_TRUE(host_.open(host_place));
    desktop_.app().m_pMainWnd = &host_;
    desktop_.pump();
  }

  TestSkin skin_;
  AppDesktop desktop_{SIZE{800, 600}};
  HostWindow host_;
};

}  // namespace corvane::test
