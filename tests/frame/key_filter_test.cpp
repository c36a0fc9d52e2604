#include "corvane/frame/key_filter.h"

#include <gmock/gmock.h>

#include <array>
#include <vector>

#include "corvane/frame/layer_key_filter.h"
#include "tests/support/app_desktop.h"
#include "tests/support/host_window.h"

namespace corvane::test {
namespace {

struct FilterCase {
  UINT message;
  WPARAM wparam;
  // In the order: to parent, to main window, drawing surface, swallow only.
  std::array<KeyAction, 4> actions;
};

constexpr std::array<KeyAction, 4> everywhere(KeyAction action) {
  return {action, action, action, action};
}

TEST(KeyFilter, DecidesByMessageKeyAndKindOfWindow) {
  constexpr std::array<KeyAction, 4> kPass = everywhere(KeyAction::pass);
  constexpr std::array<KeyAction, 4> kSwallow = everywhere(KeyAction::swallow);
  constexpr std::array<KeyAction, 4> kEscape = {KeyAction::post_to_parent,
                                                KeyAction::post_to_main_window,
                                                KeyAction::post_to_parent, KeyAction::swallow};
  constexpr std::array<KeyAction, 4> kWheel = {KeyAction::pass, KeyAction::pass,
                                               KeyAction::send_to_layer, KeyAction::pass};
  const std::vector<FilterCase> cases = {
      {WM_KEYDOWN, VK_RETURN, kSwallow},   {WM_KEYUP, VK_RETURN, kSwallow},
      {WM_KEYDOWN, VK_ESCAPE, kEscape},    {WM_KEYUP, VK_ESCAPE, kSwallow},
      {WM_KEYDOWN, VK_SPACE, kPass},       {WM_KEYUP, VK_TAB, kPass},
      {WM_CHAR, VK_ESCAPE, kPass},         {WM_CHAR, VK_RETURN, kPass},
      {WM_SYSKEYDOWN, VK_RETURN, kPass},   {WM_SYSKEYDOWN, VK_ESCAPE, kPass},
      {WM_MOUSEWHEEL, 120U << 16, kWheel}, {WM_MOUSEWHEEL, VK_ESCAPE, kWheel},
      {WM_LBUTTONDOWN, VK_RETURN, kPass}};
  constexpr std::array<KeyFilter, 4> kFilters = {KeyFilter::to_parent, KeyFilter::to_main_window,
                                                 KeyFilter::drawing_surface,
                                                 KeyFilter::swallow_only};
  for (const FilterCase& test : cases) {
    for (std::size_t i = 0; i < kFilters.size(); ++i) {
      EXPECT_EQ(key_action(kFilters[i], test.message, test.wparam), test.actions[i])
          << "message " << test.message << " key " << test.wparam << " filter " << i;
    }
  }
}

// A layer in a window that is not the main window.
class LayerKeyFilterTest : public testing::Test {
 protected:
  void SetUp() override {
    for (HostWindow* const window : {&main_, &parent_}) ASSERT_TRUE(window->open({0, 0, 90, 90}));
    ASSERT_TRUE(layer_.Create(nullptr, L"", WS_CHILD, {0, 0, 9, 9}, &parent_, 1));
    desktop_.app().m_pMainWnd = &main_;
  }
  // How often the message has come to the main window, the parent and the layer.
  std::vector<std::size_t> counts(UINT message) const {
    return {main_.count(message), parent_.count(message), layer_.count(message)};
  }
  bool filter(KeyFilter filter, UINT message, WPARAM wparam) const {
    const MSG retrieved{layer_, message, wparam, 0x00010001, 0, {}};
    return filter_layer_key(filter, layer_, &retrieved);
  }

  AppDesktop desktop_{SIZE{100, 100}};
  HostWindow main_, parent_, layer_;
};

TEST_F(LayerKeyFilterTest, PostsEscapeAndSendsTheWheel) {
  EXPECT_FALSE(filter_layer_key(KeyFilter::swallow_only, layer_, nullptr));
  using Counts = std::vector<std::size_t>;
  struct WayCase {
    KeyFilter filter;
    UINT message;
    WPARAM wparam;
    bool swallowed;
    Counts at_once, later;
  };
  const Counts nobody = {0, 0, 0}, main = {1, 0, 0}, parent = {0, 1, 0};
  const Counts layer = {0, 1, 1};  // the default hands the wheel on to the parent
  const std::vector<WayCase> cases = {
      {KeyFilter::to_parent, WM_KEYDOWN, VK_ESCAPE, true, nobody, parent},
      {KeyFilter::to_main_window, WM_KEYDOWN, VK_ESCAPE, true, nobody, main},
      {KeyFilter::swallow_only, WM_KEYDOWN, VK_ESCAPE, true, nobody, nobody},
      {KeyFilter::drawing_surface, WM_MOUSEWHEEL, 120U << 16, true, layer, layer},
      {KeyFilter::to_parent, WM_MOUSEWHEEL, 120U << 16, false, nobody, nobody}};
  for (const WayCase& test : cases) {
    for (HostWindow* const window : {&main_, &parent_, &layer_}) window->forget();
    EXPECT_EQ(filter(test.filter, test.message, test.wparam), test.swallowed);
    EXPECT_EQ(counts(test.message), test.at_once);
    desktop_.pump();
    EXPECT_EQ(counts(test.message), test.later);
    for (const HostWindow* const window : {&main_, &parent_, &layer_}) {
      for (const auto& received : window->of(test.message)) {
        EXPECT_EQ(received.wparam, test.wparam);
        EXPECT_EQ(received.lparam, 0x00010001);
      }
    }
  }
  desktop_.app().m_pMainWnd = nullptr;
  EXPECT_TRUE(filter(KeyFilter::to_main_window, WM_KEYDOWN, VK_ESCAPE)) << "nobody gets it";
}

}  // namespace
}  // namespace corvane::test
