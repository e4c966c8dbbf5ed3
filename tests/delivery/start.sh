# Sourced by the tests of the started game, after tests/tools/program.sh: starts on a screen in memory in an environment
# of the test's own.
quiet_env="env -i PATH=$PATH QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy ASAN_OPTIONS=${ASAN_OPTIONS:-}:detect_leaks=0"

# refuses TEXT COMMAND...: the command ends with 1 at once and says so on standard error.
refuses() {
    local text=$1 got=0
    shift
    timeout 20 "$@" >out 2>err || got=$?
    [ "$got" -eq 1 ] || complain "exit code $got instead of 1: $*: $(head -5 out err)"
    says err "$text"
}

# stays COMMAND...: the command is still there, silent, after two seconds; then it is ended.
stays() {
    local got=0
    timeout 2 "$@" >out 2>err || got=$?
    [ "$got" -eq 124 ] || complain "it ended with $got: $*"
    [ -s err ] && complain "standard error isn't empty: $*: $(head -5 err)"
}
