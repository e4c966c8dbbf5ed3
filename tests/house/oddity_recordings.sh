#!/usr/bin/env bash
# Every deliberate oddity leaves a recording that replays to it: tests/recordings/oddities.txt has the rows of
# docs/oddities.md in their order, each with lines that its recordings hold under the event named, or with a reason why none
# can; and no recording lies beside that list.
# Usage: oddity_recordings.sh SOURCE_FOLDER
set -u
cd "$1" || exit 2
list=tests/recordings/oddities.txt
failed=0
complain() { echo "$*"; failed=1; }

rows=$(sed -n '/^## Deliberate/,/^## Decisions/s/^| `\([^`]*\)` | \(.*\) | [^|]* |$/\1: \2/p' docs/oddities.md)
diff <(echo "$rows") <(grep -E '^[^# ]' $list) || complain "$list doesn't have the rows of docs/oddities.md"

# What follows a row is "  - REASON" or lines as "  RECORDING EVENT | LINE", at least one.
awk '/^[^# ]/ { if (row != "") print "nothing shows " row; row = $0 }
    /^  ([^-]|- .)/ { row = "" }
    END { if (row != "") print row }' $list |
    grep . && complain "$list has rows that nothing follows"

while read -r recording event bar line; do
    [ "$recording" = - ] && continue
    [ "$bar" = "|" ] || complain "not as \"RECORDING EVENT | LINE\": $recording $event $bar $line"
    awk -v event="$event" -v line="$line" '
        $1 == "event" || $1 == "after" { its = $2 == event }
        its && ($0 == "  " line || $0 == line) { found = 1 }
        END { exit !found }' "tests/recordings/oddities/$recording.rec" ||
        complain "$recording.rec has no such line under event $event: $line"
done < <(grep '^  ' $list)

for recording in tests/recordings/oddities/*.rec; do
    grep -q "^  $(basename "$recording" .rec) " $list || complain "$recording shows no oddity"
done
exit $failed
