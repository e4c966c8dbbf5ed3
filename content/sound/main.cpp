// sarnoth_sound OUTDIR: makes the game's sounds, OUTDIR/weapons/pistol.wav and so on.

#include <exception>
#include <iostream>

#include "ambience.h"
#include "sounds.h"
#include "takes.h"
#include "wave_file.h"

namespace {

void WriteAll(const std::filesystem::path& folder, const std::vector<Sound>& sounds) {
    const auto write = [&folder](const Sound& sound, const Signal& signal) {
        WriteWave(folder / (sound.name + ".wav"), signal);
    };
    for (const Sound& sound : sounds) {
        const Signal first = Render(sound);
        write(sound, first);
        for (int number = 2; number <= TakeCount(sound.name); ++number) {
            const Sound take = TakeOf(sound, number);
            Signal signal = Render(take);
            MatchLoudness(signal, first);
            write(take, signal);
        }
    }
}

void WriteLoops(const std::filesystem::path& folder) {
    for (const Loop& loop : AmbienceLoops())
        WriteWave(folder / (std::string(loop.name) + ".wav"), Render(loop), LoopRate(loop));
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
        WriteAll(argv[1], GroundSounds());
        WriteAll(argv[1], CueSounds());
        WriteLoops(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "sarnoth_sound: " << error.what() << '\n';
        return 1;
    }
}
