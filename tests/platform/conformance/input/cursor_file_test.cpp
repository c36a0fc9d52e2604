// Cursors from files: which picture, its hotspot, and when the next one comes.
#include <cstdint>

#include "corvane/platform/system/shell/wide_path.h"
#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"
#include "tests/support/temporary_folder.h"

namespace corvane::conformance {
namespace {

std::string number(std::uint32_t value, int bytes = 4) {
  std::string text;
  for (int at = 0; at < bytes; ++at) text.push_back(static_cast<char>(value >> (8 * at)));
  return text;
}
std::string chunk(const std::string& kind, const std::string& content) {
  return kind + number(static_cast<std::uint32_t>(content.size())) + content;
}

// A .cur file of pictures in one colour each.
struct Picture {
  int side;
  std::uint32_t color;  // 0xAARRGGBB
  POINT hotspot;
};
std::string cursor_file(const std::vector<Picture>& pictures) {
  std::string file = number(0, 2) + number(2, 2) + number(std::uint32_t(pictures.size()), 2);
  std::string bodies;
  for (const auto& [side, color, hotspot] : pictures) {
    std::string body = number(40) + number(side) + number(2 * side) + number(1, 2) + number(32, 2);
    for (int zero = 0; zero < 6; ++zero) body += number(0);
    for (int pixel = 0; pixel < side * side; ++pixel) body += number(color);
    body += std::string(static_cast<std::size_t>((side + 31) / 32 * 4 * side), '\0');
    const auto offset = 6 + 16 * pictures.size() + bodies.size();
    file += number(side, 1) + number(side, 1) + number(0, 2) + number(hotspot.x, 2) +
            number(hotspot.y, 2) + number(std::uint32_t(body.size())) +
            number(std::uint32_t(offset));
    bodies += body;
  }
  return file + bodies;
}
// Red, green, red, blue, with the times of its header except for the last step.
std::string animated_file(const std::string& sequence) {
  std::string icons = "fram";
  for (const std::uint32_t color : {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu})
    icons += chunk("icon", cursor_file({{32, color, {3, 4}}}));
  const std::string header = number(36) + number(3) + number(4) + number(0) + number(0) +
                             number(0) + number(0) + number(6) + number(3);
  const std::string content = "ACON" + chunk("anih", header) +
                              chunk("rate", number(6) + number(6) + number(6) + number(60)) +
                              chunk("seq ", sequence) + chunk("LIST", icons);
  return chunk("RIFF", content);
}

class CursorFileTest : public WindowTest {
 protected:
  HCURSOR load(const std::string& content) {
    SetLastError(0);
    return LoadCursorFromFileW(system::wide_path(folder_.file("a.cur", content)).c_str());
  }
  std::uint32_t color() {
    const auto* const image = own().display.cursor_image();
    return image != nullptr ? image->pixels.at(0) : 0;
  }
  test::TemporaryFolder folder_;
};

TEST_F(CursorFileTest, TheNearestPictureIsShownWithItsHotspot) {
  const std::string file =
      cursor_file({{16, 0xFF111111, {1, 1}}, {32, 0x80FF8000, {5, 31}}, {64, 0xFF333333, {2, 2}}});
  const HCURSOR cursor = load(file);
  ASSERT_NE(cursor, nullptr);
  SetCursor(cursor);
  const auto* const image = own().display.cursor_image();
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(std::tuple(image->size.cx, image->size.cy), std::tuple(32, 32));
  EXPECT_EQ(std::tuple(image->hotspot.x, image->hotspot.y), std::tuple(5, 31));
  EXPECT_EQ(color(), 0x80FF8000U);
  SetCursor(LoadCursorW(nullptr, IDC_HAND));
  EXPECT_EQ(own().display.cursor(), system::CursorShape::hand);
  EXPECT_EQ(own().display.cursor_image(), nullptr);
  SetCursor(cursor);
  EXPECT_TRUE(DestroyCursor(cursor));
  EXPECT_EQ(GetCursor(), nullptr);
  EXPECT_FALSE(DestroyCursor(cursor));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_CURSOR_HANDLE);
}

TEST_F(CursorFileTest, AnimationsMoveWithTheClock) {
  SetCursor(load(animated_file(number(0) + number(1) + number(0) + number(2))));
  const std::pair<unsigned, std::uint32_t> steps[] = {
      {0, 0xFFFF0000},   {99, 0xFFFF0000},  {1, 0xFF00FF00}, {100, 0xFFFF0000},
      {100, 0xFF0000FF}, {999, 0xFF0000FF}, {1, 0xFFFF0000}, {1300 * 1000 + 150, 0xFF00FF00}};
  for (const auto& [passed, expected] : steps) {
    advance(passed);
    pump();
    EXPECT_EQ(color(), expected) << passed;
  }
  EXPECT_EQ(own().display.cursor_image()->hotspot.y, 4);
  HWND const dragged = settled_popup("dragged", 0, 0, 9, 9);
  recorder().before_default("dragged", WM_ENTERSIZEMOVE, [&] {
    advance(100);
    PostMessageW(dragged, WM_USER, 0, 0);
  });
  recorder().before_default("dragged", WM_USER, [&] {
    EXPECT_EQ(color(), 0xFFFF0000U) << "in a drag too";
    send_mouse(MOUSEEVENTF_LEFTUP);
  });
  SendMessageW(dragged, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0);
  forget();
}

TEST_F(CursorFileTest, DamagedFilesAreNone) {
  const std::string good = cursor_file({{32, 0xFF000000, {0, 0}}});
  const std::string moving = animated_file(number(0) + number(1) + number(0) + number(2));
  const std::string cases[] = {"",
                               "text",
                               good.substr(0, 21),
                               good.substr(0, good.size() / 2),
                               moving.substr(0, moving.size() / 2),
                               chunk("RIFF", "ACON"),
                               animated_file(number(0) + number(9) + number(0) + number(2)),
                               animated_file(number(0))};
  for (const std::string& content : cases) {
    EXPECT_EQ(load(content), nullptr) << content.size();
    EXPECT_EQ(GetLastError(), ERROR_INVALID_DATA);
  }
  EXPECT_EQ(LoadCursorFromFileW(L"Z:\\no such folder\\a.cur"), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
  EXPECT_EQ(LoadCursorFromFileW(nullptr), nullptr);
}

}  // namespace
}  // namespace corvane::conformance
