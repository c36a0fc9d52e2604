// The program's colours and texts come from the skin.
#include "apps/capture/look.h"

#include <fstream>
#include <regex>

#include "tests/apps/library_window.h"

namespace capture {
namespace {

constexpr Text kLast = Text::opening;

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

  static constexpr const char* kDark[] = {"#141A20", "#1E2630", "#3A4654", "#2C3744",
                                          "#E8EEF4", "#93A1B0", "#21C46B", "#5B6979"};
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
