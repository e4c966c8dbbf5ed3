// One run of the program for a player: begins a game or takes up the one that was broken off, and keeps its
// journal. A journal that can't be written is given up with a line on standard error, and play goes on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "platform/append_file.h"
#include "platform/input_event.h"
#include "shell/journal.h"
#include "shell/watching.h"

/// What a player does about a game that was broken off.
enum class Resumption { Continued, Watched, NewGame };

/// What stays of the game that runs when its window is closed.
enum class Keeping {
    Nothing,  // nothing was done in it
    Journal,  // the next start offers to continue
    GivenUp,  // its journal couldn't be written
};

class Session {
  public:
    /// Asks the player about the game that the text names.
    using Question = std::function<Resumption(const std::string& text)>;

    /// Lets a game's events in from now on, until all have been given.
    using Projector = std::function<void(Watching& watching)>;

    explicit Session(Question question, Projector projector = nullptr)
        : ask(std::move(question)), show(std::move(projector)) {}

    /// The start of play; `seed` is for a new game. A game that can't be continued is kept, and the host
    /// shows a message that says so. Throws RunTimeError.
    void Begin(std::uint32_t seed);

    /// Plays a recording back instead, from the start values and the vehicle store that it had. `program` is
    /// the folder of the game's data; nothing of the player's is changed. Throws RunTimeError for a file that
    /// is no recording, or that of another build or data.
    void WatchRecording(const std::filesystem::path& from, const std::filesystem::path& program);

    /// Writes the event down and gives it to the game.
    void Dispatch(const InputEvent& event);

    /// Puts the journal of a mission that is over on the shelf. To be called before a message is shown: the
    /// last one may stand for long.
    void NoteEnd();

    Keeping Keeps() const;
    /// Whether there is a recording of the mission that is over.
    bool HasRecording() const { return !recording.empty(); }

    /// Writes it to a file of the player's. The result is why it couldn't; empty when it could.
    std::string SaveRecording(const std::filesystem::path& to) const;

    /// The process ends. Gives the exit code back.
    int AtEnd(int exitCode);

  private:
    bool TakeUp();
    bool TakeUp(Journal journal);
    bool AskAbout(bool orderDropped);
    void Watch();
    void Write(const InputEvent& event);
    bool BeginJournal();
    void WriteMark(const char* line);
    void Shelve();
    void KeepRecording();
    void KeepAside(const std::string& reason);
    void GiveUp();

    const Question ask;
    const Projector show;
    AppendFile file;           // open while the journal on the disk is this game's
    JournalHead head;          // of this game
    std::string storeAtStart;  // as the journal has it
    int events = 0;            // in the journal
    bool givenUp = false;
    std::optional<Watching> watching;  // the game as far as it had come, while it is watched
    std::filesystem::path borrowed;    // folder of a watched recording's store
    std::string recording;             // the journal of a mission that is over
};

/// Whether the journal may leave an event out. The pointer over the main window shows tips, but for the mini
/// map, which it may scroll by; the window's close button is the host's.
bool LeavesNoTrace(const InputEvent& event);
