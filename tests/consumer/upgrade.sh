#!/usr/bin/env bash
# A program that was compiled with the oldest release of today's binary interface runs with today's libraries, and prints the
# same. The release is built from the commit that its folder in releases/ names. Ends with 77 where there is nothing to compare.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

skip() {
    echo "upgrade: nothing to compare: $*"
    exit 77
}

# Releases of one binary interface have the same name for the loader: that of the minor version while the major one is 0.
case $VERSION in
0.*) interface=${VERSION%.*} folders=$interface ;;
*) interface=${VERSION%%.*} folders="$interface.*" ;;
esac
release=$(find "$SOURCE_DIR/releases" -mindepth 2 -maxdepth 2 -path "*/releases/$folders/commit" -printf 'releases/%P\n' 2>/dev/null |
    sort -V | head -1) || true
[[ -n $release ]] || skip "no release with the name .so.$interface has a file releases/$folders/commit yet"
[[ -e $SOURCE_DIR/.git ]] || skip "this is no repository, from which $release could be built"
commit=$(<"$SOURCE_DIR/$release")
if ! git -C "$SOURCE_DIR" cat-file -e "$commit^{commit}"; then
    [[ $(git -C "$SOURCE_DIR" rev-parse --is-shallow-repository) != true ]] || skip "this clone has no commit $commit; git fetch --unshallow"
    fail "the repository has no commit '$commit', which $release names"
fi

work=$WORK_DIR/upgrade
mkdir -p "$work/$commit/source"
echo "upgrade: from ${release%/commit}, commit $commit"
git -C "$SOURCE_DIR" archive "$commit" | tar -x -C "$work/$commit/source"

# build SOURCE FOLDER: builds the shared libraries as they are released, and installs them in FOLDER/installed.
build() {
    local log=$2/log
    mkdir -p "$2"
    rm -rf "$2/installed"
    {
        "$CMAKE" -S "$1" -B "$2/build" -G Ninja --log-level=WARNING -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=16 -DBUILD_SHARED_LIBS=ON \
            -DCMAKE_INSTALL_PREFIX="$2/installed" -DCMAKE_INSTALL_LIBDIR=lib \
            -DOMBREL_BUILD_JSON=ON -DOMBREL_BUILD_INSPECTION=ON -DOMBREL_BUILD_TOOLS=OFF -DOMBREL_BUILD_TESTS=OFF &&
            "$CMAKE" --build "$2/build" && "$CMAKE" --install "$2/build"
    } >"$log" 2>&1 || fail "$1 does not build:
$(tail -30 "$log")"
}
echo "upgrade: building both libraries"
old=$work/$commit new=$work/today
build "$old/source" "$old"
build "$SOURCE_DIR" "$new"

# run PROGRAM FOLDER: what it prints with the libraries of FOLDER. All that it takes from them is there from the start.
run() {
    local libraries=$2/installed/lib code=0
    local found
    found=$(LD_LIBRARY_PATH=$libraries ldd "$1" | grep -c "=> $libraries/libombrel-") || true
    expect "libraries of $2 that $1 is loaded with" 3 "$found"
    LD_LIBRARY_PATH=$libraries LD_BIND_NOW=1 "$1" "$old/source/examples/effects" >"$1.out" 2>&1 || code=$?
    ((code == 0)) || fail "$1 with the libraries of $2 ended with $code:
$(tail -5 "$1.out")"
}

python3 "$SOURCE_DIR/tests/consumer/upgrade/write_records.py" "$old/source" "$old/Records.h"
export PKG_CONFIG_PATH=$old/installed/lib/pkgconfig
own_effect=$(dirname "$(find "$old/source" -name FrameSettings.h)")
# With calls of the library's inline functions, and with these compiled into the program.
for optimisation in -O0 -O2; do
    program=$old/program$optimisation
    echo "upgrade: the program, with $optimisation"
    # shellcheck disable=SC2046 # pkg-config prints words
    "$CXX" -std=c++20 $optimisation -o "$program" -I "$old" -I "$own_effect" "$SOURCE_DIR/tests/consumer/upgrade/main.cpp" \
        "$own_effect"/{FrameSettings,SettingsEffectFrame}.cpp $(pkg-config --cflags --libs ombrel-effect-inspection ombrel-property-tree-json)
    run "$program" "$old"
    mv "$program.out" "$program.expected"
    run "$program" "$new"
    cmp -s "$program.expected" "$program.out" || fail "$program prints with today's libraries (right) what it did not print with its own (left):
$(diff <(tr , '\n' <"$program.expected") <(tr , '\n' <"$program.out") | head -20)"
    echo "upgrade: the same $(wc -l <"$program.out") lines with both libraries"
done
