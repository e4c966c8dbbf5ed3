// The view of the field: it moves behind its window by whole cells, follows who walks, and shows who is
// selected.
#pragma once

struct ScrollBar;
struct Unit;

/// A bar of the main window came to a value, held within the bar: moves the field, and on a whole cell the
/// mini map's lit window.
void SetScrollValue(ScrollBar& bar, int value);

/// The bar's thumb is over `value`: the field follows in whole cells.
void ScrollThumb(ScrollBar& bar, int value);

/// Centres the view on a pixel of the mini map, as far as the field goes.
void MapClick(int x, int y);

/// Walking away from the middle of the window pulls the view along.
void FollowWalker(const Unit& unit, int dx, int dy);

/// Brings a unit into view and lays the selection's frame on it.
void BringIntoView(int unit);

/// Whether the selection's frame lies where the unit stands.
bool SelectionFrames(const Unit& unit);

/// Moves the two marks on the field's frame to the column and row of the current unit.
void MarkCurrentUnit();
