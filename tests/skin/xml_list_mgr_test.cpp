// The list manager over skin files, as far as it needs no window.
#include "corvane/skin/xml_list_mgr.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "corvane/frame/window_lists.h"
#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/system_paths.h"
#include "tests/support/source_folder.h"

namespace corvane {
namespace {

static_assert(!std::is_copy_constructible_v<CXmlListMgr>);
static_assert(!std::is_copy_assignable_v<CXmlListMgr>);

class XmlListMgr : public testing::Test {
 protected:
  XmlListMgr() { use("lists"); }
  ~XmlListMgr() override { SetSkinFolder(L""); }

  static void use(const char* skin) { SetSkinFolder(folder(skin)); }
  static CString folder(const char* skin) {
    return wide_path_of(test::source_folder() / "tests/skin/data" / skin);
  }
  void load(int list) { skin_.Load({list}); }
  // Whether there are a control, a caption and a font of list 4.
  void expect_records(bool control, bool caption, bool font) const {
    EXPECT_EQ(skin_.GetCtrl(1) != nullptr, control);
    EXPECT_EQ(skin_.GetLanguage(5) != nullptr, caption);
    EXPECT_EQ(skin_.GetMyFont(1) != nullptr, font);
  }

  CXmlListMgr skin_;
};

TEST_F(XmlListMgr, IsEmptyAtFirst) {
  EXPECT_EQ(skin_.GetBgColor(), 0u);
  expect_records(false, false, false);
  EXPECT_TRUE(skin_.GetBgRect(1).IsRectNull());
  EXPECT_EQ(skin_.GetBgImgPath(1), folder("lists") + L"\\image\\");
}

TEST_F(XmlListMgr, EachWindowReadsItsListOfTheSkin) {
  const struct {
    SkinList list;
    int id;
    bool captions;
  } cases[] = {
      {kFolderTreeList, 1, false}, {kSplitScreenList, 3, true},     {kCropBarList, 4, true},
      {kDataPathList, 5, true},    {kMessageBoxList, 7, true},      {kRotateKnobList, 9, true},
      {kGestureList, 10, true},    {kAutoPhotographList, 11, true}, {kPaintList, 12, false}};
  use("windows");
  for (const auto& each : cases) {
    SCOPED_TRACE(each.id);
    CXmlListMgr skin;
    skin.Load(each.list);
    EXPECT_EQ(skin.GetBgRect(1).left, each.id);
    ASSERT_EQ(skin.GetLanguage(1) != nullptr, each.captions);
    EXPECT_EQ(skin.GetMyFont(1) != nullptr, each.captions);
    if (each.captions) {
      EXPECT_EQ(skin.GetLanguage(1)->font_id, each.id);
    }
  }
}

TEST_F(XmlListMgr, AnswersFromTheLoadedList) {
  load(4);
  EXPECT_EQ(skin_.GetBgColor(), RGB(0x10, 0x20, 0x30));
  EXPECT_EQ(skin_.GetBgRect(1), CRect(1, 2, 11, 22));
  EXPECT_EQ(skin_.GetBgImgPath(1), folder("lists") + L"\\image\\one.png");
  EXPECT_EQ(skin_.GetLanguage(5)->text, L"保存");
  EXPECT_EQ(skin_.GetMyFont(1)->description->lfHeight, -20);
  EXPECT_EQ(skin_.GetCtrl(8), nullptr);
  EXPECT_TRUE(skin_.GetBgRect(8).IsRectNull());
  EXPECT_EQ(skin_.GetBgImgPath(8), folder("lists") + L"\\image\\");
}

TEST_F(XmlListMgr, AReloadReplacesWhateverItFinds) {
  load(4);
  load(4);
  for (const int left : {1, 9}) {  // one copy of the file's two controls of that id, in its order
    ASSERT_NE(skin_.GetCtrl(1), nullptr);
    EXPECT_EQ(skin_.GetBgRect(1).left, left);
    skin_.GetCtrl(1)->id = 100;
  }
  expect_records(false, true, true);
  load(5);
  EXPECT_NE(skin_.GetCtrl(8), nullptr);
  EXPECT_EQ(skin_.GetLanguage(5)->text, L"other");
  EXPECT_EQ(skin_.GetBgColor(), RGB(255, 255, 255));
  EXPECT_NE(skin_.GetMyFont(2), nullptr);  // fonts belong to no list
  load(4);
  load(77);
  expect_records(false, false, true);
  EXPECT_EQ(skin_.GetBgColor(), RGB(0x10, 0x20, 0x30));
  for (const wchar_t* const missing : {L"Z:\\no such folder", L"Q:\\not mounted"}) {
    use("lists");
    load(4);
    expect_records(true, true, true);
    SetSkinFolder(missing);
    load(4);
    expect_records(false, false, false);
  }
}

TEST_F(XmlListMgr, ReleasingKeepsOnlyTheBackground) {
  load(4);
  skin_.CtrlRelease();
  expect_records(false, true, true);
  skin_.LanguageRelease();
  expect_records(false, false, true);
  skin_.LogfontRelease();
  expect_records(false, false, false);
  load(4);
  skin_.Release();
  expect_records(false, false, false);
  EXPECT_EQ(skin_.GetBgColor(), RGB(0x10, 0x20, 0x30));
}

TEST_F(XmlListMgr, APathWithoutNarrowFormIsAnErrorAndTheListIsEmpty) {
  load(4);
  SetSkinFolder(CString(std::wstring(L"Z:\\") + wchar_t(0xD800)));
  EXPECT_THROW(skin_.LoadCtrlList(L"ui_control.xml", 4), PathConversionError);
  EXPECT_THROW(skin_.LoadLanguageList(L"ui_language.xml", 4), PathConversionError);
  EXPECT_THROW(skin_.LoadLogfontList(L"ui_logfont.xml"), PathConversionError);
  EXPECT_EQ(skin_.GetCtrl(1), nullptr);
}

}  // namespace
}  // namespace corvane
