#include "field/sightings.h"

#include <algorithm>
#include <bitset>
#include <cstdlib>

#include "field/geometry.h"
#include "field/sight.h"
#include "state/audience.h"
#include "state/pace.h"
#include "state/state.h"

namespace {

// The enemies whom a look may bring into the looker's record: living, not in it yet, and where its fan may
// reach. Most looks find none, and cast no fan.
class Candidates {
  public:
    explicit Candidates(const Unit& looker) : first(FirstOf(looker.enemyTeam)) {
        for (int place = 0; place <= teamLast[looker.enemyTeam]; ++place) {
            const Unit& enemy = UnitTable[first + place];
            if (enemy.status == Dead || looker.seen[place] != 0 || !MayReach(looker, enemy)) continue;
            occupied[Place(enemy.cellX, enemy.cellY)] = true;
            ++left;
        }
    }

    bool Any() const { return left > 0; }
    bool Any(int x, int y) const { return occupied[Place(x, y)]; }

    // Notes those on a cell in the looker's record.
    void Note(Unit& looker, int x, int y) {
        for (int place = 0; place <= teamLast[looker.enemyTeam]; ++place) {
            const Unit& enemy = UnitTable[first + place];
            if (enemy.status == Dead || enemy.cellX != x || enemy.cellY != y) continue;
            i16& seen = looker.seen[place];
            if (seen != 0) continue;
            seen = 1;
            --left;
            TheAudience().UnitSighted(x, y);
            EnemyCounter("add");
            EnemyCounter("show");
        }
    }

  private:
    // Within the fan's reach, and not behind the looker; a cell more to all sides for what is rounded.
    static bool MayReach(const Unit& looker, const Unit& enemy) {
        const int dx = enemy.cellX - looker.cellX;
        const int dy = enemy.cellY - looker.cellY;
        if (!InField(enemy.cellX, enemy.cellY)) return false;
        if (std::max(std::abs(dx), std::abs(dy)) > SightReach + 1) return false;
        const FacingWay way = WayOf(looker.facing);
        return dx * way.dx + dy * way.dy >= -2;
    }

    static std::size_t Place(int x, int y) {
        return static_cast<std::size_t>(y) * FieldWidth + static_cast<std::size_t>(x);
    }

    int first;
    int left = 0;
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
    if (Candidates enemies(looker); enemies.Any()) {
        CastFan(looker.facing, looker.cellX, looker.cellY, [&](int x, int y) {
            if (!InField(x, y)) return false;
            if (enemies.Any(x, y)) enemies.Note(looker, x, y);
            return LetsViewThrough(cellGrid[y][x]);
        });
    }
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
