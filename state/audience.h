// Whoever watches the game: what the rules show and sound, in the game's own words. The rules speak to the
// one installed audience, at the moment when something happens, and never ask it anything, so they run alike
// before every audience and before none. Most verbs are about the current unit.
#pragma once

#include <string>
#include <string_view>

struct WeaponInfo;

constexpr int AtCurrentUnit = 88;  // as the column of a sound: the column of the current unit
constexpr int AtScreenCentre =
    20;  // ODDITY: map column 20 is taken for the middle of the view, wherever it is scrolled

/// Pictures shown over the field for a moment.
enum class Overlay { Blowup, Target };

class Audience {
  public:
    Audience() = default;
    virtual ~Audience() = default;
    Audience(const Audience&) = delete;
    Audience& operator=(const Audience&) = delete;

    // The mission. Its map has been read, and both teams have landed, when these say so.
    virtual void MissionBegins() = 0;
    virtual void MapRead() = 0;
    virtual void MissionReady() = 0;
    virtual void MissionEnds() = 0;

    /// The current team's turn begins; its units are refilled.
    virtual void TurnBegins() = 0;

    /// A line of the log is complete.
    virtual void LineLogged(const std::string& line) = 0;

    /// What stands or lies on a cell of the grid has changed, or its ground has.
    virtual void CellChanged(int x, int y) = 0;

    /// All changes so far are to be seen now.
    virtual void ShowNow() = 0;

    // The current unit on the field. `seen` says whether the player may see it.
    virtual void UnitLanded() = 0;
    virtual void UnitChanged(bool seen) = 0;

    // Its step to a neighbour cell. One that is seen begins, goes on for CellSize pixels, each of which has
    // been added to the unit's place when it is reported, and ends when the unit's cell is the new one.
    virtual void StepBegins(int toX, int toY) = 0;
    virtual void UnitMoved(int dx, int dy) = 0;
    virtual void StepEnds(int fromX, int fromY) = 0;
    /// A step of (dx, dy) cells that nobody sees has been made.
    virtual void UnitMovedUnseen(int dx, int dy) = 0;

    /// The current unit was hit by the unit `by`, from ChargeBase on by a charge, and has lost `damage`
    /// points of health; a negative number was given back.
    virtual void UnitHurt(int by, int damage) = 0;

    /// The current unit has sighted the one on a cell.
    virtual void UnitSighted(int x, int y) = 0;
    /// enemyCount has changed.
    virtual void EnemiesCounted() = 0;

    /// Figures of the current unit are to be shown: "stance", "time", "energy", "health", "durab", or "" for
    /// the first four.
    virtual void FiguresChanged(std::string_view what) = 0;
    virtual void StanceChanged(int stance) = 0;
    /// "fire in motion" or "stop for fire" was chosen, for all units.
    virtual void FiringSwitched() = 0;
    virtual void ModesChanged() = 0;
    virtual void RoundsChanged() = 0;
    /// Another thing is in its hand, or the same one looks different.
    virtual void HandChanged() = 0;
    /// Who made the thing that it fights with.
    virtual void MakerChanged(const WeaponInfo& hand) = 0;
    /// Another unit is current than a moment ago: everything on the panel is its own now.
    virtual void PanelChanged() = 0;

    /// "\wav\<name>.wav" is heard once, at a column of the map or at one of the places above.
    virtual void SoundPlayed(const std::string& name, int column) = 0;

    // An overlay with its left top corner on a cell, which may lie outside the field; its frames count from
    // 1.
    virtual void OverlayBegins(Overlay overlay, int x, int y) = 0;
    virtual void OverlayFrame(Overlay overlay, int frame) = 0;
    virtual void OverlayEnds(Overlay overlay) = 0;

    /// The trail of a flight: "initialize" begins one, "return" takes its newest stretch away for a repaint
    /// and "store" puts it back, "suspend" takes the whole away and keeps it until "resume", "finalize" takes
    /// it away for good.
    virtual void TrailChanged(std::string_view mode) = 0;
    /// The trail has come to a pixel of the field.
    virtual void TrailDrawn(int pixelX, int pixelY) = 0;

    /// A unit is to be seen, and the selection's frame lies on it from now on...
    virtual void UnitBroughtIntoView(int unit) = 0;
    /// ...and is shown or hidden.
    virtual void SelectionFlashed(int unit, bool shown) = 0;

    /// The current unit has got the award of that row: its file is shown, and put away.
    virtual void AwardShown(int row) = 0;
    virtual void AwardPutAway() = 0;
};

/// The audience of this process; one must have been installed.
Audience& TheAudience();

/// Makes `audience` the audience of this process, nullptr for none. It must outlive its use.
void InstallAudience(Audience* audience);
