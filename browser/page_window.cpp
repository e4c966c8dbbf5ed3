#include "browser/page_window.h"

#include <algorithm>

#include "browser/form_view.h"
#include "browser/json.h"
#include "shell/control_words.h"
#include "shell/stop_order.h"
#include "shell/stops.h"

namespace {

// Far away, and still a time that can be counted with.
constexpr Moment Never = Moment::max();

PointerInput ReadPointer(std::istream& rest) {
    PointerInput input;
    rest >> input.button >> input.at.x >> input.at.y >> input.held >> input.shift >> input.isSecond;
    return input;
}

}  // namespace

PageWindow::PageWindow(Form& ofForm, Page& onPage, const EventSink& to)
    : form(ofForm), page(onPage), sink(to), keys(ofForm, *this, to) {}

Control* PageWindow::ControlOf(const std::string& id) const {
    if (id == form.name) return &form;
    const auto found = std::find_if(form.controls.begin(), form.controls.end(),
                                    [&id](const Control* control) { return ControlId(*control) == id; });
    return found == form.controls.end() ? nullptr : *found;
}

void PageWindow::TakeMouse(std::istream& rest) {
    std::string what;
    std::string id;
    rest >> what >> id;
    const PointerInput input = ReadPointer(rest);
    Control* const control = ControlOf(id);
    if (!rest || control == nullptr) return;
    ControlPointer& pointer = pointers.try_emplace(control, *control, sink).first->second;
    const bool isNative = !IsDrawn(*control) && control->kind != ControlKind::Form;
    if (what == "move") return pointer.Move(input);
    if (what == "down") focused = nullptr;
    if (isNative) {
        Strays(*control, input.isSecond);  // the press is the page's own; that it came counts
        return;
    }
    what == "down" ? pointer.Press(input) : pointer.Release(input);
}

void PageWindow::TakeKey(const KeyInput& key, bool down) {
    if (!down) return keys.Release(key);
    if (!WindowKeys::Resumes(key)) keys.Press(key);
}

void PageWindow::TakeFocus(const std::string& id) {
    focused = ControlOf(id);
}

void PageWindow::TakeControl(const std::string& what, std::istream& rest) {
    std::string id;
    int code = 0;
    rest >> id >> code;
    const Control* const control = ControlOf(id);
    if (control == nullptr || (control != &form && !control->Enabled)) return;
    static const std::map<std::string, EventKind> Kinds = {{"click", EventKind::Click},
                                                           {"choose", EventKind::Choose},
                                                           {"scroll", EventKind::Scroll},
                                                           {"change", EventKind::Change},
                                                           {"close", EventKind::CloseRequest}};
    if (what == "use") return keys.UseAtOnce(*control);
    const auto kind = Kinds.find(what);
    if (kind != Kinds.end()) sink(EventOf(*control, kind->second, code));
}

void PageWindow::SyncFrame() {
    const Rectangle spot = keys.Spot();
    JsonObject message;
    message.Add("is", "frame").Add("form", form.name).Add("left", spot.left).Add("top", spot.top);
    message.Add("width", spot.width).Add("height", spot.height);
    message.Add("tip", focused == nullptr ? std::string() : TipBeside(*focused));
    std::string text = message.Text();
    if (text == sentFrame) return;
    page.Post(text);
    sentFrame = std::move(text);
}

void PageWindow::Tick(Moment now) {
    for (Control* control : form.controls) {
        if (control->kind != ControlKind::Timer) continue;
        const auto& timer = static_cast<const Timer&>(*control);
        const std::chrono::milliseconds interval(timer.Interval);
        if (!timer.Enabled || timer.Interval <= 0 || !form.Visible) {
            ticks.erase(&timer);
            continue;
        }
        const auto [due, isNew] = ticks.try_emplace(&timer, now + interval);
        if (isNew || due->second > now) continue;
        due->second = now + interval;
        sink(EventOf(timer, EventKind::Timer, 0));
    }
}

Moment PageWindow::NextTick() const {
    Moment next = Never;
    for (const auto& [timer, due] : ticks)
        next = std::min(next, due);
    return next;
}

void PageWindow::Focus(const Control& stop) {
    focused = &stop;
    page.Post(JsonObject().Add("is", "focus").Add("id", ControlId(stop)).Text());
}

void PageWindow::OpenList(const Control& list) {
    page.Post(JsonObject().Add("is", "open").Add("id", ControlId(list)).Text());
}

void PageWindow::PushDown(const Control& button) {
    page.Post(JsonObject().Add("is", "push").Add("id", ControlId(button)).Text());
    sink(EventOf(button, EventKind::Click, 0));
}

void PageWindow::PointerCame() {
    SyncFrame();
}
