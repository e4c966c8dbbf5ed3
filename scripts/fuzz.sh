#!/usr/bin/env bash
# Fuzzes every reader of files, as many at a time as there are processors. Run by ./check --fuzz.
# Usage: fuzz.sh SECONDS_EACH [READER...]
# New inputs gather in build/fuzz/corpus and help the next run; what makes a reader fail lies in build/fuzz/finds.
set -eu
cd "$(dirname "$0")/.."
export seconds=$1
shift

# The readers' own folders are written anew for each input: in memory, where there is such a place.
TMPDIR=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1

# What libFuzzer said last about NAME=VALUE or "NAME: VALUE" in the log.
told() {
    grep -oE "$1:? *[0-9]+" "$2" | tail -1 | grep -oE '[0-9]+$' || echo 0
}

fuzz() {
    local reader=$1
    local gathered=build/fuzz/corpus/$reader finds=build/fuzz/finds/$reader log=build/fuzz/finds/$reader.log
    mkdir -p "$gathered" "$finds"
    local failed=0
    build/fuzz/tests/fuzz/fuzz_"$reader" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -malloc_limit_mb=256 \
        -print_final_stats=1 -artifact_prefix="$finds/" "$gathered" "tests/fuzz/corpus/$reader" >"$log" 2>&1 || failed=1
    printf '%-10s %9d runs, %6d a second, %5d edges covered\n' "$reader" "$(told number_of_executed_units "$log")" \
        "$(told average_exec_per_sec "$log")" "$(told cov "$log")"
    [ $failed = 1 ] || return 0
    grep -m 3 -E 'ERROR|runtime error|what\(\)' "$log" || true
    echo "$reader FAILED: $(grep -oE "$finds/[^ ]+" "$log" | tail -1), see $log"
    return 1
}
export -f fuzz told

readers=("$@")
[ $# -gt 0 ] || readers=($(ls tests/fuzz/corpus))
printf '%s\n' "${readers[@]}" | xargs -P "$(nproc)" -I{} bash -c 'fuzz {}'
