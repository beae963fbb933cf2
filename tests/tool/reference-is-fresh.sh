#!/usr/bin/env bash
# The pages of the reference are those that the tool writes now.
#   reference-is-fresh.sh PROGRAM REFERENCE_FOLDER EXAMPLES_FOLDER SCRATCH_FOLDER
set -euo pipefail

rm -rf "$4"
"$1" reference --notes "$2/notes" --examples "$3" --output "$4"
if ! diff -r --unified=0 --exclude=notes "$2" "$4"; then
    echo "docs/reference/ is out of date; run scripts/update" >&2
    exit 1
fi
