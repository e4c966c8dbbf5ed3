#include "shell/own_sounds.h"

#include <utility>

#include "combat/families.h"
#include "data/mode_words.h"
#include "data/weapon_keys.h"
#include "field/geometry.h"
#include "platform/files.h"
#include "shell/materials.h"
#include "view/sound.h"

namespace {

constexpr int CueSlot = 5;
constexpr int SightingSlot = 6;
constexpr int FirstImpactSlot = 7;
constexpr int ImpactSlots = LastOwnSlot - FirstImpactSlot + 1;

std::optional<SoundRequest> OwnSound(const std::string& name, int slot, int column = AtScreenCentre) {
    SoundRequest sound = SoundAt(name, column);
    if (!FileExists(sound.fileName)) return std::nullopt;
    sound.slot = slot;
    return sound;
}

const Family& FamilyOfShot(const Happening& shot) {
    if (shot.mode == ThrowMode) return FamilyNamed("throw");
    const WeaponKey* const key = WeaponKeyOf(shot.text);
    if (key == nullptr) return FamilyNamed("");
    return FamilyNamed(shot.mode == SecondaryMode ? key->secondary : key->family);
}

}  // namespace

std::optional<SoundRequest> Impacts::Of(const Happening& shot) {
    constexpr unsigned RicochetOneIn = 3;
    constexpr int OnePelletOf = 6;  // is heard alone
    const int x = CellOfPixel(shot.toX);
    const int y = CellOfPixel(shot.toY);
    if (shot.kind != HappeningKind::Shot || !shot.seen || !InField(x, y)) return std::nullopt;
    const Family& family = FamilyOfShot(shot);
    if (family.atEnd != AtEnd::Nothing) return std::nullopt;
    if (family.pellets > 1 && pellets++ % OnePelletOf != 0) return std::nullopt;
    const Cell& cell = cellGrid[y][x];
    if (cell.occupant >= 0) return std::nullopt;
    const std::string material(StruckMaterial(cell.tileX, cell.tileY));
    const bool isHard = material == "stone" || material == "metal";
    slot = (slot + 1) % ImpactSlots;
    return OwnSound((isHard && chance() % RicochetOneIn == 0 ? "ric\\" : "land\\") + material,
                    FirstImpactSlot + slot, x);
}

std::optional<SoundRequest> Cues::Of(const Happening& sighting, Moment now) {
    constexpr std::chrono::milliseconds Apart(700);
    const auto place = static_cast<std::size_t>(sighting.unit);
    if (sighting.kind != HappeningKind::Sighting || place >= sightedIn.size()) return std::nullopt;
    int& last = sightedIn[place];
    const bool isNew = squadTurns - std::exchange(last, int{squadTurns}) > 1;
    if (!isNew || now - sounded < Apart) return std::nullopt;
    sounded = now;
    return OwnSound("cue\\sighted", SightingSlot);
}

std::optional<SoundRequest> Cues::EnemysTurn() {
    return OwnSound("cue\\enemys-turn", CueSlot);
}

std::optional<SoundRequest> Cues::YourTurn() {
    return OwnSound("cue\\your-turn", CueSlot);
}

std::optional<SoundRequest> Cues::OfVerdict(const std::string& verdict) {
    if (verdict == "Victory") return OwnSound("cue\\victory", CueSlot);
    if (verdict == "Defeat") return OwnSound("cue\\defeat", CueSlot);
    return std::nullopt;
}
