#include "apps/capture/picture.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/shell/new_file.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace capture {
namespace {

namespace fs = std::filesystem;

constexpr int kMostNumbers = 100000;

std::vector<std::string> PicturesIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    std::error_code ignored;
    if (HasPictureEnding(it->path().filename()) && it->is_regular_file(ignored)) {
      names.push_back(it->path());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

bool HasPictureEnding(const std::string& name) {
  std::string ending = fs::path(name).extension();
  std::transform(ending.begin(), ending.end(), ending.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  });
  constexpr const char* kEndings[] = {".jpg", ".jpeg", ".png", ".bmp", ".gif"};
  return std::any_of(std::begin(kEndings), std::end(kEndings),
                     [&](const char* known) { return ending == known; });
}

std::unique_ptr<CPicture> CPicture::Open(const std::string& path) {
  std::error_code error;
  std::string absolute = fs::absolute(path, error).lexically_normal();
  if (error) return nullptr;
  auto image = std::make_unique<Gdiplus::Image>(corvane::system::wide_path(absolute).c_str());
  if (image->GetWidth() == 0 || image->GetHeight() == 0) return nullptr;
  return std::unique_ptr<CPicture>(new CPicture(absolute, std::move(image)));
}

std::string CPicture::name() const { return fs::path(path_).filename(); }

SIZE CPicture::size() const {
  return {static_cast<LONG>(image_->GetWidth()), static_cast<LONG>(image_->GetHeight())};
}

std::string CPicture::Neighbour(int step) const {
  std::vector<std::string> names = PicturesIn(fs::path(path_).parent_path());
  if (names.empty()) return {};
  auto count = static_cast<std::ptrdiff_t>(names.size());
  auto here = std::lower_bound(names.begin(), names.end(), path_);
  bool present = here != names.end() && *here == path_;
  if (present && count == 1) return {};
  std::ptrdiff_t index = here - names.begin() + (present || step < 0 ? step : step - 1);
  return names[static_cast<std::size_t>(((index % count) + count) % count)];
}

std::vector<std::uint8_t> CPicture::EncodePart(const RECT& part) const {
  if (image_->pixels() == nullptr) return {};
  return corvane::system::encode_png(*image_->pixels(), part,
                                     corvane::system::Opacity::pixel_alpha);
}

SavedPart SaveBeside(const std::string& picture_path, const std::vector<std::uint8_t>& png) {
  using corvane::system::NewFileResult;
  fs::path base = fs::path(picture_path).replace_extension();
  for (int number = 1; number < kMostNumbers; ++number) {
    std::string path = base.string() + "_" + std::to_string(number) + ".png";
    switch (corvane::system::write_new_file(path, png.data(), png.size())) {
      case NewFileResult::written:
        return {path, 0};
      case NewFileResult::exists:
        continue;
      case NewFileResult::failed:
        return {{}, errno};
    }
  }
  return {{}, EEXIST};
}

}  // namespace capture
