// The thumbnail thread: order, changed wishes, a quick end. Run with ThreadSanitizer too.
#include "apps/capture/thumbnail_loader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <future>

#include "corvane/platform/base_services/system_paths.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

using corvane::test::TemporaryFolder;

using testing::ElementsAre;

constexpr auto kPatience = std::chrono::seconds(20);

std::vector<ThumbnailRequest> Requests(const std::vector<std::wstring>& names) {
  std::vector<ThumbnailRequest> requests;
  for (const std::wstring& name : names) requests.push_back({L"Z:\\f", name, {100, 80}});
  return requests;
}

// Takes until that many have come; counts how often the loader called.
class Collector {
 public:
  std::function<void()> Ready() {
    return [this] {
      std::lock_guard guard(lock_);
      ++calls_;
      called_.notify_one();
    };
  }
  std::vector<LoadedThumbnail> Take(CThumbnailLoader& loader, std::size_t count) {
    std::vector<LoadedThumbnail> taken;
    while (taken.size() < count) {
      {
        std::unique_lock guard(lock_);
        if (!called_.wait_for(guard, kPatience, [this] { return calls_ > 0; })) break;
        calls_ = 0;
      }
      for (LoadedThumbnail& loaded : loader.TakeLoaded()) taken.push_back(std::move(loaded));
    }
    return taken;
  }

 private:
  std::mutex lock_;
  std::condition_variable called_;
  int calls_ = 0;
};

std::vector<std::wstring> Names(const std::vector<LoadedThumbnail>& loaded) {
  std::vector<std::wstring> names;
  for (const LoadedThumbnail& each : loaded) names.push_back(each.request.name);
  return names;
}

TEST(ThumbnailLoader, DecodesInTheWishedOrder) {
  Collector collector;
  CThumbnailLoader loader(
      [](const std::wstring& path, SIZE, const std::stop_token&) -> Thumbnail {
        EXPECT_TRUE(path.starts_with(L"Z:\\f\\"));
        return nullptr;
      },
      collector.Ready());
  loader.Want(Requests({L"c", L"a", L"b"}));
  EXPECT_THAT(Names(collector.Take(loader, 3)), ElementsAre(L"c", L"a", L"b"));
}

// The first decoding waits until it is told to go on or to stop.
class HeldDecoding {
 public:
  CThumbnailLoader::Decode Decode() {
    return [this](const std::wstring& path, SIZE, const std::stop_token& stop) -> Thumbnail {
      if (path.ends_with(L"slow")) {
        begun_.set_value();
        while (!stop.stop_requested() && !go_on_) std::this_thread::yield();
        stopped_ = stop.stop_requested();
      }
      return nullptr;
    };
  }
  void WaitUntilBegun() { begun_.get_future().wait_for(kPatience); }

  std::promise<void> begun_;
  std::atomic<bool> go_on_ = false;
  std::atomic<bool> stopped_ = false;
};

TEST(ThumbnailLoader, GivesUpWhatIsNoLongerWished) {
  HeldDecoding decoding;
  Collector collector;
  CThumbnailLoader loader(decoding.Decode(), collector.Ready());
  loader.Want(Requests({L"slow", L"never"}));
  decoding.WaitUntilBegun();
  loader.Want(Requests({L"new"}));
  EXPECT_THAT(Names(collector.Take(loader, 1)), ElementsAre(L"new"));
  EXPECT_TRUE(decoding.stopped_);
}

TEST(ThumbnailLoader, GoesOnWithWhatIsWishedAgain) {
  HeldDecoding decoding;
  Collector collector;
  CThumbnailLoader loader(decoding.Decode(), collector.Ready());
  loader.Want(Requests({L"slow"}));
  decoding.WaitUntilBegun();
  loader.Want(Requests({L"new", L"slow"}));
  decoding.go_on_ = true;
  EXPECT_THAT(Names(collector.Take(loader, 2)), ElementsAre(L"slow", L"new"));
  EXPECT_FALSE(decoding.stopped_);
}

TEST(ThumbnailLoader, EndsWithoutWaitingForTheDecoding) {
  HeldDecoding decoding;
  {
    CThumbnailLoader loader(decoding.Decode(), [] {});
    loader.Want(Requests({L"slow", L"a", L"b"}));
    decoding.WaitUntilBegun();
  }
  EXPECT_TRUE(decoding.stopped_);
}

// Pictures at once with a user-interface thread that decodes too: what ThreadSanitizer looks at.
TEST(ThumbnailLoader, DecodesRealPicturesBesideTheUserInterface) {
  TemporaryFolder folder;
  std::vector<ThumbnailRequest> requests;
  std::wstring wide_folder = corvane::wide_path_of(folder.path());
  for (int i = 0; i < 12; ++i) {
    std::string name = std::to_string(i) + ".png";
    WriteTestPicture(folder / name, 300 + i, 200);
    requests.push_back({wide_folder, corvane::wide_path_of(name), {90, 90}});
  }
  std::filesystem::copy(corvane::test::source_folder() / "apps/capture/sample/sample_page.jpg",
                        folder / "7.jpg");
  requests.push_back({wide_folder, L"7.jpg", {90, 90}});
  std::ofstream(folder / "broken.png") << "no picture";
  requests.push_back({wide_folder, L"broken.png", {90, 90}});
  requests.push_back({wide_folder, L"missing.png", {90, 90}});
  Collector collector;
  CThumbnailLoader loader(decode_thumbnail, collector.Ready());
  loader.Want(requests);
  for (int i = 0; i < 12; ++i) {
    Gdiplus::Image whole(
        (wide_folder + L"\\" + requests[static_cast<std::size_t>(i)].name).c_str());
    EXPECT_EQ(whole.GetWidth(), 300u + static_cast<UINT>(i));
  }
  std::vector<LoadedThumbnail> loaded = collector.Take(loader, requests.size());
  ASSERT_EQ(loaded.size(), requests.size());
  for (const LoadedThumbnail& each : loaded) {
    bool readable = each.request.name[0] <= L'9';
    ASSERT_EQ(each.thumbnail != nullptr, readable);
    if (!readable) continue;
    EXPECT_EQ(each.thumbnail->GetWidth(), 90u);
    EXPECT_LT(each.thumbnail->GetHeight(), 69u);
  }
}

}  // namespace
}  // namespace capture
