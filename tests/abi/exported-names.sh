#!/usr/bin/env bash
# Prints what a caller of a shared library may depend on: exported-names.sh NM LIBRARY. Fails on a name that is none of ours.
#
# Left out is what a compiler may emit or not, so that any build gives the same list: inline functions, thunks and templates.
set -euo pipefail
export LC_ALL=C
nm=$1 library=$2

# The linker adds the name of the version, the sanitizers names of their own.
foreign=$("$nm" -D --defined-only --format=posix "$library" | cut -d' ' -f1 | grep -vE '6Ombrel|^_ZT[SI].*5boost|^OMBREL_|^_*(odr_)?[a-z]*san|^__start_|^__stop_' || true)
if [[ -n $foreign ]]; then
    printf 'FAILED: %s exports names that are none of ours\n%s\n' "$library" "$foreign" >&2
    exit 1
fi

# Size, kind and name, where the names of the standard library are as they are written. Without the version, with which llvm-nm
# decodes no name.
names() {
    "$nm" -DS --defined-only "$library" | sed -E 's/@@?OMBREL_[0-9.]+$//' | c++filt | sed -E '
        s/^[0-9a-f]+ ([0-9a-f]+ )?([A-Za-z]) /\2 \1/
        s/\[abi:cxx11\]//g
        s/std::(__cxx11|__1):://g
        s/std::basic_string<char, std::char_traits<char>, std::allocator<char> ?>/std::string/g
        s/std::basic_ostream<char, std::char_traits<char> ?>/std::ostream/g
        s/basic_string<char, std::char_traits<char>, std::allocator<char> ?>/std::string/g
        :close; s/> >/>>/g; t close'
}

strong() {
    sed -nE 's/^T ([0-9a-f]+ )?(Ombrel::.*)$/function \2/p; s/^[BDR] ([0-9a-f]+ )?(Ombrel::.*)$/object \2/p' | sort -u
}

# Without the one class that has no home, whose table stands where some compiler wanted it: another test has its order.
classes() {
    sed -nE 's/^[VDR] ([0-9a-f]+) vtable for (Ombrel::[A-Za-z:]+)$/\1 \2/p' | { grep -v ' Ombrel::PhotoCore::IEffectSettings$' || true; } |
        while read -r size class; do
            echo "class $class, $((16#$size)) bytes of virtual operations"
        done | sort
}

all=$(names)
strong <<<"$all"
classes <<<"$all"
