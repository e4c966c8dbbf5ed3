// A cell made anew, for whoever sets up a field of his own.
#pragma once

/// Gives the cell a tile with the strength and the stops that go with it, and nobody on it.
void PutTile(int x, int y, int tileX, int tileY);
