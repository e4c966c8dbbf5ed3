# Shared by ./play and ./check: installs missing packages, configures and builds.

# What each purpose needs, by the distribution's names.
packages_play="cmake ninja-build g++ ccache pkg-config qt6-base-dev libsdl2-mixer-dev libstb-dev libgif-dev fonts-dejavu-core"
packages_check="$packages_play libcli11-dev nlohmann-json3-dev libpugixml-dev sox tiled libgtest-dev libbenchmark-dev libtcod-dev"
packages_lint="clang-format clang-tidy"
packages_clang="clang"
packages_fuzz="clang libclang-rt-14-dev"
packages_web="emscripten python3 brotli sox"
packages_browser="chromium chromium-driver python3-selenium"
packages_package="$packages_play dpkg-dev file lintian appstream desktop-file-utils xvfb xdotool man-db"

# need PURPOSE...: installs what is missing, as root or through sudo; without either it says what and stops.
need() {
    local wanted="" missing="" package
    case " $* " in *" check "*) tests=ON ;; *) tests=OFF ;; esac
    for purpose in "$@"; do
        local list="packages_$purpose"
        wanted="$wanted ${!list}"
    done
    # One question for all: only a package that is wholly installed answers "ii".
    local installed
    installed=" $(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' $wanted 2>/dev/null | sed -n 's/^ii //p' | tr '\n' ' ') "
    for package in $wanted; do
        case "$installed" in *" $package "*) ;; *) missing="$missing $package" ;; esac
    done
    [ -n "$missing" ] || return 0
    local as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing:$missing" >&2
            echo "Install them as root: apt-get install --no-install-recommends$missing" >&2
            exit 1
        fi
        as_root=sudo
    fi
    echo "Installing:$missing"
    $as_root apt-get update -qq
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# quietly COMMAND...: what it prints is seen only when it fails.
quietly() {
    local told code=0
    told=$(mktemp)
    "$@" >"$told" 2>&1 || { code=$?; cat "$told"; }
    rm -f "$told"
    return $code
}

# build PRESET TARGET...: quiet when there is nothing to do. What was configured without tests is configured anew when
# they are needed.
build() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ] ||
        { [ $tests = ON ] && grep -q '^SARNOTH_TESTS:BOOL=OFF' "build/$preset/CMakeCache.txt"; }; then
        quietly cmake --preset "$preset" -DSARNOTH_TESTS=$tests || exit 1
    fi
    cmake --build --preset "$preset" --target "$@" -- --quiet
}

# build_web TARGET...: the page, in two stages, since the programs that make the content need the native toolkit.
build_web() {
    build release sarnoth_content
    build web "$@"
    scripts/web.sh build/release
}
