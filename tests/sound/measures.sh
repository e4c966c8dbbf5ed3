#!/usr/bin/env bash
# Measures every sound of the game with sox: nothing clips, is all but silent, hangs off the middle or breaks off before it
# has faded; what is suppressed is quieter than what isn't.
# Usage: measures.sh SOUND_FOLDER
set -u
cd "$1" || exit 2
command -v sox >/dev/null || { echo "sox is missing, so the sounds were not measured"; exit 77; }
failed=0

# figure NAME FILE ARGUMENTS...: one of the figures that sox tells
figure() { sox "$2" -n "${@:3}" stat 2>&1 | awk -F: -v name="$1" '$1 == name { print $2 + 0 }'; }
# within WHAT VALUE FROM TO
within() {
    awk -v v="$2" -v a="$3" -v b="$4" 'BEGIN { exit !(v >= a && v <= b) }' && return
    echo "$1 is $2, expected $3 to $4"
    failed=1
}

sounds=0
for file in $(find . -name '*.wav'); do
    within "$file: peak" "$(figure "Maximum amplitude" "$file")" 0.1 0.95
    within "$file: lowest" "$(figure "Minimum amplitude" "$file")" -0.95 -0.1
    within "$file: middle" "$(figure "Mean    amplitude" "$file")" -0.001 0.001
    within "$file: last hundredth of a second" "$(figure "RMS     amplitude" "$file" trim -0.01)" 0 0.003
    sounds=$((sounds + 1))
done
within "number of sounds" $sounds 40 100
for pair in "smg smgsd" "rifle7ak rifle9sp"; do
    plain=$(figure "RMS     amplitude" "weapons/${pair% *}.wav")
    within "plain by suppressed: $pair" \
        "$(awk -v a="$plain" -v b="$(figure "RMS     amplitude" "weapons/${pair#* }.wav")" 'BEGIN { print a / b }')" 2 10
done
exit $failed
