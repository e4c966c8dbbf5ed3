#!/usr/bin/env bash
# A map goes through the editor Tiled itself and comes back as it was. Exit code 77 where Tiled isn't installed.
# The Tiled map that is kept beside the source must be the same map.
# Usage: tiled.sh PROGRAM GAME_FOLDER KEPT_MAP.tmx
. "$(dirname "$0")/program.sh"
kept=$(readlink -f "$3")
cd "$work" || exit 2

# same NAME: whether the map of this name is the game's, byte for byte.
same() {
    local part
    for part in 1 2 3 g; do
        cmp "$1$part.map" "$game/map/49$part.map" || failed=1
    done
}

expect 0 export "$game/map/49" 49.tmx
[ -s picMap.bmp ] || complain "the tile sheet is missing"
expect 0 import 49.tmx back
same back
expect 0 import "$kept" kept
same kept
expect 2 export "$game/map/49"
expect 1 export nowhere/49 50.tmx
sed 's/encoding="csv"/encoding="base64"/' 49.tmx >packed.tmx
expect 1 import packed.tmx packed
[ -e packed1.map ] && complain "a refused map was written"

if ! command -v tiled >/dev/null; then
    echo "Tiled isn't installed: what it makes of the map is not tested."
    [ $failed -eq 0 ] && exit 77
    exit 1
fi
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work HOME=$work
timeout 60 tiled --export-map 49.tmx saved.tmx 2>err || { cat err; exit 1; }
cmp -s 49.tmx saved.tmx && complain "Tiled changed nothing: the test says nothing"
expect 0 import saved.tmx saved
same saved
exit $failed
