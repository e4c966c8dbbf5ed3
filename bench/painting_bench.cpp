// How long painting and setting up take.
#include <benchmark/benchmark.h>

#include "bench/stage.h"
#include "field/moving.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"
#include "view/painting.h"
#include "view/unit_painting.h"

namespace {

void NewGameQuiet(benchmark::State& state) {
    for (auto _ : state)
        StartGame();
}
BENCHMARK(NewGameQuiet)->Unit(benchmark::kMillisecond);

void NewGameShown(benchmark::State& state) {
    for (auto _ : state)
        StartShownGame();
}
BENCHMARK(NewGameShown)->Unit(benchmark::kMillisecond);

void PaintWholeMap(benchmark::State& state) {
    StartShownGame();
    frmField.mapIsPainted = true;
    for (auto _ : state)
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                PaintCell(x, y, frmField.area.canvas);
    frmField.mapIsPainted = false;
}
BENCHMARK(PaintWholeMap)->Unit(benchmark::kMillisecond);

void RepaintCell(benchmark::State& state) {
    StartShownGame();
    for (auto _ : state)
        PaintCell(40, 20, frmField.area.canvas);
}
BENCHMARK(RepaintCell);

void MiniMapOfWholeField(benchmark::State& state) {
    StartShownGame();
    for (auto _ : state)
        picStretch(frmField.area.canvas, frmField.picAreaMap.canvas, MiniMapRatio);
}
BENCHMARK(MiniMapOfWholeField)->Unit(benchmark::kMillisecond);

void MiniMapCell(benchmark::State& state) {
    StartShownGame();
    for (auto _ : state)
        picStretchSquare(frmField, 40, 20);
}
BENCHMARK(MiniMapCell);

// One frame of a soldier drawn in place; a step is twenty of them.
void PaintUnitFrame(benchmark::State& state) {
    StartShownGame();
    for (auto _ : state)
        PaintUnit(0, 0);
}
BENCHMARK(PaintUnitFrame);

}  // namespace
