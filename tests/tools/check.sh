#!/usr/bin/env bash
# sarnoth-check as a script meets it: the built data is clean, exit codes, places in its report.
# Usage: check.sh PROGRAM GAME_FOLDER
. "$(dirname "$0")/program.sh"
cd "$work" || exit 2

expect 0
[ -s out ] && { echo "clean data, but:"; cat out; failed=1; }
expect 0 --json --game "$game"
says out "[]"
expect 0 --help
says out "Usage: sarnoth-check"

mkdir game
cp -r "$game/dat" "$game/map" game/
printf '\377' | dd of=game/dat/save.dat bs=1 seek=884 conv=notrunc status=none
expect 1 --game game
says out 'game/dat/save.dat: record 2, rank, byte 884: 255 is too much, expected a number up to 23'
says err "1 fault"
expect 1 --json --game game
for value in '"record": 2' '"field": "rank"' '"byte": 884'; do
    says out "$value"
done

for arguments in "--gmae x" "--game" "--game /nowhere" "--sources /nowhere" "x"; do
    expect 2 $arguments
    says err "Run with --help for more information."
done
exit $failed
