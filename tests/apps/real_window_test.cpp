// A crop in a real window: synthetic mouse and keys in, pixels of the screen and the saved file
// out.
#include <gtest/gtest.h>

#include "apps/capture/picture.h"
#include "tests/apps/desktop_user.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

// The window is 1280 x 800, the toolbar 76 high, the library 260 wide, the strip 144 high; a
// picture of 800 x 500 stands in the middle of what is left, at its own size.
constexpr POINT kPictureCorner{370, 116};
constexpr POINT kCropButton{56, 38};
constexpr POINT kQuitButton{1224, 38};
constexpr POINT kEmptyToolbar{800, 38};
constexpr POINT kSecondRowOfTheTree{120, 162};
constexpr POINT kFirstThumbnail{333, 715};
constexpr RECT kFramed{420, 200, 840, 450};
constexpr int kBarWidth = 4 * 96;

std::uint32_t Original(POINT point) {
  return TestPixel(point.x - kPictureCorner.x, point.y - kPictureCorner.y) & 0xFFFFFF;
}

// What `color` looks like below a layer of `cover` at 120 of 255.
std::uint32_t Under(std::uint32_t color, std::uint32_t cover) {
  std::uint32_t result = 0;
  for (const int shift : {0, 8, 16}) {
    const std::uint32_t mixed = (cover >> shift & 0xFF) * 120 + (color >> shift & 0xFF) * 135;
    result |= ((mixed + 127) / 255) << shift;
  }
  return result;
}

class RealWindow : public testing::Test {
 protected:
  void SetUp() override {
    WriteTestPicture(folder_ / "page.png", 800, 500);
    std::filesystem::create_directory(folder_ / "名片");
    WriteTestPicture(folder_ / "名片" / "card.png", 400, 300);
    user_.emplace(CORVANE_CAPTURE, folder_ / "page.png");
    ASSERT_TRUE(user_->SeesWindow("page.png — 800 × 500 — Corvane"));
    ASSERT_TRUE(user_->SeesPixel({640, 400}, Original({640, 400})));
  }

  corvane::test::TemporaryFolder folder_;
  std::optional<DesktopUser> user_;
};

TEST_F(RealWindow, CropsWithTheMouseAndEndsACropWithEscape) {
  constexpr POINT inside{600, 300};
  constexpr POINT outside{1000, 550};
  constexpr POINT on_frame{500, kFramed.top};
  for (const bool saves : {false, true}) {
    user_->Click(kCropButton);
    ASSERT_TRUE(user_->SeesPixel(outside, Under(Original(outside), 0), 1)) << "dimmed";
    user_->Drag({kFramed.left, kFramed.top}, {kFramed.right, kFramed.bottom});
    EXPECT_TRUE(user_->SeesPixel(inside, Original(inside), 1)) << "untouched inside";
    EXPECT_TRUE(user_->SeesPixel(on_frame, Under(Original(on_frame), 0x00FF00), 1))
        << "green frame";
    if (saves) {
      user_->Click({kFramed.right - kBarWidth + 48, kFramed.bottom + 20});
    } else {
      user_->Key("Escape");
    }
    EXPECT_TRUE(user_->SeesPixel(outside, Original(outside))) << "the crop has ended";
  }
  std::unique_ptr<CPicture> part;
  ASSERT_TRUE(DesktopUser::Waits(
      [&] { return (part = CPicture::Open(folder_ / "page_1.png")) != nullptr; }));
  EXPECT_EQ(part->size().cx, kFramed.right - kFramed.left);
  EXPECT_EQ(part->size().cy, kFramed.bottom - kFramed.top);
  EXPECT_EQ(part->image()->pixels()->at(0, 0) & 0xFFFFFF, Original({kFramed.left, kFramed.top}));
}

TEST_F(RealWindow, AFolderIsSelectedAndItsPictureOpened) {
  constexpr int kAlike = 12;
  EXPECT_TRUE(user_->SeesPixel(kFirstThumbnail, TestPixel(400, 250) & 0xFFFFFF, kAlike));
  user_->Click(kSecondRowOfTheTree);
  EXPECT_TRUE(user_->SeesPixel(kFirstThumbnail, TestPixel(200, 150) & 0xFFFFFF, kAlike));
  user_->Click(kFirstThumbnail);
  EXPECT_TRUE(user_->SeesWindow("card.png — 400 × 300 — Corvane"));
}

TEST_F(RealWindow, HasItsIconAndFillsTheScreen) {
  const std::vector<unsigned long> icon = user_->Icon();
  ASSERT_EQ(icon.size(), 2 + 64 * 64u);
  EXPECT_EQ(icon[2] >> 24 & 0xFF, 0u) << "clear at the corner";
  EXPECT_EQ(icon[2 + 32 * 64 + 32] >> 24 & 0xFF, 0xFFu);
  user_->Key("F11");
  EXPECT_TRUE(DesktopUser::Waits([&] { return user_->Place().width == 1600; }));
  EXPECT_TRUE(user_->SeesPixel({800, 500}, TestPixel(400, 250) & 0xFFFFFF));
  user_->Key("Escape");
  EXPECT_TRUE(DesktopUser::Waits([&] { return user_->Place().width == 1280; }));
  EXPECT_TRUE(user_->SeesPixel({640, 400}, Original({640, 400})));
}

TEST_F(RealWindow, TheToolbarDragsTheWindowAndEndsTheProgram) {
  const auto before = user_->Place();
  user_->MoveTo(kEmptyToolbar);
  user_->Press();
  for (const int way : {10, 60}) {
    user_->MoveTo({kEmptyToolbar.x + way, kEmptyToolbar.y + way / 2});
    EXPECT_TRUE(DesktopUser::Waits([&] {
      return user_->Place().x == before.x + way && user_->Place().y == before.y + way / 2;
    })) << "the window follows at once";
  }
  user_->Release();
  user_->Click(kQuitButton);
  EXPECT_EQ(user_->ExitStatus(), 0);
}

}  // namespace
}  // namespace capture
