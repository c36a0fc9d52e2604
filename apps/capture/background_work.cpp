#include "apps/capture/background_work.h"

#include <utility>

namespace capture {

CBackgroundWork::CBackgroundWork(std::function<void()> ready)
    : ready_(std::move(ready)), thread_([this] { run(); }) {}

CBackgroundWork::~CBackgroundWork() {
  {
    const std::lock_guard guard(lock_);
    stop_.request_stop();
  }
  changed_.notify_one();
  thread_.join();
}

void CBackgroundWork::Begin(Work work) {
  ++unfinished_;
  {
    const std::lock_guard guard(lock_);
    waiting_.push_back(std::move(work));
  }
  changed_.notify_one();
}

void CBackgroundWork::FinishDone() {
  std::vector<Finish> done;
  {
    const std::lock_guard guard(lock_);
    done.swap(done_);
  }
  unfinished_ -= static_cast<int>(done.size());
  for (const Finish& finish : done) {
    if (finish) finish();
  }
}

void CBackgroundWork::FinishWithin(std::chrono::milliseconds time) {
  {
    std::unique_lock guard(lock_);
    const auto all = static_cast<std::size_t>(unfinished_);
    one_is_done_.wait_for(guard, time, [&] { return done_.size() == all; });
  }
  FinishDone();
}

void CBackgroundWork::run() {
  std::unique_lock guard(lock_);
  for (;;) {
    changed_.wait(guard, [this] { return stop_.stop_requested() || !waiting_.empty(); });
    if (waiting_.empty()) return;
    const Work work = std::move(waiting_.front());
    waiting_.pop_front();
    guard.unlock();
    Finish finish = work(stop_.get_token());
    guard.lock();
    done_.push_back(std::move(finish));
    one_is_done_.notify_one();
    ready_();
  }
}

}  // namespace capture
