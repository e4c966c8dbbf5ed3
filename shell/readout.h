// The read-out on the main window, over the emblem, as a form of its own: who is selected, the turn, and what
// an order under the pointer would come to. It only reads the game, and no event comes from it.
#pragma once

#include "platform/controls.h"
#include "shell/readout_words.h"

struct ReadoutForm : Form {
    ReadoutForm();

    ImageControl imgFace;
    Label lblName;
    Label lblTurn;
    Label lblHand;
    Array<Label, 0, 3> lblLine;
};

/// Shows the soldier, who may be none (-1), and the lines, as many as there is room for.
void FillReadout(ReadoutForm& readout, int soldier, const std::vector<ReadoutLine>& lines);
