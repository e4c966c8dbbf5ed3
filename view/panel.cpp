#include "view/panel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>

#include "data/weapons_file.h"
#include "platform/blit.h"
#include "platform/picture_file.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/overlays.h"
#include "view/slots.h"
#include "view/stored_pictures.h"
#include "view/typewriter.h"

namespace {

enum Bar { TimeBar, EnergyBar, HealthBar, AccuracyBar };

void ShowBar(Bar bar, int value, const std::string& what) {
    frmField.imgBar[bar].Width = value;
    frmField.imgBar[bar].ToolTipText = what + ": " + std::to_string(value);
    BarDigits(bar, value);
}

// A number as the column's tips write it: a blank stands where a minus would.
std::string Signed(int number) {
    return (number < 0 ? "" : " ") + std::to_string(number);
}

void ShowDurability(const Unit& unit) {
    constexpr double Scale = 1000;
    constexpr int ColumnHeight = 40;
    constexpr int ColumnTop = 32;
    constexpr int BandHeight = 10;  // of the column, for each colour
    constexpr int BandPercent = 25;
    constexpr int HighestBand = 75;
    const int max = WeaponInfoByName(unit.hand.name).durab;
    const int current = unit.hand.durab > max ? max : static_cast<int>(unit.hand.durab);
    const int percent = static_cast<int>(std::floor(current / Scale * 100));
    const int fill = static_cast<int>(std::floor(current / Scale * ColumnHeight));
    const int maxFill = static_cast<int>(std::floor(max / Scale * ColumnHeight));
    const int band = std::min(FloorDivide(fill, BandHeight) * BandPercent, HighestBand);

    frmField.imgBarWcover.Height = ColumnHeight - maxFill;
    frmField.imgBarWcover.Top = ColumnTop;
    LoadPicture(frmField.imgBarWcolor, "\\pic\\wea_" + std::to_string(band) + ".gif");
    frmField.imgBarWcolor.Height = fill;
    frmField.imgBarWcolor.Top = ColumnTop + ColumnHeight - fill;
    frmField.imgBarWcolor.Visible = current != 0;
    frmField.imgBarWcover.ToolTipText = "durability max: " + Signed(max);
    frmField.imgBarWcolor.ToolTipText = "current durability: " + Signed(current);
    frmField.imgBarWunder.ToolTipText = Signed(percent) + "% of durability";
}

// The cells of the stored strip of digits, ten to a bar.
PictureRef DigitCell(int cell) {
    constexpr int Cells = 40;
    static const auto cells = [] {
        constexpr int CellWidth = 5;
        constexpr int CellHeight = 6;
        constexpr int Columns = 10;
        Array<PictureRef, 0, Cells - 1> cut;
        for (int i = 0; i < Cells; ++i) {
            auto digit = std::make_shared<Picture>(CellWidth, CellHeight);
            BitBlt(*digit, 0, 0, CellWidth, CellHeight, StoredPicture("picBarDigits.bmp"),
                   i % Columns * CellWidth, i / Columns * CellHeight, RasterOp::SRCCOPY);
            cut[i] = digit;
        }
        return cut;
    }();
    return cells[cell];
}

}  // namespace

void ShowFigures(std::string_view what) {
    const Unit& unit = UnitTable[curUnit];
    const bool all = what.empty();
    if (all || what == "stance") ShowBar(AccuracyBar, unit.aimChance, "accuracy");
    if (all || what == "time") ShowBar(TimeBar, unit.time, "time");
    if (all || what == "energy") ShowBar(EnergyBar, unit.energy, "energy");
    if (all || what == "health") ShowBar(HealthBar, unit.health, "health");
    if (what == "durab") ShowDurability(unit);
}

void RedrawPanel() {
    const Unit& unit = UnitTable[curUnit];
    ShowModes();
    ShowWeaponBox(unit.handRounds);
    ShowSlot(0, frmField);
    ShowMakersFlag(unit.hand);
    if (!HasPanel(curUnit)) return;
    ShowFigures("");
    ShowFigures("durab");
    ShowStance(unit.stance);
}

void ShowFiring() {
    ImageControl& image = frmField.imgStop;
    const bool moving = fireInMotion;
    image.ToolTipText = moving ? "fire in motion" : "stop for fire";
    LoadPicture(image, std::string("\\pic\\stance4") + (moving ? "on" : "off") + ".gif");
}

void ShowEnemyCount() {
    const int count = enemyCount;
    ImageControl& counter = frmField.imgEnemyCount;
    counter.Visible = count > 0;
    if (count == 0) return;
    LoadPicture(counter, "\\pic\\counter\\" + TwoDigits(count) + ".bmp");
    counter.ToolTipText = std::to_string(count) + (count == 1 ? " enemy" : " enemies") + " sighted";
}

void AddToList(const std::string& line) {
    frmField.cmbLog.Text = line;
    frmField.cmbLog.List.push_back(line);
}

void ShowModes() {
    frmField.comboMode.List = fireModes.offered;
    frmField.comboMode.ListIndex = fireModes.chosen;
    frmField.comboMode.Text = fireModes.Text();
}

void BarDigits(int bar, int value) {
    constexpr int FirstDigit = 4;
    constexpr int DigitsOfBar = 3;
    const int cell = bar * 10;
    const int digit = FirstDigit + bar * DigitsOfBar;
    const int hundreds = FloorDivide(value, 100);
    const int tens = FloorDivide(value - hundreds * 100, 10);
    frmField.imgBar[digit].Picture = DigitCell(cell + hundreds);
    frmField.imgBar[digit + 1].Picture = DigitCell(cell + tens);
    frmField.imgBar[digit + 2].Picture = DigitCell(cell + value - hundreds * 100 - tens * 10);
}

void ShowStance(int stance) {
    for (int i = 0; i <= frmField.imgStance.Upper; ++i)
        LoadPicture(frmField.imgStance[i],
                    "\\pic\\stance" + std::to_string(i) + (i == stance ? "on" : "off") + ".gif");
}

void ShowWeaponBox(int rounds) {
    constexpr int RoundsLeft = 90;
    constexpr int RoundsTop = 24;
    constexpr bool WithShadow = true;
    Picture& box = frmField.picBarWeapon.canvas;
    box = *ReadPictureFile("\\pic\\weapon.gif");
    if (rounds > 0) Typewriter(std::to_string(rounds), WithShadow, box, RoundsLeft, RoundsTop);
}
