#include "catalogue/pictures.h"

#include <utility>

#include "badges/chevrons.h"
#include "badges/flags.h"
#include "badges/medals.h"
#include "kit/canvas.h"
#include "panel/digits.h"
#include "panel/dossier_sheet.h"
#include "panel/emblem.h"
#include "panel/file_buttons.h"
#include "panel/panel.h"
#include "panel/progress_picture.h"
#include "panel/slate.h"
#include "panel/stance_buttons.h"
#include "panel/typewriter_glyphs.h"
#include "things/inventory_pictures.h"
#include "tiles/overlays.h"

namespace art {
namespace {

constexpr int TerrainClasses = 13;
constexpr int ForestColumns = 22;
constexpr int Portraits = 12;

// Pictures of one size and kind; in the pattern "*" stands for the drawing's name.
struct Family {
    std::string pattern;
    int width, height;
    Kind kind;
    Palette palette;
    std::string source;
    Drawings drawings;
};

Drawings One(std::function<QImage()> draw) {
    return {{.name = "", .draw = Alone(std::move(draw))}};
}

Drawings PartOf(const char* whole, QImage (*part)(const QImage&)) {
    return {
        {.name = "", .draw = [=](const Pictures& pictures) { return part(pictures(whole)); }, .of = {whole}}};
}

// Pictures that are kept as hand files.
Drawings Kept() {
    return {{.name = "", .draw = {}}};
}

Drawings KeptFaces() {
    Drawings drawings;
    for (int face = 1; face <= Portraits; ++face)
        drawings.push_back({.name = TwoDigits(face), .draw = {}});
    return drawings;
}

template <typename Number>
Drawings Numbered(int first, int last, QImage (*draw)(Number), std::string (*name)(int)) {
    Drawings drawings;
    for (int number = first; number <= last; ++number)
        drawings.push_back({.name = name(number),
                            .draw = Alone([=] { return draw(static_cast<Number>(number)); }),
                            .note = "number " + std::to_string(number)});
    return drawings;
}

std::string Digits(int number) {
    return std::to_string(number);
}

Drawings ForestTops() {
    Drawings drawings;
    for (int column = 0; column < ForestColumns; ++column)
        drawings.push_back({.name = TwoDigits(column),
                            .draw =
                                [=](const Pictures& pictures) {
                                    return CellOf(pictures("stored/picForest.bmp"), column, 0);
                                },
                            .note = "column " + std::to_string(column),
                            .of = {"stored/picForest.bmp"}});
    return drawings;
}

Drawings StanceDrawings() {
    Drawings drawings;
    for (int button = 0; button < StanceButtons; ++button) {
        for (const bool lit : {false, true})
            drawings.push_back({.name = std::to_string(button) + (lit ? "on" : "off"),
                                .draw = Alone([=] { return StanceButton(button, lit); }),
                                .note = "button " + std::to_string(button) + (lit ? ", lit" : "")});
    }
    return drawings;
}

Drawings DurabilityDrawings() {
    Drawings drawings;
    for (std::size_t band = 0; band < DurabilityBands.size(); ++band)
        drawings.push_back({.name = std::to_string(DurabilityBands[band]),
                            .draw = Alone([=] { return DurabilityFill(band); }),
                            .note = "band " + std::to_string(band)});
    return drawings;
}

std::vector<Family> FieldFamilies() {
    using enum Kind;
    using enum Palette;
    constexpr int Across = 32 * CellSize;
    constexpr int Down = 8 * CellSize;
    return {
        // clang-format off
        {"stored/picMap.bmp",     Across, Across,                     Opaque,     Field, "", Kept()},
        {"stored/picForest.bmp",  ForestColumns * CellSize, CellSize, MasksBelow, Field, "", Kept()},
        {"stored/picPeople.bmp",  Across, Down,                       MasksBelow, Field, "", Kept()},
        {"stored/picSprites.bmp", Across, Down,                       MasksBelow, Field, "", Kept()},
        {"pic/forest/*.gif", CellSize, CellSize, Clear, Field, "kit/canvas.cpp:CellOf",       ForestTops()},
        {"pic/blowup/*.gif", 60, 60,             Clear, Field, "tiles/overlays.cpp:BlowupFrame",
         Numbered(1, OverlayFrames, BlowupFrame, TwoDigits)},
        {"pic/target/*.gif", CellSize, CellSize, Clear, Field, "tiles/overlays.cpp:TargetFrame",
         Numbered(1, OverlayFrames, TargetFrame, TwoDigits)},
        // clang-format on
    };
}

std::vector<Family> PanelFamilies() {
    using enum Kind;
    using enum Palette;
    constexpr auto Lower = "stored/picSlateD.bmp";
    return {
        // clang-format off
        {Lower,                        801, 200, Indexed, Whole, "panel/panel.cpp:Panel",       One(Panel)},
        {"stored/imgBars.gif",         210, 31,  Opaque, Whole, "panel/panel.cpp:BarsFrame",    PartOf(Lower, BarsFrame)},
        {"stored/picBarWeapon.bmp",    117, 42,  Opaque, Whole, "panel/panel.cpp:WeaponBoard",  PartOf(Lower, WeaponBoard)},
        {"pic/weapon.gif",             117, 42,  Opaque, Whole, "panel/panel.cpp:WeaponBoard",  PartOf(Lower, WeaponBoard)},
        {"stored/imgBarWunder.bmp",    5,   42,  Opaque, Whole, "panel/panel.cpp:ColumnFrame",  PartOf(Lower, ColumnFrame)},
        {"stored/imgBarWcover.bmp",    3,   40,  Opaque, Whole, "panel/digits.cpp:DurabilityCover", One(DurabilityCover)},
        {"pic/wea_*.gif",              3,   40,  Opaque, Whole, "panel/digits.cpp:DurabilityFill",  DurabilityDrawings()},
        {"stored/picBarDigits.bmp",    50,  24,  Opaque, Whole, "panel/digits.cpp:BarDigits",   One(BarDigits)},
        {"stored/imgBar*.bmp",         135, 3,   Opaque, Whole, "panel/digits.cpp:BarStrip",    Numbered(0, BarCount - 1, BarStrip, Digits)},
        {"pic/counter/*.bmp",          25,  19,  Opaque, Whole, "panel/digits.cpp:EnemyCounter", Numbered(1, 20, EnemyCounter, TwoDigits)},
        {"pic/stance*.gif",            32,  25,  Opaque, Whole, "panel/stance_buttons.cpp:StanceButton", StanceDrawings()},
        {"stored/picSlateU.bmp",       801, 10,  Opaque, Whole, "panel/slate.cpp:UpperFrame",   One(UpperFrame)},
        {"stored/picSlateR.bmp",       20,  470, Opaque, Whole, "panel/slate.cpp:RightFrame",   One(RightFrame)},
        {"stored/picSlateL.bmp",       20,  470, Opaque, Whole, "panel/slate.cpp:LeftFrame",    One(LeftFrame)},
        {"stored/picSlateStripes.bmp", 801, 12,  Opaque, Whole, "panel/slate.cpp:Stripes",      One(Stripes)},
        {"stored/imgMarkH.gif",        20,  10,  Clear,  Whole, "panel/slate.cpp:ColumnMark",   One(ColumnMark)},
        {"stored/imgMarkV.gif",        10,  20,  Clear,  Whole, "panel/slate.cpp:RowMark",      One(RowMark)},
        {"stored/imgProgress.gif",     529, 67,  Opaque, Whole, "panel/progress_picture.cpp:ProgressPicture", One(ProgressPicture)},
        // clang-format on
    };
}

std::vector<Family> FileFamilies() {
    using enum Kind;
    using enum Palette;
    return {
        // clang-format off
        {"stored/frmInfo.bmp",        760, 640, Opaque,     Whole, "panel/dossier_sheet.cpp:DossierSheet",       One(DossierSheet)},
        {"stored/picScript.bmp",      450, 8,   MasksAbove, Whole, "panel/typewriter_glyphs.cpp:TypewriterStrip", One(TypewriterStrip)},
        {"stored/imgBut*.bmp",        60,  19,  Opaque,     Whole, "panel/file_buttons.cpp:FileButton", Numbered(0, FileButtons - 1, FileButton, Digits)},
        {"stored/Picture2.bmp",       145, 158, Opaque,     Whole, "panel/file_buttons.cpp:InfoPanel",   One(InfoPanel)},
        {"stored/imgDel.gif",         14,  12,  Clear,      Whole, "panel/file_buttons.cpp:DeleteMark",  One(DeleteMark)},
        {"stored/imgAwardBorder.gif", 102, 34,  Clear,      Whole, "panel/file_buttons.cpp:AwardBorder", One(AwardBorder)},
        {"stored/imgUpDn*.gif",       14,  12,  Clear,      Whole, "panel/file_buttons.cpp:FeedArrow",   Numbered(1, 3, FeedArrow, Digits)},
        {"pic/faces/usa*.bmp",        140, 140, Opaque,     Whole, "", KeptFaces()},
        {"pic/chevrons/*.gif",        32,  32,  Clear,      Whole, "badges/chevrons.cpp:Chevron",     ChevronDrawings()},
        {"pic/awards/*.bmp",          105, 41,  Opaque,     Whole, "badges/medals.cpp:AwardPicture",  AwardDrawings()},
        {"pic/flags/*.gif",           18,  12,  Clear,      Whole, "badges/flag_cloth.cpp:Sewn",      FlagDrawings()},
        {"stored/imgFlag.gif",        18,  12,  Clear,      Whole, "badges/flags.cpp:OwnFlag",        One(OwnFlag)},
        {"stored/imgManFlag.gif",     18,  12,  Clear,      Whole, "badges/flags.cpp:OwnFlag",        One(OwnFlag)},
        {"pic/inv/*.gif",             117, 42,  Clear,      Whole, "", LongThings()},
        {"pic/inv/*.gif",             42,  42,  Clear,      Whole, "", SmallThings()},
        {"pic/inv/*.bmp",             142, 192, Opaque,     Whole, "things/inventory_pictures.cpp:PackBoard", PackBoards()},
        // clang-format on
    };
}

std::vector<Family> IconFamilies() {
    std::vector<Family> families;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        families.push_back({"stored/icon" + std::to_string(size) + ".png", size, size, Kind::Clear,
                            Palette::Whole, "panel/emblem.cpp:Icon", One([size] { return Icon(size); })});
    return families;
}

void AddFamilies(std::vector<Entry>& entries, const std::vector<Family>& families) {
    for (const Family& family : families) {
        const std::size_t star = family.pattern.find('*');
        for (const Drawing& drawing : family.drawings) {
            std::string path = family.pattern;
            if (star != std::string::npos) path.replace(star, 1, drawing.name);
            entries.push_back({.path = path,
                               .size = {family.width, family.height},
                               .kind = family.kind,
                               .palette = family.palette,
                               .source = drawing.source.empty() ? family.source : drawing.source,
                               .note = drawing.note,
                               .of = drawing.of,
                               .draw = drawing.draw});
        }
    }
}

}  // namespace

std::vector<Entry> GamePictures() {
    std::vector<Entry> entries;
    AddFamilies(entries, FieldFamilies());
    AddFamilies(entries, PanelFamilies());
    AddFamilies(entries, FileFamilies());
    AddFamilies(entries, IconFamilies());
    entries.front().blackFrom = TerrainClasses * CellSize;  // of picMap, whose other rows no class uses
    return entries;
}

}  // namespace art
