#!/usr/bin/env bash
# sarnoth-check as a script meets it: the built data is clean, exit codes, places in its report.
# Usage: check.sh PROGRAM GAME_FOLDER
set -u
program=$(readlink -f "$1")
game=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
failed=0

# expect CODE ARGUMENT...: runs the program; its outputs are left in out and err.
expect() {
    local code=$1 got=0
    shift
    timeout 60 "$program" "$@" >out 2>err || got=$?
    [ "$got" -eq "$code" ] || { echo "exit code $got instead of $code: $*"; head -20 out err; failed=1; }
}

# says FILE TEXT: whether an output holds the text.
says() {
    grep -qF -e "$2" "$1" || { echo "\"$2\" is missing in std$1: $(head -3 "$1")"; failed=1; }
}

expect 0
[ -s out ] && { echo "clean data, but:"; cat out; failed=1; }
expect 0 --json --game "$game"
says out "[]"
expect 0 --help
says out "usage: sarnoth-check"

mkdir game
cp -r "$game/dat" "$game/map" game/
sed -i 's/Andorra//; 0,/rifle7ak\t68/s//rifle7ak\t680/' game/dat/countries.dat game/dat/weapons.dat
printf '\377' | dd of=game/dat/save.dat bs=1 seek=884 conv=notrunc status=none
expect 1 --game game
says out 'game/dat/countries.dat:2:1: the country "AD" has no name'
says out 'game/dat/weapons.dat:100:23: "680" is no power of the group rifle, expected a number from 45 to 100'
says out 'game/dat/save.dat: record 2, rank, byte 884: 255 is too much, expected a number up to 23'
says err "3 faults"
expect 1 --json --game game
says out '"record": 2, "field": "rank", "byte": 884'

for arguments in "--gmae x" "--game" "--game /nowhere" "--sources /nowhere" "x"; do
    expect 2 $arguments
    says err "sarnoth-check --help tells more."
done
exit $failed
