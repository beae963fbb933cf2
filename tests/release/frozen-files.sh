#!/usr/bin/env bash
# Fails if a file of a frozen release was changed, added or taken away: frozen-files.sh RELEASES
set -euo pipefail
cd "$1"

failed=false
for folder in */; do
    (cd "$folder" && sha256sum --check --quiet --strict SHA256SUMS) || failed=true
    diff --label "SHA256SUMS" --label "the files of $folder" <(cut -c67- "$folder/SHA256SUMS" | LC_ALL=C sort) \
        <(cd "$folder" && find . -type f ! -name SHA256SUMS ! -path ./commit | cut -c3- | LC_ALL=C sort) || failed=true
done
if $failed; then
    echo "FAILED: a release is frozen. What it stored must be read by every later one, so its files never change." >&2
    exit 1
fi
