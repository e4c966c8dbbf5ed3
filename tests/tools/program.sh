# Sourced by the tests of the tools as a script meets them, with PROGRAM and GAME_FOLDER as their first arguments: a
# folder to work in, and what is asked of a program.
set -u
program=$(readlink -f "$1")
game=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

complain() {
    echo "$*"
    failed=1
}

# expect CODE ARGUMENT...: runs the program; its outputs are left in out and err.
expect() {
    local code=$1 got=0
    shift
    timeout 240 "$program" "$@" >out 2>err || got=$?
    [ "$got" -eq "$code" ] || complain "exit code $got instead of $code: $*: $(head -20 out err)"
}

# says FILE TEXT: whether an output holds the text.
says() {
    grep -qF -e "$2" "$1" || complain "\"$2\" is missing in std$1: $(head -3 "$1")"
}
