#!/usr/bin/env bash
# What libraries and programs are compiled with, where the file does not show it. Configures only.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/hardening
rm -rf "$work"

# configure NAME FLAGS [OPTION...]: configures a release with these flags of the caller's.
configure() {
    "$CMAKE" -S "$SOURCE_DIR" -B "$work/$1" -G Ninja --log-level=WARNING -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="$2" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DOMBREL_BUILD_TESTS=OFF "${@:3}"
}

# commands NAME: how each file of the libraries and of the tool is compiled.
commands() {
    grep '"command": ' "$work/$1/compile_commands.json" | grep -E "$SOURCE_DIR/(src|tools)/[^ ]*\.cpp\","
}

# all NAME PATTERN, none NAME PATTERN: how many of these commands fit.
all() {
    if others=$(commands "$1" | grep -v -e "$2"); then fail "$1: without $2: $(head -1 <<<"$others")"; fi
}
none() {
    if others=$(commands "$1" | grep -e "$2"); then fail "$1: with $2: $(head -1 <<<"$others")"; fi
}

configure release ""
(($(commands release | wc -l) > 200)) || fail "there are only $(commands release | wc -l) commands"
for option in -fPI[CE] -fstack-protector-strong -fstack-clash-protection -D_FORTIFY_SOURCE=2; do
    all release " $option "
done

# Without optimisation the C library would warn of the macro.
configure not-optimised "" -DCMAKE_CXX_FLAGS_RELEASE=-O0
all not-optimised " -fstack-protector-strong "
none not-optimised _FORTIFY_SOURCE

# A distribution's own choice stays, and is not defined twice.
configure distribution "-D_FORTIFY_SOURCE=3 -Werror"
all distribution " -D_FORTIFY_SOURCE=3 "
none distribution _FORTIFY_SOURCE=2
"$CMAKE" --build "$work/distribution" --target ombrel_Version >/dev/null || fail "a file does not compile with the flags of a distribution"
