#!/usr/bin/env bash
# A program outside the tree is built by what pkg-config says, and runs.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

prefix=$(prefix_of "$LAYOUT")
libdir=$prefix/$(libdir_of "$LAYOUT")
export PKG_CONFIG_PATH=$libdir/pkgconfig
work=$WORK_DIR/pkg-config-$LAYOUT
copy_consumer "$work"
cd "$work"

for package in ombrel-effect-settings ombrel-property-tree-json ombrel-effect-inspection; do
    expect "version of $package" "$VERSION" "$(pkg-config --modversion $package)"
    expect "includes of $package" "$prefix/include/Ombrel" "$(realpath "$(pkg-config --variable=includedir $package)")"
    expect "libraries of $package" "$libdir" "$(realpath "$(pkg-config --variable=libdir $package)")"
done

# A program that is not position-independent copies the objects it uses of a shared library: the harder case.
flags=(-std=c++20 -fno-pie)
link=(-no-pie)
static=()
if [[ $LAYOUT == shared-* ]]; then
    link+=(-Wl,-rpath,"$libdir")
else
    static=(--static)
fi

mkdir bin

# build program package source...
build() {
    local program=$1 package=$2 source object objects=()
    shift 2
    for source in "$@"; do
        object=bin/$(basename "$source").o
        # shellcheck disable=SC2046 # pkg-config prints words
        "$CXX" "${flags[@]}" -I examples/own-effect -c "$source" -o "$object" $(pkg-config --cflags "$package")
        objects+=("$object")
    done
    # shellcheck disable=SC2046
    "$CXX" "${link[@]}" -o "bin/$program" "${objects[@]}" $(pkg-config --libs "${static[@]}" "$package")
}

build vibrance ombrel-effect-settings vibrance.cpp
build own-effect ombrel-effect-settings own-effect/main.cpp examples/own-effect/{FrameSettings,SettingsEffectFrame}.cpp
build json ombrel-property-tree-json json.cpp
run_programs bin

if [[ $LAYOUT == static-* ]]; then
    # The driver of another language does not know the C++ library by itself.
    # shellcheck disable=SC2046
    cc -no-pie -o bin/json-by-cc bin/json.cpp.o $(pkg-config --libs --static ombrel-property-tree-json)
    run_program bin/json-by-cc "json: fine"
fi
