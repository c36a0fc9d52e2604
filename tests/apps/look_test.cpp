// The program's colours and texts come from the skin.
#include "apps/capture/look.h"

#include <fstream>
#include <regex>

#include "tests/apps/library_window.h"

namespace capture {
namespace {

constexpr Text kLast = Text::other_error;

std::string Narrow(const CString& text) { return native_path(text.AsStdString()).string(); }

std::string Read(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Look : public LibraryWindow {
 protected:
  ~Look() override { SetSkinLanguage(L""); }

  // A copy of the default skin in which the program's dark colours are light ones, and its toolbar.
  void UseALightSkin() {
    const std::filesystem::path skin = folder_ / "skin";
    std::filesystem::copy(corvane::test::source_folder() / "skins/default", skin,
                          std::filesystem::copy_options::recursive);
    std::string controls = Read(skin / "ui_control.xml");
    int light = 0xE0F0D0;
    for (const char* const dark : kDark) {
      char color[8];
      std::snprintf(color, sizeof(color), "#%06X", ++light);
      controls = std::regex_replace(controls, std::regex(dark), color);
    }
    const std::pair<const char*, const char*> sizes[] = {
        {"id=\"20\" height=\"40\"", "id=\"20\" height=\"64\""},
        {"id=\"21\" height=\"52\"", "id=\"21\" height=\"60\""},
        {"id=\"22\" height=\"40\"", "id=\"22\" height=\"50\""},
        {"width=\"640\" height=\"560\"", "width=\"600\" height=\"400\""},
        {"width=\"720\" height=\"480\"", "width=\"700\" height=\"300\""}};
    for (const auto& [from, to] : sizes) {
      controls = std::regex_replace(controls, std::regex(from), to);
    }
    std::ofstream(skin / "ui_control.xml") << controls;
    WriteTestPicture(skin / "image" / "toolbar_bg.png", 64, 76);
    SetSkinFolder(wide_path_of(skin));
  }
  // Of the colours that the default skin names.
  int DarkPixels() {
    RECT screen{0, 0, 1280, 800};
    return desktop_.frame().count(screen, [](COLORREF color) {
      char text[8];
      std::snprintf(text, sizeof(text), "#%02X%02X%02X", color & 0xFF, color >> 8 & 0xFF,
                    color >> 16 & 0xFF);
      return std::find(std::begin(kDark), std::end(kDark), std::string(text)) != std::end(kDark);
    });
  }

  static CRect PlaceOf(const CWnd& window) {
    CRect place;
    window.GetWindowRect(place);
    return place;
  }

  static constexpr const char* kDark[] = {"#141A20", "#1E2630", "#3A4654", "#2C3744", "#E8EEF4",
                                          "#93A1B0", "#21C46B", "#5B6979", "#1F5F8B"};
};

TEST_F(Look, ALightSkinIsLightEverywhere) {
  Start();
  EXPECT_GT(DarkPixels(), 100000) << "the default skin";
  window_.DestroyWindow();
  UseALightSkin();
  Start();
  EXPECT_EQ(DarkPixels(), 0) << "stage, library, strip";
  Press({VK_CONTROL, 'S'});
  EXPECT_EQ(DarkPixels(), 0) << "a notice";
  ClickButton(ToolbarButton::open);
  desktop_.move_to(640, 300);
  EXPECT_EQ(DarkPixels(), 0) << "the box with folders";
  EXPECT_EQ(PlaceOf(Tree()).top - PlaceOf(window_.browser().pane()).top, 64 + 1) << "and an edge";
  CRect box;
  ::GetWindowRect(::GetActiveWindow(), &box);
  EXPECT_EQ(box.Size(), CSize(600, 400));
  for (const int row : {1, 2}) desktop_.click({box.left + 200, box.top + 60 + row * 50 + 2});
  EXPECT_EQ(Opened(), "a.png");
  ClickButton(ToolbarButton::text);
  desktop_.drag(PictureOnScreen().TopLeft(), PictureOnScreen().CenterPoint());
  desktop_.click(window_.CropButtonOnScreen(CropCommand::read).CenterPoint());
  WaitForSaving();
  Press({VK_CONTROL, 'A'});
  EXPECT_EQ(PlaceOf(window_.recognition()).Size(), CSize(700, 300));
  EXPECT_EQ(DarkPixels(), 0) << "the box with selected text";
}

TEST_F(Look, EveryTextIsInBothLanguagesOfTheDefaultSkin) {
  CLook own, chinese, english;
  chinese.Load();
  SetSkinLanguage(L"en");
  english.Load();
  const std::regex marks("\\{[0-9]\\}");
  for (int id = 1; id <= static_cast<int>(kLast); ++id) {
    const Text text{id};
    EXPECT_EQ(own.text(text), english.text(text)) << "the program's own is English";
    EXPECT_EQ(chinese.text(text) == english.text(text), text == Text::folder_above) << id;
    const std::string one = Narrow(chinese.text(text)), other = Narrow(english.text(text));
    EXPECT_EQ(std::distance(std::sregex_iterator(one.begin(), one.end(), marks), {}),
              std::distance(std::sregex_iterator(other.begin(), other.end(), marks), {}))
        << id;
  }
  EXPECT_EQ(Narrow(english.text(Text::saved, {L"{2}", L"b"})), "Saved in “{2}”: b");
  EXPECT_EQ(save_error_text(EIO, chinese), L"系统报告错误 5");
  for (const wchar_t* const none : {L"xx", L"", L"../en", L"en.xml/"}) {
    SetSkinLanguage(none);
    EXPECT_EQ(CaptionFile(), L"ui_language.xml") << none;
  }
}

TEST_F(Look, TheWindowSpeaksTheLanguage) {
  SetSkinLanguage(L"en");
  Start();
  Press({VK_CONTROL, 'S'});
  EXPECT_THAT(Notice(), HasSubstr("Crop"));
}

TEST(Launch, TheLanguageIsTheEnvironments) {
  const struct {
    const char *all, *messages, *lang;
    std::string language;
  } cases[] = {{"en_US.UTF-8", "zh_CN", "zh_CN", "en"},
               {"", "zh_CN.UTF-8", "en", "zh"},
               {"", "", "en_GB@x", "en"},
               {"", "", "C.UTF-8", ""},
               {"POSIX", "en", "en", ""},
               {"", "", "", ""}};
  for (const auto& [all, messages, lang, language] : cases) {
    setenv("LC_ALL", all, 1);
    setenv("LC_MESSAGES", messages, 1);
    setenv("LANG", lang, 1);
    EXPECT_EQ(environment_language(), language);
  }
}

}  // namespace
}  // namespace capture
