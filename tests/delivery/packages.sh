#!/usr/bin/env bash
# Plays from the packages, as somebody who may write nowhere but in his home: a mission of one turn, left by the menu, from
# the folder and from the .deb, which is installed, installed over and taken away again. It changes the machine and needs
# root, so scripts/package.sh runs it and not ctest.
# Usage: packages.sh FOLDER.tar.gz PACKAGE.deb
. "$(dirname "$0")/../tools/program.sh"
tar=$program deb=$game
nobody=65534
store=$work/home/.local/share/sarnoth/dat/apc.dat
screen="" running=""
end() {
    for process in $running $screen; do kill "$process" 2>/dev/null; done
    dpkg --purge sarnoth3 >/dev/null 2>&1
    rm -rf "$work"
}
trap end EXIT
chmod 755 "$work"
cd "$work" || exit 2
install -d -o $nobody -g $nobody home

Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp >number 2>/dev/null &
screen=$!
for _ in $(seq 100); do [ -s number ] && break; sleep 0.1; done
export DISPLAY=:$(cat number)

# window NAME: waits for a window and prints its number.
window() {
    timeout 30 xdotool search --sync --onlyvisible --name "$1" 2>/dev/null | tail -1
}

# closes NAME KEY: waits for a window, and closes it by a key.
closes() {
    local box
    box=$(window "$1")
    [ -n "$box" ] || { complain "no window \"$1\""; return; }
    xdotool windowfocus --sync "$box" key "$2"
}

# plays COMMAND: every soldier gives up his turn, the computer has its own, and the menu ends the mission. The game must end
# with 0, have nothing to complain of, and have saved the store.
plays() {
    local got=0 main
    touch started
    # Somebody who knows the game already.
    install -d -o $nobody -g $nobody home/.local home/.local/share home/.local/share/sarnoth
    printf 'first card seen = yes\nask before end turn = no\n' >home/.local/share/sarnoth/settings.txt
    chown $nobody:$nobody home/.local/share/sarnoth/settings.txt
    setpriv --reuid=$nobody --regid=$nobody --clear-groups \
        env -i PATH=/usr/games:/usr/bin:/bin HOME="$work/home" DISPLAY="$DISPLAY" "$1" >out 2>err &
    running=$!
    main=$(window '^Sarnoth III :: ')
    [ -n "$main" ] || complain "$1: no window"
    sleep 3
    xdotool windowfocus "$main"
    xdotool key --delay 300 $(yes Escape | head -20)
    sleep 3
    xdotool key alt+x
    closes '^Leave the mission\?$' alt+l
    closes '^Debriefing$' Escape
    closes '^Sarnoth III$' Return
    for _ in $(seq 50); do kill -0 "$running" 2>/dev/null || break; sleep 0.2; done
    kill "$running" 2>/dev/null && complain "$1: it doesn't end"
    wait "$running" || got=$?
    running=""
    [ "$got" -eq 0 ] || complain "$1: exit code $got"
    [ -s err ] && complain "$1: standard error isn't empty: $(head -3 err)"
    [ "$store" -nt started ] || complain "$1: the store isn't saved in the home"
}

# Installs the package, over itself too, with what it depends on.
put_in() {
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --reinstall --no-install-recommends "$deb" >log 2>&1 ||
        { cat log; exit 1; }
}

echo "From the folder, which is root's"
tar -xzf "$tar" --no-same-owner
plays "$(echo "$work"/sarnoth3-*/sarnoth)"
rm -r home/.local

echo "Without its data, under a display: a box, and exit code 1"
mkdir bare
cp sarnoth3-*/sarnoth bare/
HOME=$work/home bare/sarnoth 2>err &
running=$!
box=$(window '^Sarnoth III$')
[ -n "$box" ] || complain "no box tells of the missing data"
xdotool windowfocus "$box" key Return
got=0
wait "$running" || got=$?
running=""
[ "$got" -eq 1 ] || complain "exit code $got instead of 1"
says err "dat/weapons.dat"

echo "From the .deb"
put_in
plays sarnoth
dpkg --verify sarnoth3 | grep . && complain "playing has changed what was installed"
[ -s /usr/share/doc/sarnoth3/copyright ] || complain "no copyright file"
man -w sarnoth >/dev/null 2>&1 || complain "no man page"

echo "Installed over"
# The condition of the store's first thing: byte 11 of it, behind a record and a place's column and row.
condition=$((1112 + 2 + 11))
printf '\7' | dd of="$store" bs=1 seek=$condition conv=notrunc status=none
cp "$store" before
put_in
cmp before "$store" || complain "the player's store has changed with the package"
plays sarnoth
[ "$(od -An -tu1 -j $condition -N 1 "$store" | tr -d ' ')" = 7 ] || complain "the player's store wasn't gone on with"

echo "Taken away"
dpkg -L sarnoth3 | while read -r path; do [ -d "$path" ] || echo "$path"; done >files
dpkg --purge sarnoth3 >log 2>&1 || complain "it can't be taken away: $(cat log)"
while read -r file; do [ -e "$file" ] && complain "$file is left"; done <files
[ -s files ] && [ ! -e /usr/share/sarnoth ] || complain "/usr/share/sarnoth is left"
[ -s "$store" ] || complain "the player's store is gone"
exit $failed
