// The computer player: one short fixed routine for each of its units, without plan or memory. It goes through
// the same orders as the player's soldiers and pays the same prices, but for a free refill and free sweeps of
// its sight.
#pragma once

/// The whole turn of the current unit.
void AiAct();

// Its parts, each on the current unit.
void AiReload();       // the free refill of the clip
void AiReserveTime();  // works out the time to hold back for the shot
void AiAdvance();      // walks up to four steps toward the target
void AiGoProne();
void AiStandUp();     // up to a run
void AiFire();        // turns to the target and acts on it
void AiLookAround();  // a free sweep through the facings, until an enemy is in sight
void AiRandomTurn();  // picks a facing and walks five steps
