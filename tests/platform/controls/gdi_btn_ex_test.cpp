// The skinned button, driven by the mouse and the keyboard.
#include "corvane/platform/controls/gdi_btn_ex.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "corvane/platform/controls/ui_ctrl_mgr.h"
#include "corvane/platform/drawing/gdi_dc.h"
#include "tests/platform/controls/control_test.h"
#include "tests/support/source_folder.h"

namespace corvane {
namespace {

constexpr int kId = 37;
constexpr COLORREF kNormal = RGB(10, 20, 30), kHover = RGB(0, 51, 102), kPressed = RGB(70, 80, 90),
                   kDisabled = RGB(100, 110, 120), kSelected = RGB(130, 140, 150);

constexpr LOGFONTW kBold{-18, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"黑体"};

class GdiBtnEx : public test::ControlTest {
 protected:
  // Points inside and outside of the button.
  static constexpr int kX = 100, kY = 60;
  static constexpr int kOutX = 300, kOutY = 200;

  GdiBtnEx() {
    control_.id = kId;
    control_.rect = {50, 40, 146, 80};
  }

  void with_images() {
    const std::tuple<CString*, std::string, COLORREF> images[] = {
        {&control_.image, "normal.bmp", kNormal},
        {&control_.hover_image, "hover.bmp", kHover},
        {&control_.pressed_image, "pressed.bmp", kPressed},
        {&control_.disabled_image, "disabled.bmp", kDisabled},
        {&control_.selected_image, "selected.bmp", kSelected}};
    for (const auto& [name, file, color] : images) {
      *name = std::wstring(file.begin(), file.end());
      write_picture(file, 96, 40, color);
    }
  }

  void create(const wchar_t* caption = nullptr, const _MYFONT* font = nullptr,
              CWnd* parent = nullptr) {
    const _MYLANGUAGE language{1, caption, 0};
    CRect rect;
    CWnd* const owner = parent != nullptr ? parent : host_.get();
    const SkinnedControl skin{&control_, caption != nullptr ? &language : nullptr, font};
    ASSERT_EQ(CUICtrlMgr().LoadGdiBtn(*button_, rect, {owner, kId, skin}), 1);
    EXPECT_EQ(rect, CRect(control_.rect));
    pump();
  }

  // Brings the button into each of its looks.
  void in_each_look(const std::function<void(ButtonLook)>& check) {
    const std::pair<ButtonLook, std::function<void()>> looks[] = {
        {ButtonLook::normal, [&] { move_to(kOutX, kOutY); }},
        {ButtonLook::hover, [&] { move_to(kX, kY); }},
        {ButtonLook::pressed, [&] { press_at(kX, kY); }},
        {ButtonLook::selected, [&] { button_->SetSelected(1); }},
        {ButtonLook::disabled, [&] { button_->EnableButton(0); }}};
    for (const auto& [look, enter] : looks) {
      SCOPED_TRACE(static_cast<int>(look));
      enter();
      check(look);
      release();
      button_->SetSelected(0);
      button_->EnableButton(1);
    }
  }

  std::size_t clicks() const { return host_->commands.size(); }
  COLORREF face() { return pixel(51, 41); }

  // What is done to the button, its face then, and how many clicks there were.
  struct Step {
    std::function<void()> act;
    COLORREF face;
    std::size_t clicks;
  };
  void play(const std::vector<Step>& steps) {
    for (const Step& step : steps) {
      step.act();
      pump();
      EXPECT_EQ(std::pair(face(), clicks()), std::pair(step.face, step.clicks))
          << &step - steps.data();
    }
  }

  _MYCONTROL control_;
  std::unique_ptr<CGdiBtnEx> button_ = std::make_unique<CGdiBtnEx>();
};

TEST_F(GdiBtnEx, AClickSendsItsCommandWhileTheReleaseIsHandled) {
  create();
  press_at(kX, kY);
  EXPECT_EQ(::GetCapture(), button_->GetSafeHwnd());
  EXPECT_EQ(clicks(), 0u);
  send_mouse(MOUSEEVENTF_LEFTUP);
  MSG message{};
  while (message.message != WM_LBUTTONUP && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::DispatchMessageW(&message);
  }
  ASSERT_EQ(clicks(), 1u);
  const auto& command = host_->commands[0];
  EXPECT_EQ(command.wparam, MAKEWPARAM(kId, BN_CLICKED));
  EXPECT_EQ(command.sender, button_->GetSafeHwnd());
  EXPECT_EQ(command.focus, button_->GetSafeHwnd());
  EXPECT_EQ(command.capture, nullptr);
  advance(1000);
  double_click(kX, kY);
  EXPECT_EQ(clicks(), 3u);
}

TEST_F(GdiBtnEx, OnlyAReleaseInsideAfterAPressInsideClicks) {
  with_images();
  create();
  play({{[&] { press_at(kX, kY); }, kPressed, 0},
        {[&] { move_to(kOutX, kOutY); }, kNormal, 0},
        {[&] { release_at(kOutX, kOutY); }, kNormal, 0},
        {[&] { press_at(kOutX, kOutY); }, kNormal, 0},
        {[&] { release_at(kX, kY); }, kHover, 0},
        {[&] { press_at(kX, kY); }, kPressed, 0},
        {[&] { move_to(kOutX, kOutY); }, kNormal, 0},
        {[&] { move_to(kX, kY); }, kPressed, 0},
        {[&] { release_at(kX, kY); }, kHover, 1},
        {[&] { move_to(kOutX, kOutY); }, kNormal, 1}});
  EXPECT_EQ(host_->presses.size(), 1u);  // the one beside the button
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
  play({{[&] { key_down(VK_SPACE); }, kPressed, 0},
        {[&] { key_down(VK_SPACE); }, kPressed, 0},
        {[&] { key_up(VK_SPACE); }, kNormal, 1},
        {[&] { key_down(VK_SPACE); }, kPressed, 1},
        {[&] { host_->SetFocus(); }, kNormal, 1},
        {[&] { key_up(VK_SPACE); }, kNormal, 1},
        {[&] { button_->SetFocus(); }, kNormal, 1},
        {[&] { key(VK_RETURN); }, kNormal, 1},
        {[&] { key(VK_ESCAPE); }, kNormal, 1}});
}

TEST_F(GdiBtnEx, AHiddenButtonForgetsThePointer) {
  with_images();
  create();
  const COLORREF host = kHostColor;
  play({{[&] { move_to(kX, kY); }, kHover, 0},
        {[&] { button_->ShowWindow(SW_HIDE); }, host, 0},
        {[&] { move_to(kOutX, kOutY); }, host, 0},
        {[&] { button_->ShowWindow(SW_SHOW); }, kNormal, 0},
        {[&] { move_to(kX, kY); }, kHover, 0},
        {[&] { move_to(kOutX, kOutY); }, kNormal, 0}});
}

TEST_F(GdiBtnEx, TheParentMayDestroyItInAnswerToAClick) {
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"the window", [&] { button_->DestroyWindow(); }},
      {"the object", [&] { button_.reset(); }},
      {"the parent", [&] { host_->DestroyWindow(); }}};
  for (const auto& [name, act] : cases) {
    if (!button_) button_ = std::make_unique<CGdiBtnEx>();
    create();
    host_->commands.clear();
    host_->on_command = act;
    click(kX, kY);
    EXPECT_EQ(clicks(), 1u) << name;
    EXPECT_TRUE(!button_ || !button_->GetSafeHwnd()) << name;
  }
}

TEST_F(GdiBtnEx, WhatHappensBetweenPressAndReleaseCanPreventTheClick) {
  test::ControlHost panel;
  ASSERT_TRUE(panel.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 200, 200), host_.get(), 1));
  create(nullptr, nullptr, &panel);
  const struct {
    const char* name;
    std::function<void()> act, undo;
  } cases[] = {
      {"hidden", [&] { button_->ShowWindow(SW_HIDE); }, [&] { button_->ShowWindow(SW_SHOW); }},
      {"parent hidden", [&] { panel.ShowWindow(SW_HIDE); }, [&] { panel.ShowWindow(SW_SHOW); }},
      {"host hidden", [&] { host_->ShowWindow(SW_HIDE); }, [&] { host_->ShowWindow(SW_SHOW); }},
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
    EXPECT_TRUE(panel.commands.empty()) << each.name;
    EXPECT_NE(::GetCapture(), button_->GetSafeHwnd()) << each.name;
    each.undo();
    pump();
    advance(1000);
    click(kX, kY);
    EXPECT_EQ(panel.commands.size(), 1u) << "afterwards: " << each.name;
    panel.commands.clear();
  }
  button_->DestroyWindow();
}

TEST_F(GdiBtnEx, EachLookIsItsImageAndTheCaptionInItsColour) {
  with_images();
  const std::map<ButtonLook, std::pair<COLORREF, COLORREF>> looks = {
      {ButtonLook::normal, {kNormal, control_.text_color = RGB(255, 250, 245)}},
      {ButtonLook::hover, {kHover, control_.hover_text_color = RGB(255, 255, 0)}},
      {ButtonLook::pressed, {kPressed, control_.pressed_text_color = RGB(0, 255, 255)}},
      {ButtonLook::disabled, {kDisabled, control_.disabled_text_color = RGB(0, 0, 0)}},
      {ButtonLook::selected, {kSelected, control_.selected_text_color = RGB(255, 0, 255)}}};
  control_.padding_left = 40;
  control_.padding_top = 8;
  control_.padding_right = 6;
  control_.padding_bottom = 2;
  const CRect box(50 + 40, 40 + 8, 146 - 6, 80 - 2);
  _MYFONT record;
  record.description = std::make_unique<LOGFONTW>(kBold);
  const std::tuple<const wchar_t*, const _MYFONT*, LOGFONTW> cases[] = {
      {L"识别", &record, *record.description}, {L"识别文字识别文字", nullptr, test::kCaptionFont}};
  for (const auto& [caption, font, expected] : cases) {
    create(caption, font);
    in_each_look([&, shown = caption, drawn_in = expected](ButtonLook look) {
      const auto [face, text] = looks.at(look);
      expect_shown(control_.rect, {face, {}, shown, drawn_in, box, text});
    });
  }
  button_->SetText(L"");
  expect_shown(control_.rect, {.face = kNormal, .edge = {}, .box = {}});
  button_->SetSkin(ButtonSkin());
  expect_shown(control_.rect, {.face = RGB(232, 234, 236), .edge = RGB(184, 186, 188), .box = {}});
}

TEST_F(GdiBtnEx, WithoutImagesItIsPlainAndItsFaceSuitsTheCaption) {
  const std::pair<COLORREF, bool> cases[] = {{RGB(0, 0, 0), false},
                                             {RGB(240, 106, 49), false},
                                             {RGB(240, 107, 50), true},
                                             {RGB(255, 255, 255), true}};
  for (const auto& [text, dark] : cases) {
    SCOPED_TRACE(text);
    control_.text_color = control_.hover_text_color = control_.pressed_text_color =
        control_.disabled_text_color = control_.selected_text_color = text;
    create(L"保存");
    in_each_look([&](ButtonLook look) {
      constexpr int kShades[] = {0, 12, -24, 0, -12};  // in the looks' order
      const auto shaded = [on = dark, shade = kShades[static_cast<int>(look)]](int deeper) {
        const auto channel = [&](int light, int dim) {
          return std::max((on ? dim : light) + shade - deeper, 0);
        };
        return RGB(channel(232, 60), channel(234, 68), channel(236, 76));
      };
      expect_shown(control_.rect,
                   {shaded(0), shaded(48), L"保存", test::kCaptionFont, control_.rect, text});
    });
  }
}

TEST_F(GdiBtnEx, WithoutRecordsItsCaptionIsBlackAndGreyWhenDisabled) {
  const CRect place(50, 40, 146, 80);
  button_->SetText(L"text");
  ASSERT_TRUE(button_->Create(nullptr, L"", WS_CHILD | WS_VISIBLE, place, host_.get(), kId));
  test::Shown shown{.face = RGB(232, 234, 236), .edge = RGB(184, 186, 188), .box = place};
  shown.caption = L"text";
  expect_shown(place, shown);
  button_->EnableButton(0);
  shown.text = RGB(128, 128, 128);
  expect_shown(place, shown);
}

TEST_F(GdiBtnEx, AStateWithoutItsImageShowsTheNormalOne) {
  with_images();
  control_.hover_image.Empty();
  control_.pressed_image = L"no such file.png";
  create();
  play({{[&] { move_to(kX, kY); }, kNormal, 0}, {[&] { press_at(kX, kY); }, kNormal, 0}});
}

TEST_F(GdiBtnEx, OnlyTheKeyboardBringsAFocusRing) {
  with_images();
  control_.hover_text_color = RGB(255, 255, 255);
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
  EXPECT_EQ(pixel(52, 42), RGB(160, 160 + 19, 160 + 38)) << "the caption's colour at 160 of 255";
  const struct { int width, height, ring; } sizes[] = {{5, 6, 0}, {6, 5, 0}, {6, 6, 4}, {7, 8, 10}};
  for (const auto& each : sizes) {
    CBufferDC small;
    const CRect rect(0, 0, each.width, each.height);
    ASSERT_TRUE(small.CreateBufferDC(nullptr, rect));
    button_->DoDraw(small, rect);
    int count = 0;
    for (int at = 0; at < each.width * each.height; ++at) {
      count += ::GetPixel(small, at % each.width, at / each.width) != kHover ? 1 : 0;
    }
    EXPECT_EQ(count, each.ring) << each.width << " x " << each.height;
  }
  host_->SetFocus();
  pump();
  EXPECT_EQ(frame().count_other_than(all, kHover), 0);
}

TEST_F(GdiBtnEx, ShowsWhatLiesBehindWhereItsImageIsClear) {
  constexpr COLORREF kBehind = RGB(90, 60, 30);
  CBufferDC behind;
  ASSERT_TRUE(behind.CreateBufferDC(nullptr, CRect(0, 0, 400, 300)));
  behind.SetBackColor(CRect(0, 0, 400, 300), RGB(1, 2, 3));
  behind.SetBackColor(control_.rect, kBehind);
  std::filesystem::create_directories(folder_.path() / "image");
  std::filesystem::copy_file(test::source_folder() / "skins/default/image/toolbar_crop_normal.png",
                             folder_.path() / "image/clear.png");
  control_.image = L"clear.png";
  create();
  const auto corners = [this](int width, int height) {
    const test::Frame seen = frame();
    return std::pair(seen.at(50, 40), seen.at(50 + width - 1, 40 + height - 1));
  };
  for (const DWORD clip : {DWORD{0}, DWORD{WS_CLIPCHILDREN}}) {
    host_->ModifyStyle(WS_CLIPCHILDREN, clip);
    button_->MoveWindow(&control_.rect);
    button_->SetText(L"");
    pump();
    EXPECT_EQ(corners(96, 40), std::pair(kHostColor, kHostColor)) << "what the parent shows there";
    button_->SetBkGnd(behind, CRect(control_.rect));
    pump();
    EXPECT_EQ(corners(96, 40), std::pair(kBehind, kBehind));
    EXPECT_GT(frame().count_other_than(CRect(control_.rect), kBehind), 50);
    button_->MoveWindow(50, 40, 100, 50);
    pump();
    EXPECT_EQ(corners(100, 50), std::pair(kBehind, kHostColor)) << "until the parent lends another";
    button_->SetBkGnd(nullptr, CRect());
    pump();
    EXPECT_EQ(corners(100, 50), std::pair(kHostColor, kHostColor));
  }
}

TEST_F(GdiBtnEx, InAPastedLayerTheLayerDrawsItAndHearsOfEveryChange) {
  with_images();
  create();
  host_->ModifyStyleEx(0, WS_EX_LAYERED);
  CBufferDC picture;
  ASSERT_TRUE(picture.CreateBufferDC(nullptr, CRect(0, 0, 400, 300)));
  const auto draw = [&] {
    button_->DoDraw(picture, control_.rect);
    EXPECT_TRUE(CGdiDC().Paste(*host_, picture, 255));
  };
  draw();
  move_to(kX, kY);
  EXPECT_EQ(face(), kNormal) << "it does not paint itself into the picture";
  button_->SetLookListener(draw);
  const std::pair<std::function<void()>, COLORREF> changes[] = {
      {[&] { press_at(kX, kY); }, kPressed},
      {[&] { release_at(kX, kY); }, kHover},
      {[&] { move_to(kOutX, kOutY); }, kNormal},
      {[&] { button_->SetSelected(1); }, kSelected},
      {[&] { button_->EnableButton(0); }, kDisabled}};
  for (const auto& [change, color] : changes) {
    change();
    pump();
    EXPECT_EQ(face(), color);
  }
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

TEST_F(GdiBtnEx, NothingIsErasedBeforeItIsDrawn) {
  class Counting : public CGdiBtnEx {
   public:
    int erased = 0;

   protected:
    LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
      erased += message == WM_ERASEBKGND ? 1 : 0;
      return CGdiBtnEx::WindowProc(message, wparam, lparam);
    }
  };
  auto counting = std::make_unique<Counting>();
  Counting& button = *counting;
  button_ = std::move(counting);
  create();
  CBufferDC behind;
  ASSERT_TRUE(behind.CreateBufferDC(nullptr, control_.rect));
  const std::function<void()> changes[] = {
      [&] { button.SetBkGnd(behind, control_.rect); }, [&] { button.SetText(L"text"); },
      [&] { button.SetSkin(ButtonSkin()); }, [&] { button.SetSelected(1); },
      [&] { button.SetWindowPos(nullptr, 0, 0, 20, 20, SWP_NOMOVE | SWP_NOZORDER); }};
  for (const auto& change : changes) {
    button.erased = 0;
    change();
    pump();
    EXPECT_EQ(button.erased, 0) << &change - changes;
  }
  EXPECT_EQ(button.SendMessageW(WM_ERASEBKGND), TRUE);
  EXPECT_EQ(button.SendMessageW(WM_GETDLGCODE), DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON);
}

TEST_F(GdiBtnEx, ANewWindowOfTheObjectStartsAfreshButForItsSelection) {
  with_images();
  create();
  press_at(kX, kY);
  button_->SetSelected(1);
  button_->DestroyWindow();
  release_at(kOutX, kOutY);
  EXPECT_EQ(button_->GetIsSelected(), 1);
  button_->SetSelected(0);
  play({{[&] { create(); }, kNormal, 0},
        {[&] { click(kX, kY); }, kHover, 1},
        {[&] { move_to(kOutX, kOutY); }, kNormal, 1}});
}

TEST_F(GdiBtnEx, ItsPressesCanBePostedToTheParentToo) {
  create();
  click(kX, kY);
  EXPECT_TRUE(host_->presses.empty());
  button_->OpenLBtnDownMsg(1);
  button_->SendMessageW(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 20));
  EXPECT_TRUE(host_->presses.empty()) << "before the button has handled it";
  release_at(kX, kY);
  EXPECT_EQ(host_->presses, std::vector{CPoint(kX, kY)});
  EXPECT_EQ(clicks(), 2u);
}

TEST_F(GdiBtnEx, WithoutRecordsOrParentItHasNoSizeOrNoWindow) {
  CRect rect(1, 2, 3, 4);
  CGdiBtnEx orphan;
  EXPECT_EQ(CUICtrlMgr().LoadGdiBtn(orphan, rect, {nullptr, kId, {&control_}}), 0);
  EXPECT_EQ(orphan.GetSafeHwnd(), nullptr);
  orphan.EnableButton(0);
  EXPECT_EQ(orphan.IsDisabled(), 1);
  orphan.SetText(L"text");
  orphan.SetBkGnd(nullptr, CRect());
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(CUICtrlMgr().LoadGdiBtn(*button_, rect, {host_.get(), kId, {}}), 1);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_EQ(::GetDlgItem(*host_, kId), button_->GetSafeHwnd());
    button_->GetClientRect(rect);
    EXPECT_TRUE(rect.IsRectNull());
    pump();
  }
  create();  // with a record again
  button_->GetClientRect(rect);
  EXPECT_EQ(rect.Size(), CRect(control_.rect).Size());
}

TEST_F(GdiBtnEx, ImagesOfAStateAreLoadedByThemselves) {
  for (int size = 1; size <= 3; ++size) {
    write_picture(std::to_string(size) + ".bmp", size, size, 0);
  }
  control_.image = L"1.bmp";
  control_.pressed_image = L"2.bmp";
  control_.selected_image = L"3.bmp";
  const std::pair<int, int (CUICtrlMgr::*)(CGdiImage&, const _MYCONTROL*)> loaders[] = {
      {1, &CUICtrlMgr::LoadGdiImage},
      {2, &CUICtrlMgr::LoadDownGdiImage},
      {3, &CUICtrlMgr::LoadSelectImage}};
  for (const auto& [size, loader] : loaders) {
    CGdiImage image;
    EXPECT_EQ((CUICtrlMgr().*loader)(image, &control_), 1);
    EXPECT_EQ(image.GetWidth(), size);
    EXPECT_EQ((CUICtrlMgr().*loader)(image, nullptr), 0);
    EXPECT_EQ(image.GetWidth(), 0);
  }
}

}  // namespace
}  // namespace corvane
