#include "shell/continuing.h"

#include <cstddef>

#include "personal/info_form.h"
#include "platform/controls.h"
#include "platform/keys.h"
#include "platform/quiet_host.h"
#include "view/events.h"
#include "view/start.h"

namespace {

void PressAndClose(const Form& form, int x, int y, const EventSink& dispatch) {
    dispatch(
        {EventKind::MouseDown, form.name, -1, LeftButton, 0, static_cast<float>(x), static_cast<float>(y)});
    dispatch({EventKind::CloseRequest, form.name});
}

// Shows nothing, takes no time, and lets recorded events in where they came.
class ContinuingHost : public QuietHost {
  public:
    ContinuingHost(const std::vector<RecordedEvent>& ofRun, const EventSink& beyond)
        : events(ofRun), dispatch(beyond) {}

    void PumpEvents() override {
        const Pumping pumping(*this);
        LetIn();
    }

    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }

    void ShowModal(Form& form) override {
        const Pumping pumping(*this);
        LetIn();
        if (AllGiven() && form.Visible) CloseForm(form, dispatch);
    }

    void LetIn() {
        while (!AllGiven() && events[given].pump == InnermostPump())
            Dispatch(events[given++].event);
    }

    bool AllGiven() const { return given == events.size(); }

  private:
    const std::vector<RecordedEvent>& events;
    const EventSink& dispatch;
    std::size_t given = 0;
};

// Puts the host back that was installed before, whatever ends the replay.
class HostKeeper {
  public:
    HostKeeper() : kept(TheHost()) {}
    ~HostKeeper() { InstallHost(&kept); }
    HostKeeper(const HostKeeper&) = delete;
    HostKeeper& operator=(const HostKeeper&) = delete;

    Host& kept;
};

}  // namespace

// A thing on the pointer goes home by a press beside the slots, or into a slot that is free.
void CloseForm(Form& form, const EventSink& dispatch) {
    constexpr int InSlot = 3;  // pixels from its corner
    dispatch({EventKind::CloseRequest, form.name});
    if (form.Visible) PressAndClose(form, 0, 0, dispatch);
    for (int slot = 0; slot <= LastBoardSlot && form.Visible; ++slot) {
        const ImageControl& image = frmInfo.imgInv[slot];
        if (image.Visible && image.Picture == nullptr)
            PressAndClose(form, image.Left + InSlot, image.Top + InSlot, dispatch);
    }
}

Continued ContinueGame(std::uint32_t seed, const std::vector<RecordedEvent>& events,
                       const EventSink& dispatch) {
    const HostKeeper keeper;
    ContinuingHost host(events, dispatch);
    try {
        Main(seed);
        host.LetIn();
    } catch (const ProcessEnded&) {
        return Continued::Ended;
    }
    keeper.kept.CountPumpsFrom(host.BegunPumps());
    return host.AllGiven() ? Continued::Waits : Continued::WentAnotherWay;
}
