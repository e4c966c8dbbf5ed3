#include "tools/lab/recorder.h"

#include <algorithm>
#include <ctime>
#include <utility>

#include "platform/hash.h"
#include "platform/headless_host.h"
#include "platform/run_time_error.h"
#include "shell/recorded_event.h"
#include "view/events.h"
#include "view/start.h"

namespace {

std::chrono::nanoseconds ProcessorTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

}  // namespace

Recorder::Recorder(Sink to) : sink(std::move(to)) {}

Recorder::~Recorder() = default;

void Recorder::Start(std::uint32_t seed) {
    Run([&] {
        Main(seed);
        if (sink) {
            watch = std::make_unique<StateWatch>();
            shown = std::make_unique<ShownWatch>();
        }
        TellState(0);
    });
}

void Recorder::Dispatch(const InputEvent& event) {
    const int number = ++events;
    const std::chrono::nanoseconds begin = ProcessorTime();
    const std::chrono::nanoseconds before = std::exchange(inner, std::chrono::nanoseconds(0));
    if (sink) TellEvent(number, event);
    Run([&] { ::Dispatch(event); });
    longest = std::max(longest, ProcessorTime() - begin - inner);
    TellState(number);
    inner = before + (ProcessorTime() - begin);
}

void Recorder::TellEvent(int number, const InputEvent& event) const {
    sink(RecordedText({number, TheHost().InnermostPump(), event}));
}

void Recorder::TellState(int event) {
    // Events that come while the game is still set up find no state to tell.
    if (watch == nullptr) return;
    const std::vector<std::string> changes = watch->Look();
    const std::vector<std::string> seen = shown->Look();
    sink("after " + std::to_string(event) + " " + Fnv::Text(watch->Hash()) + " field " +
         Fnv::Text(shown->FieldHash()) + " windows " + Fnv::Text(HashOfWindows()));
    for (const auto* lines : {&changes, &seen})
        for (const std::string& line : *lines)
            sink("  " + line);
}

void Recorder::Run(const std::function<void()>& piece) {
    try {
        piece();
    } catch (const ProcessEnded& end) {
        TellEnd("end " + std::to_string(end.exitCode));
        throw;
    } catch (const RunTimeError& error) {
        TellEnd(std::string("error ") + error.what());
        throw;
    }
}

// The innermost of the events that it ends tells it; the outer ones see it pass.
void Recorder::TellEnd(const std::string& line) {
    if (sink && !std::exchange(ended, true)) sink(line);
}
