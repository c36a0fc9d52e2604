#include "corvane/platform/framework/window_watch.h"

#include <optional>

#include "tests/platform/framework/watched_wnd.h"

namespace corvane {
namespace {

TEST(WindowWatch, TellsTheEndOfTheWindowFromTheEndOfTheObject) {
  const test::Desktop desktop;
  std::optional<WatchedWnd> window(std::in_place);
  EXPECT_TRUE(WindowWatch(*window).window_gone()) << "it has none";
  ASSERT_TRUE(window->create());
  const WindowWatch outer(*window);
  { const WindowWatch ended(*window); }
  const WindowWatch inner(*window);
  EXPECT_FALSE(outer.window_gone());
  window->DestroyWindow();
  EXPECT_TRUE(outer.window_gone());
  ASSERT_TRUE(window->create());
  EXPECT_TRUE(outer.window_gone()) << "the object has another window now";
  EXPECT_FALSE(outer.object_gone() || inner.object_gone());
  window.emplace();  // another one at the same place
  EXPECT_TRUE(outer.object_gone() && inner.object_gone());
  EXPECT_TRUE(outer.window_gone());
}

}  // namespace
}  // namespace corvane
