#include "state/costs.h"

#include "platform/numbers.h"
#include "state/audience.h"
#include "state/higher_rules.h"
#include "state/state.h"
#include "state/status.h"

namespace {

constexpr const char* RefusedSound = "bump\\wound2";

// Takes `amount` from `purse` when it holds that much.
template <typename Purse>
bool Take(Purse& purse, float amount) {
    if (static_cast<float>(purse) < amount) return false;
    purse -= static_cast<double>(amount);
    return true;
}

bool SpendShown(i16& purse, float amount, const char* kind) {
    if (!Take(purse, amount)) {
        TheAudience().SoundPlayed(RefusedSound, AtCurrentUnit);
        return false;
    }
    ShowStatus(kind);
    return true;
}

}  // namespace

bool Spend(float amount, std::string_view kind) {
    Unit& unit = UnitTable[curUnit];
    if (kind == "time") return SpendShown(unit.time, amount, "time");
    if (kind == "energy") return SpendShown(unit.energy, amount, "energy");
    if (kind == "money") return Take(money, amount);
    if (kind == "ammo") {
        if (!Take(unit.handRounds, amount)) return false;
        TheHigherRules().handSync("fake2real");
        return true;
    }
    if (kind != "durab" || !Take(unit.hand.durab, amount)) return false;
    ShowStatus("durab");
    return true;
}
