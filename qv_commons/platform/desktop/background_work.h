// One piece of work beside the main thread.
#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <thread>

namespace qv_commons::desktop {

// Main thread only. Destroying this stops the work and waits for it.
class BackgroundWork {
 public:
  using Work = std::function<void(const std::atomic<bool>& isStopped)>;

  BackgroundWork() = default;
  ~BackgroundWork();
  BackgroundWork(const BackgroundWork&) = delete;
  BackgroundWork& operator=(const BackgroundWork&) = delete;

  // Runs `work` in a thread of its own, and then `done` from the event loop. One at a time.
  void start(Work work, std::function<void()> done);

  // Until `done` is called.
  bool isRunning() const { return thread_.joinable(); }

  // Asks the work to end early; `done` is called all the same.
  void stop() { isStopped_ = true; }
  bool isStopped() const { return isStopped_; }

  // Whether the work that the calling thread does is to end early; false outside of any.
  static bool isStopRequested();

  // Waits for the work to come to its own end; `done` is not called any more.
  void finish();

 private:
  QObject receiver_;
  std::atomic<bool> isStopped_ = false;
  std::thread thread_;
};

}  // namespace qv_commons::desktop
