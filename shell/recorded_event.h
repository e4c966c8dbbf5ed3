// An event of a run with where in the run it came, and its line of text: what journals and recordings are
// made of.
#pragma once

#include <string>

#include "platform/input_event.h"

struct RecordedEvent {
    int number = 0;  // 1 for the run's first
    int pump = 0;    // that let it in, see Host::InnermostPump; 0 outside them all
    InputEvent event;

    bool operator==(const RecordedEvent&) const = default;
};

/// As "event 7 0 Click frmField.cmdNextTurn -1 0 0 0 0".
std::string RecordedText(const RecordedEvent& recorded);

/// The event that RecordedText made into `line`. Throws RunTimeError (BadData) for anything else.
RecordedEvent RecordedEventFromText(const std::string& line);
