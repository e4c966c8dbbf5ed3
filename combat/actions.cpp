#include "combat/actions.h"

#include <string>

#include "combat/families.h"
#include "combat/fire_modes.h"
#include "combat/shooting.h"
#include "combat/tools.h"
#include "data/mode_words.h"
#include "field/geometry.h"
#include "state/audience.h"
#include "state/costs.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"

namespace {

// Folding a tool changes what it is, and costs nothing.
void Refold(const char* logWord, const char* name, int count) {
    Unit& unit = UnitTable[curUnit];
    AddToLog(logWord, 1);
    unit.items[0].name = name;
    unit.items[0].count = count;
    TheAudience().HandChanged();
    unit.hand.name = name;
    ListActions();  // which remembers the tool by its new name
}

void Dig(const char* logWord, int delta) {
    const Unit& unit = UnitTable[curUnit];
    if (!Spend(static_cast<float>(unit.hand.time), "time")) return;
    AddToLog(logWord, 1);
    TheAudience().SoundPlayed("weapons\\" + unit.hand.sound, AtCurrentUnit);
    SurfaceChange(unit.cellX, unit.cellY, delta);
}

void UseTool(int targetX, int targetY) {
    constexpr int Spadeful = 20;  // of 200 levels of the ground
    const std::string mode = fireModes.Text();
    // ODDITY: a refused spadeful leaves this line open, so the next one in the log begins with it.
    AddToLog("dig it: ", 0);
    if (mode == FoldMode) Refold("fold", "etoolfold", 0);
    if (mode == UnfoldMode) Refold("unfold", "etool", 1);
    if (mode == DigMode) Dig("dig", -Spadeful);
    if (mode == FillMode) Dig("fill", Spadeful);
    if (mode == HitMode) {
        AddToLog("hit", 1);
        MeleeHit(targetX, targetY);
    }
}

}  // namespace

void ActOnTarget(int x, int y) {
    RunOperation([x, y] {
        const std::string_view family = ActionFamily();
        if (family == "cure")
            CureAt(CellOfPixel(x), CellOfPixel(y));
        else if (family == "hit")
            MeleeHit(CellOfPixel(x), CellOfPixel(y));
        else if (family == "dig")
            UseTool(CellOfPixel(x), CellOfPixel(y));
        else
            ShootAt(x, y, family);
    });
}
