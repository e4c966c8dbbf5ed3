#!/usr/bin/env bash
# Measures every operation and puts the tables into docs/performance.md, between its two marks.
# Usage: performance.sh BENCHMARK_PROGRAM
set -eu
page=$(dirname "$0")/../docs/performance.md
tables=$(mktemp)
trap 'rm -f "$tables" "$tables.page"' EXIT
"$1" --table --benchmark_min_time=1 >"$tables"
awk -v tables="$tables" '
    /^<!-- tables end/ { inside = 0 }
    !inside { print }
    /^<!-- tables begin/ { inside = 1; print ""; while ((getline line < tables) > 0) print line; print "" }
' "$page" >"$tables.page"
cat "$tables.page" >"$page"
echo "docs/performance.md has the new tables"
