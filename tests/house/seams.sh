#!/usr/bin/env bash
# House rules about who may include what: the rules' rooms only what lies below them and nothing of pictures, controls or
# windows; no circle among the game's files; toolkit headers only in desktop/, its tests and those of the picture
# generator, system headers of one platform only in platform/; chance from one place. And two programs: the missions link with no window of the game, the tests with
# no toolkit.
# Usage: seams.sh SOURCE_FOLDER [MISSIONS TEST_BINARY]
set -u
cd "$1" || exit 2
failed=0
complain() { echo "$*"; failed=1; }
rules="state data field combat ai mission"
rooms="platform $rules view personal shell"

below="platform"
for room in $rules; do
    below="$below|$room"
    grep -rnE '^#include "' "$room" | grep -vE "#include \"($below)/" && complain "$room/ includes what doesn't lie below it"
done
grep -rnE '#include "platform/(picture|picture_file|blit|controls|headless_host)\.h"' $rules && complain "pictures or controls in the rules"

# Each file's header and source count as one; an arrow goes to every file of the game that they include.
arrows() {
    grep -roE '^#include "[a-z_]+/[a-z_]+\.h"' $rooms --include='*.h' --include='*.cpp' |
        sed -E 's/\.(h|cpp):#include "/ /; s/\.h"$//' | sort -u | awk '$1 != $2'
}
circles=$(arrows | tsort 2>&1 >/dev/null) || complain "files in a circle:" "$circles"

grep -rnE '#include *[<"](Q[A-Z]|SDL|qt)' $rooms browser tools bench tests --exclude-dir=desktop --exclude-dir=pictures && complain "toolkit headers outside desktop/"
grep -rnE '#include *<(unistd|fcntl|sys/|windows)' $rules view personal shell browser && complain "headers of the system outside platform/"
grep -rlE '#include *<emscripten|extern "C"' $rooms browser | grep -v '^browser/web/' && complain "a browser's own calls outside browser/web/"
grep -rnE '\b(rand|srand)\(|std::(uniform|normal|bernoulli)_' $rooms tools && complain "chance from elsewhere than state/chance"

if [ $# -gt 2 ]; then
    nm -C "$2" | grep -E 'Picture::|FieldForm|InfoForm|ImageControl' && complain "the rules pull in pictures or windows"
    ldd "$3" | grep -E 'libQt|libSDL' && complain "the game library pulls in a toolkit"
fi
exit $failed
