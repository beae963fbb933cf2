#!/usr/bin/env bash
# docs/stored-form.md shows the code that is compiled and run: stored-form-block.sh stored-form.md StoredFormTest.cpp
set -euo pipefail

code=$(sed '0,/^\/\/ \[resize\]$/d; /^\/\/ \[\/resize\]$/,$d' "$2")
block=$(sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$1")
if [[ -z $code || $block != "$code" ]]; then
    echo "FAILED: the \`\`\`cpp block of $1 (left) is not the code between the [resize] marks of $2 (right):" >&2
    diff <(echo "$block") <(echo "$code") >&2 || true
    exit 1
fi
