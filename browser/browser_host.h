// The host of a game that is played on a page. Everything of the game runs here; the page shows what it is
// sent and reports what a person does. The browser works only while this waits.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "browser/form_view.h"
#include "browser/page.h"
#include "browser/page_window.h"
#include "shell/front_host.h"

/// A box over all, which waits for a button.
struct PageBox {
    std::string title;
    std::string text;
    std::string page;                  // HTML, instead of a text
    std::vector<std::string> buttons;  // the first is what Enter presses
    std::size_t atEscape = 0;          // the one that Esc presses
    std::string tick;                  // an offer, as "Don't ask again"
};

struct PageAnswer {
    std::size_t button = 0;
    bool ticked = false;
};

class BrowserHost : public FrontHost {
  public:
    /// `mainForm` is on the page from now on, the `others` when they are visible.
    BrowserHost(Form& mainForm, const std::vector<Form*>& others, Page& onPage, EventSink dispatchRoutine);

    void Accompany(Companion& whoGoesAlong) override;

    /// Begins play by `begin` and lets events in for ever.
    [[noreturn]] void Run(const std::function<void()>& begin);

    PageAnswer Ask(const PageBox& box);

    /// Lines that are no form's go there, and each key before the game gets it: true for one that it took.
    void AtLine(std::function<void(const std::string& word, std::istream& rest)> whoTakes) {
        atLine = std::move(whoTakes);
    }
    void AtKey(std::function<bool(const KeyInput& key)> whoTakes) { atKey = std::move(whoTakes); }

    /// Runs whenever all was shown.
    void AtShown(std::function<void()> whoShows) { atShown = std::move(whoShows); }

    /// Whether the valley is to be heard.
    void LetAmbience(bool on) { hasAmbience = on; }

    [[noreturn]] void EndProcess(int exitCode) override;

  protected:
    void ShowWindows() override;
    void ShowNow(Form& form) override;
    void HandleEvents() override;
    void AwaitEvent() override;
    void HandleEventsUntil(Moment end) override;
    void SleepUntil(Moment end) override;
    Moment EndOfWait(std::chrono::nanoseconds time) override;
    bool BeginModal(Form& form) override;
    void EndModal(Form& form) override;
    bool ShowsWantedView() const override;
    void ShowScreening(Screening& screening, Moment now) override;
    void EndScreening() override;
    void BeginPace(std::chrono::milliseconds pause) override { pace = pause; }
    void EndPace() override { pace.reset(); }
    void Play(const SoundRequest& sound) override;
    void ShowText(const std::string& text) override;
    void ShowError(const std::string& text) override { ShowText(text); }

  private:
    // A sketch, the control that it lies on, and where.
    struct Shown {
        const Control* over;
        Rectangle place;
        const Sketch* sketch;
        std::string sent;
    };

    PageWindow* WindowOf(const std::string& id) const;
    PageWindow& Foremost() const;
    void Take(const std::string& line);
    void TakeOfForm(const std::string& word, std::istringstream& rest);
    void TakeKey(std::istream& rest);
    void TakeLines();
    void Tick();
    void Show();
    void ShowIfDue();
    void ShowSketches();
    void SoundValley();
    void Yield(std::chrono::nanoseconds longest);
    Moment NextChange() const;

    Page& page;
    const EventSink receive;
    std::vector<std::unique_ptr<FormView>> views;
    std::vector<std::unique_ptr<PageWindow>> windows;  // the main one first
    std::unique_ptr<FormView> readout;
    std::vector<Shown> sketches;
    std::string sentLoops;
    std::function<void(const std::string& word, std::istream& rest)> atLine;
    std::function<bool(const KeyInput& key)> atKey;
    std::function<void()> atShown;
    std::deque<std::string> answers;  // to the box that is open
    int boxes = 0;                    // open
    bool hasAmbience = true;
    std::optional<std::chrono::milliseconds> pace;  // of a run that is played back
    Moment stepped;                                 // it went on last
    Moment shown;                                   // all was, last
    bool stale = false;                             // something has changed since
    Moment yielded;                                 // the browser could work last
    Moment due;                                     // the waits of the rules so far are over
};
