#!/usr/bin/env bash
# An older language than C++20 is refused by name, whichever header comes first: standard.sh CXX SOURCE_FOLDER
set -euo pipefail
cxx=$1 src=$2

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Each header that is installed names another one of the library, down to the one that looks at the language.
private=$(sed -n '/PRIVATE_HEADERS [A-Z]/,/[)]\|REQUIRES/p' "$src/../cmake/OmbrelInstall.cmake" | grep -oE '[A-Za-z]+\.h')
headers=$(cd "$src" && find . -name '*.h' -printf '%P\n' | grep -vxF OmbrelExport.h |
    grep -vE "(^|/)($(xargs <<<"$private" | tr ' ' '|'))\$")
(($(wc -l <<<"$headers") > 200)) || fail "there are only $(wc -l <<<"$headers") headers"
without=$(cd "$src" && grep -L '^#include "' $headers || true)
[[ -z $without ]] || fail "these include no header of the library: $without"

# language HEADER FLAG...: what the compiler says of it.
language() {
    "$cxx" -E -o /dev/null -I "$src" -x c++ "${@:2}" "$src/$1" 2>&1 | grep -m1 'error: ' | sed -E 's/.*error: (#error )?//' || true
}

# expect EXPECTED FLAG...
expect() {
    found=$(language OmbrelExport.h "${@:2}")
    [[ $found == "$1" ]] || fail "with ${*:2}: expected '$1', found '$found'"
}
readonly refused='"Ombrel needs C++20: compile with -std=c++20 or later"'
readonly refused_elsewhere='"Ombrel needs C++20: compile with /std:c++20 or later"'
expect "" -std=c++20
expect "" -std=c++2b
expect "$refused" -std=c++17
expect "$refused" -std=c++11
# A compiler that tells of the language by a macro of its own leaves __cplusplus as it was in 1998.
expect "" -std=c++98 -D_MSVC_LANG=202002L
expect "$refused_elsewhere" -std=c++98 -D_MSVC_LANG=201703L

# The refusal comes before anything that is said of C++20's own words.
for header in Conf/FrameInfo.h Proc/EffectSettings/AcidSettings.h PropertyTree/PropertyTree.h PropertyTreeJson/PropertyTreeJson.h; do
    found=$(language "$header" -std=c++17)
    [[ $found == "$refused" ]] || fail "$header with -std=c++17: expected '$refused', found '$found'"
done
