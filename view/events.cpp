#include "view/events.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "field/stances.h"
#include "mission/mission_end.h"
#include "mission/orders.h"
#include "mission/turns.h"
#include "personal/awards_page.h"
#include "personal/catalogue.h"
#include "personal/dossier.h"
#include "personal/dragging.h"
#include "personal/info_form.h"
#include "personal/inventory.h"
#include "personal/personal_file.h"
#include "platform/controls.h"
#include "platform/rounding.h"
#include "view/commands.h"
#include "view/field_form.h"
#include "view/field_view.h"
#include "view/forms.h"
#include "view/mini_map.h"

namespace {

using Event = const InputEvent&;

// When it may be given: orders only while the squad awaits them; the rest looks at the game or ends it.
enum class Kind { Order, View };

struct Handler {
    std::string_view control;
    EventKind event;
    Kind kind;
    void (*run)(Event);
};

void ClickMap(Event event) {
    MapClick(WholePixel(event.x), WholePixel(event.y));
}

// Moving over the map with any button down is as good as a click.
void DragMap(Event event) {
    if (event.code != 0) ClickMap(event);
}

// clang-format off
constexpr Handler Handlers[] = {
    {"frmField",               EventKind::KeyDown,   Kind::Order, [](Event e) { Form_KeyDown(e.code); }},
    {"frmField.area",          EventKind::MouseDown, Kind::Order, [](Event e) { area_MouseDown(e.code, e.x, e.y); }},
    {"frmField.cmdNextTurn",   EventKind::Click,     Kind::Order, [](Event) { NewTurn(); }},
    {"frmField.imgStance",     EventKind::Click,     Kind::Order, [](Event e) { SetStance(e.index); }},
    {"frmField.imgStop",       EventKind::Click,     Kind::Order, [](Event) { SwitchFiring(); }},
    {"frmField.imgEnemyCount", EventKind::Click,     Kind::Order, [](Event) { imgEnemyCount_Click(); }},
    {"frmField.comboMode",     EventKind::Choose,    Kind::Order, [](Event e) { comboMode_Click(e.code); }},
    {"frmField.mnuInfo",       EventKind::Click,     Kind::Order, [](Event) { OpenInfo(); }},
    {"frmField.picBarWeapon",  EventKind::Click,     Kind::Order, [](Event) { OpenInfo(); }},
    {"frmField.imgInv",        EventKind::Click,     Kind::Order, [](Event) { OpenInfo(); }},
    {"frmField.area",          EventKind::MouseMove, Kind::View,  [](Event e) { area_MouseMove(e.x, e.y); }},
    {"frmField.picAreaMap",    EventKind::MouseDown, Kind::View,  ClickMap},
    {"frmField.picAreaMap",    EventKind::MouseMove, Kind::View,  DragMap},
    {"frmField.picAreaMapCover", EventKind::MouseDown, Kind::View, [](Event) { ToggleBigMap(); }},
    {"frmField.picAreaWhole",  EventKind::MouseDown, Kind::View,  [](Event) { ToggleBigMap(); }},
    {"frmField.mnuExit",       EventKind::Click,     Kind::View,  [](Event) { EndGame(); }},
    {"frmField.HScrollArea",   EventKind::Scroll,    Kind::View,  [](Event e) { ScrollThumb(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea",   EventKind::Scroll,    Kind::View,  [](Event e) { ScrollThumb(frmField.VScrollArea, e.code); }},
    {"frmField.HScrollArea",   EventKind::Change,    Kind::View,  [](Event e) { SetScrollValue(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea",   EventKind::Change,    Kind::View,  [](Event e) { SetScrollValue(frmField.VScrollArea, e.code); }},

    {"frmInfo",                EventKind::KeyDown,   Kind::View,  [](Event e) { personal::Form_KeyDown(e.code, e.shift); }},
    {"frmInfo",                EventKind::KeyUp,     Kind::View,  [](Event) { personal::Form_KeyUp(); }},
    {"frmInfo",                EventKind::CloseRequest, Kind::View, [](Event) { CloseInfo(); }},
    {"frmInfo",                EventKind::MouseMove, Kind::View,  [](Event e) { personal::Form_MouseMove(e.x, e.y); }},
    {"frmInfo",                EventKind::MouseDown, Kind::View,  [](Event e) { personal::Form_MouseDown(e.code, e.x, e.y); }},
    {"frmInfo.imgAward",       EventKind::MouseMove, Kind::View,  [](Event e) { imgAward_MouseMove(e.index); }},
    {"frmInfo.cmdGndPage",     EventKind::Click,     Kind::View,  [](Event e) { cmdGndPage_Click(e.index); }},
    {"frmInfo.cmdPrev",        EventKind::Click,     Kind::View,  [](Event) { PageUnit(-1); }},
    {"frmInfo.cmdNext",        EventKind::Click,     Kind::View,  [](Event) { PageUnit(+1); }},
    {"frmInfo.picB1",          EventKind::MouseDown, Kind::View,  [](Event) { picB1_MouseDown(); }},
    {"frmInfo.picB1",          EventKind::MouseUp,   Kind::View,  [](Event) { picB1_MouseUp(); }},
    {"frmInfo.imgDel",         EventKind::Click,     Kind::View,  [](Event) { imgDel_Click(); }},
    {"frmInfo.imgUpDn",        EventKind::MouseDown, Kind::View,  [](Event e) { imgUpDn_MouseDown(e.index); }},
    {"frmInfo.imgUpDn",        EventKind::MouseUp,   Kind::View,  [](Event) { imgUpDn_MouseUp(); }},
    {"frmInfo.timerArrow",     EventKind::Timer,     Kind::View,  [](Event) { timerArrow_Timer(); }},
};
// clang-format on

bool IsShown(const Control* control) {
    for (; control != nullptr && control->kind != ControlKind::Form; control = control->parent)
        if (!control->Visible || !control->Enabled) return false;
    return true;
}

// The control that an event names; nullptr when there is none.
const Control* ControlOf(Event event) {
    const std::string_view name = event.control;
    const std::size_t dot = name.find('.');
    const Form* form = FormByName(name.substr(0, dot));
    if (form == nullptr || dot == std::string_view::npos) return form;
    return form->Find(name.substr(dot + 1), event.index);
}

// Whether a person could have done this: a control that is hidden or switched off gets no events, and none
// gets any while another window lies modally over its own. What was shown when the event was made may have
// gone since.
bool CanHappen(const Control& control) {
    const bool overIt = frmInfo.Visible ? control.form == &frmInfo : control.form != &frmInfo;
    return overIt && IsShown(&control);
}

// Whether the event lies on one of the control's pixels, to the nearest of which its place is rounded. A
// release ends what the press began, wherever it comes.
bool LiesOn(const Control& control, Event event) {
    if (event.kind != EventKind::MouseDown && event.kind != EventKind::MouseMove) return true;
    const auto within = [](float at, int length) {
        return at >= 0 && at < static_cast<float>(length) - 0.5F;  // false for what is no number
    };
    return within(event.x, control.Width) && within(event.y, control.Height);
}

void Handle(Event event) {
    for (const Handler& handler : Handlers) {
        if (handler.event != event.kind || handler.control != event.control) continue;
        if (handler.kind == Kind::Order && !BeginOrder()) return;
        return handler.run(event);
    }
}

// Whether a press on the control is for the control itself.
bool TakesPresses(std::string_view control) {
    return std::any_of(std::begin(Handlers), std::end(Handlers), [control](const Handler& handler) {
        return handler.control == control &&
               (handler.event == EventKind::MouseDown || handler.event == EventKind::Click);
    });
}

// On the soldier's file the window follows the pointer over every control, and a press on a control that
// doesn't want it is meant for the window.
bool IsForTheWindowToo(Event event, const Control& control) {
    if (control.form != &frmInfo || &control == &frmInfo) return false;
    return event.kind == EventKind::MouseMove ||
           (event.kind == EventKind::MouseDown && !TakesPresses(event.control));
}

InputEvent AsSeenByTheWindow(InputEvent event, const Control* control) {
    event.control = control->form->name;
    event.index = -1;
    for (; control->kind != ControlKind::Form; control = control->parent) {
        event.x += static_cast<float>(control->Left);
        event.y += static_cast<float>(control->Top);
    }
    return event;
}

}  // namespace

void Dispatch(const InputEvent& event) {
    const Control* control = ControlOf(event);
    if (control == nullptr || !CanHappen(*control) || !LiesOn(*control, event)) return;
    Handle(event);
    if (IsForTheWindowToo(event, *control)) Handle(AsSeenByTheWindow(event, control));
}

bool TakesInput(const Control& control) {
    if (control.form == &frmInfo && control.name == "imgInv") return control.index <= LastBoardSlot;
    const std::string name = control.form->name + "." + control.name;
    return std::any_of(std::begin(Handlers), std::end(Handlers), [&name](const Handler& handler) {
        const bool byMouse = handler.event == EventKind::MouseDown || handler.event == EventKind::MouseMove ||
                             handler.event == EventKind::Click;
        return byMouse && handler.control == name;
    });
}
