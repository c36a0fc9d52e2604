// The thumbnail thread: order, changed wishes, a quick end. Run with ThreadSanitizer too.
#include "apps/capture/thumbnail_loader.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <semaphore>

#include "tests/apps/test_pictures.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

constexpr auto kPatience = std::chrono::seconds(20);

std::vector<ThumbnailRequest> Requests(const std::vector<std::wstring>& names) {
  std::vector<ThumbnailRequest> requests;
  for (const std::wstring& name : names) requests.push_back({L"Z:\\f", name, {100, 80}});
  return requests;
}

// Takes until that many have come.
class Collector {
 public:
  std::function<void()> Ready() {
    return [this] { calls_.release(); };
  }
  std::vector<LoadedThumbnail> Take(CThumbnailLoader& loader, std::size_t count) {
    std::vector<LoadedThumbnail> taken;
    while (taken.size() < count && calls_.try_acquire_for(kPatience)) {
      for (LoadedThumbnail& loaded : loader.TakeLoaded()) taken.push_back(std::move(loaded));
    }
    return taken;
  }

 private:
  std::counting_semaphore<> calls_{0};
};

// The first decoding waits until it is told to go on or to stop.
class HeldDecoding {
 public:
  CThumbnailLoader::Decode Decode() {
    return [this](const std::wstring& path, SIZE, const std::stop_token& stop) -> Thumbnail {
      if (path == L"Z:\\f\\slow") {
        begun_.set_value();
        while (!stop.stop_requested() && !go_on_) std::this_thread::yield();
        stopped_ = stop.stop_requested();
      }
      return nullptr;
    };
  }
  void WaitUntilBegun() {
    EXPECT_EQ(begun_.get_future().wait_for(kPatience), std::future_status::ready);
  }

  std::promise<void> begun_;
  std::atomic<bool> go_on_ = false;
  std::atomic<bool> stopped_ = false;
};

TEST(ThumbnailLoader, GivesUpWhatIsNoLongerWishedAndGoesOnInTheWishedOrder) {
  for (const bool still_wished : {false, true}) {
    HeldDecoding decoding;
    Collector collector;
    CThumbnailLoader loader(decoding.Decode(), collector.Ready());
    loader.Want(Requests({L"slow", L"never"}));
    decoding.WaitUntilBegun();
    std::vector<std::wstring> expected = {L"c", L"a", L"b"};
    std::vector<std::wstring> wished = expected;
    if (still_wished) {
      wished.push_back(L"slow");
      expected.insert(expected.begin(), L"slow");  // it runs already
    }
    loader.Want(Requests(wished));
    decoding.go_on_ = still_wished;
    std::vector<std::wstring> decoded;
    for (const auto& each : collector.Take(loader, expected.size())) {
      decoded.push_back(each.request.name);
    }
    EXPECT_EQ(decoded, expected);
    EXPECT_EQ(decoding.stopped_, !still_wished);
  }
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
  const corvane::test::TemporaryFolder folder;
  std::vector<ThumbnailRequest> requests;
  for (int i = 0; i < 12; ++i) {
    WriteTestPicture(folder / (std::to_string(i) + ".png"), 300 + i, 200);
    requests.push_back({folder.wide(), std::to_wstring(i) + L".png", {90, 90}});
  }
  std::filesystem::copy(corvane::test::source_folder() / "apps/capture/sample/sample_page.jpg",
                        folder / "7.jpg");
  folder.file("broken.png", "no picture");
  for (const wchar_t* name : {L"7.jpg", L"broken.png", L"missing.png"}) {
    requests.push_back({folder.wide(), name, {90, 90}});
  }
  Collector collector;
  CThumbnailLoader loader(decode_thumbnail, collector.Ready());
  loader.Want(requests);
  for (UINT i = 0; i < 12; ++i) {
    Gdiplus::Image whole((folder.wide() + L"\\" + requests[i].name).c_str());
    EXPECT_EQ(whole.GetWidth(), 300 + i);
  }
  const std::vector<LoadedThumbnail> loaded = collector.Take(loader, requests.size());
  ASSERT_EQ(loaded.size(), requests.size());
  for (const LoadedThumbnail& each : loaded) {
    ASSERT_EQ(each.thumbnail != nullptr, each.request.name[0] <= L'9');
    if (each.thumbnail == nullptr) continue;
    EXPECT_EQ(each.thumbnail->GetWidth(), 90u);
    EXPECT_LT(each.thumbnail->GetHeight(), 69u);
  }
}

}  // namespace
}  // namespace capture
