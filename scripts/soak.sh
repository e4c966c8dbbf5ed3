#!/usr/bin/env bash
# Soaks random missions, each in a process of its own, as many at a time as there are processors. Shows every mission out of
# order and every one whose process died or hung, and at the end how many missions ended in which way.
# Usage: soak.sh PROGRAM MISSIONS FOLDER
# FOLDER gets what is found: the recording of a mission out of order, what a process said before it died.
set -eu
program=$(readlink -f "$1")
missions=$2
finds=$3
export program finds
mkdir -p "$finds"

# A process that dies leaves its copy of the game behind.
TMPDIR=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

# soak SEED: a mission's line. A process that comes to its end prints it, nothing else, and has exit code 0 or 1.
soak() {
    local line code=0 log=$finds/$1.log
    line=$(timeout -k 10 600 "$program" soak --seeds "$1..$1" --record "$finds" 2>"$log") || code=$?
    if [ -n "$line" ] && [ ! -s "$log" ] && [ $code -le 1 ]; then
        rm "$log"
    else
        line="seed $1: died: exit code $code, see $log"
    fi
    echo "$line"
}
export -f soak

seq "$missions" | xargs -P "$(nproc)" -I{} bash -c 'soak {}' | tee "$TMPDIR/all" |
    grep --line-buffered -E ': (out of order|died): ' && found=1 || found=0
sed -E 's/^[^:]*: //; s/^(out of order|died): .*/\1/' "$TMPDIR/all" | sort | uniq -c
exit $found
