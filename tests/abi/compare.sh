#!/usr/bin/env bash
# Compares what a library exports with the list of it: compare.sh NM LIBRARY LIST. With --update in front, writes the list.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
update=false
[[ $1 != --update ]] || { update=true; shift; }
nm=$1 library=$2 list=$3

head=$(sed -n '/^#/p' "$list")
found=$(bash "$here/exported-names.sh" "$nm" "$library")
if $update; then
    printf '%s\n%s\n' "$head" "$found" >"$list"
elif ! diff --unified=0 --label "$list" --label "$library" <(sed '/^#/d' "$list") - <<<"$found"; then
    echo "FAILED: callers of the library depend on its names. What is gone or has changed breaks them; where that is meant, or" >&2
    echo "something was added, run scripts/update and look at what it does to the list." >&2
    exit 1
fi
