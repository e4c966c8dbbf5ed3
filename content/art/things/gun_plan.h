// What the parts of one gun share: where they lie and what they are made of.
#pragma once

#include "kit/relief.h"
#include "things/guns.h"

namespace art {

// Heights count downward from the top of the picture, lengths from its left.
struct Plan {
    const Gun& gun;
    double bore;     // height of the barrel's middle
    double buttEnd;  // the gun's left end
    double body, guard, barrel, end;

    double Grip() const { return body + gun.body * (gun.stock == Stock::Bullpup ? 0.55 : 0.16); }
    double Well() const {
        if (gun.stock == Stock::Bullpup) return buttEnd + gun.butt * 0.62;
        return gun.feed == Feed::Grip ? Grip() : body + gun.body * 0.68;
    }
    bool Has(Part part) const { return (gun.parts & part) != 0; }
};

Solid Metal(Ink ink, float height = 1.8f, float base = 0);
Solid Furniture(Ink ink, float height = 2.2f, float base = 0);

// Whether the stock has the grip in itself, so that none hangs below the body.
bool GripInStock(Stock stock);

void LayStock(Relief& relief, const Plan& plan);

// The gun's own details, on top of everything else.
void LayParts(Relief& relief, const Plan& plan);

}  // namespace art
