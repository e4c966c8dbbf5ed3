// Scrolling: the field moves behind its window by whole cells.
#pragma once

struct ScrollBar;

constexpr int ViewLeft = 20;  // where the field is seen on the window, and stands when nothing is scrolled
constexpr int ViewTop = 10;

/// A bar of the main window came to a value, held within the bar: moves the field, and on a whole cell the
/// mini map's lit window.
void SetScrollValue(ScrollBar& bar, int value);

/// The bar's thumb is over `value`: the field follows in whole cells.
void ScrollThumb(ScrollBar& bar, int value);
