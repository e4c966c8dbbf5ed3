#!/usr/bin/env bash
# The page about the squad says what the data say; in it everybody whose role asks for a skill is the best at it.
# Usage: roster_page.sh LAB GAME_FOLDER PAGE
. "$(dirname "$0")/program.sh"
expect 0 roster --game "$game"
diff "$3" out || complain "make it again: sarnoth-lab roster > docs/roster.md"
for role in leader marksman gunner medic sapper scout "first through the door"; do
    grep -qE "^\| [^|!]* \| $role \|.* \*\*[0-9]+\*\* " out || complain "$role: somebody else is better at it"
done
exit $failed
