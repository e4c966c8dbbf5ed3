// Notices what never ends.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// Calls `expired`, in a thread of its own, unless it is destroyed within `limit`.
class Watchdog {
  public:
    Watchdog(std::chrono::seconds limit, std::function<void()> expired);

  private:
    std::mutex mutex;
    std::condition_variable_any stopped;
    std::jthread thread;  // last: it uses the others until it is joined
};
