// The windows' audience with a witness: shows everything as FieldAudience does, and besides retells what
// happens as Happenings. The rules can't tell the two apart.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "shell/happening.h"
#include "state/state.h"
#include "view/field_audience.h"

class Onlooker : public FieldAudience {
  public:
    using Witness = std::function<void(const Happening& happening)>;

    /// The next game that begins is watched through this, for as long as it lives.
    explicit Onlooker(Witness whoListens);
    ~Onlooker() override;

    /// Reports the shots that are in the air and what they did: a mission may end in the middle of one.
    void Settle();

    void MissionBegins() override;
    void MissionReady() override;
    void TurnBegins() override;
    void LineLogged(const std::string& line) override;
    void UnitHurt(int by, int damage) override;
    void UnitSighted(int x, int y) override;
    void FiguresChanged(std::string_view what) override;
    void OverlayBegins(Overlay overlay, int x, int y) override;
    void TrailChanged(std::string_view mode) override;
    void TrailDrawn(int pixelX, int pixelY) override;
    void UnitBroughtIntoView(int unit) override;

  private:
    struct Wound {
        int by = -1;
        std::string weapon;
        std::string mode;
    };

    void Report(const Happening& happening);
    void Land();
    void NoteDeaths();

    Witness witness;
    std::array<int, 2 * TeamStride> statuses = {};
    std::array<Wound, 2 * TeamStride> wounds = {};  // those that killed
    std::vector<Happening> flying;                  // shots that are on their way, the newest last
    std::vector<Happening> meanwhile;               // what they do: it is reported when they have been
};
