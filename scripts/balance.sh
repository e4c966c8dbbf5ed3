#!/usr/bin/env bash
# Plays 2000 missions with each player in code, some minutes, puts their figures into docs/map.md between its two marks, and
# paints docs/map/<player>.svg: where men fell, and where the missions were decided.
# Usage: balance.sh MISSIONS_PROGRAM
set -eu
docs=$(dirname "$0")/../docs
table=$(mktemp)
trap 'rm -f "$table" "$table.page"' EXIT
mkdir -p "$docs/map"
{
    echo "| Player | Victories | Defeats | Turns of a victory: 10%, median, 90% | Wounded | Dead | Cost the squad somebody | NW | NE | SW | SE |"
    echo "|---|---|---|---|---|---|---|---|---|---|---|"
    for player in sensible careless; do
        "$1" --player $player --seeds 1..2000 --markdown --heat "$docs/map/$player.svg"
    done
} >"$table"
awk -v table="$table" '
    /^<!-- table ends/ { inside = 0 }
    !inside { print }
    /^<!-- table begins/ { inside = 1; print ""; while ((getline line < table) > 0) print line; print "" }
' "$docs/map.md" >"$table.page"
cat "$table.page" >"$docs/map.md"
echo "docs/map.md has the new table"
