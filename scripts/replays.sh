#!/usr/bin/env bash
# Replays every recording in every build: a run is its seed and its events, whatever compiler and options made the
# program. The builds must be there.
# Usage: replays.sh PRESET...
set -u
cd "$(dirname "$0")/.."
failed=0
for preset in "$@"; do
    for recording in tests/recordings/*.rec tests/recordings/oddities/*.rec; do
        printf '%-9s %-40s ' "$preset" "$(basename "$recording")"
        "build/$preset/tools/sarnoth-lab" replay --game "build/$preset/recorded/game" "$recording" || failed=1
    done
done
exit $failed
