#!/usr/bin/env bash
# Every line that a mission writes into the log is explained in the field manual.
# Usage: log_glossary.sh MISSIONS GAME_FOLDER MANUAL
. "$(dirname "$0")/program.sh"
manual=$(readlink -f "$3")
cd "$work" || exit 2

# The lines of the glossary as patterns, one a line.
sed -n '/^## What the log says/,/^## Beware/s/^| `\([^`]*\)` |.*/\1/p' "$manual" |
    sed -e 's/[].()%![]/\\&/g' -e 's/0 time/@ time/' -e 's/\bN\b/[-+0-9.]+/g' -e 's/@ time/0 time/' \
        -e 's/NAME/[^#]+/g' -e 's/THING/.+/g' -e 's/STATE/(active|wounded|immobile|dead)/' \
        -e 's/alive/(alive|dead)/' -e 's/Victory/(Victory|Defeat|Withdrawal)/' -e 's/fold$/(fold|unfold|dig|fill)/' >patterns
[ "$(wc -l <patterns)" -ge 25 ] || complain "the glossary has only $(wc -l <patterns) lines"

for player in simple sensible careless; do
    for seed in 1 2 3 4 5 6; do
        expect 0 --game "$game" --player $player --log $seed
        cat out >>all
    done
done
grep -vxE -f patterns all | sort -u >unknown
[ -s unknown ] && complain "the field manual doesn't explain: $(head -5 unknown)"
exit $failed
