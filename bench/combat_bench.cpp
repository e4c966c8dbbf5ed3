// How long fights take without a window.
#include <benchmark/benchmark.h>

#include <string>

#include "combat/actions.h"
#include "combat/things.h"
#include "state/setup.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

// The first soldier at the west end of a long clear row, with a thing in his hand under a mode of it.
void Prepare(const char* name, const std::string& mode) {
    Main(1);
    for (int x = 10; x < FieldWidth; ++x) {
        cellGrid[24][x] = Cell();
        cellGrid[24][x].occupant = -1;
    }
    curUnit = 0;
    Unit& unit = UnitTable[0];
    unit.cellX = 10;
    unit.cellY = 24;
    unit.pixelX = unit.cellX * CellSize;
    unit.pixelY = unit.cellY * CellSize;
    unit.items[0] = InvItem();
    unit.items[0].name = name;
    unit.items[0].count = 1;
    RefreshHand();
    for (std::size_t i = 0; i < frmField.comboMode.List.size(); ++i)
        if (frmField.comboMode.List[i] == mode) ChooseMode(static_cast<int>(i));
}

void Fire(int cells) {
    Unit& unit = UnitTable[0];
    unit.time = 900;
    unit.handRounds = 200;
    unit.hand.durab = 900;
    unit.items[0].roundsMain = unit.items[0].roundsSecond = 200;
    frmField.cmbLog.List.clear();
    ActOnTarget(unit.pixelX + cells * CellSize, unit.pixelY + HalfCell);
}

void FullAutoOver40Cells(benchmark::State& state) {
    Prepare("m249", "Full auto");
    for (auto _ : state)
        Fire(40);
}
BENCHMARK(FullAutoOver40Cells)->Unit(benchmark::kMicrosecond);

void ShotgunBlast(benchmark::State& state) {
    Prepare("spas", "Aimed shot");
    for (auto _ : state)
        Fire(10);
}
BENCHMARK(ShotgunBlast)->Unit(benchmark::kMicrosecond);

void Grenade(benchmark::State& state) {
    Prepare("mm1", "Aimed shot");
    for (auto _ : state)
        Fire(10);
}
BENCHMARK(Grenade)->Unit(benchmark::kMicrosecond);

}  // namespace
