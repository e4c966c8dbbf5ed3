#include "shell/session.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <utility>

#include "platform/files.h"
#include "platform/host.h"
#include "shell/continuing.h"
#include "shell/journal_files.h"
#include "shell/watched_file.h"
#include "state/state.h"
#include "view/events.h"
#include "view/start.h"

namespace {

constexpr const char* BrokenOff = "The game that was broken off ";

// Moves, of a scroll bar's thumb too, come by the hundred and decide nothing until the next press or the
// bar's rest, which takes them to the disk with it.
bool GoesToDisk(const InputEvent& event) {
    return event.kind != EventKind::MouseMove && event.kind != EventKind::Scroll;
}

std::string Difference(const JournalHead& was, const JournalHead& now) {
    if (was.store != now.store && DifferenceOfGames(was, now).empty())
        return "began with another vehicle store: it had just ended, or another game has ended since";
    return DifferenceOfGames(was, now);
}

int SoldiersAlive() {
    int alive = 0;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        if (UnitTable[i].status != Dead) ++alive;
    return alive;
}

void PrintTrouble(const std::string& problem) {
    std::fprintf(stderr, "Sarnoth III: %s: %s\n", ShownName(CurrentJournal).c_str(), problem.c_str());
}

}  // namespace

bool LeavesNoTrace(const InputEvent& event) {
    if (event.kind == EventKind::MouseMove)
        return event.control.starts_with("frmField") && event.control != "frmField.picAreaMap";
    return event.kind == EventKind::CloseRequest && event.control == "frmField";
}

void Session::Begin(std::uint32_t seed) {
    if (TakeUp()) return;
    file.Close();
    head = HeadOfGame(seed);
    events = 0;
    recording.clear();
    storeAtStart = StoreText();
    TheHost().CountPumpsFrom(0);
    Main(seed);
}

bool Session::TakeUp() {
    if (!file.Open(CurrentJournal)) return false;
    Journal journal;
    try {
        journal = ReadJournal(ReadWholeFile(CurrentJournal), ShownName(CurrentJournal));
    } catch (const RunTimeError& error) {
        KeepAside("can't be read: " + error.About());
        return false;
    }
    head = HeadOfGame(journal.head.seed);
    const std::string difference = journal.events.empty() ? "" : Difference(journal.head, head);
    if (difference.empty()) return TakeUp(std::move(journal));
    KeepAside(difference);
    return false;
}

// The mark is on the disk while the game is replayed: an event that ends the process each time is left out
// one day.
bool Session::TakeUp(Journal journal) {
    const bool orderDropped = journal.isStuck;
    if (orderDropped) DropLastOrder(journal);
    if (!file.Cut(journal.length)) GiveUp();
    if (journal.events.empty()) {
        RemoveJournal();
        return false;
    }
    WriteMark(TryingLine);
    events = static_cast<int>(journal.events.size());
    const auto closing = [this](const InputEvent& event) { Dispatch(event); };
    switch (ContinueGame(journal.head.seed, journal.events, closing)) {
        case Continued::Ended:
            Shelve();
            TheHost().ShowMessage(BrokenOff + ("has ended: " + missionVerdict) + ".");
            return false;
        case Continued::WentAnotherWay:
            KeepAside("went another way");
            return false;
        case Continued::Waits:
            WriteMark(PlayingLine);
    }
    return AskAbout(orderDropped);
}

bool Session::AskAbout(bool orderDropped) {
    std::string text = "A game was broken off in turn " + std::to_string(squadTurns) + ", with " +
                       std::to_string(SoldiersAlive()) + " of " + std::to_string(teamLast[SquadTeam] + 1) +
                       " soldiers alive.";
    if (orderDropped) text += " Its last order ended in an error and is left out.";
    const Resumption resumption = ask(text);
    if (resumption == Resumption::NewGame) {
        Shelve();
        return false;
    }
    if (resumption == Resumption::Watched) Watch();
    return true;
}

void Session::WatchRecording(const std::filesystem::path& from, const std::filesystem::path& program) {
    Journal journal = RecordingToWatch(from);
    borrowed = BorrowStore(journal, program);
    givenUp = true;  // it keeps no journal
    head = journal.head;
    watching.emplace(std::move(journal.events));
    TheHost().CountPumpsFrom(0);
    show(*watching);
    Main(head.seed);
}

// The journal has grown by what closed an open window.
void Session::Watch() {
    watching.emplace(ReadJournal(ReadWholeFile(CurrentJournal), ShownName(CurrentJournal)).events);
    TheHost().CountPumpsFrom(0);
    show(*watching);
    Main(head.seed);
}

void Session::Dispatch(const InputEvent& event) {
    // What comes after the verdict belongs to no game.
    if (!LeavesNoTrace(event) && !givenUp && missionVerdict.empty()) Write(event);
    ::Dispatch(event);
}

void Session::Write(const InputEvent& event) {
    const RecordedEvent recorded = {++events, TheHost().InnermostPump(), event};
    const bool written =
        (file.IsOpen() || BeginJournal()) && file.Append(RecordedText(recorded) + "\n", GoesToDisk(event));
    if (!written) GiveUp();
}

// A game that nothing was done in leaves no journal.
bool Session::BeginJournal() {
    return file.Create(CurrentJournal) && file.Append(HeadText(head) + storeAtStart, true);
}

void Session::WriteMark(const char* line) {
    if (file.IsOpen() && !file.Append(line, true)) GiveUp();
}

void Session::Shelve() {
    if (file.IsOpen()) {
        if (!missionVerdict.empty()) KeepRecording();
        if (!ShelveFinished()) PrintTrouble(std::strerror(errno));
    }
    file.Close();
}

// One that can't be read can't be saved; the mission has ended all the same.
void Session::KeepRecording() {
    try {
        recording = ReadWholeFile(CurrentJournal);
    } catch (const RunTimeError& error) {
        PrintTrouble(error.About());
    }
}

std::string Session::SaveRecording(const std::filesystem::path& to) const {
    errno = 0;
    std::ofstream copy(to, std::ios::binary | std::ios::trunc);
    copy << recording;
    copy.close();
    if (copy) return "";
    return errno != 0 ? std::strerror(errno) : "it isn't a file that can be written";
}

void Session::KeepAside(const std::string& reason) {
    const std::string place = ShelveOther();
    if (place.empty()) PrintTrouble(std::strerror(errno));
    file.Close();
    TheHost().ShowMessage(BrokenOff + ("can't be continued: it " + reason) + ". It is kept as " +
                          (place.empty() ? ShownName(CurrentJournal) : place) + ".");
}

// What follows a gap would be another game.
void Session::GiveUp() {
    const std::string reason =
        errno == EEXIST ? "another game holds it, or it can't be written to" : std::strerror(errno);
    PrintTrouble(reason + "; play goes on without a journal");
    givenUp = true;
    file.Close();
}

void Session::NoteEnd() {
    if (!missionVerdict.empty()) Shelve();
}

Keeping Session::Keeps() const {
    if (givenUp) return Keeping::GivenUp;
    return events == 0 ? Keeping::Nothing : Keeping::Journal;
}

int Session::AtEnd(int exitCode) {
    NoteEnd();
    ReturnStore(borrowed);
    if (exitCode != EXIT_SUCCESS) WriteMark(FailedLine);
    return exitCode;
}
