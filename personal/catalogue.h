// The catalogue of equipment: the arrows step through every thing that there is, and what is stepped to lies
// in the soldier's hand, at no price. A key or arrow that is held steps on by itself, faster and faster.
#pragma once

/// The step that is held down, as arrowCode has it.
enum CatalogueStep { NoStep, PreviousRow, NextRow, PreviousFeed, NextFeed };

/// Does the step of arrowCode: weaponPage goes to the next row and a new thing made from it replaces slot 0,
/// or its feed gets the next size.
void StepCatalogue();

/// An arrow, 1 to 3, is pressed and let go.
void imgUpDn_MouseDown(int arrow);
void imgUpDn_MouseUp();

/// The held step goes on.
void timerArrow_Timer();

/// A key goes down; those of the catalogue step. `shift` as in InputEvent.
void PressCatalogueKey(int code, int shift);

namespace personal {

void Form_KeyUp();

}  // namespace personal
