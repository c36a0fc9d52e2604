// Controls that the list manager creates from its records.
#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/controls/gdi_combo_box.h"
#include "corvane/platform/controls/gdi_edit_ex.h"
#include "corvane/platform/controls/gdi_slider.h"
#include "corvane/platform/controls/hdc_btn.h"
#include "corvane/platform/controls/list_bar.h"
#include "corvane/platform/controls/list_tab.h"
#include "corvane/platform/controls/picture_ex.h"
#include "corvane/platform/controls/ui_ctrl_mgr.h"
#include "corvane/skin/xml_list_mgr.h"
#include "tests/platform/controls/control_test.h"
#include "tests/support/golden_file.h"

namespace corvane {
namespace {

constexpr int kUnknown = 99;
constexpr COLORREF kMain = RGB(10, 20, 30), kForward = RGB(40, 50, 60), kBackward = RGB(70, 80, 90);

class SkinControls : public test::ControlTest {
 protected:
  SkinControls() {
    for (const char* const name : {"ui_control.xml", "ui_language.xml", "ui_logfont.xml"}) {
      folder_.file(name, test::golden_text(std::string("tests/skin/data/buttons/") + name));
    }
    write_picture("main.bmp", 30, 40, kMain);
    write_picture("down.bmp", 12, 14, 0);
    write_picture("forward.bmp", 8, 10, kForward);
    write_picture("backward.bmp", 6, 12, kBackward);
    skin_.Load({4});
  }

  bool is_child(const CWnd& window, int id) const {
    return window.GetSafeHwnd() && ::GetDlgItem(*host_, id) == window.GetSafeHwnd();
  }
  static CString text_of(const CWnd& window) {
    CString text;
    window.GetWindowTextW(text);
    return text;
  }
  CRect place_of(const CWnd& window) const {
    CRect rect;
    window.GetWindowRect(rect);
    host_->ScreenToClient(rect);
    return rect;
  }

  // A click there comes to the host as a control of the bar has sent it, a menu's command does not.
  void expect_click_from(CWnd& bar, int id, POINT point) {
    host_->commands.clear();
    EXPECT_EQ(bar.SendMessageW(WM_COMMAND, static_cast<WPARAM>(id), 0), FALSE);
    EXPECT_TRUE(host_->commands.empty());
    click(point);
    ASSERT_EQ(host_->commands.size(), 1u);
    const auto command = host_->commands[0];
    EXPECT_EQ(command.sender, ::GetDlgItem(bar, id));
    EXPECT_EQ(command.wparam, MAKEWPARAM(id, BN_CLICKED));
    EXPECT_EQ(
        bar.SendMessageW(WM_COMMAND, command.wparam, reinterpret_cast<LPARAM>(command.sender)),
        TRUE);
    EXPECT_EQ(host_->commands.size(), 2u) << "sent, not posted";
  }

  CXmlListMgr skin_;
  CRect rect_{1, 2, 3, 4};
};

TEST_F(SkinControls, ImagesOfAControl) {
  CGdiImage image;
  skin_.LoadGdiImage(image, rect_, 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_EQ(image.GetWidth(), 30);
  skin_.LoadDownGdiImage(image, 1);
  EXPECT_EQ(image.GetWidth(), 12);
  skin_.LoadDownGdiImage(image, 2);
  EXPECT_EQ(image.GetImage(), nullptr);
  skin_.LoadGdiImage(image, rect_, 1);
  skin_.LoadGdiImage(image, rect_, kUnknown);
  EXPECT_TRUE(rect_.IsRectNull());
  EXPECT_EQ(image.GetImage(), nullptr);
  EXPECT_EQ(image.GetWidth(), 0);
}

TEST_F(SkinControls, CopiesShareAPictureAndFilesThatAreNoneLeaveNoImage) {
  CGdiImage image, copy;
  skin_.LoadGdiImage(image, rect_, 1);
  copy = image;
  EXPECT_EQ(copy.GetImage(), image.GetImage());
  image.DelImage();
  EXPECT_EQ(copy.GetWidth(), 30);
  folder_.file("image/main.bmp", "BM, but no bitmap");
  skin_.LoadGdiImage(copy, rect_, 1);
  for (const CGdiImage& each : {image, copy}) EXPECT_EQ(each.GetImage(), nullptr);
  EXPECT_EQ(image.Load(nullptr), 0);
  EXPECT_EQ(image.Load(folder_.wide().c_str()), 0);
}

TEST_F(SkinControls, AButtonShowsItsCaptionInItsFontAndColours) {
  CGdiBtnEx button;
  skin_.LoadGdiBtn(button, rect_, host_.get(), 1);
  test::Shown shown{.face = kMain,
                    .edge = {},
                    .caption = L"保",
                    .font = {-20, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"黑体"},
                    .box = CRect(12, 20, 40, 56),
                    .text = RGB(255, 255, 255)};
  expect_shown(CRect(10, 20, 40, 60), shown);
  move_to(20, 30);
  shown.text = RGB(255, 255, 0);
  expect_shown(CRect(10, 20, 40, 60), shown);
  CGdiBtnEx other;
  skin_.LoadGdiBtn(other, rect_, host_.get(), 3);
  move_to(200, 200);
  button.MoveWindow(200, 200, 10, 10);
  expect_shown(rect_, {.face = kMain, .edge = {}, .caption = L"文", .box = rect_});
}

template <typename Control>
using Loader = void (CXmlListMgr::*)(Control&, CRect&, CWnd*, int) const;

TEST_F(SkinControls, ControlsAreMadeFromTheirRecordsAndLoadedAgainKeepTheirWindow) {
  const auto check = [&]<typename Control>(const char* name, Loader<Control> load) {
    SCOPED_TRACE(name);
    Control control, unknown;
    (skin_.*load)(control, rect_, host_.get(), 1);
    const HWND window = control;
    EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
    EXPECT_EQ(place_of(control), rect_);
    EXPECT_TRUE(is_child(control, 1));
    EXPECT_EQ(control.GetStyle() & (WS_VISIBLE | WS_TABSTOP), WS_VISIBLE | WS_TABSTOP);
    pump();
    EXPECT_EQ(pixel(11, 21), kMain);
    (skin_.*load)(unknown, rect_, host_.get(), kUnknown);
    EXPECT_TRUE(rect_.IsRectNull());
    EXPECT_TRUE(is_child(unknown, kUnknown));
    // Control 2 has neither an image nor a caption that is known.
    (skin_.*load)(control, rect_, host_.get(), 2);
    EXPECT_EQ(control.GetSafeHwnd(), window);
    EXPECT_EQ(place_of(control), CRect(50, 20, 80, 60));
    pump();
    EXPECT_NE(pixel(65, 40), kMain);
    if constexpr (std::is_base_of_v<CSkinnedWnd, Control>) {
      EXPECT_EQ(frame().count_other_than(rect_, ::GetSysColor(COLOR_BTNFACE)), 0);
    } else {
      EXPECT_EQ(text_of(control), L"");
    }
    (skin_.*load)(control, rect_, host_.get(), 1);
    EXPECT_EQ(text_of(control), L"保");
    control.MoveWindow(CRect(10, 20, 100, 120));
    pump();
    EXPECT_EQ(pixel(98, 118), kMain);
  };
  check("skinned button", &CXmlListMgr::LoadGdiBtn);
  check("button", &CXmlListMgr::LoadHdcBtn);
  check("slider", &CXmlListMgr::LoadGdiSlider);
  check("combo box", &CXmlListMgr::LoadGdiComboBox);
  check("edit box", &CXmlListMgr::LoadGdiEditEx);
}

TEST_F(SkinControls, ATabStripNeedsARecord) {
  CListTab strip;
  skin_.LoadListTab(strip, rect_, host_.get(), kUnknown);
  EXPECT_EQ(strip.GetSafeHwnd(), nullptr);
  EXPECT_EQ(rect_, CRect(1, 2, 3, 4));
  EXPECT_EQ(CUICtrlMgr().LoadTabBtn(strip, {&strip, 1, {}}), 0);
  EXPECT_EQ(strip.GetBtnCount(), 0);

  skin_.LoadListTab(strip, rect_, host_.get(), 2);
  EXPECT_EQ(rect_, CRect(50, 20, 80, 60));
  EXPECT_TRUE(is_child(strip, 2));
  skin_.AddListTabBtn(strip, 1);
  skin_.AddListTabBtn(strip, kUnknown);
  EXPECT_EQ(strip.GetBtnCount(), 2);
  strip.MoveWindow(0, 0, 200, 100);
  pump();
  EXPECT_EQ(pixel(11, 21), kMain);
  expect_click_from(strip, 1, {15, 25});
}

TEST_F(SkinControls, AListBarIsShownWithItsPagingButtonsWhenThereIsARecord) {
  CListBar bar, unknown;
  EXPECT_EQ(bar.CreateForwardBtn(L""), 0) << "no bar yet";
  skin_.LoadListBar(bar, rect_, host_.get(), 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_TRUE(is_child(bar, 1));
  EXPECT_EQ(text_of(bar), L"listBar");
  EXPECT_TRUE(bar.IsWindowVisible());
  EXPECT_EQ(place_of(bar), CRect());
  EXPECT_EQ(bar.CreateForwardBtn(skin_.GetBgImgPath(1)), 0) << "has one";
  bar.MoveWindow(rect_);
  pump();
  const auto shown = frame();
  EXPECT_EQ(shown.count_other_than(CRect(32, 35, 40, 45), kForward), 0);
  EXPECT_EQ(shown.count_other_than(CRect(10, 34, 16, 46), kBackward), 0);
  EXPECT_EQ(shown.count_other_than(rect_, ::GetSysColor(COLOR_BTNFACE)), 8 * 10 + 6 * 12);
  expect_click_from(bar, 1, {38, 38});
  expect_click_from(bar, 2, {11, 38});

  skin_.LoadListBar(unknown, rect_, host_.get(), kUnknown);
  EXPECT_TRUE(rect_.IsRectNull());
  EXPECT_TRUE(is_child(unknown, kUnknown));
  EXPECT_FALSE(unknown.IsWindowVisible());
  EXPECT_EQ(::GetWindow(unknown, GW_CHILD), nullptr);
  EXPECT_EQ(unknown.CreateBackwardBtn(skin_.GetBgImgPath(1)), 1);
}

TEST_F(SkinControls, AnAnimatedPictureIsShownWhenThereIsARecord) {
  CPictureEx picture, unknown, orphan;
  skin_.LoadGifStatic(picture, rect_, host_.get(), 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_TRUE(is_child(picture, 1));
  EXPECT_EQ(text_of(picture), L"gif");
  EXPECT_EQ(picture.GetStyle() & 0x1F, SS_BLACKRECT);
  EXPECT_TRUE(picture.IsWindowVisible());
  picture.MoveWindow(rect_);
  pump();
  EXPECT_EQ(frame().count_other_than(rect_, kMain), 0);
  EXPECT_EQ(picture.Load((folder_.wide() + L"\\image\\forward.bmp").c_str()), 1);
  pump();
  EXPECT_EQ(frame().count_other_than(rect_, kForward), 0);
  EXPECT_EQ(picture.SendMessageW(WM_ERASEBKGND), TRUE);
  click(20, 30);
  EXPECT_EQ(host_->presses.size(), 1u) << "the picture lets the mouse through";

  skin_.LoadGifStatic(unknown, rect_, host_.get(), kUnknown);
  EXPECT_TRUE(rect_.IsRectNull());
  EXPECT_TRUE(is_child(unknown, kUnknown));
  EXPECT_FALSE(unknown.IsWindowVisible());

  skin_.LoadGifStatic(orphan, rect_, nullptr, 1);
  EXPECT_TRUE(rect_.IsRectNull());
  EXPECT_EQ(orphan.GetSafeHwnd(), nullptr);
}

// A parent that empties the lists as soon as it hears of a new child.
class ForgetfulParent : public CWnd {
 public:
  explicit ForgetfulParent(CXmlListMgr& skin) : skin_(skin) {}

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_PARENTNOTIFY) skin_.Release();
    return CWnd::WindowProc(message, wparam, lparam);
  }

 private:
  CXmlListMgr& skin_;
};

// A parent that does something when it hears of the third, say, new window below it.
class HearingParent : public CWnd {
 public:
  void at_child(int number, std::function<void()> action) {
    left_ = number;
    action_ = std::move(action);
  }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_PARENTNOTIFY && LOWORD(wparam) == WM_CREATE && --left_ == 0) action_();
    return CWnd::WindowProc(message, wparam, lparam);
  }

 private:
  int left_ = 0;
  std::function<void()> action_;
};

TEST_F(SkinControls, TheParentMayEndWhatItHearsOf) {
  HearingParent parent;
  ASSERT_TRUE(parent.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 200, 200), host_.get(), 7));
  for (const int heard : {1, 2, 3}) {
    auto bar = std::make_unique<CListBar>();
    parent.at_child(heard, [&bar] { bar.reset(); });
    skin_.LoadListBar(*bar, rect_, &parent, 1);
    EXPECT_EQ(bar, nullptr) << heard;
  }
  auto picture = std::make_unique<CPictureEx>();
  parent.at_child(1, [&picture] { picture.reset(); });
  skin_.LoadGifStatic(*picture, rect_, &parent, 1);
  EXPECT_EQ(picture, nullptr);
}

TEST_F(SkinControls, TheListsMayBeReleasedWhileAControlIsCreated) {
  ForgetfulParent parent(skin_);
  ASSERT_TRUE(parent.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 200, 200), host_.get(), 7));
  CGdiBtnEx button;
  skin_.LoadGdiBtn(button, rect_, &parent, 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_EQ(text_of(button), L"保");
  EXPECT_EQ(skin_.GetCtrl(1), nullptr);
  CListBar bar;
  skin_.LoadListBar(bar, rect_, &parent, 1);
  EXPECT_TRUE(rect_.IsRectNull());
}

}  // namespace
}  // namespace corvane
