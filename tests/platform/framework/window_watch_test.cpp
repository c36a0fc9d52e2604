#include "corvane/platform/framework/window_watch.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "tests/platform/framework/watched_wnd.h"
#include "tests/support/desktop.h"

namespace corvane {
namespace {

class WindowWatchTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(window_->create()); }

  test::Desktop desktop_;
  std::unique_ptr<WatchedWnd> window_ = std::make_unique<WatchedWnd>();
};

TEST_F(WindowWatchTest, TellsTheEndOfTheWindowFromTheEndOfTheObject) {
  const WindowWatch watch(*window_);
  EXPECT_FALSE(watch.window_gone());
  window_->DestroyWindow();
  EXPECT_TRUE(watch.window_gone());
  EXPECT_FALSE(watch.object_gone());
  ASSERT_TRUE(window_->create());
  EXPECT_TRUE(watch.window_gone()) << "the object has another window now";
  window_.reset();
  EXPECT_TRUE(watch.object_gone());
  EXPECT_TRUE(watch.window_gone());
}

TEST_F(WindowWatchTest, EveryWatchOfAnObjectHearsOfItsEnd) {
  const WindowWatch outer(*window_);
  { const WindowWatch ended(*window_); }
  const WindowWatch inner(*window_);
  EXPECT_FALSE(outer.object_gone());
  window_.reset();
  EXPECT_TRUE(inner.object_gone());
  EXPECT_TRUE(outer.object_gone());
}

TEST_F(WindowWatchTest, AnotherObjectAtTheSamePlaceIsAnother) {
  std::optional<CWnd> object(std::in_place);
  const WindowWatch watch(*object);
  EXPECT_TRUE(watch.window_gone()) << "it has none";
  EXPECT_FALSE(watch.object_gone());
  object.emplace();
  EXPECT_TRUE(watch.object_gone());
}

}  // namespace
}  // namespace corvane
