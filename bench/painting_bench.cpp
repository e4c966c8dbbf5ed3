// How long painting and setting up take.
#include <benchmark/benchmark.h>

#include "data/map.h"
#include "state/setup.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/painting.h"
#include "view/unit_painting.h"

namespace {

void NewGameHeadless(benchmark::State& state) {
    for (auto _ : state)
        Main(1);
}
BENCHMARK(NewGameHeadless)->Unit(benchmark::kMillisecond);

void PaintWholeMap(benchmark::State& state) {
    Main(1);
    fieldBusy = True;
    for (auto _ : state)
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                PaintCell(x, y, frmField.area.canvas);
    fieldBusy = False;
}
BENCHMARK(PaintWholeMap)->Unit(benchmark::kMillisecond);

void RepaintCell(benchmark::State& state) {
    Main(1);
    for (auto _ : state)
        PaintCell(40, 20, frmField.area.canvas);
}
BENCHMARK(RepaintCell);

// One frame of a soldier drawn in place; a step is twenty of them.
void PaintUnitFrame(benchmark::State& state) {
    Main(1);
    for (auto _ : state)
        PaintUnit(0, 0);
}
BENCHMARK(PaintUnitFrame);

}  // namespace
