#include "tools/lab/replay.h"

#include "platform/run_time_error.h"

namespace {

// Lets recorded events in, each where it came.
class ReplayHost : public HeadlessHost {
  public:
    explicit ReplayHost(Replay& ofReplay) : HeadlessHost(nullptr), replay(ofReplay) {}

    void PumpEvents() override {
        const Pumping pumping(*this);
        replay.LetIn(InnermostPump());
    }

    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }

    void ShowModal(Form& /*form*/) override {
        const Pumping pumping(*this);
        replay.LetIn(InnermostPump());
    }

  private:
    Replay& replay;
};

}  // namespace

Replay::Replay(const Recording& ofRecording)
    : recording(ofRecording), recorder([this](const std::string& line) { Compare(line); }) {}

void Replay::Start() {
    recorder.Start(recording.seed);
}

void Replay::LetIn(int pump) {
    while (!Done() && recording.events[next].pump == pump) {
        const InputEvent& given = recording.events[next++].event;
        event = EventText(given);
        recorder.Dispatch(given);
    }
}

void Replay::Compare(const std::string& line) {
    if (!difference.empty()) return;
    const std::string recorded = compared < recording.lines.size() ? recording.lines[compared] : "(its end)";
    ++compared;
    // A window's process ends before its last line is told.
    const bool bothEnd = compared > recording.lines.size() && line.starts_with("end ");
    if (line == recorded || bothEnd) return;
    difference = "event " + std::to_string(recorder.Events()) +
                 (event.empty() ? " (the start)" : " (" + event + ")") + ", line " +
                 std::to_string(compared + 3) + ":\n  recorded: " + recorded + "\n  replayed: " + line;
}

ReplayResult Replay::Result() const {
    ReplayResult result{next, difference};
    if (difference.empty() && compared < recording.lines.size())
        result.difference =
            "it ended before line " + std::to_string(compared + 4) + ": " + recording.lines[compared];
    return result;
}

ReplayResult ReplayHeadless(const Recording& recording) {
    Replay replay(recording);
    const ReplayHost host(replay);
    try {
        replay.Start();
        replay.LetIn(0);
    } catch (const ProcessEnded&) {
        return replay.Result();
    } catch (const RunTimeError&) {
        return replay.Result();
    }
    return replay.Result();
}
