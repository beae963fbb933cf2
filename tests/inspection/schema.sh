#!/usr/bin/env bash
# schema.sh PYTHON WRITER EXAMPLES COUNT SEED: validates EXAMPLES and COUNT random trees by the schemas.
set -euo pipefail
python=$1 writer=$2 examples=$3 count=$4 seed=$5

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$writer" "$scratch" "$count" "$seed"
PYTHONDONTWRITEBYTECODE=1 "$python" "$(dirname "${BASH_SOURCE[0]}")/schema.py" "$scratch" "$examples"
