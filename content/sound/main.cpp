// sarnoth_sound OUTDIR: makes the game's sounds, OUTDIR/weapons/pistol.wav and so on.

#include <exception>
#include <iostream>

#include "sounds.h"
#include "wave_file.h"

namespace {

void WriteAll(const std::filesystem::path& folder, const std::vector<Sound>& sounds) {
    for (const Sound& sound : sounds)
        WriteWave(folder / (sound.name + ".wav"), Render(sound));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: sarnoth_sound OUTDIR\n";
        return 1;
    }
    try {
        WriteAll(argv[1], GunSounds());
        WriteAll(argv[1], EffectSounds());
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "sarnoth_sound: " << error.what() << '\n';
        return 1;
    }
}
