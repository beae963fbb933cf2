#!/usr/bin/env bash
# A module with a symbol that is unique in the process (STB_GNU_UNIQUE) is never unloaded: no-unique-symbols.sh NM FILE...
set -euo pipefail
nm=$1
shift
for file; do
    symbols=$("$nm" -DC --defined-only "$file")
    [[ -n $symbols ]] || { echo "FAILED: $file exports nothing" >&2; exit 1; }
    if unique=$(grep ' u ' <<<"$symbols"); then
        printf 'FAILED: %s cannot be unloaded, because of\n%s\n' "$file" "$unique" >&2
        exit 1
    fi
done
