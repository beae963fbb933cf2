#!/usr/bin/env bash
# The guide shows each source of the example as it is, and what its program prints.
#   own-effects.sh PYTHON SHOWN_PART GUIDE FOLDER EXAMPLE PROGRAM
set -euo pipefail

mkdir -p "$4"
shown() { "$1" "$2" "$3" "$5" "$4/$5"; }
for file in "$5"/*; do
    name=$(basename "$file")
    shown "${@:1:4}" "$name"
    diff "$4/$name" "$file" || { echo "FAILED: $3 shows another $name" >&2; exit 1; }
done
shown "${@:1:4}" own-effect.out
"$6" | diff "$4/own-effect.out" -
