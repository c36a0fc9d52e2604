// The list manager over skin files, as far as it needs no window.
#include "corvane/skin/xml_list_mgr.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/system_paths.h"
#include "tests/support/temporary_folder.h"

namespace corvane {
namespace {

static_assert(!std::is_copy_constructible_v<CXmlListMgr>);
static_assert(!std::is_copy_assignable_v<CXmlListMgr>);

class XmlListMgr : public testing::Test {
 protected:
  XmlListMgr() {
    SetSkinFolder(folder_.wide());
    folder_.file("ui_control.xml", R"(<controls>
        <list id="4" background="#102030">
          <control id="1" x="1" y="2" width="10" height="20" image="one.png" caption="5"/>
          <control id="2" image="two.png"/><control id="1" x="9" image="later.png"/></list>
        <list id="5"><control id="8"/></list></controls>)");
    folder_.file("ui_language.xml", R"(<captions>
        <list id="4"><caption id="5" text="保存" font="1"/></list>
        <list id="5"><caption id="5" text="other"/><caption id="6" text="more"/></list>
        </captions>)");
    folder_.file("ui_logfont.xml", R"(<fonts><font id="1" size="20"/><font id="2"/></fonts>)");
  }
  ~XmlListMgr() override { SetSkinFolder(L""); }

  void load(int list) { skin_.Load({list}); }
  // Whether there are a control, a caption and a font of list 4.
  void expect_records(bool control, bool caption, bool font) const {
    EXPECT_EQ(skin_.GetCtrl(1) != nullptr, control);
    EXPECT_EQ(skin_.GetLanguage(5) != nullptr, caption);
    EXPECT_EQ(skin_.GetMyFont(1) != nullptr, font);
  }

  test::TemporaryFolder folder_;
  CXmlListMgr skin_;
};

TEST_F(XmlListMgr, IsEmptyAtFirst) {
  EXPECT_EQ(skin_.GetBgColor(), 0u);
  expect_records(false, false, false);
  EXPECT_TRUE(skin_.GetBgRect(1).IsRectNull());
  EXPECT_EQ(skin_.GetBgImgPath(1), folder_.wide() + L"\\image\\");
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
  std::string controls, captions;
  for (int id = 0; id < 20; ++id) {
    const std::string list = "<list id='" + std::to_string(id) + "'>", x = std::to_string(id);
    controls += list + "<control id='1' x='" + x + "'/></list>";
    captions += list + "<caption id='1' font='" + x + "'/></list>";
  }
  folder_.file("ui_control.xml", "<controls>" + controls + "</controls>");
  folder_.file("ui_language.xml", "<captions>" + captions + "</captions>");
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
  EXPECT_EQ(skin_.GetBgImgPath(1), folder_.wide() + L"\\image\\one.png");
  EXPECT_EQ(skin_.GetLanguage(5)->text, L"保存");
  EXPECT_EQ(skin_.GetMyFont(1)->description->lfHeight, -20);
  EXPECT_EQ(skin_.GetCtrl(8), nullptr);
  EXPECT_TRUE(skin_.GetBgRect(8).IsRectNull());
  EXPECT_EQ(skin_.GetBgImgPath(8), folder_.wide() + L"\\image\\");
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
    SetSkinFolder(folder_.wide());
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
