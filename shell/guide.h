// Looks ahead for the person who plays: forecasts the order under the pointer, draws its marks and fills the
// read-out, and says why an order came to nothing. It changes nothing in the game.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/input_event.h"
#include "shell/forecast.h"
#include "shell/moment.h"
#include "shell/readout.h"
#include "shell/sketch.h"

class Guide {
  public:
    /// Gives a person's event to the game through `door`, and looks at it before and after. Why it came to
    /// nothing; none for what did something.
    Refusal Pass(const InputEvent& event, Moment now, const std::function<void()>& door);

    /// Brings the read-out in line with the game, and appends the marks.
    void Look(Moment now, Sketch& onField);

    /// Instead of Look while the enemy's turn is shown: no marks, and the read-out says whose turn it is.
    void LookAway();

    /// No place is under the pointer until it moves again.
    void ForgetPointer() { pointer.reset(); }

    /// Whether something is to be shown soon that isn't yet.
    bool IsWaiting() const;

    Form& Readout() { return readout; }

    /// Of the place under the pointer; nothing when there is none.
    const std::optional<Forecast>& UnderPointer() const { return forecast; }

  private:
    struct Place {
        int x = 0;  // pixels of the window
        int y = 0;
    };

    void NotePointer(const InputEvent& event, Moment now);
    void Renew(Moment now);
    std::optional<Spot> PixelUnderPointer() const;
    std::vector<ReadoutLine> Lines() const;

    std::optional<Place> pointer;
    std::optional<Forecast> forecast;
    std::uint64_t forecastMark = 0;  // what it was made of
    Moment forecastBegun;
    int selected = -1;
    Refusal said;
    Moment saidAt;
    ReadoutForm readout;
};
