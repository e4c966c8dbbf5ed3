#!/usr/bin/env bash
# Lets two programs save the vehicle store at once, then kills one at 200 random moments; the store must be whole after each.
# Usage: kill_saver.sh SAVER GAME_FOLDER
set -eu
saver=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r "$2/dat" "$folder/dat"
RANDOM=7
for game in 1 2; do timeout -s KILL 0.5 "$saver" "$folder" save 2>>"$folder/errors" & done
wait
[ ! -s "$folder/errors" ] || { echo "two games at once are in each other's way: $(cat "$folder/errors")"; exit 1; }
for round in $(seq 200); do
    "$saver" "$folder" save &
    pid=$!
    sleep "0.0$((RANDOM % 40 + 10))"
    kill -9 "$pid"
    wait "$pid" 2>/dev/null || true
    "$saver" "$folder" check || { echo "round $round left a broken store"; exit 1; }
done
echo "200 kills, the store whole after each"
