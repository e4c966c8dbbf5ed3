// The scroll bars, which move `area` behind its window.
#pragma once

struct ScrollBar;

/// Sets a bar's value and moves the field to it.
void SetScrollValue(ScrollBar& bar, int value);

/// A bar's thumb is being moved to `value`: the field jumps in whole cells.
void ScrollThumb(ScrollBar& bar, int value);
