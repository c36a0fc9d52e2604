// Controls that the list manager creates from its records.
#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/controls/gdi_combo_box.h"
#include "corvane/platform/controls/gdi_edit_ex.h"
#include "corvane/platform/controls/gdi_slider.h"
#include "corvane/platform/controls/hdc_btn.h"
#include "corvane/platform/controls/list_bar.h"
#include "corvane/platform/controls/list_tab.h"
#include "corvane/platform/controls/picture_ex.h"
#include "corvane/skin/xml_list_mgr.h"
#include "tests/platform/controls/control_test.h"

namespace corvane {
namespace {

constexpr int kUnknown = 99;
constexpr COLORREF kMain = RGB(10, 20, 30), kDown = RGB(40, 50, 60), kEnd = RGB(70, 80, 90);

class SkinControls : public test::ControlTest {
 protected:
  SkinControls() {
    folder_.file("ui_control.xml", R"(<controls><list id="4">
        <control id="1" x="10" y="20" width="30" height="40" image="main.bmp"
                 image-pressed="down.bmp" image-forward="end.bmp" image-backward="end.bmp"
                 caption="1"/>
        <control id="2" x="50" y="20" width="30" height="40" caption="404"/></list></controls>)");
    folder_.file("ui_language.xml",
                 R"(<captions><list id="4"><caption id="1" text="保存"/></list></captions>)");
    write_picture("main.bmp", 30, 40, kMain);
    write_picture("down.bmp", 12, 14, kDown);
    write_picture("end.bmp", 8, 10, kEnd);
    skin_.LoadCtrlList(L"ui_control.xml", 4);
    skin_.LoadLanguageList(L"ui_language.xml", 4);
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

TEST_F(SkinControls, CopiesOfAnImageShareThePicture) {
  CGdiImage image, copy;
  skin_.LoadGdiImage(image, rect_, 1);
  copy = image;
  EXPECT_EQ(copy.GetImage(), image.GetImage());
  image.DelImage();
  EXPECT_EQ(image.GetImage(), nullptr);
  EXPECT_EQ(copy.GetWidth(), 30);
}

TEST_F(SkinControls, FilesThatAreNoPicturesLeaveNoImage) {
  folder_.file("image/main.bmp", "BM, but no bitmap");
  CGdiImage image;
  skin_.LoadGdiImage(image, rect_, 1);
  EXPECT_EQ(image.GetImage(), nullptr);
  EXPECT_EQ(image.Load(nullptr), 0);
  EXPECT_EQ(image.Load(folder_.wide().c_str()), 0);
}

TEST_F(SkinControls, AButtonGetsItsCaptionRectangleAndId) {
  CGdiBtnEx button, bare, unknown;
  skin_.LoadGdiBtn(button, rect_, host_.get(), 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_EQ(place_of(button), rect_);
  EXPECT_TRUE(is_child(button, 1));
  EXPECT_TRUE(button.IsWindowVisible());
  EXPECT_EQ(text_of(button), L"保存");
  pump();
  EXPECT_EQ(pixel(11, 21), kMain);
  skin_.LoadGdiBtn(bare, rect_, host_.get(), 2);
  EXPECT_EQ(rect_, CRect(50, 20, 80, 60));
  EXPECT_EQ(text_of(bare), L"");
  skin_.LoadGdiBtn(unknown, rect_, host_.get(), kUnknown);
  EXPECT_TRUE(rect_.IsRectNull());
  EXPECT_TRUE(is_child(unknown, kUnknown));
}

TEST_F(SkinControls, LoadingAButtonAgainKeepsItsWindow) {
  CGdiBtnEx button;
  skin_.LoadGdiBtn(button, rect_, host_.get(), 1);
  const HWND window = button;
  skin_.LoadGdiBtn(button, rect_, host_.get(), 2);
  EXPECT_EQ(button.GetSafeHwnd(), window);
  EXPECT_EQ(place_of(button), CRect(50, 20, 80, 60));
  EXPECT_EQ(text_of(button), L"");
}

template <typename Control>
using Loader = void (CXmlListMgr::*)(Control&, CRect&, CWnd*, int) const;

TEST_F(SkinControls, OtherControlsAreCreatedAndShowTheirImage) {
  const auto check = [&]<typename Control>(const char* name, Loader<Control> load) {
    SCOPED_TRACE(name);
    Control control, unknown;
    (skin_.*load)(control, rect_, host_.get(), 1);
    EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
    EXPECT_EQ(place_of(control), rect_);
    EXPECT_TRUE(is_child(control, 1));
    pump();
    EXPECT_EQ(frame().count_other_than(rect_, kMain), 0);
    (skin_.*load)(unknown, rect_, host_.get(), kUnknown);
    EXPECT_TRUE(rect_.IsRectNull());
    EXPECT_TRUE(is_child(unknown, kUnknown));
  };
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
  skin_.AddListTabBtn(strip, 1);
  EXPECT_EQ(strip.GetBtnCount(), 0);

  skin_.LoadListTab(strip, rect_, host_.get(), 2);
  EXPECT_EQ(rect_, CRect(50, 20, 80, 60));
  EXPECT_TRUE(is_child(strip, 2));
  skin_.AddListTabBtn(strip, 1);
  skin_.AddListTabBtn(strip, kUnknown);
  EXPECT_EQ(strip.GetBtnCount(), 2);
  const HWND tab = ::GetDlgItem(strip, 1);
  ASSERT_NE(tab, nullptr);
  strip.MoveWindow(0, 0, 200, 100);
  pump();
  click(15, 25);
  ASSERT_EQ(host_->commands.size(), 1u);
  EXPECT_EQ(host_->commands[0].sender, tab);
}

TEST_F(SkinControls, AListBarIsShownWithItsPagingButtonsWhenThereIsARecord) {
  CListBar bar, unknown;
  skin_.LoadListBar(bar, rect_, host_.get(), 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_TRUE(is_child(bar, 1));
  EXPECT_EQ(text_of(bar), L"listBar");
  EXPECT_TRUE(bar.IsWindowVisible());
  EXPECT_EQ(place_of(bar), CRect());
  bar.MoveWindow(rect_);
  pump();
  EXPECT_EQ(pixel(11, 36), kEnd);
  EXPECT_EQ(pixel(38, 36), kEnd);
  EXPECT_NE(pixel(25, 36), kEnd);
  click(38, 38);
  ASSERT_EQ(host_->commands.size(), 1u);
  EXPECT_EQ(host_->commands[0].sender, ::GetDlgItem(bar, CListBar::kForwardId));

  skin_.LoadListBar(unknown, rect_, host_.get(), kUnknown);
  EXPECT_TRUE(rect_.IsRectNull());
  EXPECT_TRUE(is_child(unknown, kUnknown));
  EXPECT_FALSE(unknown.IsWindowVisible());
  EXPECT_EQ(::GetWindow(unknown, GW_CHILD), nullptr);
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

TEST_F(SkinControls, TheListsMayBeReleasedWhileAControlIsCreated) {
  ForgetfulParent parent(skin_);
  ASSERT_TRUE(parent.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 200, 200), host_.get(), 7));
  CGdiBtnEx button;
  skin_.LoadGdiBtn(button, rect_, &parent, 1);
  EXPECT_EQ(rect_, CRect(10, 20, 40, 60));
  EXPECT_EQ(text_of(button), L"保存");
  EXPECT_EQ(skin_.GetCtrl(1), nullptr);
  CListBar bar;
  skin_.LoadListBar(bar, rect_, &parent, 1);
  EXPECT_TRUE(rect_.IsRectNull());
}

}  // namespace
}  // namespace corvane
