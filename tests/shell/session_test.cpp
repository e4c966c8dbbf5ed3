// Games that are broken off and taken up again.
#include "shell/session.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <random>
#include <vector>

#include "personal/info_form.h"
#include "platform/files.h"
#include "shell/continuing.h"
#include "tests/support/game_test.h"
#include "tools/lab/random_player.h"

namespace {

namespace fs = std::filesystem;

struct Killed {};

// A person who does what comes to mind, also in the middle of orders, until his events are used up. Then he
// is killed, or waits and sees.
class PlayingHost : public HeadlessHost {
  public:
    explicit PlayingHost(std::uint32_t seed) : HeadlessHost(nullptr), player(seed) {}

    void PumpEvents() override {
        const Pumping pumping(*this);
        if (watching != nullptr) return watching->LetIn(InnermostPump(), false, ::Dispatch);
        while (MayGive() && player.Draw(8) == 0)
            Give(player.Meanwhile());
    }
    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }
    void ShowModal(Form& form) override {
        const Pumping pumping(*this);
        while (form.Visible && MayGive())
            Give(player.Next());
        if (form.Visible) CloseForm(form, [this](const InputEvent& event) { session->Dispatch(event); });
    }
    void ShowMessage(const std::string& text) override {
        session->NoteEnd();
        HeadlessHost::ShowMessage(text);
    }

    void Play() {
        while (MayGive())
            Give(player.Draw(4) == 0 && !frmInfo.Visible ? player.Lasting() : player.Next());
    }

    void Watch() {
        while (!watching->Done())
            watching->LetIn(0, true, ::Dispatch);
    }

    Session* session = nullptr;
    Watching* watching = nullptr;  // what is played back instead
    RandomPlayer player;
    int left = 0;
    bool isMortal = false;

  private:
    bool MayGive() const {
        if (left == 0 && isMortal) throw Killed{};
        return left > 0;
    }
    void Give(const InputEvent& event) {
        if (!LeavesNoTrace(event)) --left;
        session->Dispatch(event);
    }
};

class SessionTest : public testing::Test {
  protected:
    SessionTest() { SetProgramFolder(folder.Path()); }
    ~SessionTest() override {
        ResetState();
        frmInfo.Visible = false;
    }

    // The program starts, and whatever ran before is gone.
    void Start(std::uint32_t seed, bool continues = true) {
        session.reset();
        session.emplace([this, continues](const std::string& text) {
            asked = text;
            return continues ? Resumption::Continued : Resumption::NewGame;
        });
        host->session = &*session;
        host->messages.clear();
        asked.clear();
        session->Begin(seed);
    }

    // Plays so many events, then as many as `parts` has next, and so on. A mortal player is killed after each
    // part, and his game is continued. False when the game is over before.
    bool Play(std::uint32_t seed, const std::vector<int>& parts, bool isMortal) {
        fs::remove_all(folder.Path() / "journal");
        host.reset();
        host.emplace(seed);
        for (std::size_t part = 0; part < parts.size(); ++part) {
            host->left = parts[part];
            host->isMortal = isMortal;
            const auto play = [&] {
                if (part == 0) Start(seed);
                host->Play();
            };
            if (EndOf(play) != (isMortal ? End::Killed : End::Waits)) return false;
            if (isMortal) Continue();
        }
        return true;
    }

    enum class End { Waits, Killed, Over };
    static End EndOf(const std::function<void()>& play) {
        try {
            play();
        } catch (const Killed&) {
            return End::Killed;
        } catch (const ProcessEnded&) {
            return End::Over;
        } catch (const RunTimeError&) {  // two stacks that a player lays together overflow
            return End::Over;
        }
        return End::Waits;
    }

    void Continue() {
        host->isMortal = false;
        const auto begin = std::chrono::steady_clock::now();
        Start(0);
        const auto time = std::chrono::steady_clock::now() - begin;
        longest = std::max<std::chrono::nanoseconds>(longest, time);
        if (!asked.empty()) ++continued;
    }

    void Click(const char* control) { session->Dispatch({EventKind::Click, control}); }
    void Exit() { EXPECT_THROW(Click("frmField.mnuExit"), ProcessEnded); }
    std::string Current() const { return folder.Read("journal/current.txt"); }
    bool Lies(const std::string& name) const { return fs::exists(folder.Path() / "journal" / name); }

    ProgramFolder folder;
    std::optional<PlayingHost> host{std::in_place, 1U};
    std::optional<Session> session;
    std::string asked;
    int continued = 0;
    std::chrono::nanoseconds longest{0};  // that a continuation took
};

// SARNOTH_KILLS=200 for as many games.
int Games() {
    const char* wanted = std::getenv("SARNOTH_KILLS");
    return wanted != nullptr ? std::atoi(wanted) : 12;
}

// The same player plays the same game twice: once through, once killed after his first events and after his
// next ones, and each time it is continued.
TEST_F(SessionTest, AGameKilledAnywhereContinuesToTheSameStateAndPicture) {
    int games = 0;
    std::mt19937 chance(1);
    while (games < Games()) {
        const auto seed = static_cast<std::uint32_t>(chance());
        const int first = 1 + static_cast<int>(chance() % 80);
        const int second = 1 + static_cast<int>(chance() % 80);
        if (!Play(seed, {first, second}, false)) continue;
        ++games;
        const GameState state = game;
        const Picture field = frmField.area.canvas;
        const std::vector<std::string> log = frmField.cmbLog.List;
        ASSERT_TRUE(Play(seed, {first, second}, true)) << "seed " << seed;
        ASSERT_TRUE(game == state) << "seed " << seed;
        ASSERT_EQ(frmField.cmbLog.List, log) << "seed " << seed;
        for (int y = 0; y < field.Height(); ++y)
            ASSERT_TRUE(std::equal(field.Row(y), field.Row(y) + field.Width(), frmField.area.canvas.Row(y)))
                << "seed " << seed << ", row " << y;
    }
    EXPECT_GE(continued, games * 3 / 2) << "but for moves of the pointer alone";
    RecordProperty("longest_ms", static_cast<int>(longest.count() / 1000000));
}

// Not one event that was given is lost, wherever in its writing or in the game the process is killed.
TEST_F(SessionTest, AProcessKilledAtAnyMomentContinuesFromItsLastEvent) {
    std::mt19937 chance(2);
    for (int killed = 0; killed < Games();) {
        const auto seed = static_cast<std::uint32_t>(chance());
        fs::remove_all(folder.Path() / "journal");  // before the child can be killed
        const pid_t child = fork();
        if (child == 0) std::_Exit(Play(seed, {100'000}, false) ? 0 : 1);
        // A sanitized process takes long to come so far.
        for (int looks = 0; looks < 10'000 && !Lies("current.txt"); ++looks)
            usleep(1000);
        usleep(static_cast<useconds_t>(chance() % 40'000));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        if (!WIFSIGNALED(status) || !Lies("current.txt")) continue;
        const bool waits = EndOf([this] { Continue(); }) == End::Waits;
        if (!waits || asked.empty()) continue;  // in the midst of the mission's end, or of an error
        ++killed;
        const GameState state = game;
        const Journal kept = ReadJournal(Current().substr(0, Current().find(TryingLine)), "x");
        const int events = static_cast<int>(kept.events.size());
        ASSERT_TRUE(Play(seed, {events}, false));
        ASSERT_TRUE(game == state) << "seed " << seed << ", " << events << " events";
    }
}

TEST_F(SessionTest, TheLastFiveThatAreOverAreKept) {
    Start(1);
    Exit();
    EXPECT_FALSE(Lies("finished-2.txt"));
    for (std::uint32_t seed = 2; seed <= 7; ++seed) {
        const std::string store = folder.Read("dat/apc.dat");
        Start(seed);
        storeItems[static_cast<int>(seed)] = InvItem();
        Click("frmField.imgStop");
        Exit();
        EXPECT_NE(folder.Read("dat/apc.dat"), store) << "the store is saved as ever";
        EXPECT_EQ(asked, "");
    }
    for (int number = 1; number <= 5; ++number)
        EXPECT_NE(folder.Read("journal/finished-" + std::to_string(number) + ".txt")
                      .find("seed " + std::to_string(8 - number) + "\n"),
                  std::string::npos);
    EXPECT_FALSE(Lies("finished-6.txt"));
    EXPECT_FALSE(Lies("current.txt"));
}

TEST_F(SessionTest, ANewGameAfterOneThatWasBrokenOffHasAJournalOfItsOwn) {
    Start(1);
    Click("frmField.cmdNextTurn");
    const std::string first = Current();
    Start(2, false);
    EXPECT_EQ(asked, "A game was broken off in turn 2, with 12 of 12 soldiers alive.");
    EXPECT_TRUE(folder.Read("journal/finished-1.txt").starts_with(first));
    EXPECT_FALSE(Lies("current.txt")) << "nothing was done yet";
    host->left = 20;
    host->Play();
    const GameState state = game;
    Start(3);
    EXPECT_TRUE(game == state);
}

TEST_F(SessionTest, WhatCannotBeContinuedIsKeptAsItIsAndSaidToBeSo) {
    const auto spoil = [this](const char* word) {
        std::string text = Current();
        text[text.find(word) + std::string(word).size()] = 'x';
        folder.Write("journal/current.txt", text);
    };
    struct Case {
        const char* word;
        const char* said;
    };
    int number = 0;
    for (const auto& [word, said] : {Case{"build ", "with another build"},
                                     {"data ", "with other data"},
                                     {"store ", "another vehicle store"},
                                     {"sarnoth ", "can't be read: journal/current.txt:1: expected"},
                                     {"event 1 ", "went another way"}}) {
        Start(1);
        Click("frmField.imgStop");
        session.reset();
        if (number == 4)
            folder.Write("journal/current.txt",
                         Current() + "event 2 9999 Click frmField.imgStop -1 0 0 0 0\n");
        else
            spoil(word);
        const std::string text = Current();
        Start(2);
        EXPECT_EQ(asked, "");
        ASSERT_EQ(host->messages.size(), 1U) << word;
        EXPECT_NE(host->messages[0].find(said), std::string::npos) << host->messages[0];
        const std::string kept = "journal/other-" + std::to_string(++number) + ".txt";
        EXPECT_NE(host->messages[0].find("It is kept as " + kept), std::string::npos) << host->messages[0];
        EXPECT_TRUE(folder.Read(kept).starts_with(text)) << word;
        EXPECT_FALSE(fireInMotion) << "a new game";
    }
}

TEST_F(SessionTest, AMissionThatWasEndingIsEndedAndItsStoreSaved) {
    Start(1);
    Click("frmField.imgStop");
    session.reset();
    const std::string store = folder.Read("dat/apc.dat");
    folder.Write("journal/current.txt", Current() + "event 2 0 Click frmField.mnuExit -1 0 0 0 0\n");
    Start(2);
    EXPECT_EQ(host->messages.back(), "The game that was broken off has ended: Withdrawal.");
    EXPECT_NE(folder.Read("dat/apc.dat"), store) << "its header counts the piles";
    EXPECT_TRUE(Lies("finished-1.txt"));
    Click("frmField.imgStop");
    EXPECT_NE(Current().find("seed 2\n"), std::string::npos) << "the new game keeps its own";
}

TEST_F(SessionTest, AnOrderThatEndedInAnErrorIsLeftOut) {
    Start(1);
    Click("frmField.cmdNextTurn");
    const GameState state = game;
    Click("frmField.imgStop");
    EXPECT_EQ(session->AtEnd(EXIT_FAILURE), EXIT_FAILURE);
    Start(2);
    EXPECT_TRUE(asked.ends_with("Its last order ended in an error and is left out.")) << asked;
    EXPECT_TRUE(game == state);
}

// A saved recording begins with its own store and leaves the player's as it is.
TEST_F(SessionTest, ARecordingIsWatchedWithTheStoreThatItBeganWith) {
    const std::string stock = folder.Read("dat/apc.dat");
    Start(1);
    Click("frmField.cmdNextTurn");
    storeItems[3] = InvItem();
    Exit();
    ASSERT_EQ(session->SaveRecording(folder.Path() / "saved.txt"), "");
    const std::string store = folder.Read("dat/apc.dat");
    ASSERT_NE(store, stock);

    Session other(nullptr, [this](Watching& watching) { host->watching = &watching; });
    host->session = &other;
    other.WatchRecording(folder.Path() / "saved.txt", folder.Path());
    EXPECT_EQ(storeItems[3].name, "m24") << "as the recording began";
    EXPECT_THROW(host->Watch(), ProcessEnded);
    EXPECT_EQ(missionVerdict, "Withdrawal");
    EXPECT_EQ(squadTurns, 2);
    EXPECT_EQ(other.AtEnd(EXIT_SUCCESS), EXIT_SUCCESS);
    SetProgramFolder(folder.Path());
    EXPECT_EQ(folder.Read("dat/apc.dat"), store);
    EXPECT_FALSE(Lies("watched"));
    EXPECT_FALSE(Lies("current.txt"));

    std::string text = folder.Read("saved.txt");
    text[text.find("build ") + 6] = 'x';
    folder.Write("saved.txt", text);
    const auto watch = [&] { other.WatchRecording(folder.Path() / "saved.txt", folder.Path()); };
    EXPECT_NE(ErrorOf(watch).find("can't be watched: it was played with another build"), std::string::npos);
}

// Whatever stands in the way: one line on standard error, and the game goes on.
TEST_F(SessionTest, PlayGoesOnWithoutAJournal) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const auto allow = [&usual](rlim_t bytes) {
        const rlimit limit = {bytes, usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    const auto playAndRead = [this] {
        testing::internal::CaptureStderr();
        for (const bool moves : {true, false, true}) {
            Click("frmField.imgStop");
            EXPECT_EQ(fireInMotion, moves);
        }
        return testing::internal::GetCapturedStderr();
    };
    const std::string without = "; play goes on without a journal\n";
    const std::string name = "Sarnoth III: journal/current.txt: ";

    fs::create_directories(folder.Path() / "journal/current.txt");
    Start(1);
    EXPECT_EQ(playAndRead(), name + "another game holds it, or it can't be written to" + without);
    fs::remove_all(folder.Path() / "journal");
    folder.Write("journal", "a file");
    Start(1);
    EXPECT_EQ(playAndRead(), name + "Not a directory" + without);
    folder.Remove("journal");

    const std::size_t full = 170 + StoreText().size();
    Start(1);
    allow(full);  // the disk is full in the middle of the second event
    EXPECT_EQ(playAndRead(), name + "File too large" + without);
    allow(usual.rlim_cur);
    EXPECT_EQ(Current().size(), full);
    Start(2);
    EXPECT_NE(asked, "");
    EXPECT_TRUE(fireInMotion) << "as after the first event";

    Session second([](const std::string& /*text*/) { return Resumption::Continued; });
    second.Begin(3);
    host->session = &second;
    const std::string first = Current();
    testing::internal::CaptureStderr();
    second.Dispatch({EventKind::Click, "frmField.imgStop"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              name + "another game holds it, or it can't be written to" + without);
    EXPECT_EQ(Current(), first) << "two games at a time: the first one's journal stays";
}

}  // namespace
