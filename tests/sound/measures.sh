#!/usr/bin/env bash
# Measures every sound of the game with sox: nothing clips, is all but silent, hangs off the middle or breaks off before it
# has faded; loops end where they begin; what is suppressed is quieter than what isn't; the classes of sounds keep their
# order of loudness, and the takes of a sound are alike in it.
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
# loudness FILE: decibels of the loudest tenth of a second, which is about what the ear sums up; the low end weighs less, the
# high end more, as in the ear. Room for what the weighting raises.
loudness() {
    sox "$1" -n gain -8 rate 45000 pad 0.5 0.5 highpass 38 treble +4 1500 stats -w 0.1 2>&1 |
        awk '/^RMS Pk dB/ { print $4 + 8 }'
}
# between FROM TO FILES...: how many decibels each is louder than an ordinary shot
between() {
    for file in "${@:3}"; do
        within "$file: louder than a shot by" "$(awk -v a="$(loudness "$file")" -v b="$shot" 'BEGIN { print a - b }')" "$1" "$2"
    done
}

sounds=0
for file in $(find . -name '*.wav' -not -path './ambience/*'); do
    figures=$(sox "$file" -n stat 2>&1)
    of() { awk -F: -v name="$1" '$1 == name { print $2 + 0 }' <<<"$figures"; }
    within "$file: peak" "$(of "Maximum amplitude")" 0.1 0.95
    within "$file: lowest" "$(of "Minimum amplitude")" -0.95 -0.1
    within "$file: middle" "$(of "Mean    amplitude")" -0.001 0.001
    within "$file: last hundredth of a second" "$(figure "RMS     amplitude" "$file" trim -0.01)" 0 0.003
    sounds=$((sounds + 1))
done
within "number of sounds" $sounds 120 250
for pair in "smg smgsd" "rifle7ak rifle9sp"; do
    plain=$(figure "RMS     amplitude" "weapons/${pair% *}.wav")
    within "plain by suppressed: $pair" \
        "$(awk -v a="$plain" -v b="$(figure "RMS     amplitude" "weapons/${pair#* }.wav")" 'BEGIN { print a / b }')" 2 10
done

loops=0
for loop in ambience/*.wav; do
    within "$loop: middle" "$(figure "Mean    amplitude" "$loop")" -0.0001 0.0001
    seam=$({ sox "$loop" -t raw -L -e signed -b 16 - trim -1s; sox "$loop" -t raw -L -e signed -b 16 - trim 0 1s; } |
        sox -t raw -r 45000 -c 1 -L -e signed -b 16 - -n stat 2>&1 | awk -F: '$1 == "Maximum delta" { print $2 + 0 }')
    within "$loop: step over the seam, against the largest within" "$seam" 0 "$(figure "Maximum delta" "$loop")"
    loops=$((loops + 1))
done
within "number of loops" $loops 3 9
within "bytes of all loops" "$(cat ambience/*.wav | wc -c)" 1 3000000

# At equal distance a refusal lies at most 10 dB below an ordinary shot, a step at most 15, and ambience 13 below any step.
shot=$(loudness weapons/rifle5.wav)
between -5 4 weapons/{rifle[57],mg,sniper}*.wav weapons/{gren40,pistol,smg,bolt,shotgun}.wav
between -15 -13 bump/step*.wav
between -10 -6 bump/wound2.wav
between -12 -6 land/*.wav ric/stone*.wav ric/metal*.wav cue/sighted.wav cue/victory.wav cue/defeat.wav
between -14 -10 cue/*-turn.wav
between -45 -28 ambience/*.wav
for second in $(find . -name '*-2.wav'); do
    first=${second%-2.wav}
    for take in "$first"-[2-9].wav; do
        within "$take: louder than its first take by" \
            "$(awk -v a="$(loudness "$take")" -v b="$(loudness "$first.wav")" 'BEGIN { print a - b }')" -1.5 1.5
    done
done
exit $failed
