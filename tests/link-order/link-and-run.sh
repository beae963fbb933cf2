#!/usr/bin/env bash
# Links the listed objects in an order - forward, reversed, or shuffled by a number - and runs the program:
#   link-and-run.sh ORDER OBJECT_LIST PROGRAM LINKER [FLAG...]
set -euo pipefail
order=$1 list=$2 program=$3
shift 3

# The same bytes for the same number, for as long as shuf may ask.
bytes() {
    yes "order $1" || true
}

case $order in
forward) objects=$(cat "$list") ;;
reversed) objects=$(tac "$list") ;;
*) objects=$(shuf --random-source=<(bytes "$order" 2>/dev/null) "$list") ;;
esac

# shellcheck disable=SC2086 # the paths come from the build and one line each
"$@" $objects -o "$program"
if ! output=$("$program"); then
    printf 'FAILED in the order "%s":\n%s\n' "$order" "$objects" >&2
    exit 1
fi
[[ $output == "started" ]] || { echo "FAILED: expected 'started', found '$output'" >&2; exit 1; }
