#!/usr/bin/env bash
# shared-objects.sh library: every exported object that is made when the library is loaded is shared with the program, which may
# hold the one copy of it. A library bound to its own would leave that copy unmade.
set -euo pipefail

library=$1
objects=$(nm -D --defined-only "$library" | awk '$2 == "B" && $3 ~ /^_ZN/ { sub("@.*", "", $3); print $3 }')
relocations=$(readelf -rW "$library" | awk '{ sub("@.*", "", $5); print $5 }')
if [[ -z $objects ]]; then
    echo "no exported object in $library" >&2
    exit 1
fi
if own=$(grep -vxF -f <(printf '%s\n' "$relocations") <<<"$objects"); then
    echo "cmake/shared-objects.list does not name:" >&2
    c++filt <<<"$own" >&2
    exit 1
fi
