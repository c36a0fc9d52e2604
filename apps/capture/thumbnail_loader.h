#pragma once
// Decodes thumbnails in a thread of its own, one after the other, in the order of the last wish.
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include "apps/capture/thumbnail.h"

namespace capture {

struct ThumbnailRequest {
  std::wstring folder;
  std::wstring name;
  SIZE box{};
  bool operator==(const ThumbnailRequest& other) const;
};
struct LoadedThumbnail {
  ThumbnailRequest request;
  Thumbnail thumbnail;
};

class CThumbnailLoader {
 public:
  // As DecodeThumbnail; called by the loader's thread.
  using Decode = std::function<Thumbnail(const std::wstring&, SIZE, const std::stop_token&)>;

  // `ready` is called by the loader's thread when there is something to take and there was nothing
  // before.
  CThumbnailLoader(Decode decode, std::function<void()> ready);
  // Gives up what is being decoded and waits for the thread.
  ~CThumbnailLoader();
  CThumbnailLoader(const CThumbnailLoader&) = delete;
  CThumbnailLoader& operator=(const CThumbnailLoader&) = delete;

  // Replaces all earlier wishes; what is being decoded goes on only if it is among the new ones.
  void Want(std::vector<ThumbnailRequest> requests);
  std::vector<LoadedThumbnail> TakeLoaded();

 private:
  void run();
  bool wait_for_request();  // false: the end
  void finish(Thumbnail thumbnail);

  Decode decode_;
  std::function<void()> ready_;
  std::mutex lock_;  // guards all that follows
  std::condition_variable changed_;
  std::deque<ThumbnailRequest> waiting_;
  std::optional<ThumbnailRequest> running_;
  std::stop_source stop_running_;
  std::vector<LoadedThumbnail> loaded_;
  bool ending_ = false;
  std::thread thread_;  // the last: it uses the others
};

}  // namespace capture
