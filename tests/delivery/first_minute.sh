#!/usr/bin/env bash
# What a player meets before the first mission: no display, no sound device, no data; and the game started from a folder
# and from an installation by "cmake --install", where it keeps the vehicle store in the player's home and never writes to
# what was installed.
# Usage: first_minute.sh PROGRAM GAME_FOLDER BUILD_FOLDER STOCK_STORE
. "$(dirname "$0")/../tools/program.sh"
build=$3 stock=$4
cd "$work" || exit 2
# A screen in memory, in an environment of the test's own.
quiet_env="env -i PATH=$PATH QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=*=false SDL_AUDIODRIVER=dummy ASAN_OPTIONS=${ASAN_OPTIONS:-}:detect_leaks=0"

# refuses TEXT COMMAND...: the command ends with 1 at once and says so on standard error.
refuses() {
    local text=$1 got=0
    shift
    timeout 20 "$@" >out 2>err || got=$?
    [ "$got" -eq 1 ] || complain "exit code $got instead of 1: $*: $(head -5 out err)"
    says err "$text"
}

# stays COMMAND...: the command is still there, silent, after two seconds; then it is ended.
stays() {
    local got=0
    timeout 2 "$@" >out 2>err || got=$?
    [ "$got" -eq 124 ] || complain "it ended with $got: $*"
    [ -s err ] && complain "standard error isn't empty: $*: $(head -5 err)"
}

# answers CODE TEXT ARGUMENT...: without a display, on standard output, or on standard error with a code but 0.
answers() {
    local code=$1 text=$2 got=0
    shift 2
    env -i ASAN_OPTIONS=detect_leaks=0 "$program" "$@" >out 2>err || got=$?
    [ "$got" -eq "$code" ] || complain "exit code $got instead of $code: $*"
    if [ "$code" -eq 0 ]; then says out "$text"; [ -s err ] && complain "standard error isn't empty: $*"
    else [ "$(cat err)" = "$text" ] || complain "standard error: $(cat err)"; fi
}
answers 0 "Usage: sarnoth" --help
answers 0 "Sarnoth III 1." --version
answers 2 'Sarnoth III: unknown argument "--colour"; see sarnoth --help' --colour
answers 2 'Sarnoth III: unknown argument "now"; see sarnoth --help' --version now

no_display="Sarnoth III: Run-time error 6: No display: start the game from a desktop"
refuses "$no_display" env -i "$program"
refuses "$no_display" env -i DISPLAY=:4711 "$program"
refuses "$no_display" env -i WAYLAND_DISPLAY=nowhere XDG_RUNTIME_DIR="$work" "$program"
for platform in nowhere linuxfb:fb=/dev/null; do
    refuses "$no_display" env -i ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=$platform "$program"
    [ "$(wc -l <err)" -eq 1 ] || complain "more than a line: $platform: $(cat err)"
done

mkdir bare whole
cp "$program" bare/sarnoth
refuses "Sarnoth III: Run-time error 3: File not found: dat/weapons.dat" $quiet_env bare/sarnoth
cp -r "$program" "$game/dat" "$game/map" whole
ln -s "$game/pic" "$game/wav" whole
stays $quiet_env SDL_AUDIODRIVER=nowhere whole/sarnoth

cmake --install "$build" --prefix "$work/usr" >out || { cat out; exit 1; }
before=$(find usr -type f -exec cksum {} + | sort)
for file in bin/sarnoth share/applications/sarnoth3.desktop share/man/man6/sarnoth.6 share/sarnoth/wav \
    share/icons/hicolor/{16x16,24x24,32x32,48x48,64x64,128x128,256x256}/apps/sarnoth3.png; do
    [ -e "usr/$file" ] || complain "usr/$file is missing"
done
[ "$(ls usr/bin)" = sarnoth ] || complain "more than the game is installed: $(ls usr/bin)"

store=home/.local/share/sarnoth/dat/apc.dat
stays $quiet_env HOME="$work/home" usr/bin/sarnoth
cmp "$stock" "$store" || complain "the first start doesn't give the player the stock"

# The player's own is what is read, and stays as it is.
truncate -s 1500 "$store"
refuses "Bad data: $work/$store: record 2: expected 1112 bytes, found 388" $quiet_env HOME="$work/home" usr/bin/sarnoth
[ "$(stat -c %s "$store")" -eq 1500 ] || complain "the player's store was overwritten"

stays $quiet_env HOME="$work/home" XDG_DATA_HOME="$work/data" usr/bin/sarnoth
cmp "$stock" data/sarnoth/dat/apc.dat || complain "XDG_DATA_HOME isn't heeded"

refuses "File can't be written: /dev/null/.local/share/sarnoth/dat/apc.dat: expected a folder" \
    $quiet_env HOME=/dev/null usr/bin/sarnoth
refuses "expected a home for the player's files, found neither HOME nor XDG_DATA_HOME" $quiet_env usr/bin/sarnoth

[ "$before" = "$(find usr -type f -exec cksum {} + | sort)" ] || complain "the installation was written to"
exit $failed
