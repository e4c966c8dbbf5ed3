#include "tools/lab/soak.h"

#include <chrono>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "data/weapons_file.h"
#include "personal/info_form.h"
#include "platform/headless_host.h"
#include "platform/run_time_error.h"
#include "state/state.h"
#include "tools/lab/random_player.h"
#include "tools/lab/recorder.h"
#include "tools/lab/recording.h"
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
    if (game.operationDepth != 0) return "an operation is still open";
    if (!game.handOverAsked.empty()) return "a hand-over still waits";
    return game.selectedMeanwhile != -1 ? "a selection still waits" : "";
}

std::string StrayDrag() {
    if (!frmInfo.Visible) return "";
    const bool carries = !UnitTable[curUnit].items[PointerSlot].name.empty();
    return carries == (frmInfo.imgDrag.Picture != nullptr) ? "" : "the pointer doesn't show what it carries";
}

std::string StrayOverlay() {
    if (frmField.imgBlowup.Visible || frmField.imgCover.Visible) return "an overlay was left on the field";
    return frmField.shpSelect.Visible ? "the selection's frame was left on the field" : "";
}

// Rifles and pistols are never used up; only the catalogue makes and its bin takes them.
int CountGuns() {
    int guns = 0;
    const auto count = [&guns](const InvItem& item) {
        if (!item.name.empty() && WeaponInfoByName(item.name).kind == "m") ++guns;
    };
    for (int i = 0; i < UnitPlaces; ++i)
        for (int slot = 0; slot < FirstGround; ++slot)
            count(UnitTable[i].items[slot]);
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            for (const InvItem& item : groundItems[y][x])
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

// While a soldier's file is open the random player goes on in it, and puts everything away in the end.
class SoakHost : public HeadlessHost {
  public:
    SoakHost(Recorder& by, RandomPlayer& ofPlayer)
        : HeadlessHost([](const InputEvent& event) { running->Dispatch(event); }),
          recorder(by),
          player(ofPlayer) {}

    void ShowModal(Form& form) override {
        constexpr int EventsInside = 40;
        const Pumping pumping(*this);
        for (int i = player.Draw(EventsInside); i > 0 && form.Visible; --i)
            recorder.Dispatch(player.Next());
        for (int slot = 0; slot <= LastBoardSlot && form.Visible; ++slot) {
            recorder.Dispatch({EventKind::CloseRequest, form.name});
            if (form.Visible) LayDown(slot);
        }
        if (form.Visible) throw std::logic_error("the file can't be closed any more");
    }

  private:
    // What is carried finds a place in the first slot that takes it.
    void LayDown(int slot) {
        const ImageControl& image = frmInfo.imgInv[slot];
        if (image.Visible && image.Picture == nullptr)
            recorder.Dispatch({EventKind::MouseDown, "frmInfo", -1, 1, 0, static_cast<float>(image.Left + 3),
                               static_cast<float>(image.Top + 3)});
    }

    Recorder& recorder;
    RandomPlayer& player;
};

// One mission in the making.
class Mission {
  public:
    Mission(std::uint32_t seed, int events, Recorder::Sink sink)
        : limit(events), player(seed ^ 0x5A17U), recorder(std::move(sink)), host(recorder, player) {
        running = &recorder;
        result.seed = seed;
    }
    ~Mission() { running = nullptr; }
    Mission(const Mission&) = delete;
    Mission& operator=(const Mission&) = delete;

    SoakedMission Play() {
        try {
            recorder.Start(result.seed);
            guns = CountGuns();
            while (recorder.Events() < limit && result.fault.empty())
                Step();
            result.end = "running";
        } catch (const ProcessEnded&) {
            result.end = frmField.cmbLog.Text.substr(0, frmField.cmbLog.Text.find('.'));
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
        // Some of what he does falls into the middle of the order before.
        while (player.Draw(3) == 0)
            host.Queue(player.Next(), host.pumps + 1 + player.Draw(40));
        const InputEvent event = player.Next();
        recorder.Dispatch(event);
        if (recorder.LongestEvent() > HandlerLimit)
            result.fault = "an event took over a second by itself, the last one: " + EventText(event);
        else
            Look(event);
    }

    void Look(const InputEvent& event) {
        result.fault = Disorder();
        if (result.fault.empty() && frmInfo.Visible) return;  // things are on their way
        const int now = CountGuns();
        const bool catalogue = frmInfo.imgUpDn[1].Visible;
        if (result.fault.empty() && now != guns && !catalogue)
            result.fault = std::to_string(guns) + " guns have become " + std::to_string(now);
        guns = now;
        if (!result.fault.empty()) result.fault += " after " + EventText(event);
    }

    const int limit;
    RandomPlayer player;
    Recorder recorder;
    SoakHost host;
    SoakedMission result;
    int guns = 0;
};

}  // namespace

std::string Disorder() {
    for (const auto& look : {MisplacedUnit, MisplacedOccupant, OpenOperation, StrayDrag, StrayOverlay})
        if (std::string found = look(); !found.empty()) return found;
    return "";
}

SoakedMission Soak(std::uint32_t seed, int events, const std::filesystem::path& recording) {
    if (recording.empty()) return Mission(seed, events, [](const std::string&) {}).Play();
    std::ofstream file(recording);
    file << RecordingHead(seed) << "\n";
    return Mission(seed, events, [&file](const std::string& line) { file << line << "\n"; }).Play();
}
