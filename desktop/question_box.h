// A question of the shell's in a box before the active window.
#pragma once

#include "shell/questions.h"

/// Waits for the answer. Closing the box, Esc and Enter say no.
Answer AskInBox(const Question& question);
