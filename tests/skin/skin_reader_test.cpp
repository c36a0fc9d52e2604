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

TEST_F(SkinReader, WhatIsMissingOrWrongOrOutOfRangeCountsAsAbsent) {
  ASSERT_EQ(read_controls(R"(<controls><list id="4" background="red">
      <control/><control id="x"/><control id="99999999999"/>
      <control id="-1"/>
      <control id="1" x="32768" y="-32769" width="-1" height="32768" caption="first"
               padding-left="-1" padding-top="32768" images="no_place.png"
               image-pressed="../../secret.png" text-color="#12"/>
      <control id="2" x="-32768" y="32767" width="32767" height="0" padding-left="32767"/>
      <button id="3"/>
      </list></controls>)"),
            3u);
  EXPECT_EQ(background, RGB(255, 255, 255));
  EXPECT_EQ(controls.at(0).id, -1);
  for (const std::size_t index : {0u, 1u}) {
    SCOPED_TRACE(index);
    const auto& control = controls.at(index);
    const RECT none{};
    EXPECT_TRUE(EqualRect(&control.rect, &none));
    for (const CString* const image :
         {&control.image, &control.hover_image, &control.pressed_image, &control.disabled_image,
          &control.selected_image, &control.forward_image, &control.backward_image}) {
      EXPECT_TRUE(image->IsEmpty());
    }
    for (const COLORREF color : {control.text_color, control.hover_text_color,
                                 control.pressed_text_color, control.selected_text_color}) {
      EXPECT_EQ(color, RGB(0, 0, 0));
    }
    EXPECT_EQ(control.disabled_text_color, RGB(128, 128, 128));
    EXPECT_EQ(control.padding_left + control.padding_top, 0);
    EXPECT_FALSE(control.caption_ids);
  }
  const RECT farthest{-32768, 32767, -1, 32767};
  EXPECT_TRUE(EqualRect(&controls.at(2).rect, &farthest));
  EXPECT_EQ(controls.at(2).padding_left, 32767);
}

TEST_F(SkinReader, AppendsEveryRecordInTheFilesOrder) {
  for (const std::size_t count : {3u, 6u}) {
    ASSERT_EQ(read_controls(R"(<controls><list id="4">
        <control id="1" x="1"/><control id="2"/><control id="1" x="3"/></list></controls>)"),
              3u);
    EXPECT_EQ(controls.records.size(), count);
    EXPECT_EQ(controls.at(count - 3).rect.left, 1);
    EXPECT_EQ(controls.at(count - 1).rect.left, 3);
  }
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

TEST_F(SkinReader, DeepButWholeFilesAreReadWithOrWithoutAByteOrderMark) {
  std::string text = R"(<controls><list id="4"><control id="1">)";
  constexpr int kDepth = 100000;
  for (int i = 0; i < kDepth; ++i) text += "<a>";
  for (int i = 0; i < kDepth; ++i) text += "</a>";
  EXPECT_EQ(read_controls("\xEF\xBB\xBF" + text + "</control></list></controls>"), 1u);
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

TEST_F(SkinReader, AFileCutAtAnyByteGivesAllOrNothing) {
  const auto whole = kWholeControl.find_last_of('>') + 1;
  for (std::size_t length = 0; length <= kWholeControl.size(); ++length) {
    const DWORD expected = length >= whole ? 2 : 0;
    ASSERT_EQ(read_controls(kWholeControl.substr(0, length)), expected) << length;
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

TEST_F(SkinReader, ACopyKeepsTheFileThatAFailedLoadForgets) {
  CControlMgr reader;
  ASSERT_EQ(reader.Load(folder.file("whole.xml", kWholeControl).c_str()), 1);
  const CControlMgr copy = reader;
  ASSERT_EQ(reader.Load("no such file"), 0);
  EXPECT_EQ(reader.ReadControl(controls.records, 4, &background), 0u);
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
  EXPECT_EQ(reader.Load("no such file"), 0);
}

TEST_F(SkinReader, ReadsFontsWithLimits) {
  const std::string longest(31, 'f');
  const struct {
    std::string attributes;
    int height, weight;
    std::wstring face;
    bool italic = false, underline = false;
  } cases[] = {{R"(face="黑体" size="20" weight="700" italic="true" underline="1")", -20, 700,
                L"黑体", true, true},
               {R"(underline="true")", -14, 400, L"宋体", false, true},
               {R"(size="0" weight="0" italic="yes" face="f)" + longest + '"', -14, 400, L"宋体"},
               {R"(size="1001" weight="1001")", -14, 400, L"宋体"},
               {R"(size="1" weight="1" face=")" + longest + '"', -1, 1, std::wstring(31, L'f')},
               {R"(size="1000" weight="1000" face="a")", -1000, 1000, L"a"}};
  std::string text = R"(<fonts><font face="no id"/>)";
  for (const auto& each : cases) text += "<font id=\"1\" " + each.attributes + "/>";
  CLogfontMgr reader;
  OwnedList<_MYFONT> fonts;
  EXPECT_EQ(reader.ReadLogfont(fonts.records), 0u);
  ASSERT_EQ(reader.Load(folder.file("ui_logfont.xml", text + "</fonts>").c_str()), 1);
  ASSERT_EQ(reader.ReadLogfont(fonts.records), std::size(cases));
  for (std::size_t index = 0; index < std::size(cases); ++index) {
    const auto& expected = cases[index];
    SCOPED_TRACE(expected.attributes);
    EXPECT_EQ(fonts.at(index).id, 1);
    const LOGFONTW& font = *fonts.at(index).description;
    EXPECT_EQ(font.lfFaceName, expected.face);
    EXPECT_EQ(font.lfHeight, expected.height);
    EXPECT_EQ(font.lfWeight, expected.weight);
    EXPECT_EQ(font.lfItalic != 0, expected.italic);
    EXPECT_EQ(font.lfUnderline != 0, expected.underline);
    EXPECT_EQ(font.lfCharSet, DEFAULT_CHARSET);
  }
  EXPECT_EQ(reader.Load("no such file"), 0);
}

}  // namespace
}  // namespace corvane
