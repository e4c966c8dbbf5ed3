#include "things/pistols.h"

#include <cmath>

#include "kit/shapes.h"
#include "things/piece.h"

namespace art {

const std::vector<Pistol>& Pistols() {
    using enum Ink;
    static const std::vector<Pistol> table = {
        // name      feed     slide barrel grip rake  slim   metal    plates
        {"luger", "", 20, 12, 18, 6.5, true, Slate, Timber},
        {"lahti", "", 21, 11, 18, 5.5, true, Slate, Iron},
        {"glock17", "9para", 30, 1, 17, 3.5, false, Asphalt, Iron},
        {"glock18", "9para", 30, 3, 17, 3.5, false, Asphalt, Iron},
        {"p226", "9para", 31, 1, 18, 3, false, Slate, Iron},
        {"m9", "9para", 31, 3, 18, 3, false, Slate, Asphalt},
        {"usp", "9para", 32, 1, 18, 2.5, false, Asphalt, Asphalt},
        {"hipower", "9para", 31, 1, 18, 3, false, Slate, Bark},
        {"cz75", "9para", 32, 1, 18, 3.6, false, Ash, Bark},
        {"fn57", "57fn", 33, 1, 18, 2.4, false, Asphalt, Slate},
    };
    return table;
}

void LayPistol(Relief& relief, const Pistol& pistol, int capacity) {
    const double x = (42 - pistol.slide - pistol.barrel) / 2;
    constexpr double Top = 9;
    const double gripTop = Top + 9;
    const double grip = x + 3.4;
    if (capacity > 0) {
        const double drop = capacity > 17 ? std::sqrt(capacity) * 1.1 : 1.6;
        relief.Lay(Polygon({{grip + 1 - pistol.rake, gripTop + 6},
                            {grip + 8 - pistol.rake, gripTop + 6},
                            {grip + 8 - pistol.rake * 1.2, gripTop + pistol.grip + drop},
                            {grip + 0.6 - pistol.rake * 1.2, gripTop + pistol.grip + drop}}),
                   Piece(Ink::Ash, 1.2f));
    }
    relief.Lay(Polygon({{grip - 1, gripTop - 3},
                        {grip + 10, gripTop - 3},
                        {grip + 9.4 - pistol.rake, gripTop + pistol.grip},
                        {grip - 0.6 - pistol.rake, gripTop + pistol.grip}}),
               Piece(pistol.plates, 2.2f, 0, 2.6f));
    for (const double y : Steps(gripTop + 3, gripTop + pistol.grip - 2, 2))
        relief.StainLine(Trace({{grip + 1 - pistol.rake * 0.6, y}, {grip + 7 - pistol.rake * 0.6, y}}), 0.7,
                         Colour(Ink::Soot), 0.5);
    QPainterPath bow(QPointF(grip + 9, gripTop - 1));
    bow.lineTo(grip + 10, gripTop + 5);
    bow.lineTo(grip + 16, gripTop + 5);
    bow.lineTo(grip + 17.4, gripTop - 1);
    relief.LayLine(bow, 1.4, Piece(pistol.metal, 1));
    relief.LayLine(Trace({{grip + 13, gripTop}, {grip + 12.4, gripTop + 3.4}}), 1, Piece(Ink::Ash, 1));
    relief.Lay(Rect(x + 1, Top + 5, pistol.slide - 2, 4.6, 1),
               Piece(pistol.plates == Ink::Iron ? Ink::Iron : pistol.metal, 2));
    if (pistol.slim)
        relief.Lay(Rect(x + pistol.slide - 2, Top + 1.4, pistol.barrel + 2, 3, 1), Piece(pistol.metal, 2));
    relief.Lay(Rect(x, Top, pistol.slide + (pistol.slim ? 0 : pistol.barrel * 0.4), 6.4, 1),
               Piece(pistol.metal, 2.6f));
    if (!pistol.slim)
        relief.Lay(Rect(x + pistol.slide, Top + 1.6, pistol.barrel, 2.6), Piece(Ink::Ash, 1.4f));
    for (const double at : {2.0, 4.0, 6.0})
        relief.StainLine(Trace({{x + at, Top + 0.8}, {x + at, Top + 5.4}}), 0.8, Colour(Ink::Soot), 0.8);
    relief.Stain(Rect(x + pistol.slide * 0.48, Top + 0.8, 6, 2.2), Colour(Ink::Soot), 0.9);
    relief.Lay(Rect(x + pistol.slide - 3, Top - 1.4, 2, 2), Piece(pistol.metal, 2));
}

}  // namespace art
