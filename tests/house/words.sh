#!/usr/bin/env bash
# Nothing is left open in the sources: no notes to do later, nothing unfinished.
# Usage: words.sh SOURCE_FOLDER
set -u
cd "$1" || exit 2
! grep -rnE --include='*.cpp' --include='*.h' --include='*.md' --include='*.sh' --include='*.cmake' --include='*.txt' \
    '\b(TO''DO|FIX''ME|XX''X|HA''CK)\b|not (yet )?implem''ented|place''holder' . --exclude-dir=build --exclude-dir=.git
