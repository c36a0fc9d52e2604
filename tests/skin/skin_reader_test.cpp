// The readers of the three skin files: what they hand back, and what broken files do.
#include <gtest/gtest.h>

#include <functional>

#include "corvane/platform/skin_reader/control_mgr.h"
#include "corvane/platform/skin_reader/language_mgr.h"
#include "corvane/platform/skin_reader/logfont_mgr.h"
#include "tests/support/temporary_folder.h"

namespace corvane {
namespace {

template <typename Record>
struct OwnedList {
  ~OwnedList() {
    for (Record* const record : records) delete record;
  }
  const Record& at(std::size_t index) const { return **std::next(records.begin(), index); }
  std::list<Record*> records;
};

class SkinReader : public testing::Test {
 protected:
  // Reads list 4 of a control file with these contents.
  DWORD read_controls(std::string_view contents) {
    CControlMgr reader;
    loaded = reader.Load(folder.file("ui_control.xml", contents).c_str());
    return reader.ReadControl(controls.records, 4, &background);
  }

  test::TemporaryFolder folder;
  OwnedList<_MYCONTROL> controls;
  DWORD background = 77;
  int loaded = -1;
};

constexpr std::string_view kWholeControl = R"(<?xml version="1.0" encoding="UTF-8"?>
<controls>
  <list id="3"><control id="1" x="9"/></list>
  <list id="4" background="#102030">
    <control id="7" x="-5" y="6" width="96" height="40"
             images="save_{state}.png" image-hover="glow.png"
             image-forward="next.png" image-backward="back/previous.png"
             caption="12" tool-tip="&#x4FDD;&lt;b&gt;"
             text-color="#010203" text-color-pressed="#040506" text-color-disabled="#070809"
             padding-left="38" padding-top="1" padding-right="4" padding-bottom="2"/>
    <control id="-1"/>
  </list>
  <list id="4"><control id="99"/></list>
</controls>
)";

TEST_F(SkinReader, ReadsEveryAttributeOfAControl) {
  ASSERT_EQ(read_controls(kWholeControl), 2u);
  EXPECT_EQ(loaded, 1);
  EXPECT_EQ(background, RGB(0x10, 0x20, 0x30));
  const auto& control = controls.at(0);
  EXPECT_EQ(control.id, 7);
  const RECT expected{-5, 6, 91, 46};
  EXPECT_TRUE(EqualRect(&control.rect, &expected));
  EXPECT_EQ(control.image, L"save_normal.png");
  EXPECT_EQ(control.hover_image, L"glow.png");
  EXPECT_EQ(control.pressed_image, L"save_pressed.png");
  EXPECT_EQ(control.disabled_image, L"save_disabled.png");
  EXPECT_EQ(control.selected_image, L"save_selected.png");
  EXPECT_EQ(control.forward_image, L"next.png");
  EXPECT_EQ(control.backward_image, L"back\\previous.png");
  EXPECT_EQ(control.tool_tip, L"保<b>");
  EXPECT_EQ(control.text_color, RGB(1, 2, 3));
  EXPECT_EQ(control.hover_text_color, RGB(1, 2, 3));
  EXPECT_EQ(control.pressed_text_color, RGB(4, 5, 6));
  EXPECT_EQ(control.disabled_text_color, RGB(7, 8, 9));
  EXPECT_EQ(control.selected_text_color, RGB(1, 2, 3));
  EXPECT_EQ(control.padding_left, 38);
  EXPECT_EQ(control.padding_top, 1);
  EXPECT_EQ(control.padding_right, 4);
  EXPECT_EQ(control.padding_bottom, 2);
  ASSERT_TRUE(control.caption_ids);
  EXPECT_EQ(control.caption_ids[0], 12);
}

TEST_F(SkinReader, AControlWithAnIdAloneGetsTheDefaults) {
  ASSERT_EQ(read_controls(kWholeControl), 2u);
  const auto& control = controls.at(1);
  EXPECT_EQ(control.id, -1);
  EXPECT_TRUE(IsRectEmpty(&control.rect));
  EXPECT_TRUE(control.image.IsEmpty());
  EXPECT_TRUE(control.hover_image.IsEmpty());
  EXPECT_EQ(control.text_color, RGB(0, 0, 0));
  EXPECT_EQ(control.disabled_text_color, RGB(128, 128, 128));
  EXPECT_FALSE(control.caption_ids);
}

TEST_F(SkinReader, WrongValuesCountAsAbsent) {
  ASSERT_EQ(read_controls(R"(<controls><list id="4" background="red">
      <control/><control id="x"/><control id="99999999999"/>
      <control id="1" x="99999" y="1e2" width="-3" height="40" caption="first" padding-left="-1"
               images="no_place.png" image-pressed="../../secret.png" text-color="#12"/>
      <button id="2"/>
      </list></controls>)"),
            1u);
  const auto& control = controls.at(0);
  const RECT expected{0, 0, 0, 40};
  EXPECT_TRUE(EqualRect(&control.rect, &expected));
  EXPECT_TRUE(control.image.IsEmpty());
  EXPECT_TRUE(control.pressed_image.IsEmpty());
  EXPECT_FALSE(control.caption_ids);
  EXPECT_EQ(control.padding_left, 0);
  EXPECT_EQ(control.text_color, RGB(0, 0, 0));
  EXPECT_EQ(background, RGB(255, 255, 255));
}

TEST_F(SkinReader, AppendsToWhatTheListHolds) {
  ASSERT_EQ(read_controls(kWholeControl), 2u);
  ASSERT_EQ(read_controls(kWholeControl), 2u);
  EXPECT_EQ(controls.records.size(), 4u);
}

TEST_F(SkinReader, RecordsOfOneIdAreAllKeptInOrder) {
  ASSERT_EQ(read_controls(R"(<controls><list id="4">
      <control id="1" x="1"/><control id="2"/><control id="1" x="3"/></list></controls>)"),
            3u);
  EXPECT_EQ(controls.at(0).rect.left, 1);
  EXPECT_EQ(controls.at(2).rect.left, 3);
}

TEST_F(SkinReader, FilesThatAreNoSkinGiveNothing) {
  const std::string deep = [] {
    std::string text = "<controls>";
    for (int i = 0; i < 200000; ++i) text += "<list>";
    return text;
  }();
  struct Case {
    const char* name;
    std::string contents;
  };
  const Case cases[] = {
      {"empty", ""},
      {"blanks", " \n\t "},
      {"text", "controls"},
      {"not closed", "<controls><list id=\"4\"><control id=\"1\"/></list>"},
      {"wrong nesting", "<controls><list id=\"4\"></controls></list>"},
      {"another root", "<fonts><list id=\"4\"><control id=\"1\"/></list></fonts>"},
      {"not UTF-8",
       "<controls><list id=\"4\"><control id=\"1\" tool-tip=\"\xB1\xA3\"/></list></controls>"},
      {"UTF-16", std::string("\xFF\xFE<\0c\0/\0>\0", 10)},
      {"zero byte", std::string("<controls>\0</controls>", 22)},
      {"unclosed nesting", deep},
      {"garbage", "\x89PNG\r\n\x1A\n\x01\x02\x03<<<>>>\"\"\""},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(read_controls(each.contents), 0u) << each.name;
    EXPECT_EQ(loaded, 0) << each.name;
    EXPECT_EQ(background, 77u) << each.name;
  }
  EXPECT_TRUE(controls.records.empty());
}

TEST_F(SkinReader, DeepButWholeFilesAreRead) {
  std::string text = R"(<controls><list id="4"><control id="1">)";
  constexpr int kDepth = 100000;
  for (int i = 0; i < kDepth; ++i) text += "<a>";
  for (int i = 0; i < kDepth; ++i) text += "</a>";
  EXPECT_EQ(read_controls(text + "</control></list></controls>"), 1u);
}

TEST_F(SkinReader, FilesAboveTheLimitAreRefused) {
  const std::string head = "<controls><list id=\"4\"><control id=\"1\"/></list><!--";
  const std::string tail = "--></controls>";
  const std::size_t limit = std::size_t{16} << 20;
  const std::string filler(limit - head.size() - tail.size(), 'x');
  EXPECT_EQ(read_controls(head + filler + tail), 1u);
  EXPECT_EQ(read_controls(head + filler + "x" + tail), 0u);
  EXPECT_EQ(loaded, 0);
}

TEST_F(SkinReader, AByteOrderMarkIsNoText) {
  EXPECT_EQ(
      read_controls("\xEF\xBB\xBF<controls><list id=\"4\"><control id=\"1\"/></list></controls>"),
      1u);
}

TEST_F(SkinReader, AFileCutAtAnyByteGivesAllOrNothing) {
  const auto whole = kWholeControl.find_last_of('>') + 1;
  for (std::size_t length = 0; length <= kWholeControl.size(); ++length) {
    const DWORD expected = length >= whole ? 2 : 0;
    ASSERT_EQ(read_controls(kWholeControl.substr(0, length)), expected) << length;
  }
}

TEST_F(SkinReader, AFileWithOneByteChangedNeverBreaksTheReader) {
  for (const char byte : {'\0', '<', '>', '"', '&', '9', '\x80', '\xFF'}) {
    for (std::size_t place = 0; place < kWholeControl.size(); place += 3) {
      std::string contents(kWholeControl);
      contents[place] = byte;
      OwnedList<_MYCONTROL> list;
      CControlMgr reader;
      reader.Load(folder.file("changed.xml", contents).c_str());
      const DWORD count = reader.ReadControl(list.records, 4, nullptr);
      ASSERT_EQ(count, list.records.size());
      ASSERT_LE(count, 3u);
    }
  }
}

TEST_F(SkinReader, PathsThatNameNoFileGiveNothing) {
  CControlMgr reader;
  const std::string directory = folder.path().string();
  for (const char* path : {"", "no such file", directory.c_str(), "/dev/zero"}) {
    EXPECT_EQ(reader.Load(path), 0) << path;
    EXPECT_EQ(reader.ReadControl(controls.records, 4, &background), 0u) << path;
  }
  EXPECT_EQ(reader.Load(nullptr), 0);
}

TEST_F(SkinReader, AFailedLoadForgetsTheFormerFile) {
  CControlMgr reader;
  ASSERT_EQ(reader.Load(folder.file("whole.xml", kWholeControl).c_str()), 1);
  ASSERT_EQ(reader.Load("no such file"), 0);
  EXPECT_EQ(reader.ReadControl(controls.records, 4, &background), 0u);
}

TEST_F(SkinReader, ACopiedReaderReadsTheSameFile) {
  CControlMgr copy;
  {
    CControlMgr reader;
    ASSERT_EQ(reader.Load(folder.file("whole.xml", kWholeControl).c_str()), 1);
    copy = reader;
  }
  EXPECT_EQ(copy.ReadControl(controls.records, 4, nullptr), 2u);
}

TEST_F(SkinReader, ReadsCaptionsOfOneList) {
  CLanguageMgr reader;
  ASSERT_EQ(reader.Load(folder
                            .file("ui_language.xml", R"(<captions>
      <list id="4"><caption id="1" text="保存 &amp; 关闭" font="2"/><caption text="no id"/>
        <caption id="2"/></list>
      <list id="5"><caption id="3" text="other"/></list></captions>)")
                            .c_str()),
            1);
  OwnedList<_MYLANGUAGE> captions;
  ASSERT_EQ(reader.ReadLanguage(captions.records, 4), 2u);
  EXPECT_EQ(captions.at(0).id, 1);
  EXPECT_EQ(captions.at(0).text, L"保存 & 关闭");
  EXPECT_EQ(captions.at(0).font_id, 2);
  EXPECT_TRUE(captions.at(1).text.IsEmpty());
  EXPECT_EQ(captions.at(1).font_id, 0);
  EXPECT_EQ(reader.ReadLanguage(captions.records, 6), 0u);
}

TEST_F(SkinReader, ReadsFontsWithLimits) {
  CLogfontMgr reader;
  const std::string longest(31, 'f');
  ASSERT_EQ(reader.Load(folder
                            .file("ui_logfont.xml", R"(<fonts>
      <font id="1" face="黑体" size="14" weight="700" italic="true" underline="1"/>
      <font id="2" size="0" weight="2000" italic="yes" face="f)" +
                                                        longest + R"("/>
      <font id="3" face=")" + longest + R"("/><font face="no id"/></fonts>)")
                            .c_str()),
            1);
  OwnedList<_MYFONT> fonts;
  ASSERT_EQ(reader.ReadLogfont(fonts.records), 3u);
  const LOGFONTW& whole = *fonts.at(0).description;
  EXPECT_STREQ(whole.lfFaceName, L"黑体");
  EXPECT_EQ(whole.lfHeight, -14);
  EXPECT_EQ(whole.lfWeight, 700);
  EXPECT_EQ(whole.lfItalic, 1);
  EXPECT_EQ(whole.lfUnderline, 1);
  const LOGFONTW& defaults = *fonts.at(1).description;
  EXPECT_STREQ(defaults.lfFaceName, L"宋体");
  EXPECT_EQ(defaults.lfHeight, -14);
  EXPECT_EQ(defaults.lfWeight, 400);
  EXPECT_EQ(defaults.lfItalic, 0);
  EXPECT_EQ(std::wstring(fonts.at(2).description->lfFaceName), std::wstring(31, L'f'));
}

}  // namespace
}  // namespace corvane
