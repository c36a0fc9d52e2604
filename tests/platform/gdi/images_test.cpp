#include <gdk-pixbuf/gdk-pixbuf.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <limits>
#include <random>
#include <tuple>
#include <vector>

#include "corvane/platform/system/gdi/gdiplus.h"
#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/gdi/reduced_image.h"
#include "corvane/platform/system/shell/wide_path.h"
#include "tests/platform/gdi/gdi_fixture.h"
#include "tests/support/temporary_folder.h"

namespace corvane::system {
namespace {

using namespace Gdiplus;
using Bytes = std::string;

Bytes big_endian(std::uint32_t value) {
  return {static_cast<char>(value >> 24), static_cast<char>(value >> 16),
          static_cast<char>(value >> 8), static_cast<char>(value)};
}

std::uint32_t checksum(const Bytes& bytes) {
  std::uint32_t sum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum & 1 ? (sum >> 1) ^ 0xEDB88320u : sum >> 1;
  }
  return ~sum;
}

class GdiImages : public GdiTest {
 protected:
  std::wstring write(const std::string& name, const Bytes& bytes) const {
    return wide_path(folder.file(name, bytes));
  }

  // A picture of four different quadrants, or with noise so that every byte counts.
  static Bytes encoded(const char* type, int width, int height, bool noisy) {
    std::mt19937 noise;
    std::vector<guchar> pixels;
    for (int at = 0; at < width * height; ++at) {
      const bool left = at % width < width / 2, upper = at / width < height / 2;
      pixels.push_back(static_cast<guchar>(noisy ? noise() : left ? 255 : 0));
      pixels.push_back(static_cast<guchar>(noisy ? noise() : upper ? 255 : 0));
      pixels.push_back(0);
    }
    GdkPixbuf* picture = gdk_pixbuf_new_from_data(pixels.data(), GDK_COLORSPACE_RGB, FALSE, 8,
                                                  width, height, 3 * width, nullptr, nullptr);
    gchar* buffer = nullptr;
    gsize size = 0;
    gdk_pixbuf_save_to_buffer(picture, &buffer, &size, type, nullptr, nullptr);
    Bytes bytes(buffer, size);
    g_free(buffer);
    g_object_unref(picture);
    return bytes;
  }

  // A 2 x 2 GIF of one colour, first red; the second frame is green.
  static Bytes animation() {
    const Bytes head("GIF89a\x02\0\x02\0\x80\0\0\xFF\0\0\0\xFF\0", 19);
    const Bytes frame("\x2C\0\0\0\0\x02\0\x02\0\0\x02\x03", 12);
    return head + frame + Bytes("\x04\x00\x05", 3) + Bytes("\0", 1) + frame +
           Bytes("\x4C\x92\x05", 3) + Bytes("\0\x3B", 2);
  }

  // The four quadrants, stored so that they have to be turned clockwise.
  static Bytes lying_jpeg(int width, int height) {
    Bytes jpeg = encoded("jpeg", width, height, false);
    const Bytes exif =
        Bytes("Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 32);
    jpeg.insert(2, Bytes("\xFF\xE1\0", 3) + static_cast<char>(exif.size() + 2) + exif);
    return jpeg;
  }

  static std::vector<Pixel> pixels_of(Image& image) {
    std::vector<Pixel> pixels;
    const int width = static_cast<int>(image.GetWidth());
    for (int at = 0; at < width * static_cast<int>(image.GetHeight()); ++at)
      pixels.push_back(image.pixels()->at(at % width, at / width));
    return pixels;
  }
  static std::unique_ptr<Bitmap> bitmap(int width, int height, std::vector<Pixel> pixels) {
    return std::make_unique<Bitmap>(width, height, 4 * width, PixelFormat32bppARGB,
                                    reinterpret_cast<BYTE*>(pixels.data()));
  }

  test::TemporaryFolder folder;
};

TEST_F(GdiImages, DecodesTheUsualFormatsUnderAnyName) {
  for (const char* type : {"png", "bmp", "tiff", "jpeg"}) {
    Image image(write("picture", encoded(type, 64, 32, false)).c_str());
    ASSERT_EQ(image.GetLastStatus(), Ok) << type;
    EXPECT_EQ(std::pair(image.GetWidth(), image.GetHeight()), std::pair(64u, 32u));
    // Yellow and black; a JPEG is nearly so.
    EXPECT_EQ(image.pixels()->at(2, 2) & 0xFFFCFC00, 0xFFFCFC00) << type;
    EXPECT_LE(image.pixels()->at(60, 30) & 0xFFFFFF, 3u) << type;
  }
  Image gif(write("a\xFF\\b \xE5\x9B\xBE.gif", animation()).c_str());
  EXPECT_EQ(gif.GetLastStatus(), Ok);
  EXPECT_EQ(gif.pixels()->at(1, 1), 0xFFFF0000u);
}

TEST_F(GdiImages, MissingAndForeignFilesGiveAnEmptyImage) {
  mkfifo((folder / "pipe").c_str(), 0600);
  const std::wstring text = write("text", "this is no picture, however long it is read");
  for (const std::wstring& file : {folder.wide() + L"\\missing", folder.wide() + L"\\pipe",
                                   folder.wide(), text, write("empty", ""), std::wstring(),
                                   std::wstring(L"Q:\\no drive"), std::wstring(L"Z:\\dev\\zero")}) {
    Image image(file.c_str());
    EXPECT_EQ(image.GetWidth(), 0u);
    EXPECT_EQ(image.pixels(), nullptr);
    EXPECT_EQ(image.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(image.GetLastStatus(), Ok);  // reading resets it
    const std::unique_ptr<Image> clone(image.Clone());
    EXPECT_EQ(clone->GetWidth(), 0u);
    Graphics graphics(dc);
    EXPECT_EQ(graphics.DrawImage(&image, Rect(0, 0, 10, 10)), InvalidParameter);
  }
  Image null(nullptr);
  EXPECT_EQ(null.GetLastStatus(), InvalidParameter);
}

// No cut of a file may pass for the picture unless it decodes to the very same pixels.
TEST_F(GdiImages, CutFilesNeverPassForTheWhole) {
  for (const char* type : {"png", "jpeg", "bmp", "tiff", "gif"}) {
    const bool gif = std::string(type) == "gif";
    const Bytes whole = gif ? animation() : encoded(type, 24, 24, true);
    Image reference(write("whole", whole).c_str());
    ASSERT_EQ(reference.GetLastStatus(), Ok) << type;
    for (std::size_t length = 0; length < whole.size(); length += 1 + whole.size() / 150) {
      Image cut(write("cut", whole.substr(0, length)).c_str());
      if (cut.GetLastStatus() != Ok) {
        EXPECT_EQ(cut.GetWidth(), 0u);
        continue;
      }
      ASSERT_EQ(pixels_of(cut), pixels_of(reference))
          << type << " cut to " << length << " of " << whole.size();
    }
  }
}

TEST_F(GdiImages, HeadersThatClaimTooMuchAreRefusedBeforeTheMemoryIsTaken) {
  const auto png = [](std::uint32_t width, std::uint32_t height) {
    const Bytes head = "IHDR" + big_endian(width) + big_endian(height) + Bytes("\x08\x06\0\0\0", 5);
    return Bytes("\x89PNG\r\n\x1A\n") + big_endian(13) + head + big_endian(checksum(head)) +
           Bytes(2000, 'x');
  };
  Bytes bmp = encoded("bmp", 8, 8, false);
  bmp.replace(18, 8, Bytes("\x30\x75\0\0\x30\x75\0\0", 8));  // 30000 x 30000
  Bytes jpeg = encoded("jpeg", 8, 8, false);
  const std::size_t frame = jpeg.find("\xFF\xC0");
  ASSERT_NE(frame, Bytes::npos);
  jpeg.replace(frame + 5, 4, Bytes("\xFF\xDC\xFF\xDC", 4));  // 65500 x 65500
  Bytes gif = animation();
  gif.replace(6, 4, Bytes("\xFF\xFF\xFF\xFF", 4));
  rusage before{};
  getrusage(RUSAGE_SELF, &before);
  for (const Bytes& bytes : {png(30000, 30000), png(100000, 10), png(0x7FFFFFFF, 0x7FFFFFFF),
                             png(0, 5), png(25601, 10000), bmp, jpeg, gif}) {
    Image image(write("liar", bytes).c_str());
    EXPECT_EQ(image.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(image.GetWidth(), 0u);
  }
  rusage after{};
  getrusage(RUSAGE_SELF, &after);
  EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024) << "KiB";
}

TEST_F(GdiImages, JpegIsTurnedUprightByItsOrientation) {
  Image image(write("turned", lying_jpeg(32, 16)).c_str());
  ASSERT_EQ(image.GetLastStatus(), Ok);
  EXPECT_EQ(std::pair(image.GetWidth(), image.GetHeight()), std::pair(16u, 32u));
  // The bright left top quadrant of the stored picture is at the right top when turned clockwise.
  EXPECT_GT(image.pixels()->at(14, 2) & 0xFF00, 0xF000u);
  EXPECT_GT((image.pixels()->at(14, 2) >> 16) & 0xFF, 0xF0u);
  EXPECT_LT((image.pixels()->at(2, 30) >> 16) & 0xFF, 0x10u);
}

TEST_F(GdiImages, ReducedPicturesFitTheirBoxAndKeepTheirLook) {
  const struct {
    const char* what;
    Bytes bytes;
    int width, height;
    bool bright_corner_right;  // of the upper corners
  } cases[] = {{"wide PNG", encoded("png", 640, 320, false), 100, 50, false},
               {"wide JPEG", encoded("jpeg", 1600, 800, false), 100, 50, false},
               {"high JPEG", encoded("jpeg", 800, 1600, false), 40, 80, false},
               {"turned JPEG", lying_jpeg(1600, 800), 40, 80, true},
               {"small PNG", encoded("png", 30, 20, false), 30, 20, false},
               {"thin PNG", encoded("png", 2000, 2, false), 100, 1, false}};
  for (const auto& each : cases) {
    write("picture", each.bytes);
    const auto image = decode_reduced_image(folder / "picture", {100, 80}, {});
    ASSERT_TRUE(image) << each.what;
    EXPECT_EQ(std::pair(image->width, image->height), std::pair(each.width, each.height))
        << each.what;
    const auto at = [&image](int x, int y) {
      return image->pixels.at(static_cast<std::size_t>(y * image->width + x));
    };
    const int bright = each.bright_corner_right ? image->width - 3 : 2;
    const int dark = image->width - 1 - bright;
    if (image->height < 20) continue;
    EXPECT_GT(at(bright, 2) & 0xFFFF00, 0xF0F000u) << each.what;
    EXPECT_LT((at(dark, image->height - 3) >> 16) & 0xFF, 0x10u) << each.what;
    EXPECT_EQ(at(bright, 2) >> 24, 0xFFu) << each.what;
  }
}

TEST_F(GdiImages, NothingIsReducedOfWhatIsNoWholePictureOrNotWantedAnyMore) {
  const Bytes whole = encoded("jpeg", 400, 400, true);
  write("whole", whole);
  write("cut", whole.substr(0, whole.size() / 2));
  write("text", "this is no picture");
  for (const char* name : {"cut", "text", "missing", "."})
    EXPECT_FALSE(decode_reduced_image(folder / name, {64, 64}, {})) << name;
  EXPECT_FALSE(decode_reduced_image(folder / "whole", {64, 0}, {}));
  std::stop_source stop;
  EXPECT_TRUE(decode_reduced_image(folder / "whole", {64, 64}, stop.get_token()));
  stop.request_stop();
  EXPECT_FALSE(decode_reduced_image(folder / "whole", {64, 64}, stop.get_token()));
}

TEST_F(GdiImages, BitmapsFromMemoryArePremultiplied) {
  const auto image = bitmap(2, 1, {0x80FF0000, 0x00FFFFFF});
  EXPECT_EQ(image->GetLastStatus(), Ok);
  EXPECT_EQ(pixels_of(*image), (std::vector<Pixel>{0x80800000, 0}));
  std::vector<Pixel> rows = {1 | 0xFF000000, 2 | 0xFF000000};
  const Bitmap upside_down(1, 2, -4, PixelFormat32bppARGB, reinterpret_cast<BYTE*>(&rows[1]));
  EXPECT_EQ(upside_down.pixels()->at(0, 0), 0xFF000002u);
  constexpr DWORD kArgb = PixelFormat32bppARGB;
  const std::tuple<int, int, int, DWORD> bad[] = {{0, 1, 4, kArgb},
                                                  {2, 1, 4, kArgb},
                                                  {1, -1, 4, kArgb},
                                                  {20000, 20000, 80000, kArgb},
                                                  {1, 1, 4, 0}};
  for (const auto& [width, height, stride, format] : bad) {
    const Bitmap refused(width, height, stride, format, reinterpret_cast<BYTE*>(rows.data()));
    EXPECT_EQ(refused.GetLastStatus(), InvalidParameter);
  }
}

TEST_F(GdiImages, DrawsIntoExactlyTheTarget) {
  const auto image = bitmap(8, 8, std::vector<Pixel>(64, 0xFF102030));
  Graphics graphics(dc);
  const auto draw = [&](const RECT& target) {
    const Rect place(target.left, target.top, target.right, target.bottom);
    EXPECT_EQ(graphics.DrawImage(image.get(), place), Ok);
    const auto fades = [](int, int, Pixel color) { return color != 0x102030 && color != kWhite; };
    EXPECT_EQ(count(fades), 0);
  };
  expect_drawn("tests/platform/gdi/image_targets.txt", {{"image", draw}});
  EXPECT_EQ(graphics.DrawImage(nullptr, Rect(0, 0, 5, 5)), InvalidParameter);
  EXPECT_EQ(graphics.DrawImage(image.get(), RectF(std::numeric_limits<REAL>::quiet_NaN(), 0, 5, 5)),
            Ok);
}

TEST_F(GdiImages, NearestGivesExactBlocksAndShrinkingAverages) {
  const auto image = bitmap(2, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF000000});
  Graphics graphics(dc);
  graphics.SetInterpolationMode(InterpolationModeNearestNeighbor);
  graphics.SetPixelOffsetMode(PixelOffsetModeHalf);
  graphics.DrawImage(image.get(), Rect(10, 10, 21, 20));
  const auto wrong = [&image](int x, int y, Pixel color) {
    const bool middle = x == 20;  // belongs to both
    if (x < 10 || x > 30 || y < 10 || y > 29 || middle) return false;
    return color != (image->pixels()->at((x - 10) * 2 / 21, (y - 10) * 2 / 20) & 0xFFFFFF);
  };
  EXPECT_EQ(count(wrong), 0);
  Graphics smooth(dc);
  smooth.DrawImage(image.get(), Rect(50, 50, 1, 1));
  EXPECT_EQ(surface->at(50, 50), 0xFF404040u);
}

TEST_F(GdiImages, ShrinkingKeepsTheMeanAndTheCopy) {
  std::vector<Pixel> pixels;
  std::mt19937 noise;
  double sum = 0;
  for (int at = 0; at < 97 * 61; ++at)
    sum += (pixels.emplace_back(0xFF000000 | (noise() & 0xFF))) & 0xFF;
  const auto image = bitmap(97, 61, pixels);
  Graphics graphics(dc);
  graphics.DrawImage(image.get(), Rect(0, 0, 31, 13));
  double shrunk = 0;
  for (int y = 0; y < 13; ++y)
    for (int x = 0; x < 31; ++x) shrunk += surface->at(x, y) & 0xFF;
  EXPECT_NEAR(shrunk / (31 * 13), sum / (97 * 61), 0.5);
  const std::unique_ptr<Image> clone(image->Clone());
  EXPECT_EQ(clone->cache(), image->cache());
  EXPECT_EQ(clone->pixels(), image->pixels());
  const Surface first(*surface);
  wipe();
  Graphics(dc).DrawImage(clone.get(), Rect(0, 0, 31, 13));
  const auto differs = [&](int x, int y, Pixel) { return surface->at(x, y) != first.at(x, y); };
  EXPECT_EQ(count(differs), 0);
}

TEST_F(GdiImages, APictureThatReachesBeyondTheSurfaceLooksAsOneThatDoesNot) {
  std::vector<Pixel> pixels;
  for (int at = 0; at < 300 * 200; ++at) {
    const auto blue = static_cast<Pixel>(at % 300 * 255 / 300);
    pixels.push_back(0xFF000000 | (static_cast<Pixel>(at / 300) << 8) | blue);
  }
  const auto image = bitmap(300, 200, pixels);
  Graphics(dc).DrawImage(image.get(), Rect(-50, -30, 140, 90));  // a half, and less of it
  for (const auto& [x, y] : {std::pair(1, 1), {40, 20}, {88, 58}}) {
    EXPECT_NEAR(seen(x, y) & 0xFF, (x + 50.5) * 255 / 140, 2) << x;
    EXPECT_NEAR(seen(x, y) >> 8 & 0xFF, (y + 30.5) * 200 / 90, 2) << y;
  }
  EXPECT_EQ(seen(90, 10), kWhite);
}

TEST_F(GdiImages, APartKeepsTheFilesOwnBytesWhereItIsNearlyClearToo) {
  GdkPixbuf* const drawn = gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, 64, 16);
  guchar* const bytes = gdk_pixbuf_get_pixels(drawn);
  std::mt19937 noise;
  for (int at = 0; at < 64 * 16 * 4; ++at) {
    bytes[at] = static_cast<guchar>(at % 4 == 3 ? at / 16 % 256 : noise());
  }
  gchar* file = nullptr;
  gsize size = 0;
  ASSERT_TRUE(gdk_pixbuf_save_to_buffer(drawn, &file, &size, "png", nullptr, nullptr));
  const Image image(write("clear.png", Bytes(file, size)).c_str());
  g_free(file);
  const std::vector<std::uint8_t> part = encode_png(image, {3, 2, 61, 15});
  write("part.png", Bytes(part.begin(), part.end()));
  GdkPixbuf* const saved = gdk_pixbuf_new_from_file((folder / "part.png").c_str(), nullptr);
  ASSERT_NE(saved, nullptr);
  ASSERT_EQ(gdk_pixbuf_get_width(saved), 58);
  for (int y = 0; y < 13; ++y) {
    EXPECT_EQ(std::memcmp(gdk_pixbuf_get_pixels(saved) + y * gdk_pixbuf_get_rowstride(saved),
                          bytes + (y + 2) * gdk_pixbuf_get_rowstride(drawn) + 3 * 4, 58 * 4),
              0);
  }
  g_object_unref(saved);
  g_object_unref(drawn);
}

TEST_F(GdiImages, PartsOfAPicture) {
  std::vector<Pixel> pixels;
  for (Pixel at = 0; at < 16; ++at) pixels.push_back(0xFF000000 | (at * 8));
  const auto image = bitmap(4, 4, pixels);
  Graphics graphics(dc);
  EXPECT_EQ(graphics.DrawImage(image.get(), Rect(10, 10, 2, 2), 1, 2, 2, 2, UnitPixel), Ok);
  expect_dots({{10, 10, pixels[9]}, {11, 11, pixels[14]}});
  EXPECT_EQ(drawn(), "10,10,12,12 4");
  wipe();
  graphics.DrawImage(image.get(), Rect(20, 20, 4, 4), -2, 0, 4, 4, UnitPixel);
  EXPECT_EQ(drawn(), "22,20,24,24 8");
  EXPECT_EQ(seen(22, 20), 0u);
  wipe();
  // Enlarged, a part's edges hold nothing of its neighbours.
  graphics.DrawImage(image.get(), Rect(20, 20, 30, 30), 3, 3, 1, 1, UnitPixel);
  EXPECT_EQ(drawn(), "20,20,50,50 900");
  expect_dots({{20, 20, pixels[15]}, {49, 49, pixels[15]}});
  EXPECT_EQ(graphics.DrawImage(image.get(), Rect(0, 0, 5, 5), 0, 0, 0, 4, UnitPixel), Ok);
  EXPECT_EQ(graphics.DrawImage(image.get(), Rect(0, 0, 5, 5), 0, 0, 4, 4, UnitPoint),
            InvalidParameter);
}

TEST_F(GdiImages, TurnsClockwiseAboutTheMiddle) {
  const auto image = bitmap(2, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF000000});
  const Pixel clockwise[] = {0xFF0000, 0x00FF00, 0x000000, 0x0000FF};
  const POINT quadrants[] = {{41, 41}, {58, 41}, {58, 58}, {41, 58}};
  for (int quarter = 0; quarter < 4; ++quarter) {
    wipe();
    Graphics graphics(dc);
    graphics.TranslateTransform(50, 50);
    graphics.RotateTransform(static_cast<REAL>(90 * quarter));
    graphics.TranslateTransform(-50, -50);
    EXPECT_EQ(graphics.DrawImage(image.get(), Rect(40, 40, 20, 20)), Ok);
    EXPECT_EQ(drawn(), "40,40,60,60 400");
    for (int corner = 0; corner < 4; ++corner) {
      const POINT at = quadrants[(corner + quarter) % 4];
      EXPECT_EQ(seen(at.x, at.y), clockwise[corner]) << quarter << " corner " << corner;
    }
  }
  wipe();
  Graphics graphics(dc);
  graphics.TranslateTransform(50, 50);
  graphics.RotateTransform(45);
  graphics.DrawImage(image.get(), Rect(-20, -20, 40, 40));
  expect_dots({{50, 35, 0xFFFF0000}, {65, 50, 0xFF00FF00}, {25, 25, kWhite}});
}

TEST_F(GdiImages, TransparencyClipAndOrigin) {
  const auto image = bitmap(2, 1, {0x80FF0000, 0x00000000});
  surface->fill(surface->rect(), 0xFFFFFFFF);
  Region clip(RECT{0, 0, 31, 100});
  clip.subtract(RECT{0, 0, 30, 5});
  Graphics graphics(open(surface, {10, 0}, clip));
  graphics.DrawImage(image.get(), Rect(19, 10, 2, 1));
  graphics.DrawImage(image.get(), Rect(20, 0, 20, 10));
  constexpr Pixel kHalf = 0xFFFF7F7F, kClear = 0xFFFFFFFF;
  expect_dots({{29, 10, kHalf}, {30, 10, kClear}, {30, 4, kHalf}, {31, 4, kClear}});
  EXPECT_EQ(surface->take_marks().bounds().right, 31);
}

}  // namespace
}  // namespace corvane::system
