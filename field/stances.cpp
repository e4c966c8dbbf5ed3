#include "field/stances.h"

#include <cstdlib>
#include <string>

#include "field/moving.h"
#include "state/audience.h"
#include "state/costs.h"
#include "state/operation.h"
#include "state/state.h"
#include "state/status.h"

namespace {

constexpr int SwitchColumn = 30;  // where the switch's voice sounds

}  // namespace

void SetStance(int newStance) {
    static constexpr const char* Voices[] = {"prone", "crouch", "walk", "run"};
    RunOperation([newStance] {
        Unit& unit = UnitTable[curUnit];
        const int steps = std::abs(unit.stance - newStance);
        if (!Spend(static_cast<float>(StanceTime * steps), "time")) return;
        TheAudience().StanceChanged(newStance);
        unit.stance = newStance;
        PaintUnit(0, 0);
        ShowStatus("stance");
        TheAudience().SoundPlayed(std::string("voice\\interface\\") + Voices[newStance], AtCurrentUnit);
    });
}

void SwitchFiring() {
    RunOperation([] {
        if (!Spend(SwitchingTime, "time")) return;
        fireInMotion = !fireInMotion;
        TheAudience().FiringSwitched();
        ShowStatus("stance");
        TheAudience().SoundPlayed(
            fireInMotion ? "voice\\interface\\fireinmotion" : "voice\\interface\\stopforfire", SwitchColumn);
    });
}
