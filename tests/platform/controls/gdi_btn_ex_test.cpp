// The skinned button, driven by the mouse and the keyboard.
#include "corvane/platform/controls/gdi_btn_ex.h"

#include <cstdlib>
#include <cstring>

#include "corvane/platform/controls/ui_ctrl_mgr.h"
#include "tests/platform/controls/control_test.h"
#include "tests/support/source_folder.h"

namespace corvane {
namespace {

constexpr int kId = 37;
constexpr COLORREF kNormal = RGB(10, 20, 30), kHover = RGB(40, 50, 60), kPressed = RGB(70, 80, 90),
                   kDisabled = RGB(100, 110, 120), kSelected = RGB(130, 140, 150);

class GdiBtnEx : public test::ControlTest {
 protected:
  // Points inside and outside of the button.
  static constexpr int kX = 100, kY = 60;
  static constexpr int kOutX = 300, kOutY = 200;

  GdiBtnEx() {
    control_.id = kId;
    control_.rect = {50, 40, 146, 80};
    button_ = std::make_unique<CGdiBtnEx>();
  }
  ~GdiBtnEx() override { button_.reset(); }

  void with_images() {
    const struct {
      CString* name;
      const char* file;
      COLORREF color;
    } images[] = {{&control_.image, "normal.bmp", kNormal},
                  {&control_.hover_image, "hover.bmp", kHover},
                  {&control_.pressed_image, "pressed.bmp", kPressed},
                  {&control_.disabled_image, "disabled.bmp", kDisabled},
                  {&control_.selected_image, "selected.bmp", kSelected}};
    for (const auto& image : images) {
      *image.name = std::wstring(image.file, image.file + std::strlen(image.file));
      write_picture(image.file, 96, 40, image.color);
    }
  }

  void create(const wchar_t* caption = nullptr) {
    const _MYLANGUAGE language{1, caption, 0};
    CRect rect;
    ASSERT_EQ(CUICtrlMgr().LoadGdiBtn(
                  *button_, rect,
                  {host_.get(), kId, {&control_, caption ? &language : nullptr, nullptr}}),
              1);
    EXPECT_EQ(rect, CRect(control_.rect));
    pump();
  }

  std::size_t clicks() const { return host_->commands.size(); }
  COLORREF face() { return pixel(51, 41); }

  _MYCONTROL control_;
  std::unique_ptr<CGdiBtnEx> button_;
};

TEST_F(GdiBtnEx, AClickSendsItsCommandWithTheFocusAndWithoutTheCapture) {
  create();
  press_at(kX, kY);
  EXPECT_EQ(::GetCapture(), button_->GetSafeHwnd());
  EXPECT_EQ(clicks(), 0u);
  release_at(kX, kY);
  ASSERT_EQ(clicks(), 1u);
  const auto& command = host_->commands[0];
  EXPECT_EQ(command.wparam, MAKEWPARAM(kId, BN_CLICKED));
  EXPECT_EQ(command.sender, button_->GetSafeHwnd());
  EXPECT_EQ(command.focus, button_->GetSafeHwnd());
  EXPECT_EQ(command.capture, nullptr);
}

TEST_F(GdiBtnEx, TheCommandIsSentWhileTheReleaseIsHandled) {
  create();
  press_at(kX, kY);
  send_mouse(MOUSEEVENTF_LEFTUP);
  MSG message{};
  while (message.message != WM_LBUTTONUP && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::DispatchMessageW(&message);
  }
  EXPECT_EQ(clicks(), 1u);
}

TEST_F(GdiBtnEx, InAPanelThatWasHiddenThereIsNoClick) {
  test::ControlHost panel;
  ASSERT_TRUE(panel.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 200, 200), host_.get(), 1));
  CRect rect;
  CUICtrlMgr().LoadGdiBtn(*button_, rect, {&panel, kId, {&control_}});
  press_at(kX, kY);
  panel.ShowWindow(SW_HIDE);
  release_at(kX, kY);
  EXPECT_TRUE(panel.commands.empty());
  panel.ShowWindow(SW_SHOW);
  advance(1000);
  click(kX, kY);
  EXPECT_EQ(panel.commands.size(), 1u);
}

TEST_F(GdiBtnEx, OnlyAReleaseInsideAfterAPressInsideClicks) {
  create();
  press_at(kX, kY);
  release_at(kOutX, kOutY);
  EXPECT_EQ(clicks(), 0u);
  press_at(kOutX, kOutY);
  release_at(kX, kY);
  EXPECT_EQ(clicks(), 0u);
  press_at(kX, kY);
  move_to(kOutX, kOutY);
  move_to(kX, kY);
  release_at(kX, kY);
  EXPECT_EQ(clicks(), 1u);
  EXPECT_EQ(host_->presses.size(), 1u);  // the one beside the button
}

TEST_F(GdiBtnEx, ADoubleClickIsTwoClicks) {
  create();
  double_click(kX, kY);
  EXPECT_EQ(clicks(), 2u);
}

TEST_F(GdiBtnEx, WhatHappensBetweenPressAndReleaseCanPreventTheClick) {
  create();
  const struct {
    const char* name;
    std::function<void()> act;
    std::function<void()> undo;
  } cases[] = {
      {"hidden", [&] { button_->ShowWindow(SW_HIDE); }, [&] { button_->ShowWindow(SW_SHOW); }},
      {"parent hidden", [&] { host_->ShowWindow(SW_HIDE); }, [&] { host_->ShowWindow(SW_SHOW); }},
      {"disabled", [&] { button_->EnableButton(0); }, [&] { button_->EnableButton(1); }},
      {"capture taken", [&] { host_->SetCapture(); }, [] { ::ReleaseCapture(); }},
      {"capture released", [] { ::ReleaseCapture(); }, [] {}},
      {"focus taken", [&] { host_->SetFocus(); }, [] {}},
  };
  for (const auto& each : cases) {
    press_at(kX, kY);
    each.act();
    pump();
    release_at(kX, kY);
    EXPECT_EQ(clicks(), 0u) << each.name;
    EXPECT_NE(::GetCapture(), button_->GetSafeHwnd()) << each.name;
    each.undo();
    pump();
    advance(1000);
    click(kX, kY);
    EXPECT_EQ(clicks(), 1u) << "afterwards: " << each.name;
    host_->commands.clear();
  }
}

TEST_F(GdiBtnEx, ADisabledButtonLeavesTheMouseToItsParent) {
  create();
  button_->EnableButton(0);
  EXPECT_EQ(button_->IsDisabled(), 1);
  click(kX, kY);
  EXPECT_EQ(clicks(), 0u);
  ASSERT_EQ(host_->presses.size(), 1u);
  EXPECT_EQ(host_->presses[0], CPoint(kX, kY));
  button_->EnableButton(1);
  EXPECT_EQ(button_->IsDisabled(), 0);
}

TEST_F(GdiBtnEx, TheSpaceBarClicksWhenItIsLetGo) {
  with_images();
  create();
  button_->SetFocus();
  key_down(VK_SPACE);
  EXPECT_EQ(face(), kPressed);
  EXPECT_EQ(clicks(), 0u);
  key_down(VK_SPACE);
  key_up(VK_SPACE);
  EXPECT_EQ(clicks(), 1u);
  EXPECT_EQ(face(), kNormal);
  key_down(VK_SPACE);
  host_->SetFocus();
  key_up(VK_SPACE);
  EXPECT_EQ(clicks(), 1u);
  button_->SetFocus();
  for (const int other : {VK_RETURN, VK_ESCAPE}) key(other);
  EXPECT_EQ(clicks(), 1u);
}

TEST_F(GdiBtnEx, EachStateShowsItsImage) {
  with_images();
  create();
  EXPECT_EQ(face(), kNormal);
  move_to(kX, kY);
  EXPECT_EQ(face(), kHover);
  press_at(kX, kY);
  EXPECT_EQ(face(), kPressed);
  move_to(kOutX, kOutY);
  EXPECT_EQ(face(), kNormal);
  move_to(kX, kY);
  EXPECT_EQ(face(), kPressed);
  release_at(kX, kY);
  EXPECT_EQ(face(), kHover);
  move_to(kOutX, kOutY);
  EXPECT_EQ(face(), kNormal);
  button_->SetSelected(1);
  EXPECT_EQ(button_->GetIsSelected(), 1);
  pump();
  EXPECT_EQ(face(), kSelected);
  button_->EnableButton(0);
  pump();
  EXPECT_EQ(face(), kDisabled);
}

TEST_F(GdiBtnEx, TheImageFillsTheButtonToItsEdges) {
  with_images();
  create();
  EXPECT_EQ(frame().count_other_than(CRect(control_.rect), kNormal), 0);
  CRect around(control_.rect);
  around.InflateRect(1, 1);
  EXPECT_EQ(frame().count_other_than(around, kHostColor), 96 * 40);
}

TEST_F(GdiBtnEx, AHiddenButtonForgetsThePointer) {
  with_images();
  create();
  move_to(kX, kY);
  ASSERT_EQ(face(), kHover);
  button_->ShowWindow(SW_HIDE);
  move_to(kOutX, kOutY);
  button_->ShowWindow(SW_SHOW);
  pump();
  EXPECT_EQ(face(), kNormal);
  move_to(kX, kY);
  EXPECT_EQ(face(), kHover);
  move_to(kOutX, kOutY);
  EXPECT_EQ(face(), kNormal);
}

TEST_F(GdiBtnEx, AStateWithoutItsImageShowsTheNormalOne) {
  with_images();
  control_.hover_image.Empty();
  control_.pressed_image = L"no such file.png";
  create();
  move_to(kX, kY);
  EXPECT_EQ(face(), kNormal);
  press_at(kX, kY);
  EXPECT_EQ(face(), kNormal);
}

int contrast(COLORREF a, COLORREF b) {
  return std::abs(GetRValue(a) - GetRValue(b)) + std::abs(GetGValue(a) - GetGValue(b)) +
         std::abs(GetBValue(a) - GetBValue(b));
}

TEST_F(GdiBtnEx, WithoutImagesItIsAPlainReadableButton) {
  for (const COLORREF text : {RGB(0, 0, 0), RGB(255, 255, 255), RGB(0xE8, 0xEE, 0xF4)}) {
    control_.text_color = control_.hover_text_color = control_.pressed_text_color = text;
    create(L"保存");
    const COLORREF normal = face();
    EXPECT_NE(normal, kHostColor);
    EXPECT_GT(contrast(normal, text), 300);
    const auto is_strong = [normal](COLORREF color) { return contrast(color, normal) > 200; };
    EXPECT_GT(frame().count({54, 44, 142, 76}, is_strong), 20) << "no caption";
    move_to(kX, kY);
    EXPECT_NE(face(), normal);
    press_at(kX, kY);
    EXPECT_NE(face(), normal);
    release_at(kOutX, kOutY);
    EXPECT_EQ(face(), normal);
  }
}

TEST_F(GdiBtnEx, TheCaptionIsCentredInItsBox) {
  with_images();
  control_.text_color = RGB(255, 255, 255);
  control_.padding_left = 40;
  control_.padding_top = 18;
  control_.padding_right = 6;
  control_.padding_bottom = 2;
  create(L"识别");
  const CRect box(50 + 40, 40 + 18, 146 - 6, 80 - 2);
  CRect ink;
  ASSERT_GT(frame().count_other_than(CRect(control_.rect), kNormal, &ink), 40);
  EXPECT_EQ(box & ink, ink) << "drawn outside its box";
  EXPECT_NEAR(ink.CenterPoint().x, box.CenterPoint().x, 2);
  EXPECT_NEAR(ink.CenterPoint().y, box.CenterPoint().y, 2);
  button_->SetText(L"");
  pump();
  EXPECT_EQ(frame().count_other_than(CRect(control_.rect), kNormal), 0);
}

TEST_F(GdiBtnEx, ALongCaptionIsCutAtItsBox) {
  with_images();
  control_.text_color = RGB(255, 255, 255);
  control_.padding_left = control_.padding_right = 30;
  create(L"识别文字识别文字识别文字识别文字识别文字");
  CRect ink;
  frame().count_other_than(CRect(control_.rect), kNormal, &ink);
  EXPECT_GE(ink.left, 50 + 30);
  EXPECT_LE(ink.right, 146 - 30);
}

TEST_F(GdiBtnEx, OnlyTheKeyboardBringsAFocusRing) {
  with_images();
  create();
  const CRect all(control_.rect);
  click(kX, kY);
  ASSERT_EQ(::GetFocus(), button_->GetSafeHwnd());
  EXPECT_EQ(frame().count_other_than(all, kHover), 0);
  host_->SetFocus();
  button_->SetFocus();
  pump();
  CRect ring;
  EXPECT_EQ(frame().count_other_than(all, kHover, &ring), 2 * (92 + 34));
  EXPECT_EQ(ring, CRect(52, 42, 144, 78));
  host_->SetFocus();
  pump();
  EXPECT_EQ(frame().count_other_than(all, kHover), 0);
}

TEST_F(GdiBtnEx, ShowsWhatLiesBehindWhereItsImageIsClear) {
  CBufferDC behind;
  ASSERT_TRUE(behind.CreateBufferDC(nullptr, CRect(0, 0, 400, 300)));
  behind.SetBackColor(CRect(0, 0, 400, 300), RGB(1, 2, 3));
  behind.SetBackColor(CRect(50, 40, 146, 80), RGB(90, 60, 30));
  std::filesystem::create_directories(folder_.path() / "image");
  std::filesystem::copy_file(test::source_folder() / "skins/default/image/toolbar_crop_normal.png",
                             folder_.path() / "image/clear.png");
  control_.image = L"clear.png";
  create();
  button_->SetBkGnd(behind, CRect(control_.rect));
  behind.Release();  // the button keeps its own copy
  pump();
  EXPECT_EQ(face(), RGB(90, 60, 30));
  EXPECT_GT(frame().count_other_than(CRect(control_.rect), RGB(90, 60, 30)), 50);
  button_->MoveWindow(control_.rect.left, control_.rect.top, 90, 36);
  pump();
  EXPECT_EQ(face(), RGB(90, 60, 30)) << "until the parent lends another";
}

TEST_F(GdiBtnEx, DrawsItselfElsewhereAsItLooksNow) {
  with_images();
  create();
  press_at(kX, kY);
  CBufferDC buffer;
  ASSERT_TRUE(buffer.CreateBufferDC(nullptr, CRect(0, 0, 50, 50)));
  button_->DoDraw(buffer, CRect(10, 10, 40, 30));
  EXPECT_EQ(::GetPixel(buffer, 9, 10), 0u);
  EXPECT_EQ(::GetPixel(buffer, 10, 10), kPressed);
  EXPECT_EQ(::GetPixel(buffer, 39, 29), kPressed);
  EXPECT_EQ(::GetPixel(buffer, 40, 29), 0u);
  button_->DoDraw(nullptr, CRect(0, 0, 10, 10));
}

TEST_F(GdiBtnEx, TheParentMayDestroyItInAnswerToAClick) {
  const struct {
    const char* name;
    std::function<void()> act;
  } cases[] = {{"the window", [&] { button_->DestroyWindow(); }},
               {"the object", [&] { button_.reset(); }},
               {"the parent", [&] { host_->DestroyWindow(); }}};
  for (const auto& each : cases) {
    if (!button_) button_ = std::make_unique<CGdiBtnEx>();
    create();
    host_->commands.clear();
    host_->on_command = each.act;
    click(kX, kY);
    EXPECT_EQ(clicks(), 1u) << each.name;
    EXPECT_TRUE(!button_ || !button_->GetSafeHwnd()) << each.name;
  }
}

TEST_F(GdiBtnEx, ANewWindowOfTheObjectStartsAfresh) {
  with_images();
  create();
  press_at(kX, kY);
  button_->DestroyWindow();
  release_at(kOutX, kOutY);
  create();
  EXPECT_EQ(face(), kNormal);
  advance(1000);
  click(kX, kY);
  EXPECT_EQ(clicks(), 1u);
}

TEST_F(GdiBtnEx, ItsPressesCanReachTheParentToo) {
  create();
  click(kX, kY);
  EXPECT_TRUE(host_->presses.empty());
  button_->OpenLBtnDownMsg(1);
  click(kX, kY);
  ASSERT_EQ(host_->presses.size(), 1u);
  EXPECT_EQ(host_->presses[0], CPoint(kX, kY));
  EXPECT_EQ(clicks(), 2u);
}

TEST_F(GdiBtnEx, WithoutRecordsItIsThereWithoutSize) {
  CRect rect(1, 2, 3, 4);
  EXPECT_EQ(CUICtrlMgr().LoadGdiBtn(*button_, rect, {host_.get(), kId, {}}), 1);
  EXPECT_TRUE(rect.IsRectNull());
  EXPECT_EQ(::GetDlgItem(*host_, kId), button_->GetSafeHwnd());
  button_->GetClientRect(rect);
  EXPECT_TRUE(rect.IsRectNull());
  pump();
}

TEST_F(GdiBtnEx, WithoutAParentThereIsNoWindow) {
  CRect rect;
  EXPECT_EQ(CUICtrlMgr().LoadGdiBtn(*button_, rect, {nullptr, kId, {&control_}}), 0);
  EXPECT_EQ(button_->GetSafeHwnd(), nullptr);
  button_->EnableButton(0);
  EXPECT_EQ(button_->IsDisabled(), 1);
  button_->SetText(L"text");
  button_->SetBkGnd(nullptr, CRect());
}

}  // namespace
}  // namespace corvane
