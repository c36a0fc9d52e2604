#include "tests/layers/support/test_skin.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "corvane/platform/base_services/installation.h"

namespace corvane_tests {
namespace {

std::filesystem::path make_folder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "layer_skin_XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
  return pattern;
}

std::wstring platform_path(const std::filesystem::path& path) {
  std::wstring text = L"Z:" + path.wstring();
  std::replace(text.begin(), text.end(), L'/', L'\\');
  return text;
}

std::string control(int id, const RECT& rect) {
  std::ostringstream text;
  text << "<control id=\"" << id << "\" x=\"" << rect.left << "\" y=\"" << rect.top << "\" width=\""
       << rect.right - rect.left << "\" height=\"" << rect.bottom - rect.top << "\"/>";
  return text.str();
}

std::string crop_controls() {
  std::string text;
  int id = 0;
  for (const SIZE& size : TestSkin::crop_button_sizes) {
    ++id;
    const LONG x = 17 * id, y = 5 * id;
    text += control(id, {x, y, x + size.cx, y + size.cy});
  }
  return text;
}

}  // namespace

TestSkin::TestSkin() : folder_(make_folder()) {
  write("ui_control.xml", "<controls><list id=\"4\">" + crop_controls() +
                              "</list><list id=\"100\">" + control(11, button_11) +
                              control(12, button_12) + "</list></controls>");
  write("ui_language.xml", "<captions/>");
  write("ui_logfont.xml", "<fonts/>");
  corvane::SetSkinFolder(platform_path(folder_).c_str());
}

TestSkin::~TestSkin() {
  corvane::SetSkinFolder(L"");
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void TestSkin::remove_files() {
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    std::filesystem::remove(entry.path());
  }
}

void TestSkin::write(const char* name, const std::string& text) const {
  std::ofstream(folder_ / name) << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" << text;
}

}  // namespace corvane_tests
