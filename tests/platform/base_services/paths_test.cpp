// The folders of the installation and the texts of its language.
#include "corvane/platform/base_services/paths.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "corvane/platform/base_services/default_skin.h"
#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/language_text.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/base_services/utf8.h"
#include "tests/support/golden_file.h"
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
  for (const char* const separator : {"", "/"}) {  // at the end it is dropped
    setenv("CORVANE_SKIN", (folder_.path().string() + separator).c_str(), 1);
    EXPECT_EQ(GetConfigPath(L"ui_control.xml"), folder_.wide() + L"\\ui_control.xml");
    EXPECT_EQ(GetImagePath(), folder_.wide() + L"\\image");
    SetSkinFolder(*separator == 0 ? L"Z:\\skins\\blue" : L"Z:\\skins\\blue\\");
    EXPECT_EQ(GetConfigPath(L"ui_control.xml"), L"Z:\\skins\\blue\\ui_control.xml");
    EXPECT_EQ(GetImagePath(), L"Z:\\skins\\blue\\image");
    SetSkinFolder(L"");
  }
  EXPECT_EQ(GetImagePath(), folder_.wide() + L"\\image");
}

TEST_F(InstallationPaths, TheDefaultSkinIsFoundNearTheLibraryOrTheProgram) {
  for (auto& row : test::golden_rows("tests/platform/base_services/default_skins.txt")) {
    row.resize(4);
    const test::TemporaryFolder tree;
    const auto below = [&tree](const std::string& folder) {
      return folder.empty() ? std::filesystem::path() : tree.path() / folder;
    };
    std::istringstream skins(row[2]);
    for (std::string skin; skins >> skin;) tree.file(skin + "/ui_control.xml", "<controls/>");
    const auto found = find_default_skin(below(row[0]), below(row[1]));
    EXPECT_EQ(found.value_or(std::filesystem::path()), below(row[3])) << row[0] << ", " << row[1];
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
               "last=End\\");
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"first", L"Number one"}, {L"move", L"Move to\nanother \\ place \\t=x"},
      {L"broken", L"default"},   {L"empty", L""},
      {L"last", L"End\\"},       {L"Last", L"default"},
      {L"", L"default"},         {L"no equals sign", L"default"}};
  for (const auto& [key, expected] : cases)
    EXPECT_EQ(GetLanguageText(key, L"default"), expected) << narrow_path(key);
}

TEST(Utf8, OnlyValidTextIsTaken) {
  const std::pair<const char*, const wchar_t*> valid[] = {{"", L""},
                                                          {"a\x7F", L"a\x7F"},
                                                          {"\xC2\x80", L"\x80"},
                                                          {"\xE4\xBF\x9D", L"保"},
                                                          {"\xEE\x80\x80", L"\uE000"},
                                                          {"\xF0\x9F\x93\xB7", L"\U0001F4F7"},
                                                          {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"}};
  for (const auto& [bytes, text] : valid) EXPECT_EQ(wide_from_utf8(bytes), text) << bytes;
  // Above the last code point, surrogates, longer than needed, no lead byte, cut.
  for (const char* const bytes :
       {"\xF4\x90\x80\x80", "\xED\xA0\x80", "\xED\xBF\xBF", "\xC0\xAF", "\xE0\x9F\xBF",
        "\xF0\x8F\xBF\xBF", "\x80", "\xFF", "\xF8\x88\x80\x80\x80", "\xE4\xBF", "\xE4\xBFz"})
    EXPECT_EQ(wide_from_utf8(bytes), std::nullopt) << bytes;
}

}  // namespace
}  // namespace corvane
