#include "tools/missions/watchdog.h"

#include <utility>

Watchdog::Watchdog(std::chrono::seconds limit, std::function<void()> expired)
    : thread([this, limit, action = std::move(expired)](const std::stop_token& stop) {
          std::unique_lock lock(mutex);
          stopped.wait_for(lock, stop, limit, [] { return false; });
          if (!stop.stop_requested()) action();
      }) {}
