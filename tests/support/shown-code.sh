#!/usr/bin/env bash
# A document shows code that is compiled and run: shown-code.sh document source... compares the document's ```cpp blocks, in
# their order, with what stands in the sources between a line "// [name]" and the line "// [/name]".
set -euo pipefail

shown=$(sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$1")
code=$(sed -n '/^\/\/ \[[a-z]*\]$/,/^\/\/ \[\/[a-z]*\]$/{/^\/\/ \[/d;p}' "${@:2}")
if [[ -z $code || $shown != "$code" ]]; then
    echo "FAILED: the \`\`\`cpp blocks of $1 (left) are not the code between the marks of ${*:2} (right):" >&2
    diff <(echo "$shown") <(echo "$code") >&2 || true
    exit 1
fi
