// Recordings of a run as text: its seed, every event with where in the run it came, and after each event what
// has changed in the state and in what a player sees and hears. A run that is replayed writes its lines anew;
// the first that differs tells what went another way.
//
//   sarnoth recording 1
//   build 1.0.0 gcc 12.2.0
//   seed 42
//   after 0 81f0c3a29b11d4e7 field 5bd1e995cc9e2d51 windows 9e3779b97f4a7c15
//   event 1 0 Click frmField.cmdNextTurn -1 0 0 0 0
//   after 1 2b6a90cc5e13f7d8 field 1b873593e6546b64 windows 85ebca6bc2b2ae35
//     frmField.cmbLog "New turn for team #1"
//     curTeam 0 -> 1
//     area 240,600 20x20 27d4eb2f165667c5
//     sound bump/step1 -150
//   end 0
//
// An event has its number and that of the pump in which it came (0 outside them). "after" has the number of
// the event that has been handled, 0 for the start, and the sums of the whole state, of the field's picture
// and of what the windows show besides it. After it come the fields that have changed, the squares of the
// field that look different now, and the sounds that were asked for since. An event that was let in while
// another one was handled stands within it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "shell/recorded_event.h"

struct Recording {
    std::uint32_t seed = 0;
    std::string build;
    std::vector<RecordedEvent> events;
    std::vector<std::string> lines;  // all that follow the seed
};

/// Throws RunTimeError with file, line and what was expected there.
Recording ReadRecording(const std::filesystem::path& file);
Recording ReadRecording(std::istream& text, const std::string& name);

/// The lines before the first event.
std::string RecordingHead(std::uint32_t seed);
