#include "sounds.h"

namespace {

// A shot: the crack of the muzzle, the boom of the gas, a thump in the chest, the roll of the echo from the
// hills, and the action working afterwards.
struct Gun {
    const char* name;
    double seconds;
    double crackHz, crackDecay;         // the crack's upper edge
    double boomHz, boomDecay;           // the boom's upper edge
    double thumpHz, thump;              // pitch and level of the thump
    double tailHz, tailDecay, tail;     // upper edge, length and level of the roll
    double actionAt, actionHz, action;  // when and how the action clatters; level 0 for none
    double drive, peakDb;
};

// clang-format off
constexpr Gun Guns[] = {
    // name       secs  crackHz   dec  boomHz   dec  thumpHz  lvl  tailHz   dec   lvl   act at    Hz   lvl  drive  peak
    {"pistol",    0.50,   9000, .0045,  1900, .026,   150, 0.70,   1500, .090, 0.10,   .075, 2600, .10,  2.2, 2.5},
    {"pistold",   0.55,   6200, .0060,  1300, .032,   118, 0.85,   1100, .100, 0.10,   .085, 1900, .12,  2.0, 2.5},
    {"pistol57",  0.45,  13000, .0035,  2900, .020,   190, 0.45,   2400, .080, 0.11,   .065, 3200, .10,  2.3, 2.5},
    {"smg",       0.42,   8200, .0042,  1700, .022,   138, 0.65,   1400, .075, 0.08,   .055, 2300, .13,  2.3, 3.0},
    {"smgslow",   0.46,   6800, .0050,  1400, .028,   120, 0.75,   1200, .080, 0.08,   .080, 1600, .17,  2.1, 3.0},
    {"smgsd",     0.40,   2600, .0030,   850, .016,    95, 0.35,    700, .040, 0.03,   .045, 2500, .30,  1.2, 9.0},
    {"smg57",     0.40,  12000, .0034,  2500, .018,   170, 0.45,   2200, .070, 0.09,   .050, 2900, .12,  2.4, 3.0},
    {"rifle5",    0.65,  14000, .0040,  2600, .030,   128, 0.75,   2000, .130, 0.15,   .070, 2700, .07,  2.8, 1.5},
    {"rifle5ak",  0.65,  12000, .0046,  2100, .034,   116, 0.85,   1600, .130, 0.15,   .075, 1800, .11,  2.8, 1.5},
    {"rifle7ak",  0.72,  10000, .0056,  1600, .042,    98, 1.00,   1300, .150, 0.16,   .085, 1400, .13,  2.8, 1.5},
    {"rifle7n",   0.80,  12500, .0058,  1800, .046,    90, 1.10,   1500, .180, 0.20,   .095, 1700, .08,  3.0, 1.5},
    {"rifle9sp",  0.45,   2200, .0036,   700, .022,    82, 0.50,    600, .050, 0.04,   .060, 1700, .26,  1.3, 8.0},
    {"mg5",       0.55,  12500, .0044,  2200, .032,   110, 0.90,   1600, .100, 0.11,   .060, 1300, .18,  3.0, 1.5},
    {"mg7",       0.65,  11000, .0056,  1600, .044,    86, 1.15,   1300, .120, 0.13,   .070, 1000, .20,  3.2, 1.5},
    {"sniper7",   1.05,  15000, .0062,  2000, .052,    84, 1.15,   1700, .260, 0.24,   .000,    0, .00,  3.0, 1.5},
    {"sniper8",   1.20,  15000, .0080,  1600, .070,    66, 1.40,   1300, .330, 0.28,   .000,    0, .00,  3.4, 1.2},
    {"bolt",      1.15,  11000, .0064,  1500, .052,    88, 1.10,   1300, .200, 0.18,   .520, 1500, .22,  2.8, 1.5},
    {"rimfire",   0.42,  11000, .0026,  3200, .012,   240, 0.25,   2600, .060, 0.07,   .000,    0, .00,  1.6, 6.0},
    {"rimauto",   0.40,   9500, .0024,  2800, .011,   210, 0.25,   2200, .050, 0.05,   .038, 3400, .16,  1.6, 6.0},
    {"shotgun",   1.05,   7500, .0075,  1100, .060,    74, 1.30,   1000, .190, 0.18,   .480, 1150, .30,  3.2, 1.2},
    {"shotauto",  0.85,   7200, .0075,  1150, .058,    76, 1.25,   1000, .180, 0.17,   .110, 1250, .18,  3.2, 1.2},
    {"shot",      0.80,   6800, .0070,  1000, .055,    80, 1.20,    900, .170, 0.16,   .000,    0, .00,  3.0, 1.5},
};
// clang-format on

constexpr double PumpPause = 0.17;  // between the two strokes of a hand-worked action
constexpr double HandWorked = 0.3;  // an action that comes later than this is worked by hand

void AddAction(const Gun& gun, std::vector<Layer>& layers) {
    const auto clack = [&](double at, double pitch) {
        layers.push_back({Source::Ring, at, gun.action, 0.0004, 0.018, 0, 0, gun.actionHz * pitch, 0});
        layers.push_back({Source::Noise, at, gun.action * 0.8, 0.0006, 0.009, 900, 6000, 0, 0});
    };
    clack(gun.actionAt, 1.0);
    if (gun.actionAt < HandWorked) return;
    layers.push_back(
        {Source::Noise, gun.actionAt + 0.02, gun.action * 0.35, 0.05, 0.03, 1500, 7000, 0, 0});  // sliding
    clack(gun.actionAt + PumpPause, 0.8);
}

Sound MakeShot(const Gun& gun) {
    Sound sound{std::string("weapons/") + gun.name, gun.seconds, gun.drive, 0.14, 0.45, gun.peakDb, {}};
    sound.layers = {
        {Source::Noise, 0.0000, 1.6, 0.0002, gun.crackDecay, 700, gun.crackHz, 0, 0},
        {Source::Noise, 0.0008, 1.2, 0.0006, gun.boomDecay, 60, gun.boomHz, 0, 0},
        {Source::Tone, 0.0010, gun.thump, 0.0015, 1.4 * gun.boomDecay, 0, 0, 2.2 * gun.thumpHz,
         0.6 * gun.thumpHz},
        {Source::Noise, 0.0200, gun.tail, 0.0300, gun.tailDecay, 90, gun.tailHz, 0, 0},
    };
    if (gun.action > 0) AddAction(gun, sound.layers);
    return sound;
}

}  // namespace

std::vector<Sound> GunSounds() {
    std::vector<Sound> sounds;
    for (const Gun& gun : Guns)
        sounds.push_back(MakeShot(gun));
    return sounds;
}
