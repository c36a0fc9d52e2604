// The folders of the installation and the texts of its language.
#include "corvane/platform/base_services/paths.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "corvane/platform/base_services/default_skin.h"
#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/language_text.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/base_services/utf8.h"
#include "tests/support/temporary_folder.h"

namespace corvane {
namespace {

class InstallationPaths : public testing::Test {
 protected:
  ~InstallationPaths() override {
    SetSkinFolder(L"");
    unsetenv("CORVANE_SKIN");
  }
  test::TemporaryFolder folder_;
};

TEST_F(InstallationPaths, TheProgramsChoiceComesBeforeTheEnvironment) {
  setenv("CORVANE_SKIN", folder_.path().c_str(), 1);
  EXPECT_EQ(GetConfigPath(L"ui_control.xml"), folder_.wide() + L"\\ui_control.xml");
  EXPECT_EQ(GetImagePath(), folder_.wide() + L"\\image");
  SetSkinFolder(L"Z:\\skins\\blue");
  EXPECT_EQ(GetConfigPath(L"ui_control.xml"), L"Z:\\skins\\blue\\ui_control.xml");
  EXPECT_EQ(GetImagePath(), L"Z:\\skins\\blue\\image");
  SetSkinFolder(L"");
  EXPECT_EQ(GetImagePath(), folder_.wide() + L"\\image");
}

TEST_F(InstallationPaths, SeparatorsAtTheEndAreDropped) {
  SetSkinFolder(L"Z:\\skins\\blue\\");
  EXPECT_EQ(GetImagePath(), L"Z:\\skins\\blue\\image");
  setenv("CORVANE_SKIN", (folder_.path() / "").c_str(), 1);
  SetSkinFolder(L"");
  EXPECT_EQ(GetImagePath(), folder_.wide() + L"\\image");
}

TEST_F(InstallationPaths, TheDefaultSkinIsFoundNearTheLibraryOrTheProgram) {
  const struct {
    const char* library;  // folders below the temporary one; empty: unknown
    const char* program;
    std::vector<const char*> skins;
    const char* expected;  // null: none
  } cases[] = {
      {"usr/lib",
       "opt/bin",
       {"usr/share/corvane/skins/default"},
       "usr/share/corvane/skins/default"},
      {"", "opt/bin", {"opt/share/corvane/skins/default"}, "opt/share/corvane/skins/default"},
      {"usr/lib",
       "opt/bin",
       {"usr/share/corvane/skins/default", "opt/share/corvane/skins/default"},
       "usr/share/corvane/skins/default"},
      {"", "program", {"program/skins/default"}, "program/skins/default"},
      {"", "tree/build/debug/apps/capture", {"tree/skins/default"}, "tree/skins/default"},
      {"", "a/b/c/d/e/f/g/h", {"a/skins/default"}, nullptr},
      {"usr/lib", "opt/bin", {"usr/lib/share/corvane/skins/default"}, nullptr},
      {"", "", {"skins/default"}, nullptr},
  };
  for (const auto& each : cases) {
    const test::TemporaryFolder tree;
    const auto below = [&tree](std::string_view folder) {
      return folder.empty() ? std::filesystem::path() : tree.path() / folder;
    };
    for (const char* const skin : each.skins) {
      tree.file(std::string(skin) + "/ui_control.xml", "<controls/>");
    }
    const auto found = find_default_skin(below(each.library), below(each.program));
    const auto expected = each.expected ? std::optional(below(each.expected)) : std::nullopt;
    EXPECT_EQ(found, expected) << each.library << ", " << each.program;
  }
}

TEST_F(InstallationPaths, NarrowPathsComeBackAsTheSameFile) {
  const std::string file = folder_.file("拍照 \xFF\xE9.xml", "x");
  const auto wide = wide_path_of(file);
  EXPECT_EQ(narrow_path(wide), file);
  EXPECT_TRUE(std::filesystem::exists(native_path(wide)));
}

TEST_F(InstallationPaths, APathThatNoFileNameCanHoldIsAnError) {
  for (const auto character : {wchar_t(0xD800), wchar_t(0xDFFF), wchar_t(0x110000), wchar_t(0)}) {
    const std::wstring path = std::wstring(L"Z:\\a") + character + L"b";
    EXPECT_THROW(narrow_path(path), PathConversionError) << static_cast<unsigned>(character);
  }
}

TEST_F(InstallationPaths, LanguageTexts) {
  SetSkinFolder(folder_.wide());
  EXPECT_EQ(GetLanguageText(L"move", L"移动到"), L"移动到");
  folder_.file("texts.txt",
               "\xEF\xBB\xBF"
               "first=Number one\r\n"
               "no equals sign\n"
               "\n"
               " move =Move to\\nanother \\\\ place \\t=x\n"
               "move=second\n"
               "broken=\xFF\n"
               "empty=\n"
               "last=End");
  struct Case {
    const wchar_t* key;
    const wchar_t* expected;
  };
  const Case cases[] = {{L"first", L"Number one"},
                        {L"move", L"Move to\nanother \\ place \\t=x"},
                        {L"broken", L"default"},
                        {L"empty", L""},
                        {L"last", L"End"},
                        {L"Last", L"default"},
                        {L"no equals sign", L"default"},
                        {L"", L"default"}};
  for (const auto& each : cases) {
    EXPECT_EQ(GetLanguageText(each.key, L"default"), each.expected) << narrow_path(each.key);
  }
}

TEST(Utf8, OnlyValidTextIsTaken) {
  struct Case {
    const char* bytes;
    std::optional<std::wstring> expected;
  };
  const Case cases[] = {{"", L""},
                        {"a\x7F", L"a\x7F"},
                        {"\xC2\x80", L"\x80"},
                        {"\xE4\xBF\x9D", L"保"},
                        {"\xF0\x9F\x93\xB7", L"\U0001F4F7"},
                        {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"},
                        {"\xF4\x90\x80\x80", std::nullopt},  // above the last code point
                        {"\xED\xA0\x80", std::nullopt},      // surrogate
                        {"\xC0\xAF", std::nullopt},          // longer than needed
                        {"\xE0\x9F\xBF", std::nullopt},      // longer than needed
                        {"\xF0\x8F\xBF\xBF", std::nullopt},  // longer than needed
                        {"\x80", std::nullopt},              // no lead byte
                        {"\xE4\xBF", std::nullopt},          // cut
                        {"\xE4\xBF"
                         "a",
                         std::nullopt},  // cut
                        {"\xF8\x88\x80\x80\x80", std::nullopt},
                        {"\xFF", std::nullopt}};
  for (const auto& each : cases) EXPECT_EQ(wide_from_utf8(each.bytes), each.expected) << each.bytes;
}

}  // namespace
}  // namespace corvane
