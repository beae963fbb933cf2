#!/usr/bin/env bash
# A library exports what callers need and no more, since each name costs time when it is loaded: export-limits.sh NM LIBRARY.
set -euo pipefail
nm=$1 library=$2
readonly MAX_NAMES=2500

names=$("$nm" -D --defined-only "$library")
count=$(wc -l <<<"$names")
if ((count > MAX_NAMES)); then
    echo "FAILED: $library exports $count names, more than $MAX_NAMES" >&2
    exit 1
fi
# What is inline or a template is compiled anew by whoever uses it.
if functions=$(grep ' W ' <<<"$names"); then
    printf 'FAILED: %s exports functions that callers have themselves\n%s\n' "$library" "$(c++filt <<<"$functions")" >&2
    exit 1
fi
