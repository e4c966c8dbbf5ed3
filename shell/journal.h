// The journal of a game as text: what it was played with, its seed, every event as it came, and whether it
// was taken up again. docs/formats.md has its lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/recorded_event.h"

/// What decides how a game goes, but for its events. The sums are sixteen hexadecimal digits.
struct JournalHead {
    std::string build;  // of the program's own file
    std::string data;   // of the data files that the rules read
    std::string store;  // of the vehicle store at the game's start
    std::uint32_t seed = 0;

    bool operator==(const JournalHead&) const = default;
};

struct Journal {
    JournalHead head;
    std::vector<RecordedEvent> events;
    std::string store;                // the vehicle store's file at the game's start; empty for one without
    std::vector<std::size_t> places;  // the byte at which each event's line begins
    std::size_t length = 0;           // bytes; what follows was cut off in its middle
    bool isStuck = false;             // it ended in an error, or twice didn't come to the end of a replay
};

// Lines that tell what became of a game: it is being replayed, was replayed, ended in an error.
constexpr const char* TryingLine = "trying\n";
constexpr const char* PlayingLine = "playing\n";
constexpr const char* FailedLine = "failed\n";

/// The head of a game that starts now with the files as they are. What can't be read counts as empty: the
/// game itself says so.
JournalHead HeadOfGame(std::uint32_t seed);

/// The lines before the first event.
std::string HeadText(const JournalHead& head);

/// The vehicle store's file as it is now, as the line of a journal; empty where it can't be read.
std::string StoreText();

/// Why a game with that head would go another way now, but for its store; empty when it wouldn't.
std::string DifferenceOfGames(const JournalHead& was, const JournalHead& now);

/// Reads a journal that may have been cut anywhere: its last line counts when it is whole, and one without a
/// whole head has no events. `name` is what messages call it. Throws RunTimeError (BadData).
Journal ReadJournal(std::string_view text, const std::string& name);

/// Drops the last order: the last event outside all pumps and those that came while it ran.
void DropLastOrder(Journal& journal);
