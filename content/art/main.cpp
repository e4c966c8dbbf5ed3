// Draws every picture of the game into a folder: stored/ is built into the program, pic/ stands beside it,
// sheets/ is for looking.
#include <cstdlib>
#include <future>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "badges/chevrons.h"
#include "badges/flags.h"
#include "badges/medals.h"
#include "kit/canvas.h"
#include "kit/contact_sheets.h"
#include "kit/picture_writer.h"
#include "panel/digits.h"
#include "panel/dossier_sheet.h"
#include "panel/emblem.h"
#include "panel/file_buttons.h"
#include "panel/mock_file.h"
#include "panel/panel.h"
#include "panel/progress_picture.h"
#include "panel/slate.h"
#include "panel/stance_buttons.h"
#include "panel/typewriter_glyphs.h"
#include "people/people.h"
#include "people/sprites.h"
#include "portraits/portraits.h"
#include "things/inventory_pictures.h"
#include "tiles/mock_field.h"
#include "tiles/overlays.h"
#include "tiles/tile_rows.h"
#include "tiles/tile_sheet.h"

namespace art {
namespace {

void WriteField(const PictureWriter& writer, const QImage& panel) {
    const TreePictures trees = DrawTrees();
    const TileRow& tops = trees.tops;
    const std::vector<TileClass> classes = AllTileClasses(trees.tiles);
    const QImage& grass = classes.front().tiles.front();
    writer.Write("stored/picMap.bmp", TileSheet(classes));
    writer.Write("stored/picForest.bmp", ForestSheet(tops));
    for (std::size_t i = 0; i < tops.size(); ++i)
        writer.Write("pic/forest/" + TwoDigits(static_cast<int>(i)) + ".gif", tops[i]);
    for (std::size_t row = 0; row < classes.size(); ++row) {
        const std::string name = TwoDigits(static_cast<int>(row)) + " " + classes[row].name;
        writer.Write("sheets/map_" + TwoDigits(static_cast<int>(row)) + ".png",
                     ContactSheet(name, classes[row].tiles, 13, 4));
    }
    writer.Write("sheets/forest.png", ContactSheet("FOREST TOPS", tops, 11, 4, grass));
    writer.Write("sheets/in_place.png", MockWindow(classes, tops, panel));
}

void WritePeople(const PictureWriter& writer, const QImage& ground) {
    writer.Write("stored/picPeople.bmp", PeopleSheet());
    writer.Write("stored/picSprites.bmp", SpriteSheet());
    for (int team = 0; team < TeamCount; ++team) {
        std::vector<QImage> men;
        men.reserve(std::size_t{StanceCount} * FacingCount);
        for (int i = 0; i < StanceCount * FacingCount; ++i)
            men.push_back(Soldier(team, i / FacingCount, i % FacingCount));
        writer.Write("sheets/people_" + std::to_string(team) + ".png",
                     ContactSheet("TEAM " + std::to_string(team), men, FacingCount, 6, ground));
    }
    const std::vector<QImage> sprites{SpritePicture(ChargeSprite), SpritePicture(PileSprite),
                                      SpritePicture(DeadSprite)};
    writer.Write("sheets/sprites.png", ContactSheet("SPRITES 12-14", sprites, 3, 8, ground));
}

void WriteOverlays(const PictureWriter& writer, const QImage& ground) {
    std::vector<QImage> blowup;
    std::vector<QImage> target;
    for (int frame = 1; frame <= OverlayFrames; ++frame) {
        blowup.push_back(BlowupFrame(frame));
        target.push_back(TargetFrame(frame));
        writer.Write("pic/blowup/" + TwoDigits(frame) + ".gif", blowup.back());
        writer.Write("pic/target/" + TwoDigits(frame) + ".gif", target.back());
    }
    writer.Write("sheets/blowup.png", ContactSheet("BLOWUP", blowup, 5, 4, ground));
    writer.Write("sheets/target.png", ContactSheet("TARGET", target, 5, 6, ground));
}

void WriteFrames(const PictureWriter& writer) {
    const QImage upper = UpperFrame();
    const QImage stripes = Stripes();
    const QImage progress = ProgressPicture();
    writer.Write("stored/picSlateU.bmp", upper);
    writer.Write("stored/picSlateR.bmp", RightFrame());
    writer.Write("stored/picSlateL.bmp", LeftFrame());
    writer.Write("stored/picSlateStripes.bmp", stripes);
    writer.Write("stored/imgMarkH.gif", ColumnMark());
    writer.Write("stored/imgMarkV.gif", RowMark());
    writer.Write("stored/imgProgress.gif", progress);
    std::vector<QImage> icons;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icons.push_back(Icon(size));
        writer.Write("stored/icon" + std::to_string(size) + ".png", icons.back());
    }
    writer.Write("sheets/frames.png", ContactSheet("FRAMES", {upper, stripes, progress}, 1, 2));
    writer.Write("sheets/icons.png", ContactSheet("ICONS", icons, 4, 2));
}

void WritePanel(const PictureWriter& writer, const PanelPictures& panel) {
    writer.Write("stored/picSlateD.bmp", Indexed(panel.panel));
    writer.Write("stored/imgBars.gif", panel.barsFrame);
    writer.Write("stored/picBarWeapon.bmp", panel.weaponBox);
    writer.Write("stored/imgBarWunder.bmp", panel.columnFrame);
    writer.Write("stored/imgBarWcover.bmp", DurabilityCover());
    writer.Write("stored/picBarDigits.bmp", BarDigits());
    writer.Write("pic/weapon.gif", panel.weaponBox);
    for (int bar = 0; bar < BarCount; ++bar)
        writer.Write("stored/imgBar" + std::to_string(bar) + ".bmp", BarStrip(bar));
    for (std::size_t band = 0; band < DurabilityBands.size(); ++band) {
        writer.Write("pic/wea_" + std::to_string(DurabilityBands[band]) + ".gif", DurabilityFill(band));
    }
    writer.Write("sheets/panel.png", ContactSheet("PANEL", {panel.panel}, 1, 2));
}

void WriteButtons(const PictureWriter& writer) {
    std::vector<QImage> faces;
    for (int button = 0; button < StanceButtons; ++button) {
        for (const bool lit : {false, true}) {
            faces.push_back(StanceButton(button, lit));
            writer.Write("pic/stance" + std::to_string(button) + (lit ? "on" : "off") + ".gif", faces.back());
        }
    }
    std::vector<QImage> counters;
    for (int count = 1; count <= 20; ++count) {
        counters.push_back(EnemyCounter(count));
        writer.Write("pic/counter/" + TwoDigits(count) + ".bmp", counters.back());
    }
    writer.Write("sheets/stances.png", ContactSheet("STANCES OFF ON", faces, 4, 4));
    writer.Write("sheets/counter.png", ContactSheet("COUNTER", counters, 10, 4));
}

void WriteFlags(const PictureWriter& writer) {
    std::vector<QImage> flags;
    for (const FlagRow& flag : Flags()) {
        flags.push_back(Sewn(flag.layers));
        writer.Write(std::string("pic/flags/") + flag.name + ".gif", flags.back());
    }
    flags.push_back(OwnFlag());
    writer.Write("stored/imgFlag.gif", flags.back());
    writer.Write("sheets/flags.png", ContactSheet("FLAGS", flags, 17, 4));
}

void WriteInventory(const PictureWriter& writer, const std::vector<NamedPicture>& things,
                    const std::vector<NamedPicture>& packs) {
    std::vector<QImage> wide;
    std::vector<QImage> small;
    for (const NamedPicture& thing : things) {
        writer.Write("pic/inv/" + thing.name + ".gif", thing.picture);
        (thing.picture.width() > thing.picture.height() ? wide : small).push_back(thing.picture);
    }
    std::vector<QImage> boards;
    for (const NamedPicture& pack : packs) {
        writer.Write("pic/inv/" + pack.name + ".bmp", pack.picture);
        boards.push_back(pack.picture);
    }
    writer.Write("sheets/packs.png", ContactSheet("PACKS", boards, 4, 2));
    writer.Write("sheets/inventory_wide.png", ContactSheet("WIDE THINGS", wide, 10, 2));
    writer.Write("sheets/inventory_small.png", ContactSheet("SMALL THINGS", small, 14, 2));
}

std::vector<QImage> WriteFaces(const PictureWriter& writer) {
    std::vector<QImage> faces = Portraits();
    for (std::size_t i = 0; i < faces.size(); ++i)
        writer.Write("pic/faces/usa" + TwoDigits(static_cast<int>(i) + 1) + ".bmp", faces[i]);
    writer.Write("sheets/portraits.png", ContactSheet("PORTRAITS", faces, 4, 2));
    return faces;
}

void WriteBadges(const PictureWriter& writer) {
    std::vector<QImage> badges;
    for (std::size_t rank = 0; rank < RankNames.size(); ++rank) {
        badges.push_back(Chevron(rank));
        writer.Write(std::string("pic/chevrons/") + RankNames[rank] + ".gif", badges.back());
    }
    writer.Write("sheets/chevrons.png", ContactSheet("CHEVRONS", badges, 8, 4));
}

// Writes each award in each number and gives every award as it looks when it was won once, twice and so on.
std::vector<QImage> WriteAwards(const PictureWriter& writer) {
    std::vector<QImage> shown;
    std::vector<QImage> counted;
    for (int award = 0; award < AwardKinds; ++award) {
        const QImage base = AwardBase(award);
        for (int times = 1; times <= AwardTimes; ++times)
            writer.Write("pic/awards/" + TwoDigits(award) + TwoDigits(times) + ".bmp",
                         AwardPicture(base, award, times));
        shown.push_back(AwardPicture(base, award, 1));
        counted.push_back(AwardPicture(base, award, 1 + award * 7 % AwardTimes));
    }
    shown.insert(shown.end(), counted.begin(), counted.end());
    writer.Write("sheets/awards.png", ContactSheet("AWARDS ONCE AND OFTEN", shown, 5, 2));
    return counted;
}

void WriteFileFrames(const PictureWriter& writer) {
    std::vector<QImage> buttons;
    for (int i = 0; i < FileButtons; ++i) {
        buttons.push_back(FileButton(i));
        writer.Write("stored/imgBut" + std::to_string(i) + ".bmp", buttons.back());
    }
    const QImage panel = InfoPanel();
    const QImage remove = DeleteMark();
    const QImage border = AwardBorder();
    std::vector<QImage> marks{remove, border};
    for (int arrow = 1; arrow <= 3; ++arrow) {
        marks.push_back(FeedArrow(arrow));
        writer.Write("stored/imgUpDn" + std::to_string(arrow) + ".gif", marks.back());
    }
    writer.Write("stored/Picture2.bmp", panel);
    writer.Write("stored/imgDel.gif", remove);
    writer.Write("stored/imgAwardBorder.gif", border);
    writer.Write("stored/imgManFlag.gif", OwnFlag());
    marks.push_back(OwnFlag());
    writer.Write("sheets/file_buttons.png", ContactSheet("FILE BUTTONS", buttons, 4, 4));
    writer.Write("sheets/file_marks.png", ContactSheet("FILE MARKS", marks, 3, 4));
    writer.Write("sheets/file_panel.png", ContactSheet("FILE PANEL", {panel}, 1, 2));
}

void WriteFile(const PictureWriter& writer, const QImage& sheet) {
    const QImage type = TypewriterStrip();
    writer.Write("stored/frmInfo.bmp", sheet);
    writer.Write("stored/picScript.bmp", type);
    writer.Write("sheets/typewriter.png", ContactSheet("TYPEWRITER", {type}, 1, 4));
    WriteFileFrames(writer);
    WriteBadges(writer);
}

// Work that runs beside the caller's, on whatever processors there are.
template <typename Work>
auto Beside(Work work) {
    return std::async(std::launch::async, std::move(work));
}

void WriteAll(const PictureWriter& writer) {
    const QImage ground = SurfaceTiles().front();
    const PanelPictures panel = DrawPanel();
    const auto field = Beside([&] { WriteField(writer, panel.panel); });
    auto faces = Beside([&] { return WriteFaces(writer); });
    auto awards = Beside([&] { return WriteAwards(writer); });
    const auto frames = Beside([&] {
        WritePeople(writer, ground);
        WriteOverlays(writer, ground);
        WriteFrames(writer);
        WritePanel(writer, panel);
        WriteButtons(writer);
        WriteFlags(writer);
    });
    const QImage sheet = DossierSheet();
    WriteFile(writer, sheet);
    const std::vector<NamedPicture> things = InventoryPictures();
    const std::vector<NamedPicture> packs = PackBoards();
    WriteInventory(writer, things, packs);
    writer.Write("sheets/file_window.png",
                 MockFile({sheet, faces.get().front(), awards.get(), &things, &packs}));
}

}  // namespace
}  // namespace art

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: sarnoth_art OUTDIR\n";
        return EXIT_FAILURE;
    }
    art::WriteAll(art::PictureWriter(argv[1]));
    return EXIT_SUCCESS;
}
