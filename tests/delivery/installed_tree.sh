#!/usr/bin/env bash
# An installation by "cmake --install": the game starts from it, keeps the vehicle store in the player's home, and never
# writes to what was installed.
# Usage: installed_tree.sh PROGRAM GAME_FOLDER BUILD_FOLDER STOCK_STORE
. "$(dirname "$0")/../tools/program.sh"
. "$(dirname "$0")/start.sh"
build=$3 stock=$4
cmake --install "$build" --prefix "$work/usr" >"$work/out" || { cat "$work/out"; exit 1; }
cd "$work" || exit 2
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
