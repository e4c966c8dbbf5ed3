// The pictures of things in the slots of the windows: the one in hand on the panel, all on a soldier's file.
#pragma once

struct Form;
struct WeaponInfo;

/// Shows a slot of the current unit in the form's control imgInv of that place, which must exist unless the
/// slot is off the form. Throws RunTimeError for a missing picture.
void ShowSlot(int slot, Form& form);

/// Fits the width of that control to its thing: long things fill a long place, small ones stand in its
/// middle.
void FitSlot(int slot, Form& form);

/// Shows on the panel the flag of who made a weapon.
void ShowMakersFlag(const WeaponInfo& hand);
