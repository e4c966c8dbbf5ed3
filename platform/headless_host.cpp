#include "platform/headless_host.h"

#include <stdexcept>

#include "platform/controls.h"

HeadlessHost::HeadlessHost(DispatchRoutine routine) : dispatch(routine) {}

void HeadlessHost::Queue(const InputEvent& event, int atPump) {
    queue.push_back({event, atPump});
}

void HeadlessHost::Refresh(Control& /*control*/) {
    ++refreshes;
}

void HeadlessHost::PumpEvents() {
    const Pumping pumping(*this);
    ++pumps;
    while (!queue.empty() && queue.front().atPump <= pumps) {
        const InputEvent event = queue.front().event;
        queue.pop_front();
        dispatch(event);
    }
}

void HeadlessHost::Wait(std::chrono::nanoseconds time, bool pump) {
    waited += time;
    if (pump) PumpEvents();
}

void HeadlessHost::ShowModal(Form& form) {
    while (form.Visible && !queue.empty())
        PumpEvents();
    if (!form.Visible) return;
    dispatch({EventKind::CloseRequest, form.name});
    if (form.Visible) throw std::logic_error(form.name + " refuses to close, and no event is left for it");
}

void HeadlessHost::ShowMessage(const std::string& text) {
    messages.push_back(text);
}

void HeadlessHost::Emit(const SoundRequest& sound) {
    sounds.push_back(sound);
}
