#include "apps/capture/thumbnail_loader.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "apps/capture/picture_folder.h"

namespace capture {

bool ThumbnailRequest::operator==(const ThumbnailRequest& other) const {
  return name == other.name && folder == other.folder && box.cx == other.box.cx &&
         box.cy == other.box.cy;
}

CThumbnailLoader::CThumbnailLoader(Decode decode, std::function<void()> ready)
    : decode_(std::move(decode)), ready_(std::move(ready)), thread_([this] { run(); }) {}

CThumbnailLoader::~CThumbnailLoader() {
  {
    const std::lock_guard guard(lock_);
    ending_ = true;
    stop_running_.request_stop();
  }
  changed_.notify_one();
  thread_.join();
}

void CThumbnailLoader::Want(std::vector<ThumbnailRequest> requests) {
  {
    const std::lock_guard guard(lock_);
    waiting_.assign(std::move_iterator(requests.begin()), std::move_iterator(requests.end()));
    if (running_) {
      auto same = std::find(waiting_.begin(), waiting_.end(), *running_);
      if (same == waiting_.end()) {
        stop_running_.request_stop();
      } else if (!stop_running_.stop_requested()) {
        waiting_.erase(same);
      }
    }
  }
  changed_.notify_one();
}

std::vector<LoadedThumbnail> CThumbnailLoader::TakeLoaded() {
  const std::lock_guard guard(lock_);
  return std::exchange(loaded_, {});
}

bool CThumbnailLoader::wait_for_request() {
  std::unique_lock guard(lock_);
  changed_.wait(guard, [this] { return ending_ || !waiting_.empty(); });
  if (ending_) return false;
  running_ = std::move(waiting_.front());
  waiting_.pop_front();
  stop_running_ = std::stop_source();
  return true;
}

void CThumbnailLoader::finish(Thumbnail thumbnail) {
  bool first = false;
  {
    const std::lock_guard guard(lock_);
    if (!stop_running_.stop_requested()) {
      first = loaded_.empty();
      loaded_.push_back({*running_, std::move(thumbnail)});
    }
    running_.reset();
  }
  if (first) ready_();
}

void CThumbnailLoader::run() {
  while (wait_for_request()) {
    // Only this thread changes what runs, so it may read it without the lock.
    Thumbnail thumbnail;
    try {
      thumbnail = decode_(path_in(running_->folder, running_->name), running_->box,
                          stop_running_.get_token());
    } catch (const std::exception&) {
      thumbnail = nullptr;  // memory is short: shown like a file that cannot be read
    }
    finish(std::move(thumbnail));
  }
}

}  // namespace capture
