#!/usr/bin/env bash
# The script of the guide, run over the looks of the guide, prints and writes what the guide says.
#   continuous-integration.sh PYTHON SHOWN_PART GUIDE FOLDER TOOL_FOLDER
set -euo pipefail

shown() { "$1" "$2" "$3" "$4" "$5"; }
rm -rf "$4"
mkdir -p "$4/looks" "$4/expected"
for part in check-looks.sh looks/evening.json looks/portrait.json; do
    shown "${@:1:3}" $part "$4/$part"
done
for part in check-looks.out looks.xml; do
    shown "${@:1:3}" $part "$4/expected/$part"
done
cd "$4"
code=0
PATH=$5:$PATH bash check-looks.sh >check-looks.out 2>&1 || code=$?
[[ $code -eq 1 ]] || { echo "FAILED: expected exit code 1, found $code" >&2; cat check-looks.out >&2; exit 1; }
diff expected/check-looks.out check-looks.out
diff expected/looks.xml looks.xml
