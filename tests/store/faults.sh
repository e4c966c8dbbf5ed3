#!/usr/bin/env bash
# The game under what a machine may do to it. It goes on, or ends with one message and exit code 1; and the vehicle
# store is the one from before the mission or the one from after it, whole.
# Usage: faults.sh ATTENDED_GAME GAME_FOLDER STOCK_STORE
. "$(dirname "$0")/../tools/program.sh"
cp "$3" "$work/before"
cd "$work" || exit 2
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' SDL_AUDIODRIVER=dummy LC_ALL=C
# Permissions don't bind the superuser: he plays as nobody where they matter, from a place that nobody may enter.
chmod 755 .
cp -r "$game/dat" "$game/map" "$game/pic" "$game/wav" "$program" .
nobody=""
[ "$(id -u)" -ne 0 ] || nobody="setpriv --reuid=65534 --regid=65534 --clear-groups"
program=$work/$(basename "$program")

# The game lies in "play", as built but with the stock store.
fresh() {
    chmod -R u+rwX play 2>/dev/null
    rm -rf play
    mkdir play
    cp -r dat map wav play
    ln -s "$work/pic" play/pic
    cp before play/dat/apc.dat
}

# plays CODES WRAPPER STAGE [COMMAND]: the wrapper is shell text that the program's command line is put behind.
plays() {
    local codes=$1 wrapper=$2 got=0
    shift 2
    eval "timeout 60 $wrapper \"\$program\" \"\${folder:-\$work/play}\" \"\$@\"" >out 2>err || got=$?
    [[ " $codes " = *" $got "* ]] || complain "exit code $got instead of $codes: $wrapper $*: $(cat out err)"
}

# The store is what a file holds.
store_is() {
    cmp -s "$1" "${2:-play/dat/apc.dat}" || complain "the store isn't that from $1 the mission: $what"
}

what="an ordinary end"
fresh
plays 0 "" leave
cp play/dat/apc.dat after
cmp -s before after && complain "the store is the same before and after"

# Surroundings that must not matter.
mkdir locale
localedef -i de_DE -f UTF-8 locale/de_DE.UTF-8 2>/dev/null  # numbers have a decimal comma there
while read -r what; do
    fresh
    plays 0 "$what" leave
    [ "$(cat out)" = "Withdrawal. The end." ] || complain "another verdict: $what: $(cat out)"
    [ -s err ] && complain "standard error isn't empty: $what: $(cat err)"
    store_is after
done <<'END'
env -u HOME -u XDG_RUNTIME_DIR
env LOCPATH=locale LC_ALL=de_DE.UTF-8
sh -c 'mkdir gone; cd gone; rmdir ../gone; exec "$@"' -
END
what="closed standard streams"  # no other file may get their numbers
fresh
plays 0 "sh -c 'exec \"\$@\" 0<&- 2>&-' -" leave 'test "$(readlink /proc/$PPID/fd/2)" = /dev/null'
store_is after
what="standard error is a pipe that nobody reads"
fresh
rm play/dat/weapons.dat
plays 1 "bash -c '\"\$@\" 2> >(exec true)' -" leave
what="a folder with blanks and umlauts"
fresh
folder="$work/Spiele für Jörg/Sarnoth  III"
mkdir "${folder%/*}"
mv play "$folder"
plays 0 "" leave
store_is after "$folder/dat/apc.dat"
folder=""

# What ends the game. Before the start | around the program | in the midst of the mission | the message.
while IFS='|' read -r before wrapper during message; do
    what="$before $wrapper $during"
    fresh
    eval "$before"
    [ -z "$nobody" ] || chown -R 65534:65534 play
    plays 1 "$wrapper" leave "$during"
    message=$(sed 's/^ *//' <<<"$message")
    [ "$(cat err)" = "Sarnoth III: Run-time error $message" ] || complain "standard error: $(cat err)"
    chmod -R u+rwX play
    [[ "$during" = *rm* ]] || store_is before
    [ ! -e play/dat/apc.dat.new ] || complain "a half-written store was left: $what"
done <<'END'
rm play/dat/ori.dat play/dat/save.dat; mkfifo play/dat/save.dat| | true | 3: File not found: dat/save.dat: expected a file, found a folder or a device
chmod 0 play/dat/weapons.dat | $nobody | true | 3: File not found: dat/weapons.dat: it can't be read: Permission denied
chmod 0 play/map | $nobody | true | 3: File not found: map/49g.map: Permission denied
chmod 444 play/dat/apc.dat | $nobody | true | 5: File can't be written: dat/apc.dat: Permission denied
true | $nobody | chmod 555 play/dat | 5: File can't be written: dat/apc.dat: Permission denied
true | | rm play/dat/apc.dat; mkdir play/dat/apc.dat | 5: File can't be written: dat/apc.dat: Is a directory
true | | rm -r play/dat | 5: File can't be written: dat/apc.dat: No such file or directory
true | sh -c 'ulimit -f 1; exec "$@"' - | true | 5: File can't be written: dat/apc.dat: File too large
END

# A disk that is full: a small one of its own, where one can be mounted. What was left on it is taken out.
what="a full disk"
fresh
cat >full_disk <<'END'
mount -t tmpfs -o size=64k none play/dat && cp dat/* before play/dat && mv play/dat/before play/dat/apc.dat || exit 77
cat /dev/zero >play/dat/filler 2>/dev/null
"$@"
code=$?
cp play/dat/apc.dat left
ls play/dat >names
exit $code
END
if unshare -m sh full_disk true 2>/dev/null; then
    plays 1 "unshare -m sh full_disk" leave
    [ "$(cat err)" = "Sarnoth III: Run-time error 5: File can't be written: dat/apc.dat: No space left on device" ] ||
        complain "the full disk's message: $(cat err)"
    store_is before left
    grep -q new names && complain "a half-written store was left on the full disk"
else
    echo "no disk could be mounted: that part is skipped"
fi

what="sounds that can't be read"
fresh
chmod 0 play/wav/weapons/*
[ -z "$nobody" ] || chown -R 65534:65534 play
plays 1 "$nobody" fire
grep -q "^Sarnoth III: Run-time error 3: File not found: wav/weapons/.*: it can.t be read: Permission denied" err || complain "$what: $(cat err)"

# The sound device goes away while it plays.
fresh
plays 0 "env SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=/dev/full SDL_DISKAUDIODELAY=0" fire
[ -s err ] && complain "standard error isn't empty without the sound device: $(cat err)"

# The main window is closed in the midst of a stage; the mission's end has saved already when its box stands.
fresh
for stage in start walk fire file select computer leave; do
    what="closed in $stage"
    plays 0 "" $stage close
    [ -s err ] && complain "standard error isn't empty: $what: $(cat err)"
    if [ $stage = leave ]; then store_is after; else store_is before; fi
done

# Killed while it saves, or right before or after.
saved=0
for round in 0 1 2 3 4 5 6 7; do
    fresh
    plays "0 137" "" leave "(sleep 0.00$round; kill -9 \$PPID) >/dev/null 2>&1 &"
    cmp -s after play/dat/apc.dat && saved=$((saved + 1)) || store_is before
done
echo "$saved of 8 killed games had saved"

exit $failed
