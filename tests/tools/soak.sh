#!/usr/bin/env bash
# What scripts/soak.sh makes of a mission out of order and of processes that die, by a program that stands for sarnoth-lab.
# Usage: soak.sh SOAK_SCRIPT
set -u
script=$(readlink -f "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2

cat >lab <<'END'
#!/usr/bin/env bash
seed=${3%%..*}
[ "$*" = "soak --seeds $seed..$seed --record finds" ] || exit 3
case $seed in
    2) echo "seed 2, event 9: out of order: a: b"; exit 1 ;;
    3) kill -SEGV $$ ;;
    4) echo "seed 4, event 8: Victory"; echo "a leak" >&2; exit 1 ;;
    *) echo "seed $seed, event 7: Victory" ;;
esac
END
chmod +x lab

code=0
"$script" ./lab 6 finds >out 2>err || code=$?
sort out >sorted
diff - sorted <<'END' || exit 1
      1 out of order
      2 died
      3 Victory
seed 2, event 9: out of order: a: b
seed 3: died: exit code 139, see finds/3.log
seed 4: died: exit code 1, see finds/4.log
END
[ $code -eq 1 ] && [ "$(echo finds/*)" = "finds/3.log finds/4.log" ] && [ ! -s err ] && "$script" ./lab 1 finds >out
