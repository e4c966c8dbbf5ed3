#include "tools/lab/remake.h"

#include "platform/controls.h"
#include "platform/headless_host.h"
#include "platform/run_time_error.h"
#include "tools/lab/recorder.h"

namespace {

bool IsFor(const Form& form, const InputEvent& event) {
    return event.control == form.name || event.control.starts_with(form.name + ".");
}

class RemakingHost : public HeadlessHost {
  public:
    RemakingHost(const Recording& of, Recorder& by)
        : HeadlessHost(nullptr), events(of.events), recorder(by) {}

    void PumpEvents() override {
        const Pumping pumping(*this);
        LetInWhile([this](const RecordedEvent& next) { return next.pump == InnermostPump(); });
    }

    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }

    void ShowModal(Form& form) override {
        const Pumping pumping(*this);
        LetInWhile([this, &form](const RecordedEvent& next) {
            return next.pump == InnermostPump() || (form.Visible && IsFor(form, next.event));
        });
    }

    template <typename Wanted>
    void LetInWhile(Wanted wanted) {
        while (given < events.size() && wanted(events[given]))
            recorder.Dispatch(events[given++].event);
    }

  private:
    const std::vector<RecordedEvent>& events;
    Recorder& recorder;
    std::size_t given = 0;
};

}  // namespace

std::vector<std::string> RemakeLines(const Recording& recording) {
    std::vector<std::string> lines;
    Recorder recorder([&lines](const std::string& line) { lines.push_back(line); });
    RemakingHost host(recording, recorder);
    try {
        recorder.Start(recording.seed);
        host.LetInWhile([](const RecordedEvent&) { return true; });
    } catch (const ProcessEnded&) {  // its last line tells that
    } catch (const RunTimeError&) {  // and this
    }
    return lines;
}
