#!/usr/bin/env bash
# A compiler that is neither GNU's nor clang sees no name of theirs: each stands behind a guard and has a counterpart.
#
#   other-compilers.sh COMPILER FOLDER...
set -euo pipefail

compiler=$1
shift
source=$(dirname "${BASH_SOURCE[0]}")/../../src
undefined=(-U__GNUC__ -U__clang__ -U__linux__ -D_WIN32 -D_MSC_VER=1930 -D_MSVC_LANG=202002L)
names='__attribute__|gnu::|__builtin_|__PRETTY_FUNCTION__|#pragma GCC|__int128|__typeof'
found=""
while read -r file; do
    # Other files are looked at by themselves. The two that are included have the names of marks alone.
    code=$(sed '/^ *# *include/d' "$file" |
        "$compiler" -x c++ -std=c++20 -E -P "${undefined[@]}" -I "$source" -include OmbrelCompiler.h -include OmbrelExport.h -)
    if lines=$(grep -nE "$names" <<<"$code"); then
        found+="$file: $lines"$'\n'
    fi
done < <(find "$@" -name '*.h' -o -name '*.cpp')
if [[ -n $found ]]; then
    printf 'FAILED: names of GNU without a guard:\n%s' "$found" >&2
    exit 1
fi
