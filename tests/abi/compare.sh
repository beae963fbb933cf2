#!/usr/bin/env bash
# Compares what a command prints with the list of it: compare.sh LIST COMMAND... With --update in front, writes the list.
set -euo pipefail
update=false
[[ $1 != --update ]] || { update=true; shift; }
list=$1
shift

# differences LIST FOUND: the lines that only one of the texts has, with a sign in front.
differences() {
    { diff --unified=0 - <(cat <<<"$2") <<<"$1" || (($? == 1)); } | sed -E '1,2d; /^@@/d'
}
without_places() { sed -E 's/(at|size|alignment) [0-9]+,? ?//g' <<<"$1"; }

head=$(sed -n '/^#/p' "$list")
listed=$(sed '/^#/d' "$list")
found=$("$@")
if $update; then
    printf '%s\n%s\n' "$head" "$found" >"$list"
    exit
fi
changes=$(differences "$listed" "$found")
[[ -n $changes ]] || exit 0
printf 'What was built differs from %s:\n%s\n' "$list" "$changes"
# Where one member comes, all behind it move, and so does whatever holds the class.
causes=$(differences "$(without_places "$listed")" "$(without_places "$found")")
if [[ -n $causes ]] && (($(wc -l <<<"$causes") < $(wc -l <<<"$changes"))); then
    printf 'Of this, what is more than another place or size:\n%s\n' "$causes"
fi
echo "FAILED: callers of the library depend on what stands in the list. What is gone or has changed breaks them; where that is" >&2
echo "meant, or something was added, run scripts/update and look at what it does to the list." >&2
exit 1
