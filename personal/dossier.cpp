#include "personal/dossier.h"

#include <algorithm>
#include <array>
#include <string>

#include "data/campaign_files.h"
#include "data/countries_file.h"
#include "data/tables.h"
#include "personal/info_form.h"
#include "platform/code_page.h"
#include "platform/rounding.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/overlays.h"
#include "view/sound.h"
#include "view/typewriter.h"

namespace {

constexpr bool WithShadow = true;

// Where the typewriter starts, in pixels of the window.
constexpr int RankLeft = 240;
constexpr int RankTop = 80;
constexpr int AttributesLeft = 440;
constexpr int AttributesTop = 120;

struct Attribute {
    const char* label;
    u8 Unit::*field;
    int barY;
};

// ODDITY: four bars stand out of step with their labels; the one under "INTELLIGENCE" is that of the stealth.
// clang-format off
constexpr std::array<Attribute, 14> Attributes = {{
    // label            field                barY
    {"VITALITY:    ", &Unit::vitality,     135},
    {"STRENGTH:    ", &Unit::strength,     155},
    {"AGILITY:     ", &Unit::agility,      175},
    {"PERCEPTION:  ", &Unit::perception,   195},
    {"INTELLIGENCE:", &Unit::intelligence, 235},
    {"MOOD:        ", &Unit::mood,         275},
    {"MARKSMANSHIP:", &Unit::marksmanship, 255},
    {"STEALTH:     ", &Unit::stealth,      215},
    {"MELEE:       ", &Unit::melee,        295},
    {"SIDEARMS:    ", &Unit::sidearms,     315},
    {"SMGS:        ", &Unit::smgs,         335},
    {"RIFLES:      ", &Unit::rifles,       355},
    {"MACHINEGUNS: ", &Unit::machineguns,  375},
    {"EXPLOSIVES:  ", &Unit::explosives,   395},
}};
// clang-format on

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 'a' - 'A') : letter;
    });
    return text;
}

// The first characters of a name; in the code page each is one byte.
std::string Shortened(const std::string& name) {
    constexpr std::size_t Longest = 26;
    return FromCodePage(ToCodePage(name).substr(0, Longest));
}

void TypeRow(const Attribute& row, int value, int x, int y) {
    Typewriter(row.label, WithShadow, frmInfo.canvas, x, y);
    Typewriter(PadNumber(value), WithShadow, frmInfo.canvas, AtThePen, AtThePen);
    Typewriter("\r\r", WithShadow, frmInfo.canvas, AtThePen, AtThePen);
    StatBar(value, row.barY, frmInfo);
}

void TypeAttributes(const Unit& unit) {
    int x = AttributesLeft;
    int y = AttributesTop;
    for (const Attribute& row : Attributes) {
        TypeRow(row, unit.*row.field, x, y);
        x = y = AtThePen;
    }
}

const char* TeamWord(int team) {
    static constexpr std::array<const char*, 3> Words = {"fighters", "enemies", "civilians"};
    return team >= 0 && team < static_cast<int>(Words.size()) ? Words[static_cast<std::size_t>(team)] : "";
}

}  // namespace

std::string FaceFile(const Unit& unit) {
    const std::string extension = unit.faceType == "b"   ? ".bmp"
                                  : unit.faceType == "j" ? ".jpg"
                                  : unit.faceType == "g" ? ".gif"
                                                         : "";
    return "\\pic\\faces\\" + unit.facePrefix + unit.faceGroup + TwoDigits(unit.faceNo) + extension;
}

void FillDossier() {
    const Unit& unit = UnitTable[curUnit];
    const std::string& rank = rankNames[unit.rank];
    LoadPicture(frmInfo.imgFace, FaceFile(unit));
    Typewriter("  " + rank, WithShadow, frmInfo.canvas, RankLeft, RankTop);
    LoadPicture(frmInfo.imgChevron, "\\pic\\chevrons\\" + Lower(rank) + ".gif");
    frmInfo.imgChevron.ToolTipText = rankNames[unit.rank + LongNames];
    Typewriter("\r\r\r" + Shortened(unit.name), WithShadow, frmInfo.canvas, AtThePen, AtThePen);
    const std::string country = unit.country.substr(0, 2);
    LoadPicture(frmInfo.imgManFlag, "\\pic\\flags\\" + country + ".gif");
    frmInfo.imgManFlag.ToolTipText = CountryName(country);
    TypeAttributes(unit);
}

void FillInfoPanel() {
    const Unit& unit = UnitTable[curUnit];
    const WeaponInfo& hand = unit.hand;
    frmInfo.lblInv.Caption = "name: " + unit.name +                             //
                             "\rteam: " + TeamWord(unit.team) +                 //
                             "\rhealth: " + std::to_string(unit.health) +       //
                             "\rtime: " + std::to_string(unit.time) +           //
                             "\rx: " + std::to_string(unit.cellX) +             //
                             "\ry: " + std::to_string(unit.cellY) +             //
                             "\rori: " + FacingText(unit.facing) +              //
                             "\rweapon: " + hand.name +                         //
                             "\rweapon power: " + std::to_string(hand.power) +  //
                             "\rweapon accur: " + std::to_string(hand.accur);
}

void StatBar(int value, int y, Form& form) {
    constexpr int Steps = 63;
    constexpr int Fall = 4;  // of each colour, a step
    constexpr int RowsAbove = 1;
    constexpr int RowsBelow = 5;
    constexpr double PixelsOfPoint = 1.5;
    constexpr int LengthOfNothing = 10;
    constexpr int Bright = 255;  // red and green at the bar's left end
    constexpr int Blue = 100;
    const int length = static_cast<int>(RoundHalfEven(value * PixelsOfPoint + LengthOfNothing));
    for (int i = 0; i < length; ++i) {
        const int fallen = Fall * (i * Steps / length);
        const Colour colour = Rgb(Bright - fallen, Bright - fallen, std::max(Blue - fallen, 0));
        for (int row = y - RowsAbove; row <= y + RowsBelow; ++row)
            form.canvas.SetPixel(ThePen().x + 1 + i, row, colour);
    }
}

void ShowButtonFace() {
    frmInfo.picB1.canvas = *frmDepot.imgBut[std::stoi(frmInfo.picB1.Tag)].Picture;
}
