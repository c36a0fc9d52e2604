// ShowWindow: results, messages and where the activation goes.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class ShowWindowTest : public WindowTest {
 protected:
  void show(const std::string& what, HWND window, int command) {
    now_and_later(what, ShowWindow(window, command));
  }
  const HWND old_ = settled_popup("old", 0, 0, 50, 50);
};

TEST_F(ShowWindowTest, EachCommandOnAHiddenAndOnAVisibleWindow) {
  const HWND popup = create("pop", {.place = {.width = 60, .height = 70}});
  settle();
  struct Command {
    const char* label;
    int number;
  };
  for (const Command& command :
       {Command{"show", SW_SHOW}, Command{"normal", SW_SHOWNORMAL}, Command{"na", SW_SHOWNA},
        Command{"no activate", SW_SHOWNOACTIVATE}}) {
    show(std::string(command.label) + ", hidden", popup, command.number);
    SetActiveWindow(old_);
    settle();
    show(std::string(command.label) + ", visible", popup, command.number);
    show(std::string("hide after ") + command.label, popup, SW_HIDE);
  }
  show("hide, hidden", popup, SW_HIDE);
}

TEST_F(ShowWindowTest, HidingTheActivePopup) {
  const HWND popup = settled_popup("pop", 10, 10, 50, 50, old_);
  recorder().ignore({WM_PAINT, WM_ERASEBKGND, WM_NCPAINT});
  step("observed", ShowWindow(popup, SW_HIDE));
}

TEST_F(ShowWindowTest, ObservedThatTheUsableOwnerIsNextElseAnotherWindow) {
  const HWND owner = settled_popup("owner", 0, 0, 50, 50);
  const HWND popup = settled_popup("pop", 10, 10, 50, 50, owner);
  recorder().only({WM_ACTIVATE});
  step("usable", ShowWindow(popup, SW_HIDE));
  ShowWindow(popup, SW_SHOW);
  ShowWindow(owner, SW_HIDE);
  settle();
  step("hidden", ShowWindow(popup, SW_HIDE));
  ShowWindow(popup, SW_SHOW);
  ShowWindow(owner, SW_SHOWNA);
  EnableWindow(owner, FALSE);
  settle();
  step("disabled", ShowWindow(popup, SW_HIDE));
}

TEST_F(ShowWindowTest, ObservedThatAPopupWithoutSizeActivatesButPaintsNothing) {
  const HWND popup = create("pop", {.place = {.width = 0, .height = 0}});
  settle();
  show("", popup, SW_SHOW);
}

TEST_F(ShowWindowTest, ObservedForAChild) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  const HWND child = settled_child("child", parent, 10, 20, 40, 30);
  RECT erased{};
  recorder().on("parent", WM_ERASEBKGND, [&](const Message& sent) -> std::optional<LRESULT> {
    GetClipBox(reinterpret_cast<HDC>(sent.wparam), &erased);
    return std::nullopt;
  });
  show("hide", child, SW_HIDE);
  EXPECT_EQ(text_of(erased), "10,20,50,50");
  show("hide again", child, SW_HIDE);
  show("show", child, SW_SHOW);
  show("show again", child, SW_SHOW);
  ShowWindow(parent, SW_HIDE);
  settle();
  show("hide in a hidden parent: its own visible bit counts", child, SW_HIDE);
  show("show in a hidden parent", child, SW_SHOW);
}

TEST_F(ShowWindowTest, IsToldBeforeTheChange) {
  std::vector<BOOL> visible;
  recorder().before_default("old", WM_SHOWWINDOW,
                            [&] { visible.push_back(IsWindowVisible(old_)); });
  ShowWindow(old_, SW_HIDE);
  ShowWindow(old_, SW_SHOW);
  EXPECT_EQ(visible, (std::vector<BOOL>{1, 0}));
}

TEST_F(ShowWindowTest, ObservedThatOwnersDoNotTakeTheirPopupsAlong) {
  settled_popup("pop", 10, 10, 50, 50, old_);
  recorder().only_windows({"pop"});
  recorder().only({WM_SHOWWINDOW, WM_MOVE, WM_SIZE, WM_WINDOWPOSCHANGED});
  ShowWindow(old_, SW_HIDE);
  step("hidden");
  ShowWindow(old_, SW_SHOW);
  MoveWindow(old_, 200, 200, 70, 70, TRUE);
  pump();
  step("shown and moved");
}

TEST_F(ShowWindowTest, ContentsAppearAndDisappearOnTheScreen) {
  const COLORREF desktop = pixel(60, 60);
  const HWND popup = create("pop", {.style = WS_POPUP, .place = {55, 55, 50, 50}});
  for (const int command : {SW_SHOW, SW_HIDE}) {
    ShowWindow(popup, command);
    pump();
    EXPECT_EQ(pixel(60, 60), command == SW_SHOW ? kWhite : desktop);
  }
}

}  // namespace
}  // namespace corvane::conformance
