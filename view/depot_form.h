// Two windows that are never shown: the depot, which keeps the sheets that everything is painted from, and
// the mini map's own.
#pragma once

#include "platform/controls.h"

struct DepotForm : Form {
    DepotForm();

    PictureBox picScript;               // glyphs of the typewriter, masks above colours
    PictureBox picSprites;              // small sprites, 32 a row, their masks 160 pixels below
    PictureBox picPeople;               // soldiers, masks likewise
    PictureBox picMap;                  // terrain tiles
    Array<ImageControl, 0, 15> imgBut;  // button faces: even ones at rest, odd ones pressed
};

struct MiniMapForm : Form {
    MiniMapForm();

    PictureBox Picture1;
};

extern DepotForm frmDepot;
extern MiniMapForm frmMiniMap;
