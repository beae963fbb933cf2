#!/usr/bin/env bash
# Every installed program and shared library is hardened, as far as it shows in the file.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

prefix=$(prefix_of "$LAYOUT")
libdir=$(libdir_of "$LAYOUT")

mapfile -t files < <(cd "$prefix" && find . -type f -not -name '*.a' -printf '%P\n' | sort |
    while read -r file; do if readelf -h "$file" >/dev/null 2>&1; then echo "$file"; fi; done)
expected=bin/ombrel-effects
[[ $LAYOUT == static-* ]] ||
    expected=$(printf '%s\n' bin/ombrel-effects "$libdir"/libombrel-{effect-inspection,effect-settings,property-tree-json}.so."$VERSION")
expect "ELF files" "$expected" "$(printf '%s\n' "${files[@]}")"

for file in "${files[@]}"; do
    header=$(readelf -hW "$prefix/$file")
    segments=$(readelf -lW "$prefix/$file")
    dynamic=$(readelf -dW "$prefix/$file")
    symbols=$(readelf --dyn-syms -W "$prefix/$file")
    grep -q 'Type: *DYN ' <<<"$header" || fail "$file is not position-independent"
    grep -q GNU_RELRO <<<"$segments" || fail "$file has no part that is made read-only"
    grep -q 'GNU_STACK .* RW ' <<<"$segments" || fail "$file has a stack that can be executed"
    grep -q 'FLAGS_1.*NOW' <<<"$dynamic" || fail "$file is bound late"
    if grep -q TEXTREL <<<"$dynamic"; then fail "$file has code that is changed when it is loaded"; fi
    grep -q __stack_chk_fail <<<"$symbols" || fail "$file has no stack protector"
    if [[ $file == bin/* ]]; then
        grep -q 'FLAGS_1.* PIE' <<<"$dynamic" || fail "$file is not linked as a position-independent program"
    fi
    # Whoever is linked with a library says which version it needs.
    if [[ $file == *.so.* ]] && others=$(awk '$7 ~ /^[0-9]+$/ && $8 !~ /@@OMBREL_/ && $8 !~ /^OMBREL_/' <<<"$symbols" | grep .); then
        fail "$file has names without a version: $(head -3 <<<"$others")"
    fi
    # It looks for libraries beside itself and in no folder of the machine that built it.
    if paths=$(sed -n 's/.*(R.*PATH).*\[\(.*\)\]/\1/p' <<<"$dynamic" | tr : '\n' | grep -v '^\$ORIGIN\(/\|$\)'); then
        fail "$file looks for libraries in $paths"
    fi
done
