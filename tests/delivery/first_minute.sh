#!/usr/bin/env bash
# What a player meets before the first mission: no display, no sound device, no data.
# Usage: first_minute.sh PROGRAM GAME_FOLDER
. "$(dirname "$0")/../tools/program.sh"
. "$(dirname "$0")/start.sh"
cd "$work" || exit 2

no_display="Sarnoth III: Run-time error 6: No display: start the game from a desktop"
refuses "$no_display" env -i "$program"
refuses "$no_display" env -i DISPLAY=:4711 "$program"
refuses "$no_display" env -i WAYLAND_DISPLAY=nowhere XDG_RUNTIME_DIR="$work" "$program"
refuses "$no_display" env -i QT_QPA_PLATFORM=nowhere "$program"

mkdir bare whole
cp "$program" bare/sarnoth
refuses "Sarnoth III: Run-time error 3: File not found: dat/weapons.dat" $quiet_env bare/sarnoth

cp -r "$game/dat" "$game/map" whole
ln -s "$game/pic" "$game/wav" whole
cp "$program" whole/sarnoth
stays $quiet_env whole/sarnoth
stays $quiet_env SDL_AUDIODRIVER=nowhere whole/sarnoth
exit $failed
