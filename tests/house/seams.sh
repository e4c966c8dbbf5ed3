#!/usr/bin/env bash
# House rules about who may include what: toolkit headers only in desktop/ and its tests, system headers of one
# platform only in platform/, and a library that links without any toolkit.
# Usage: seams.sh SOURCE_FOLDER [TEST_BINARY]
set -u
cd "$1" || exit 2
failed=0
rooms="ai combat data field mission personal platform state tools view"
if grep -rnE '#include *[<"](Q[A-Z]|SDL|qt)' $rooms bench tests --exclude-dir=desktop; then
    echo "toolkit headers outside desktop/"
    failed=1
fi
if grep -rnE '#include *<(unistd|fcntl|sys/|windows)' ai combat data field mission personal state view; then
    echo "headers of the system outside platform/"
    failed=1
fi
if grep -rnE '\b(rand|srand)\(|std::(uniform|normal|bernoulli)_' $rooms; then
    echo "chance from elsewhere than platform/random"
    failed=1
fi
if [ $# -gt 1 ] && ldd "$2" | grep -E 'libQt|libSDL'; then
    echo "the game library pulls in a toolkit"
    failed=1
fi
exit $failed
