// The keyboard, the pointer and the timers of one form on the page. What a person does there comes as lines;
// it goes on by the same ways as on any other front end.
#pragma once

#include <map>
#include <sstream>
#include <string>

#include "browser/page.h"
#include "platform/controls.h"
#include "shell/control_events.h"
#include "shell/moment.h"
#include "shell/pointer.h"
#include "shell/window_keys.h"

class PageWindow : public KeyedWindow {
  public:
    /// All must outlive it; `to` takes the events.
    PageWindow(Form& ofForm, Page& onPage, const EventSink& to);

    /// Takes the rest of a line after its first word: what was done, and to which control. A line for a
    /// control that isn't there, or is switched off, does nothing.
    void TakeMouse(std::istream& rest);
    void TakeKey(const KeyInput& key, bool down);
    void TakeFocus(const std::string& id);
    void TakeControl(const std::string& what, std::istream& rest);

    /// The keys that are down are let go, as another window has come before this one.
    void LetGo() { keys.LetGo(); }

    /// Brings the page's frame around the key pointer in line.
    void SyncFrame();

    /// Ticks of timers that are due; and when the next one is, if any.
    void Tick(Moment now);
    Moment NextTick() const;

    const Control* Focused() const override { return focused; }
    void Focus(const Control& stop) override;
    void OpenList(const Control& list) override;
    void PushDown(const Control& button) override;
    void PointerCame() override;

    Form& Shown() { return form; }

  private:
    Control* ControlOf(const std::string& id) const;

    Form& form;
    Page& page;
    const EventSink& sink;
    WindowKeys keys;
    const Control* focused = nullptr;
    std::map<const Control*, ControlPointer> pointers;
    std::map<const Timer*, Moment> ticks;  // when each that runs is due
    std::string sentFrame;
};
