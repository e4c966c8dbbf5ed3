// The sheet of a soldier's file: face, rank, name, flag and attributes, typed on the window's background, and
// the small panel with his state in plain words.
#pragma once

#include <string>

#include "platform/controls.h"

struct Unit;

/// The picture of his face, as "\\pic\\faces\\usa01.bmp".
std::string FaceFile(const Unit& unit);

/// Draws the current unit's sheet on frmInfo. Throws RunTimeError for a missing picture.
void FillDossier();

/// Fills lblInv from the current unit.
void FillInfoPanel();

/// A bar of `value` on the form's background, from one pixel right of the pen, one row above `y` to five
/// below it: `value` times 1.5 and 10 pixels long, from yellow to dark.
void StatBar(int value, int y, Form& form);

/// Shows the picture button at rest, with its present face.
void ShowButtonFace();
