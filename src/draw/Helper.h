#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

namespace kestrel {

/// A thread that helps whenever it is asked to. It lives on in between, since Qt makes fonts for each thread
/// again.
class Helper {
 public:
  /// Throws std::system_error when the system has no thread to give.
  Helper() : thread_([this] { Run(); }) {}
  ~Helper() {
    Change([this] { ended_ = true; });
    thread_.join();
  }
  Helper(const Helper&) = delete;
  Helper& operator=(const Helper&) = delete;

  /// REQUIRES: what was begun before is finished.
  void Begin(std::function<void()> work) {
    Change([&] { work_ = std::move(work); });
  }

  /// Waits for the work, or takes it back when it has not begun. Throws what it has thrown.
  void Finish() {
    std::unique_lock lock(mutex_);
    work_ = nullptr;
    changed_.wait(lock, [this] { return !busy_; });
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
  }

 private:
  template <typename Step>
  void Change(Step step) {
    {
      const std::lock_guard lock(mutex_);
      step();
    }
    changed_.notify_all();
  }

  void Run() {
    std::unique_lock lock(mutex_);
    while (true) {
      changed_.wait(lock, [this] { return ended_ || work_; });
      if (ended_) return;
      const std::function<void()> work = std::exchange(work_, nullptr);
      busy_ = true;
      lock.unlock();
      try {
        work();
      } catch (...) {
        Change([this] { thrown_ = std::current_exception(); });
      }
      lock.lock();
      busy_ = false;
      changed_.notify_all();
    }
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::function<void()> work_;  // not begun
  bool busy_ = false;
  bool ended_ = false;
  std::exception_ptr thrown_;
  std::thread thread_;  // the last, since it uses the others
};

}  // namespace kestrel
