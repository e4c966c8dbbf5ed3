#include "ai/computer_player.h"

#include "combat/actions.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "field/sightings.h"
#include "field/stances.h"
#include "field/walking.h"
#include "state/chance.h"
#include "state/state.h"

namespace {

// ODDITY: the target is always the squad's first soldier, whoever was seen and whether he lives or not; the
// player's captain draws all fire, and his body after him.
const Unit& Target() {
    return UnitTable[0];
}

Unit& Self() {
    return UnitTable[curUnit];
}

}  // namespace

void AiAct() {
    if (aiSeeCheck()) {
        AiReload();
        AiStandUp();
        AiReserveTime();
        Self().time -= Self().aiReserve;
        AiAdvance();
        Self().time += Self().aiReserve;
    } else {
        AiStandUp();
        AiRandomTurn();
        AiLookAround();
    }
    if (aiSeeCheck()) {
        AiGoProne();
        AiFire();
    } else {
        AiLookAround();
    }
}

// ODDITY: a clip with rounds left in its lower third is never filled, a fuller one only when time is short,
// and it is filled with 20 rounds whatever it holds; the time is taken even where there is none.
void AiReload() {
    constexpr int Refill = 20;
    constexpr int ReloadTime = 20;
    constexpr int ShortOfTime = 40;
    InvItem& held = Self().items[0];
    const double third = held.capMain / 3.0;
    const bool reload = third >= held.roundsMain ? held.roundsMain == 0 : Self().time <= ShortOfTime;
    if (!reload) return;
    Self().time -= ReloadTime;
    held.roundsMain = Refill;
}

void AiReserveTime() {
    Unit& unit = Self();
    unit.aiReserve = unit.stance * StanceTime;
    if (unit.aiWary == True) unit.aiReserve = unit.aiReserve * 2;
    unit.aiReserve += WeaponInfoByName(unit.hand.name).time;
}

void AiAdvance() {
    constexpr int Steps = 4;
    walkOn = 1;
    WalkTo(Target().cellX, Target().cellY, Steps);
    walkOn = 0;
}

void AiGoProne() {
    if (Self().stance > Prone) SetStance(Prone);
}

void AiStandUp() {
    if (Self().stance < Run) SetStance(Run);
}

void AiFire() {
    const int x = Target().pixelX + HalfCell;
    const int y = Target().pixelY + HalfCell;
    TurnTowards(static_cast<float>(x), static_cast<float>(y));
    ActOnTarget(x, y);
}

void AiLookAround() {
    for (int facing = 0; facing < FacingCount; ++facing) {
        Self().facing = facing;
        TurnOrStep(false, facing);
        if (aiSeeCheck()) return;
    }
}

void AiRandomTurn() {
    constexpr int Steps = 5;
    Self().facing = RandomInt(FacingCount - 1, 0);
    TurnOrStep(false, Self().facing);
    for (int i = 0; i < Steps; ++i)
        TurnOrStep(true, Self().facing);
}
