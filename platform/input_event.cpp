#include "platform/input_event.h"

#include <array>
#include <sstream>

#include "platform/quoted.h"
#include "platform/run_time_error.h"

namespace {

struct KindName {
    EventKind kind;
    std::string_view name;
};

constexpr std::array<KindName, 11> KindNames = {{
    {EventKind::KeyDown, "KeyDown"},
    {EventKind::KeyUp, "KeyUp"},
    {EventKind::MouseDown, "MouseDown"},
    {EventKind::MouseMove, "MouseMove"},
    {EventKind::MouseUp, "MouseUp"},
    {EventKind::Click, "Click"},
    {EventKind::Choose, "Choose"},
    {EventKind::Scroll, "Scroll"},
    {EventKind::Change, "Change"},
    {EventKind::CloseRequest, "CloseRequest"},
    {EventKind::Timer, "Timer"},
}};

}  // namespace

bool IsDeed(const InputEvent& event) {
    return event.kind == EventKind::KeyDown || event.kind == EventKind::MouseDown ||
           event.kind == EventKind::Click || event.kind == EventKind::Choose;
}

std::string EventText(const InputEvent& event) {
    std::ostringstream text;
    for (const KindName& entry : KindNames)
        if (entry.kind == event.kind) text << entry.name;
    text.precision(9);
    text << ' ' << event.control << ' ' << event.index << ' ' << event.code << ' ' << event.shift << ' '
         << event.x << ' ' << event.y;
    return text.str();
}

InputEvent EventFromText(std::string_view line) {
    std::istringstream text{std::string(line)};
    std::string kind;
    InputEvent event;
    text >> kind >> event.control >> event.index >> event.code >> event.shift >> event.x >> event.y;
    std::string rest;
    const bool whole = !text.fail() && !(text >> rest);
    for (const KindName& entry : KindNames) {
        if (!whole || entry.name != kind) continue;
        event.kind = entry.kind;
        return event;
    }
    throw RunTimeError(
        Fault::BadData,
        "expected an event as \"Click frmField.cmdNextTurn -1 0 0 0 0\", found " + Quoted(line));
}
