#include "shell/watching.h"

#include "platform/run_time_error.h"

namespace {

constexpr int MovesAtOnce = 5;  // so that a drag is seen, and takes no longer than it did

}  // namespace

void Watching::LetIn(int pump, bool lasts, const std::function<void(const InputEvent&)>& give) {
    if (pump == 0 && !Done() && !IsNextIn(0))
        throw RunTimeError(Fault::BadData, "the recording goes another way at its event " +
                                               std::to_string(events[next].number));
    for (int moves = 0; IsNextIn(pump) && moves < MovesAtOnce;) {
        const InputEvent& event = events[next++].event;
        give(event);
        if (lasts && IsDeed(event)) return;
        if (lasts) ++moves;
    }
}
