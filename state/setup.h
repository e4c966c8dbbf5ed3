// From the start of the program to the first turn: start values, tables, the one fixed mission, landing.
#pragma once

#include <cstdint>
#include <string_view>

/// The program's entry: puts everything to its start and shows the main window, which sets up and begins a
/// mission. The generator is seeded from the system's timer. Throws RunTimeError.
void Main();

/// The same with a seed of the caller's: a run is its seed and its events.
void Main(std::uint32_t seed);

/// What the main window does when it is loaded.
void Form_Load(std::uint32_t seed);

/// Sets up the fixed mission: reads its files, lands both teams and starts the first turn.
void NewGame();

/// Puts a unit on the field where its team lands. Where no cell is found it stays unlanded.
void LandUnit(int index);

/// A cell of the field, (-1, -1) for none.
struct LandingCell {
    int x = -1;
    int y = -1;
};

/// A cell by `method`: "corner" the first free one from the top left, "random" any free one, "xxx" one of the
/// map's landing spots, which is then used up, or a random one when none is left. Any other word gives none.
LandingCell FindLandingCell(std::string_view method);

/// The medals that the first two soldiers bring.
void GrantStartingAwards();
