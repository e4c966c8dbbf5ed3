#!/usr/bin/env bash
# A release program is hardened in full: tables that are read-only once it runs, no fixed address, no executable stack,
# watched returns and copies, and landing marks for indirect calls where the processor has them.
# Usage: hardening.sh PROGRAM...
set -u
failed=0
for program in "$@"; do
    complain() { echo "$program: $*"; failed=1; }
    headers=$(readelf -lW "$program") dynamic=$(readelf -dW "$program") symbols=$(readelf -sW --dyn-syms "$program")
    [[ $headers == *GNU_RELRO* ]] || complain "expected GNU_RELRO"
    [[ $dynamic == *BIND_NOW* || $dynamic == *"Flags: NOW"* ]] || complain "expected every symbol bound at the start"
    [[ $dynamic == *PIE* ]] || complain "expected a program without a fixed address"
    grep -q "GNU_STACK.* RW " <<<"$headers" || complain "expected a stack that holds no code"
    [[ $symbols == *__stack_chk_fail* ]] || complain "expected watched returns"
    grep -qE "__[a-z]+_chk" <<<"${symbols//__stack_chk_fail/}" || complain "expected watched copies"
    if [ "$(uname -m)" = x86_64 ]; then
        marks=$(objdump -d --no-show-raw-insn "$program" | grep -c endbr64)
        [ "$marks" -gt 1000 ] || complain "expected landing marks in every routine, found $marks"
    fi
done
exit $failed
