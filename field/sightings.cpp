#include "field/sightings.h"

#include <bitset>

#include "field/geometry.h"
#include "field/sight.h"
#include "state/audience.h"
#include "state/pace.h"
#include "state/state.h"

namespace {

// Where the living enemies of a unit stand, so that most cells of a fan need no look at them one by one.
class EnemyCells {
  public:
    explicit EnemyCells(int team) : first(FirstOf(team)), last(first + teamLast[team]) {
        for (int e = first; e <= last; ++e) {
            const Unit& enemy = UnitTable[e];
            if (enemy.status != Dead && InField(enemy.cellX, enemy.cellY))
                occupied[Place(enemy.cellX, enemy.cellY)] = true;
        }
    }

    // Whether a living enemy stands on this cell of the field.
    bool Any(int x, int y) const { return occupied[Place(x, y)]; }

    // Notes the living enemies on a cell in the looker's record.
    void Note(Unit& looker, int x, int y) const {
        for (int e = first; e <= last; ++e) {
            const Unit& enemy = UnitTable[e];
            if (enemy.status == Dead || enemy.cellX != x || enemy.cellY != y) continue;
            i16& seen = looker.seen[e - first];
            if (seen != 0) continue;
            seen = 1;
            TheAudience().UnitSighted(x, y);
            EnemyCounter("add");
            EnemyCounter("show");
        }
    }

  private:
    static std::size_t Place(int x, int y) {
        return static_cast<std::size_t>(y) * FieldWidth + static_cast<std::size_t>(x);
    }

    int first;
    int last;
    std::bitset<std::size_t{FieldWidth} * FieldHeight> occupied;
};

void ClearCounter(Unit& unit) {
    enemyCount = 0;
    TheAudience().EnemiesCounted();
    for (int i = 0; i <= teamLast[unit.enemyTeam]; ++i)
        unit.seen[i] = 0;
}

}  // namespace

void UnitLookEnemies() {
    Unit& looker = UnitTable[curUnit];
    looker.perception = SightPerception;
    const EnemyCells enemies(looker.enemyTeam);
    CastFan(looker.facing, looker.cellX, looker.cellY, [&](int x, int y) {
        if (!InField(x, y)) return false;
        if (enemies.Any(x, y)) enemies.Note(looker, x, y);
        return LetsViewThrough(cellGrid[y][x]);
    });
    TheAudience().ShowNow();
}

bool aiSeeCheck() {
    UnitLookEnemies();
    return enemyCount >= 1;
}

void EnemyCounter(std::string_view command) {
    if (command == "clear") ClearCounter(UnitTable[curUnit]);
    if (command == "add") ++enemyCount;
    if (command == "show" && enemyCount >= 1) TheAudience().EnemiesCounted();
}

void ScrollToUnit(int unit) {
    TheAudience().UnitBroughtIntoView(unit);
    FlashSelection(unit);
}
