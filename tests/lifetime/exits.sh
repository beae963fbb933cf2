#!/usr/bin/env bash
# Runs the program so often, each time with a thread that works while the process ends:
#   exits.sh PROGRAM COUNT
set -euo pipefail
for ((run = 1; run <= $2; ++run)); do
    "$1" worker || { echo "run $run failed" >&2; exit 1; }
done
