#!/usr/bin/env bash
# The pages of the reference are those that the tool writes now.
#   reference-is-fresh.sh PROGRAM REFERENCE_FOLDER SCRATCH_FOLDER
set -euo pipefail

rm -rf "$3"
"$1" reference --notes "$2/notes" --output "$3"
if ! diff -r --unified=0 --exclude=notes "$2" "$3"; then
    echo "docs/reference/ is out of date; run scripts/reference" >&2
    exit 1
fi
