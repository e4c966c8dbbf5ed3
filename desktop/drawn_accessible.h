// What the game draws itself, for screen readers and other helps: the pictures that a person presses are
// buttons that can be pressed, and the field is a canvas.
#pragma once

/// From now on such widgets are described so. May be called again.
void NameDrawnControls();
