#!/usr/bin/env bash
# README.md shows the example that is compiled and run, and no other text: readme-block.sh README.md readme.cpp
set -euo pipefail

example=$(sed '0,/^\/\/ \[readme\]$/d; /^\/\/ \[\/readme\]$/,$d' "$2")
if [[ -z $example ]]; then
    echo "FAILED: $2 has no region between '// [readme]' and '// [/readme]'" >&2
    exit 1
fi
if [[ ! -f $1 ]]; then
    echo "FAILED: there is no $1" >&2
    exit 1
fi
block=$(sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$1")
if [[ $block != "$example" ]]; then
    echo "FAILED: the \`\`\`cpp block of $1 (left) is not the example in $2 (right):" >&2
    diff <(echo "$block") <(echo "$example") >&2
    exit 1
fi
