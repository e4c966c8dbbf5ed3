// Who has sighted whom, and what the main window shows of it.
#pragma once

/// Moves the two marks on the field's frame to the column and row of the current unit.
void MarkCurrentUnit();
