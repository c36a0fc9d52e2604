// When the desktop's input method is at work, and where its text appears.
#include "tests/platform/conformance/support/family_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

class TextInputTest : public FamilyTest {
 protected:
  // Left, top, right, bottom of the caret that the display knows of; nothing: no text is edited.
  std::vector<LONG> caret() {
    pump();
    const auto& known = own().display.text_input();
    return known ? std::vector<LONG>{known->left, known->top, known->right, known->bottom}
                 : std::vector<LONG>();
  }
  static void edit_at(HWND window, POINT point) {
    const HIMC context = ImmGetContext(window);
    COMPOSITIONFORM form{CFS_POINT, point, {}};
    EXPECT_TRUE(ImmSetCompositionWindow(context, &form));
    EXPECT_TRUE(ImmReleaseContext(window, context));
  }
};

TEST_F(TextInputTest, IsOnWhileAWindowThatEditsTextHasTheFocus) {
  using Sides = std::vector<LONG>;
  SetFocus(child_);
  EXPECT_EQ(caret(), Sides()) << "no window edits text";
  edit_at(child_, {4, 6});
  EXPECT_EQ(caret(), (Sides{134, 136, 135, 137}));
  MoveWindow(top_, 200, 100, 200, 200, TRUE);
  EXPECT_EQ(caret(), (Sides{234, 136, 235, 137})) << "moves with its window";
  CANDIDATEFORM form{0, CFS_EXCLUDE, {}, {4, 6, 6, 20}};
  EXPECT_TRUE(ImmSetCandidateWindow(ImmGetContext(child_), &form));
  EXPECT_EQ(caret(), (Sides{234, 136, 236, 150}));
  edit_at(child_, {INT_MAX - 230, INT_MAX});
  EXPECT_EQ(caret(), (Sides{INT_MAX, INT_MAX, INT_MAX, INT_MAX}));
  SetFocus(top_);
  EXPECT_EQ(caret(), Sides());
  SetFocus(child_);
  EXPECT_FALSE(caret().empty());
  const HIMC context = ImmAssociateContext(child_, nullptr);
  EXPECT_NE(context, nullptr);
  EXPECT_EQ(ImmGetContext(child_), nullptr);
  EXPECT_EQ(caret(), Sides());
  EXPECT_EQ(ImmAssociateContext(top_, context), nullptr) << "another window's";
  EXPECT_EQ(ImmAssociateContext(child_, context), nullptr);
  EXPECT_FALSE(caret().empty());
  DestroyWindow(child_);
  EXPECT_EQ(caret(), Sides());
}

}  // namespace
}  // namespace corvane::conformance
