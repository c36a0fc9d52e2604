#pragma once
// Work that takes longer than a frame: done by a thread of its own, one piece after the other, and
// finished on the user-interface thread.
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace capture {

constexpr std::chrono::milliseconds kFrame(16);  // what keeps the user waiting no longer than this

class CBackgroundWork {
 public:
  using Finish = std::function<void()>;
  // Called by the thread; returns what is left to do on the user-interface thread, or nothing. Must
  // not throw. Stop is requested at the end of the program: work that changes nothing gives up
  // then.
  using Work = std::function<Finish(const std::stop_token& stop)>;

  // `ready` is called by the thread when something can be finished: it asks for FinishDone.
  explicit CBackgroundWork(std::function<void()> ready);
  // Asks what was begun to stop, waits until it is done, and finishes none of it.
  ~CBackgroundWork();
  CBackgroundWork(const CBackgroundWork&) = delete;
  CBackgroundWork& operator=(const CBackgroundWork&) = delete;

  void Begin(Work work);
  void FinishDone();
  // Waits until all that was begun is done, at most that long, and finishes what is.
  void FinishWithin(std::chrono::milliseconds time);
  bool Busy() const { return unfinished_ > 0; }

 private:
  void run();

  std::function<void()> ready_;
  int unfinished_ = 0;  // user-interface thread only
  std::mutex lock_;     // guards all that follows
  std::condition_variable changed_;
  std::condition_variable one_is_done_;
  std::deque<Work> waiting_;
  std::vector<Finish> done_;
  std::stop_source stop_;
  std::thread thread_;  // the last: it uses the others
};

}  // namespace capture
