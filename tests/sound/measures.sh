#!/usr/bin/env bash
# Measures every sound of the game with sox: nothing clips or hangs off the middle, each fades to silence, is as
# long and as bright as its class should be, and as loud as its fellows; what is suppressed is quieter than what
# isn't.
# Usage: measures.sh SOUND_FOLDER
set -u
cd "$1" || exit 2
command -v sox >/dev/null || { echo "sox is missing, so the sounds were not measured"; exit 77; }
failed=0

# class: seconds from to, peak from to (of 1), centre frequency in Hz from to, and the files
classes='
pistol      0.40 0.60  0.65 0.90  1800 3800  weapons/pistol weapons/pistol57 weapons/pistold
submachine  0.35 0.50  0.60 0.90  2000 3700  weapons/smg weapons/smg57 weapons/smgslow
rifle       0.55 0.90  0.75 0.90  1800 2900  weapons/rifle5 weapons/rifle5ak weapons/rifle7ak weapons/rifle7n
machinegun  0.50 0.70  0.75 0.90  1700 2800  weapons/mg5 weapons/mg7
sniper      0.95 1.30  0.75 0.90  1700 2300  weapons/sniper7 weapons/sniper8 weapons/bolt
shotgun     0.75 1.15  0.75 0.90  1200 1600  weapons/shot weapons/shotauto weapons/shotgun
launcher    0.40 0.70  0.60 0.80   400  800  weapons/bloop
explosion   1.30 2.00  0.80 0.95   900 1800  weapons/gren40
suppressed  0.35 0.50  0.25 0.45  1200 2300  weapons/smgsd weapons/rifle9sp
rimfire     0.35 0.50  0.40 0.60  3400 4300  weapons/rimfire weapons/rimauto
air         0.35 0.50  0.30 0.55  3400 4500  weapons/air
bow         0.35 0.60  0.35 0.55  1700 2200  weapons/bow weapons/blow
blade       0.30 0.45  0.30 0.55  2800 4200  weapons/blade weapons/throw
fist        0.20 0.40  0.40 0.65   400  800  weapons/punch
handling    0.20 0.90  0.20 0.55  2000 6000  weapons/reload weapons/empty weapons/med weapons/pin weapons/arm weapons/dig
hurt        0.20 1.10  0.25 0.65   150 1100  bump/wound2 bump/wound3 bump/death2
step        0.04 0.12  0.12 0.25  1800 3000  bump/step1 bump/step2
glass       0.50 1.00  0.45 0.75  5000 7500  bump/glass2
wood        0.25 0.50  0.35 0.55   700 1300  ric/wood
button      0.03 0.10  0.15 0.35  2800 4000  click
'

# stat FILE ARGUMENTS...: the figures that sox tells, by name
stat() { sox "$1.wav" -n "${@:2}" stat 2>&1; }
figure() { awk -F: -v name="$2" '$1 == name { print $2 + 0 }' <<<"$1"; }
# within WHAT VALUE FROM TO
within() {
    awk -v v="$2" -v a="$3" -v b="$4" 'BEGIN { exit !(v >= a && v <= b) }' && return
    echo "$1 is $2, expected $3 to $4"
    failed=1
}

declare -A seen loudness
while read -r class short long soft hard low high files; do
    [ -n "$class" ] || continue
    levels=""
    for file in $files; do
        seen[$file]=1
        told=$(stat "$file")
        name="$class $file:"
        within "$name length" "$(figure "$told" "Length (seconds)")" "$short" "$long"
        peak=$(awk -v a="$(figure "$told" "Maximum amplitude")" -v b="$(figure "$told" "Minimum amplitude")" \
            'BEGIN { print (a > -b ? a : -b) }')
        within "$name peak" "$peak" "$soft" "$hard"
        within "$name middle" "$(figure "$told" "Mean    amplitude")" -0.001 0.001
        within "$name centre frequency" "$(figure "$told" "Rough   frequency")" "$low" "$high"
        within "$name last hundredth of a second" \
            "$(figure "$(stat "$file" trim -0.01)" "RMS     amplitude")" 0 0.003
        loudness[$file]=$(awk -v r="$(figure "$told" "RMS     amplitude")" 'BEGIN { print 20 * log(r) / log(10) }')
        levels+=" ${loudness[$file]}"
    done
    case $class in
        hurt | handling) ;;  # cries and handgrips differ as they should
        *) within "$class: decibels between its quietest and loudest" \
            "$(tr ' ' '\n' <<<"${levels# }" | sort -g | awk 'NR == 1 { a = $1 } END { print $1 - a }')" 0 4 ;;
    esac
done <<<"$classes"

for file in $(find . -name '*.wav' | sed 's|^\./||; s|\.wav$||'); do
    [ -n "${seen[$file]:-}" ] && continue
    echo "$file is of no class"
    failed=1
done
for pair in "smg smgsd" "rifle7ak rifle9sp"; do
    within "plain above suppressed, decibels: $pair" \
        "$(awk -v a="${loudness[weapons/${pair% *}]}" -v b="${loudness[weapons/${pair#* }]}" 'BEGIN { print a - b }')" 6 20
done
exit $failed
