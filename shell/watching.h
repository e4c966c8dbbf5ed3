// A game that is played once more for its player to watch: gives the events of its journal to the game where
// they came, one order at a time.
#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "shell/recorded_event.h"

class Watching {
  public:
    explicit Watching(std::vector<RecordedEvent> ofRun) : events(std::move(ofRun)) {}

    /// Gives what came in `pump`, the innermost one. When it `lasts`, as outside all pumps and in a modal
    /// window, the next order is left for the next call. Throws RunTimeError for an event whose pump never
    /// came.
    void LetIn(int pump, bool lasts, const std::function<void(const InputEvent&)>& give);

    bool Done() const { return next == events.size(); }

  private:
    bool IsNextIn(int pump) const { return !Done() && events[next].pump == pump; }

    const std::vector<RecordedEvent> events;
    std::size_t next = 0;
};
