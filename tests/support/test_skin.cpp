#include "tests/support/test_skin.h"

#include <filesystem>
#include <iterator>
#include <sstream>

#include "corvane/platform/base_services/installation.h"
#include "tests/support/bitmap_file.h"

namespace corvane::test {
namespace {

// A PNG picture of one pixel that is clear.
constexpr unsigned char clear_picture[] = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
    0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00,
    0x00, 0x1F, 0x15, 0xC4, 0x89, 0x00, 0x00, 0x00, 0x0B, 0x49, 0x44, 0x41, 0x54, 0x78,
    0xDA, 0x63, 0x60, 0x00, 0x02, 0x00, 0x00, 0x05, 0x00, 0x01, 0xE9, 0xFA, 0xDC, 0xD8,
    0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};

std::string control(int id, const RECT& rect, const char* image = "") {
  std::ostringstream text;
  text << "<control id=\"" << id << "\" x=\"" << rect.left << "\" y=\"" << rect.top << "\" width=\""
       << rect.right - rect.left << "\" height=\"" << rect.bottom - rect.top << "\" image=\""
       << image << "\"/>";
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

TestSkin::TestSkin() {
  folder_.file("ui_control.xml",
               "<controls><list id=\"4\">" + crop_controls() + "</list><list id=\"100\">" +
                   control(11, button_11) + control(12, button_12) +
                   control(13, button_13, "clear.png") +
                   "</list><list id=\"1\"><control id=\"1\" images=\"glyph_{state}.bmp\"/>"
                   "<control id=\"2\" images=\"folder_{state}.bmp\"/></list></controls>");
  folder_.file("ui_language.xml", "<captions/>");
  folder_.file("ui_logfont.xml", "<fonts/>");
  folder_.file("image/clear.png", std::string(std::begin(clear_picture), std::end(clear_picture)));
  folder_.file("image/glyph_normal.bmp", bitmap_file({30, 30}, collapsed_glyph));
  folder_.file("image/glyph_selected.bmp", bitmap_file({30, 30}, expanded_glyph));
  folder_.file("image/folder_normal.bmp", bitmap_file({30, 30}, folder));
  folder_.file("image/folder_selected.bmp", bitmap_file({30, 30}, highlighted_folder));
  corvane::SetSkinFolder(folder_.wide().c_str());
}

TestSkin::~TestSkin() { corvane::SetSkinFolder(L""); }

void TestSkin::remove_files() {
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
    std::filesystem::remove_all(entry.path());
  }
}

}  // namespace corvane::test
