// The life of the window of a soldier's file: opened over the field, paged through the squad, closed.
#pragma once

/// Opens the current unit's file and returns when it was closed. Paging may have made another unit current.
void OpenInfo();

/// Fills the window from the current unit and makes it visible.
void LoadInfo();

/// Puts everything back where it belongs and takes the window away. False, and nothing done, while the
/// pointer carries something.
bool CloseInfo();

/// Turns to the previous (-1) or next (1) member of the team that is neither dead nor immobile; not while the
/// pointer carries something.
void PageUnit(int step);

/// The picture button: the first click brings the information panel, the second leaves the file.
void picB1_MouseDown();
void picB1_MouseUp();

namespace personal {

/// Enter closes; the catalogue's keys step through it. `shift` as in InputEvent.
void Form_KeyDown(int code, int shift);

}  // namespace personal
