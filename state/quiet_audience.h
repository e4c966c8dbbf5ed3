// An audience that looks away: missions, odds and soaks that nobody watches cost no pictures and no sounds.
#pragma once

#include "state/audience.h"

class QuietAudience : public Audience {
  public:
    void MissionBegins() override {}
    void MapRead() override {}
    void MissionReady() override {}
    void MissionEnds() override {}
    void TurnBegins() override {}
    void LineLogged(const std::string& /*line*/) override {}
    void CellChanged(int /*x*/, int /*y*/) override {}
    void ShowNow() override {}
    void UnitLanded() override {}
    void UnitChanged(bool /*seen*/) override {}
    void StepBegins(int /*toX*/, int /*toY*/) override {}
    void UnitMoved(int /*dx*/, int /*dy*/) override {}
    void StepEnds(int /*fromX*/, int /*fromY*/) override {}
    void UnitMovedUnseen(int /*dx*/, int /*dy*/) override {}
    void UnitHurt(int /*by*/, int /*damage*/) override {}
    void UnitSighted(int /*x*/, int /*y*/) override {}
    void EnemiesCounted() override {}
    void FiguresChanged(std::string_view /*what*/) override {}
    void StanceChanged(int /*stance*/) override {}
    void FiringSwitched() override {}
    void ModesChanged() override {}
    void RoundsChanged() override {}
    void HandChanged() override {}
    void MakerChanged(const WeaponInfo& /*hand*/) override {}
    void PanelChanged() override {}
    void SoundPlayed(const std::string& /*name*/, int /*column*/) override {}
    void OverlayBegins(Overlay /*overlay*/, int /*x*/, int /*y*/) override {}
    void OverlayFrame(Overlay /*overlay*/, int /*frame*/) override {}
    void OverlayEnds(Overlay /*overlay*/) override {}
    void TrailChanged(std::string_view /*mode*/) override {}
    void TrailDrawn(int /*pixelX*/, int /*pixelY*/) override {}
    void UnitBroughtIntoView(int /*unit*/) override {}
    void SelectionFlashed(int /*unit*/, bool /*shown*/) override {}
    void AwardShown(int /*row*/) override {}
    void AwardPutAway() override {}
};
