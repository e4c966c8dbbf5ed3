#include "tools/lab/soak.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "data/weapons_file.h"
#include "personal/info_form.h"
#include "platform/headless_host.h"
#include "platform/keys.h"
#include "platform/run_time_error.h"
#include "state/state.h"
#include "tools/lab/field_referee.h"
#include "tools/lab/random_player.h"
#include "tools/lab/recorder.h"
#include "tools/lab/recording.h"
#include "tools/player/orders.h"
#include "tools/player/scripted_player.h"
#include "view/colours.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

Recorder* running = nullptr;

constexpr std::chrono::seconds HandlerLimit(1);

bool Stands(const Unit& unit) {
    return unit.status != NotLanded && unit.status != Dead;
}

// A cell and who stands on it agree, but that two of the computer's may have landed on one cell.
std::string MisplacedUnit() {
    for (int i = 0; i < UnitPlaces; ++i) {
        const Unit& unit = UnitTable[i];
        if (!Stands(unit)) continue;
        if (unit.pixelX != unit.cellX * CellSize || unit.pixelY != unit.cellY * CellSize)
            return LogName(i) + " is between two cells";
        const int there = cellGrid[unit.cellY][unit.cellX].occupant;
        const bool shared = i >= FirstOf(EnemyTeam);
        if (there != i && !shared) return LogName(i) + " isn't where it stands: " + std::to_string(there);
    }
    return "";
}

std::string MisplacedOccupant() {
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x) {
            const int occupant = cellGrid[y][x].occupant;
            if (occupant < 0) continue;
            const Unit& unit = UnitTable[occupant];
            // Who bled to death keeps his cell.
            if (unit.status == NotLanded || unit.cellX != x || unit.cellY != y)
                return "the cell " + std::to_string(x) + "," + std::to_string(y) +
                       " holds who isn't there: " + LogName(occupant);
        }
    }
    return "";
}

std::string OpenOperation() {
    if (operationDepth != 0 || pumpedDepth != 0) return "an operation is still open";
    if (!handOverAsked.empty()) return "a hand-over still waits";
    return selectedMeanwhile != -1 ? "a selection still waits" : "";
}

std::string StrayDrag() {
    if (!frmInfo.Visible) return "";
    const bool carries = !UnitTable[curUnit].items[PointerSlot].name.empty();
    return carries == (frmInfo.imgDrag.Picture != nullptr) ? "" : "the pointer doesn't show what it carries";
}

// The tree top over who stands in a forest stays until he leaves it.
std::string StrayOverlay() {
    if (frmField.imgBlowup.Visible) return "an animation was left on the field";
    return frmField.shpSelect.Visible ? "the selection's frame was left on the field" : "";
}

// What is out of order in the state between two events; empty for nothing.
std::string Disorder() {
    for (const auto& look : {MisplacedUnit, MisplacedOccupant, OpenOperation, StrayDrag, StrayOverlay})
        if (std::string found = look(); !found.empty()) return found;
    return "";
}

// A flight draws its trail in a grey that no picture of the game has, and takes it away again.
std::string LeftTrail(const Rectangle& changed) {
    const Picture& area = frmField.area.canvas;
    for (int y = changed.top; y < changed.top + changed.height; ++y) {
        const Colour* from = area.Row(y) + changed.left;
        const Colour* found = std::find(from, from + changed.width, TrailGrey);
        if (found != from + changed.width)
            return "a trail was left on the field at " + std::to_string(found - area.Row(y)) + "," +
                   std::to_string(y);
    }
    return "";
}

// Rifles and pistols are never used up, and lie in marked piles; only the catalogue makes and its bin takes
// them.
int CountGuns() {
    int guns = 0;
    const auto count = [&guns](const InvItem& item) {
        if (!item.name.empty() && WeaponInfoByName(item.name).kind == "m") ++guns;
    };
    for (int i = 0; i < UnitPlaces; ++i)
        for (int slot = 0; slot < FirstGround; ++slot)
            count(UnitTable[i].items[slot]);
    for (int i = PileBase; i <= PileBase + teamLast[PileList]; ++i)
        for (const InvItem& item : groundItems[UnitTable[i].cellY][UnitTable[i].cellX])
            count(item);
    for (const InvItem& item : storeItems)
        count(item);
    return guns;
}

// Overflow of two stacks is the one error that a player can bring about.
bool IsByTheRules(const RunTimeError& error) {
    return frmInfo.Visible && error.Number() == Fault::Overflow &&
           error.About().ends_with("is not within 0 to 255");
}

void GiveToRecorder(const InputEvent& event) {
    running->Dispatch(event);
}

// While a soldier's file is open the random player goes on in it, and puts everything away in the end.
class SoakHost : public HeadlessHost {
  public:
    SoakHost(Recorder& by, RandomPlayer& ofPlayer)
        : HeadlessHost(GiveToRecorder), recorder(by), player(ofPlayer) {}

    void ShowModal(Form& form) override {
        constexpr int EventsInside = 40;
        const Pumping pumping(*this);
        for (int i = player.Draw(EventsInside); i > 0 && form.Visible; --i)
            Give(player.Next());
        TryToClose(form);
        if (form.Visible) EmptyHand(form);
        if (form.Visible) throw std::logic_error("the file can't be closed any more");
    }

    // Whether the catalogue has made or taken things since the last call.
    bool TakeUsedCatalogue() { return std::exchange(usedCatalogue, false); }

  private:
    // Paging makes the window anew, and with it the catalogue's arrow that was up.
    void Give(const InputEvent& event) {
        usedCatalogue = usedCatalogue || frmInfo.imgUpDn[1].Visible;
        recorder.Dispatch(event);
        usedCatalogue = usedCatalogue || frmInfo.imgUpDn[1].Visible;
    }

    // What is carried finds a place in the first slot that takes it.
    void TryToClose(const Form& form) {
        for (int slot = 0; slot <= LastBoardSlot && form.Visible; ++slot) {
            Give({EventKind::CloseRequest, form.name});
            const ImageControl& image = frmInfo.imgInv[slot];
            if (form.Visible && image.Visible && image.Picture == nullptr) AtSlot(EventKind::MouseDown, slot);
        }
    }

    // Where every place is taken, the catalogue's bin makes room in the hand.
    void EmptyHand(const Form& form) {
        Give({EventKind::KeyDown, form.name, -1, DownKey});
        Give({EventKind::KeyUp, form.name, -1, DownKey});
        AtSlot(EventKind::MouseMove, 0);
        Give({EventKind::Click, "frmInfo.imgDel", -1, 1});
        AtSlot(EventKind::MouseDown, 0);
        Give({EventKind::CloseRequest, form.name});
    }

    void AtSlot(EventKind kind, int slot) {
        const ImageControl& image = frmInfo.imgInv[slot];
        Give({kind, "frmInfo", -1, 1, 0, static_cast<float>(image.Left + 3),
              static_cast<float>(image.Top + 3)});
    }

    Recorder& recorder;
    RandomPlayer& player;
    bool usedCatalogue = false;
};

// One mission in the making: turns played to win it, with anything that comes to a player's mind between and
// in the middle of his orders.
class Mission {
  public:
    Mission(std::uint32_t seed, int events, Recorder::Sink sink)
        : limit(events),
          player(seed ^ 0x5A17U),
          recorder(std::move(sink)),
          host(recorder, player),
          soldier(HabitsNamed(Players[seed % std::size(Players)])) {
        running = &recorder;
        SendOrdersTo(GiveToRecorder);
        result.seed = seed;
    }
    ~Mission() {
        SendOrdersTo(nullptr);
        running = nullptr;
    }
    Mission(const Mission&) = delete;
    Mission& operator=(const Mission&) = delete;

    SoakedMission Play() {
        try {
            recorder.Start(result.seed);
            guns = CountGuns();
            while (recorder.Events() < limit && result.fault.empty())
                Step();
            if (result.fault.empty()) Leave();
        } catch (const ProcessEnded&) {
            result.end = missionVerdict;
        } catch (const RunTimeError& error) {
            (IsByTheRules(error) ? result.end : result.fault) = error.what();
        } catch (const std::exception& error) {
            result.fault = error.what();
        }
        result.events = recorder.Events();
        return result;
    }

  private:
    void Step() {
        const std::string last = DoSomething();
        if (recorder.LongestEvent() > HandlerLimit)
            result.fault = "an event took over a second by itself, the last one: " + last;
        else
            Look(last);
    }

    // What he did, in words.
    std::string DoSomething() {
        const int what = player.Draw(TurnsEvery);
        if (what == 0) {
            QueueMeanwhile(40);
            soldier.PlayTurn();
            return "a turn";
        }
        const bool lasting = what <= 2 && !frmInfo.Visible;
        const InputEvent event = lasting ? player.Lasting() : player.Next();
        QueueMeanwhile(lasting ? 12 : 40);
        recorder.Dispatch(event);
        return EventText(event);
    }

    // Some of what he does falls into the middle of the orders that follow, within so many pumps.
    void QueueMeanwhile(int pumps) {
        while (player.Draw(3) != 0) {
            const InputEvent event = player.Meanwhile();
            const int after = 1 + player.Draw(pumps);
            host.Queue(event, host.pumps + after);
        }
    }

    void Leave() {
        LeaveMission();
        result.fault = "\"Exit\" didn't end the mission";
    }

    void Look(const std::string& last) {
        result.fault = Disorder();
        const Rectangle changed = frmField.area.canvas.TakeChanged();
        if (result.fault.empty()) result.fault = LeftTrail(changed);
        if (result.fault.empty()) result.fault = referee.Look(changed);
        if (result.fault.empty() && frmInfo.Visible) return;  // things are on their way
        const int now = CountGuns();
        const bool catalogue = host.TakeUsedCatalogue();
        if (result.fault.empty() && now != guns && !catalogue)
            result.fault = std::to_string(guns) + " guns have become " + std::to_string(now);
        guns = now;
        if (!result.fault.empty()) result.fault += " after " + last;
    }

    static constexpr std::string_view Players[] = {"simple", "sensible", "careless"};
    static constexpr int TurnsEvery = 12;  // one of as many things that he does is a whole turn

    const int limit;
    RandomPlayer player;
    Recorder recorder;
    SoakHost host;
    ScriptedPlayer soldier;
    FieldReferee referee;
    SoakedMission result;
    int guns = 0;
};

}  // namespace

SoakedMission Soak(std::uint32_t seed, int events, const std::filesystem::path& recording) {
    if (recording.empty()) return Mission(seed, events, nullptr).Play();
    std::ofstream file(recording);
    file << RecordingHead(seed) << "\n";
    return Mission(seed, events, [&file](const std::string& line) { file << line << "\n"; }).Play();
}
