#include "tools/lab/field_referee.h"

#include <algorithm>
#include <cstddef>

#include "field/geometry.h"
#include "field/moving.h"
#include "state/state.h"
#include "tools/lab/cell_looks.h"
#include "view/field_form.h"
#include "view/unit_painting.h"

namespace {

std::size_t PlaceOf(int x, int y) {
    return static_cast<std::size_t>(y) * FieldWidth + static_cast<std::size_t>(x);
}

void Mix(int& key, int value) {
    key = static_cast<int>(static_cast<unsigned>(key) * 31U + static_cast<unsigned>(value));
}

// What decides a cell's look, as one number.
std::vector<int> Keys() {
    std::vector<int> keys(std::size_t{FieldWidth} * FieldHeight);
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x) {
            int& key = keys[PlaceOf(x, y)];
            Mix(key, cellGrid[y][x].tileX);
            Mix(key, cellGrid[y][x].tileY);
            Mix(key, cellGrid[y][x].occupant);
        }
    }
    const auto note = [&keys](int index, int value) {
        const Unit& unit = UnitTable[index];
        if (InField(unit.cellX, unit.cellY)) Mix(keys[PlaceOf(unit.cellX, unit.cellY)], value);
    };
    for (int i = 0; i < UnitPlaces; ++i) {
        const Unit& unit = UnitTable[i];
        const bool visible = ThisVisible(unit.cellX, unit.cellY);
        note(i, ((unit.status * 8 + unit.facing) * 4 + unit.stance) * 2 + (visible ? 1 : 0));
    }
    for (int i = ChargeBase; i <= ChargeBase + teamLast[ChargeList]; ++i)
        note(i, 1);
    for (int i = PileBase; i <= PileBase + teamLast[PileList]; ++i)
        note(i, 2);
    return keys;
}

bool IsOneOf(const Picture& square, const std::vector<Picture>& looks) {
    return std::any_of(looks.begin(), looks.end(),
                       [&square](const Picture& look) { return look.SameAs(square); });
}

std::string LookAt(int x, int y) {
    const std::string cell = "the cell " + std::to_string(x) + "," + std::to_string(y);
    const int occupant = cellGrid[y][x].occupant;
    if (!IsOneOf(SquareOf(frmField.area.canvas, x, y), CellLooks(x, y)))
        return cell + (occupant < 0 ? " doesn't show what is there" : " doesn't show " + LogName(occupant));
    const bool keepsGround = occupant >= 0 && occupant < UnitPlaces;
    if (keepsGround && !IsOneOf(frmField.picBuffer[occupant], BareLooks(x, y)))
        return cell + " has another ground under " + LogName(occupant);
    return "";
}

}  // namespace

std::string FieldReferee::Look(const Rectangle& changed) {
    std::vector<int> keys = Keys();
    known.resize(keys.size());
    std::string found;
    for (int y = 0; y < FieldHeight && found.empty(); ++y) {
        for (int x = 0; x < FieldWidth && found.empty(); ++x) {
            const Rectangle square{x * CellSize, y * CellSize, CellSize, CellSize};
            if (keys[PlaceOf(x, y)] != known[PlaceOf(x, y)] || !Common(square, changed).Empty())
                found = LookAt(x, y);
        }
    }
    known = std::move(keys);
    return found;
}
