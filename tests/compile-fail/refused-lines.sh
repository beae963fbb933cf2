#!/usr/bin/env bash
# Compiles a file with MUST_FAIL defined. Each line that ends with "// refused" must then be an error because it uses something
# deleted, and no other line may be an error: refused-lines.sh FILE COMPILER ARGUMENT...
set -euo pipefail
export LC_ALL=C
file=$1
shift

limit=-fmax-errors=0
[[ $("$1" --version) != *clang* ]] || limit=-ferror-limit=0
messages=$("$@" "$limit" -fno-diagnostics-color -DMUST_FAIL "$file" 2>&1) && { echo "FAILED: $file compiles" >&2; exit 1; }

errors=$(grep ' error: ' <<<"$messages")
lines_of() { sed -n "s|^$file:\([0-9]*\):.*|\1|p" | sort -nu; }
refused=$(grep -n '// refused$' "$file" | cut -d: -f1)
for found in "$(lines_of <<<"$errors")" "$(grep deleted <<<"$errors" | lines_of)"; do
    if ! diff --label "lines to refuse" --label "lines refused" - <(echo "$found") <<<"$refused"; then
        echo "FAILED: the compiler said" >&2
        echo "$errors" >&2
        exit 1
    fi
done
if others=$(grep -vF "$file:" <<<"$errors"); then
    echo "FAILED: errors elsewhere" >&2
    echo "$others" >&2
    exit 1
fi
