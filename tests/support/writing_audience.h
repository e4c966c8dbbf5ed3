// An audience that writes down what the rules report, a line for each, so that a test compares it as text.
// Pixels of a step and of a trail are counted, not written one by one.
#pragma once

#include <string>

#include "state/audience.h"

class WritingAudience : public Audience {
  public:
    /// What was reported since the last call.
    std::string Take();

    void MissionBegins() override { Write("mission begins"); }
    void MapRead() override { Write("map read"); }
    void MissionReady() override { Write("mission ready"); }
    void MissionEnds() override { Write("mission ends"); }
    void TurnBegins() override { Write("turn begins"); }
    void LineLogged(const std::string& line) override { Write("log: " + line); }
    void CellChanged(int x, int y) override { Write("cell " + Cell(x, y)); }
    void ShowNow() override {}
    void UnitLanded() override { Write("landed"); }
    void UnitChanged(bool seen) override { Write(seen ? "unit" : "unit, unseen"); }
    void StepBegins(int toX, int toY) override { Write("step to " + Cell(toX, toY)); }
    void UnitMoved(int /*dx*/, int /*dy*/) override { ++pixels; }
    void StepEnds(int fromX, int fromY) override { Write("stepped from " + Cell(fromX, fromY)); }
    void UnitMovedUnseen(int dx, int dy) override { Write("moved unseen by " + Cell(dx, dy)); }
    void UnitHurt(int /*by*/, int damage) override { Write("hurt by " + std::to_string(damage)); }
    void UnitSighted(int x, int y) override { Write("sighted at " + Cell(x, y)); }
    void EnemiesCounted() override;
    void FiguresChanged(std::string_view what) override { Write("figures " + std::string(what)); }
    void StanceChanged(int stance) override { Write("stance " + std::to_string(stance)); }
    void FiringSwitched() override { Write("firing switched"); }
    void ModesChanged() override { Write("modes"); }
    void RoundsChanged() override { Write("rounds"); }
    void HandChanged() override { Write("hand"); }
    void MakerChanged(const WeaponInfo& /*hand*/) override { Write("maker"); }
    void PanelChanged() override { Write("panel"); }
    void SoundPlayed(const std::string& name, int column) override;
    void OverlayBegins(Overlay overlay, int x, int y) override;
    void OverlayFrame(Overlay /*overlay*/, int frame) override { frames += std::to_string(frame); }
    void OverlayEnds(Overlay overlay) override;
    void TrailChanged(std::string_view mode) override { Write("trail " + std::string(mode)); }
    void TrailDrawn(int /*pixelX*/, int /*pixelY*/) override { ++pixels; }
    void UnitBroughtIntoView(int unit) override { Write("into view: " + std::to_string(unit)); }
    void SelectionFlashed(int /*unit*/, bool shown) override { frames += shown ? "#" : "."; }
    void AwardShown(int row) override { Write("award " + std::to_string(row)); }
    void AwardPutAway() override { Write("award put away"); }

  private:
    static std::string Cell(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }
    void Write(const std::string& line);

    std::string lines;
    std::string frames;
    int pixels = 0;
};
