// The readers of the three skin files: what they hand back, and what broken files do.
#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/skin_reader/control_mgr.h"
#include "corvane/platform/skin_reader/language_mgr.h"
#include "corvane/platform/skin_reader/logfont_mgr.h"
#include "corvane/platform/skin_reader/skin_complaints.h"
#include "tests/support/golden_file.h"
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
  SkinReader() { listen(); }
  ~SkinReader() override { set_skin_complaint_handler(nullptr); }

  void listen() {  // from the beginning
    complaints.clear();
    set_skin_complaint_handler([this](const SkinComplaint& each) {
      const std::wstring text = each.text();
      const std::size_t name = text.find(L".xml");
      complaints += narrow_path(text.substr(name == text.npos ? 0 : name + 4)) + '\n';
    });
  }
  // Reads list 4 of a control file with these contents.
  DWORD read_controls(std::string_view contents) {
    CControlMgr reader;
    loaded = reader.Load(folder.file("ui_control.xml", contents).c_str());
    return reader.ReadControl(controls.records, 4, &background);
  }

  const std::string whole_ = test::golden_text("tests/skin/data/readers/controls.xml");
  test::TemporaryFolder folder;
  OwnedList<_MYCONTROL> controls;
  DWORD background = 77;
  int loaded = -1;
  std::string complaints;  // a line for each, without the file's name
};

std::string described(COLORREF color) {
  std::ostringstream out;
  out << std::hex << std::setfill('0') << std::setw(6) << color;
  return out.str();
}

std::string described(const _MYCONTROL& control) {
  std::ostringstream out;
  const RECT& rect = control.rect;
  out << "control " << control.id << "\n  place " << rect.left << ' ' << rect.top << ' '
      << rect.right << ' ' << rect.bottom << "\n  images";
  for (const CString* const name :
       {&control.image, &control.hover_image, &control.pressed_image, &control.disabled_image,
        &control.selected_image, &control.forward_image, &control.backward_image}) {
    out << ' ' << (name->IsEmpty() ? "-" : narrow_path(name->AsStdString()));
  }
  out << "\n  text, blue first";
  for (const COLORREF color :
       {control.text_color, control.hover_text_color, control.pressed_text_color,
        control.disabled_text_color, control.selected_text_color}) {
    out << ' ' << described(color);
  }
  out << "\n  padding " << control.padding_left << ' ' << control.padding_top << ' '
      << control.padding_right << ' ' << control.padding_bottom << "\n  caption ";
  control.caption_ids ? out << control.caption_ids[0] : out << '-';
  out << "\n  tip '" << narrow_path(control.tool_tip.AsStdString()) << "'\n";
  return out.str();
}

TEST_F(SkinReader, ReadsEveryAttributeAndTakesWhatIsWrongOrOutOfRangeForAbsent) {
  for (const char* const name : {"controls", "wrong_controls"}) {
    const std::string path = std::string("tests/skin/data/readers/") + name;
    OwnedList<_MYCONTROL> read;
    std::swap(controls.records, read.records);
    const DWORD count = read_controls(test::golden_text(path + ".xml"));
    EXPECT_EQ(loaded, 1);
    EXPECT_EQ(count, controls.records.size());
    std::string text = "background, blue first " + described(background) + '\n';
    for (const _MYCONTROL* const control : controls.records) text += described(*control);
    EXPECT_EQ(text, test::golden_text(path + ".txt"));
  }
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

TEST_F(SkinReader, FilesThatAreNoSkinGiveNothingAndAComplaint) {
  struct Case {
    const char* name;
    std::string contents;
  };
  const Case cases[] = {
      {"empty", ""},
      {"blanks", " \n\t "},
      {"text", "controls"},
      {"another root", "<fonts><list id=\"4\"><control id=\"1\"/></list></fonts>"},
      {"UTF-16", std::string("\xFF\xFE<\0c\0/\0>\0", 10)},
      {"zero byte", std::string("<controls>\0</controls>", 22)},
      {"garbage", "\x89PNG\r\n\x1A\n\x01\x02\x03<<<>>>\"\"\""},
  };
  for (const auto& each : cases) {
    listen();
    EXPECT_EQ(read_controls(each.contents), 0u) << each.name;
    EXPECT_EQ(loaded, 0) << each.name;
    EXPECT_EQ(background, 77u) << each.name;
    EXPECT_NE(complaints.find("read"), std::string::npos) << each.name;
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

TEST_F(SkinReader, AFileCutAtAnyByteGivesWhatStandsBeforeTheCut) {
  DWORD former = 0;
  for (std::size_t length = 0; length <= whole_.size(); ++length) {
    const DWORD count = read_controls(whole_.substr(0, length));
    ASSERT_TRUE(count == former || count == former + 1) << length;
    former = count;
  }
  EXPECT_EQ(former, 2u);
}

TEST_F(SkinReader, ABrokenTagCostsNoMoreThanItselfAndIsToldOnceWithItsLine) {
  const struct {
    const char* third_line;
    const char* read;  // "id:width" of the controls
    const char* told;
  } cases[] = {
      {R"(<control id="1" width="7"/>)", "1:7 2:5 ", ""},
      {R"(<control id=1 width="7"/>)", "1:7 2:5 ",
       ":3: the value of id stands without quotation marks; write id=\"value\"\n"},
      {R"(<control id="1 width="7"/>)", "1:7 2:5 ",
       ":3: the value of id has no quotation mark at its end; write id=\"value\"\n"},
      {R"(<control id="1" width="7/>)", "1:7 2:5 ",
       ":3: the value of width has no quotation mark at its end; write width=\"value\"\n"},
      {R"(<control id="1" width="7">)", "1:7 2:5 ",
       ":3: the tag <control> is not closed; write /> at its end\n"},
      {R"(<control id="1" width="7")", "1:7 2:5 ",
       ":3: the tag <control> has no end; write > or /> at its end\n"},
      {R"(<control id="1" ,= width="7"/>)", "1:7 2:5 ",
       ":3: something in the tag <control> is no attribute; "
       "write every attribute as name=\"value\"\n"},
      {R"(< control id="1"/>)", "2:5 ",
       ":3: a < that begins no tag; write the tag's name right behind it, or &lt;\n"},
      {R"(<!-- one -><control id="1" width="7"/>)", "1:7 2:5 ",
       ":3: the comment that begins here has no end; write --> at its end\n"},
      {R"(</control><control id="1" width="7"/>)", "1:7 2:5 ",
       ":3: the tag </control> does not belong here; remove it\n"},
      {R"(<list id="9"><control id="1"/>)", "",
       ":3: the list before this one is not closed; write </list> before this tag\n"},
      {"<control id=\"1\" width=\"7\" tool-tip=\"\xB1\xA3\"/>", "1:7 2:5 ",
       ":3: this line is not in UTF-8; save the file as UTF-8; texts that cannot be read are "
       "missing\n"},
      {R"(<control id="1" widht="7"/>)", "1:0 2:5 ",
       ":3: the attribute widht in <control> is not known; correct or remove it; it is ignored\n"},
      {R"(<control id="1" width="-7"/>)", "1:0 2:5 ",
       ":3: width=\"-7\" in <control> is not a whole number from 0 to 32767; correct it; it counts "
       "as missing\n"},
      {R"(<control id="1" width="7" width="8"/>)", "1:7 2:5 ",
       ":3: width stands twice in <control>; remove one; the first counts\n"},
      {R"(<control width="7"/>)", "2:5 ",
       ":3: id is missing in <control>; write id=\"...\", a whole number; without it this is left "
       "out\n"},
      {R"(<control id="2" width="7"/>)", "2:7 2:5 ",
       ":4: a second <control> with id 2; give it another id; the one in line 3 counts\n"},
      {R"(<button id="1"/>)", "2:5 ",
       ":3: the tag <button> is not known in <list>; correct or remove it; it is ignored\n"},
  };
  for (const auto& each : cases) {
    OwnedList<_MYCONTROL> read;
    std::swap(controls.records, read.records);
    listen();
    const std::string text = std::string("<controls>\n<list id=\"4\">\n") + each.third_line +
                             "\n<control id=\"2\" width=\"5\"/>\n</list>\n</controls>\n";
    read_controls(text);
    std::string found;
    for (const _MYCONTROL* const control : controls.records) {
      found += std::to_string(control->id) + ':' +
               std::to_string(control->rect.right - control->rect.left) + ' ';
    }
    EXPECT_EQ(found, each.read) << each.third_line;
    EXPECT_EQ(complaints, each.told) << each.third_line;
    CControlMgr().Load((folder / "ui_control.xml").c_str());
    EXPECT_EQ(complaints, each.told) << "told again";
  }
  CControlMgr reader;
  complaints.clear();
  reader.Load((folder / "ui_control.xml").c_str());
  reader.ReadControl(controls.records, 5, nullptr);
  EXPECT_EQ(complaints,
            ": there is no list 5, which a window reads; add it, for example from the default "
            "skin\n");
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
  ASSERT_EQ(reader.Load(folder.file("whole.xml", whole_).c_str()), 1);
  const CControlMgr copy = reader;
  ASSERT_EQ(reader.Load("no such file"), 0);
  EXPECT_EQ(reader.ReadControl(controls.records, 4, &background), 0u);
  EXPECT_EQ(copy.ReadControl(controls.records, 4, nullptr), 2u);
}

TEST_F(SkinReader, ReadsCaptionsOfOneListAndAllFonts) {
  CLanguageMgr language_reader;
  CLogfontMgr font_reader;
  OwnedList<_MYLANGUAGE> captions;
  OwnedList<_MYFONT> fonts;
  const auto captions_text = test::golden_text("tests/skin/data/readers/captions.xml");
  const auto fonts_text = test::golden_text("tests/skin/data/readers/fonts.xml");
  EXPECT_EQ(font_reader.ReadLogfont(fonts.records), 0u);
  ASSERT_EQ(language_reader.Load(folder.file("captions.xml", captions_text).c_str()), 1);
  ASSERT_EQ(font_reader.Load(folder.file("fonts.xml", fonts_text).c_str()), 1);
  EXPECT_EQ(language_reader.ReadLanguage(captions.records, 6), 0u);
  EXPECT_EQ(language_reader.ReadLanguage(captions.records, 4), 2u);
  EXPECT_EQ(font_reader.ReadLogfont(fonts.records), 6u);
  std::ostringstream read;
  for (const _MYLANGUAGE* const each : captions.records) {
    read << each->id << " font " << each->font_id << " '" << narrow_path(each->text.AsStdString())
         << "'\n";
  }
  EXPECT_EQ(read.str(), test::golden_text("tests/skin/data/readers/captions.txt"));
  read.str("");
  for (const _MYFONT* const each : fonts.records) {
    const LOGFONTW& font = *each->description;
    read << each->id << ": " << font.lfHeight << ' ' << font.lfWeight
         << (font.lfItalic == 1 ? " italic" : "") << (font.lfUnderline == 1 ? " underlined" : "")
         << ' ' << narrow_path(font.lfFaceName) << '\n';
    EXPECT_EQ(font.lfCharSet, DEFAULT_CHARSET);
  }
  EXPECT_EQ(read.str(), test::golden_text("tests/skin/data/readers/fonts.txt"));
  EXPECT_EQ(language_reader.Load("no such file"), 0);
  EXPECT_EQ(font_reader.Load("no such file"), 0);
}

}  // namespace
}  // namespace corvane
