// From start values and tables to the first turn: the one fixed mission, its teams and their landing.
#pragma once

#include <cstdint>
#include <string_view>

/// Puts everything to its start, and sets up and begins the mission: a run is its seed and its events. The
/// audience must have been installed. Throws RunTimeError.
void BeginGame(std::uint32_t seed);

/// Lets the lower rooms reach the higher rules. BeginGame does it too.
void InstallRules();

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
