// Parts of a picture saved as files.
#include "corvane/platform/images/gdi_image.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>

#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/gdi/surface.h"
#include "tests/support/temporary_folder.h"

namespace corvane::test {
namespace {

constexpr std::uint32_t kBlue = 0xFF2040C0;
constexpr std::uint32_t kHalfRed = 0x80800000;  // premultiplied

// 40 x 30 pixels: clear, in it a blue square from (10, 10) to (20, 20), its left half half red.
std::string test_picture(const TemporaryFolder& folder) {
  system::Surface surface(40, 30);
  for (int y = 10; y < 20; ++y) {
    for (int x = 10; x < 20; ++x) surface.row(y)[x] = x < 15 ? kHalfRed : kBlue;
  }
  const auto png = system::encode_png(surface, surface.rect(), system::Opacity::pixel_alpha);
  return folder.file("whole.png", {reinterpret_cast<const char*>(png.data()), png.size()});
}

int distance(std::uint32_t one, std::uint32_t other) {
  int farthest = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    const int difference =
        static_cast<int>((one >> shift) & 0xFF) - static_cast<int>((other >> shift) & 0xFF);
    farthest = std::max(farthest, std::abs(difference));
  }
  return farthest;
}

TEST(GdiImage, AFullDiskTakesNoPictureAway) {
  const TemporaryFolder folder;
  const std::string path = test_picture(folder);
  CGdiImage picture;
  ASSERT_EQ(picture.Load(system::wide_path(path).c_str()), 1);
  const auto size = std::filesystem::file_size(path);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit full{10, before.rlim_max};
  const auto former = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &full);
  EXPECT_EQ(picture.Save(system::wide_path(path).c_str(), {0, 0, 9, 9}), 0);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, former);
  EXPECT_EQ(std::filesystem::file_size(path), size);
}

TEST(GdiImage, SavesThePartThatLiesInThePictureInTheFormatOfTheName) {
  const TemporaryFolder folder;
  CGdiImage picture;
  ASSERT_EQ(picture.Load(system::wide_path(test_picture(folder)).c_str()), 1);
  const struct {
    const wchar_t* name;
    RECT part;
    SIZE saved;  // (0, 0): refused
    std::uint32_t at_5_5;
    std::uint32_t at_0_0;
    int tolerance;
  } cases[] = {{L"a.png", {7, 7, 30, 30}, {23, 23}, kHalfRed, 0, 0},
               {L"a.PNG", {10, 10, 20, 20}, {10, 10}, kBlue, kHalfRed, 0},
               {L"over the edge.png", {-9, -9, 99, 99}, {40, 30}, 0, 0, 0},
               {L"a.jpg", {15, 10, 25, 20}, {10, 10}, 0xFFFFFFFF, kBlue, 60},
               {L"a.Jpeg", {0, 0, 40, 30}, {40, 30}, 0xFFFFFFFF, 0xFFFFFFFF, 8},
               {L"a.jpg", {10, 10, 15, 20}, {5, 10}, 0, 0xFFFF7F7F, 30},
               {L"a.gif", {0, 0, 9, 9}, {0, 0}, 0, 0, 0},
               {L"png", {0, 0, 9, 9}, {0, 0}, 0, 0, 0},
               {L"empty.png", {9, 9, 9, 20}, {0, 0}, 0, 0, 0},
               {L"beside.png", {40, 0, 50, 9}, {0, 0}, 0, 0, 0},
               {L"no folder\\a.png", {0, 0, 9, 9}, {0, 0}, 0, 0, 0}};
  for (const auto& each : cases) {
    SCOPED_TRACE(&each - cases);
    const std::wstring path = folder.wide() + L"\\" + each.name;
    ASSERT_EQ(picture.Save(path.c_str(), each.part), each.saved.cx > 0 ? 1 : 0);
    CGdiImage saved;
    EXPECT_EQ(saved.Load(path.c_str()), each.saved.cx > 0 ? 1 : 0);
    EXPECT_EQ(saved.GetWidth(), each.saved.cx);
    EXPECT_EQ(saved.GetHeight(), each.saved.cy);
    if (saved.GetWidth() == 0) continue;
    const system::Surface& pixels = *saved.GetImage()->pixels();
    EXPECT_LE(distance(pixels.at(0, 0), each.at_0_0), each.tolerance)
        << std::hex << pixels.at(0, 0);
    if (saved.GetWidth() <= 5) continue;
    EXPECT_LE(distance(pixels.at(5, 5), each.at_5_5), each.tolerance)
        << std::hex << pixels.at(5, 5);
  }
  EXPECT_EQ(CGdiImage().Save((folder.wide() + L"\\b.png").c_str(), {0, 0, 9, 9}), 0);
  EXPECT_EQ(picture.Save(nullptr, {0, 0, 9, 9}), 0);
}

}  // namespace
}  // namespace corvane::test
