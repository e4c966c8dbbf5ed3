#!/usr/bin/env bash
# sarnoth-missions as a script meets it: the same bytes each time, exit codes, and a game folder left as it was.
# Usage: missions.sh PROGRAM GAME_FOLDER
. "$(dirname "$0")/program.sh"
export TMPDIR=$work/tmp  # where the program makes its copies
mkdir "$TMPDIR"
cd "$work" || exit 2

cp -r "$game" game
before=$(cd game && find . -type f -exec cksum {} +)

for command in "--seeds 1..10 --json" "--log 7 --player sensible"; do
    expect 0 --game "$work/game" $command
    cp out first
    expect 0 --game game $command
    cmp first out || complain "two runs differ: $command"
    [ -s err ] && complain "standard error isn't empty: $command"
done
says out "The end."
expect 0 --seeds 3..3 --turns 1 --time
says err "1 missions in"
expect 0 --seeds 1..3 --player sensible --markdown --heat heat.svg
says out "| sensible | "
grep -q '<circle' heat.svg && tail -1 heat.svg | grep -qx '</svg>' || complain "the heat map is no picture"
expect 0 --help
says out "Usage: sarnoth-missions"

[ "$before" = "$(cd game && find . -type f -exec cksum {} +)" ] || complain "the game folder was written to"

expect 1 --seeds 4..5 --limit 0
says err "seed 4: the mission hasn't ended"
truncate -s 1000 game/dat/save.dat
expect 1 --seeds 8..9 --game game --json
says err "seed 9: "
says err "dat/save.dat"
says out '"seed": 9,'
says out '"error": "'

for arguments in "--seed 1..2" "1..2" "--seeds" "--seeds 2..1" "--seeds 1..4294967296" "--turns 0" "--turns 5x" \
    "--log 1 --json" "--json --markdown" "--game /nowhere" "--player nobody"; do
    expect 2 $arguments
    [ -s out ] && complain "standard output isn't empty: $arguments"
    says err "Run with --help for more information."
done

[ -z "$(ls "$TMPDIR")" ] || complain "a copy was left behind: $(ls "$TMPDIR")"
exit $failed
