# What the scripts of the package tests share. Each gets from its test:
#   SOURCE_DIR  the project               WORK_DIR  a folder of the build for all of them
#   CMAKE, CXX, LIBRARY_ARCHITECTURE, VERSION
# and, where it tests one installation, LAYOUT: shared or static, then lib or arch, as in "shared-arch".
# shellcheck shell=bash
set -euo pipefail

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Expected and found, both shown if they differ.
expect() {
    [[ $2 == "$3" ]] || fail "$1: expected '$2', found '$3'"
}

libdir_of() {
    case $1 in
    *-lib) echo lib ;;
    *-arch) echo "lib/$LIBRARY_ARCHITECTURE" ;;
    esac
}

# Where the installation stands is not where it was configured to stand: it must not matter.
prefix_of() {
    echo "$WORK_DIR/installed/$1/moved"
}

# build_layout SOURCE BUILD LAYOUT: builds libraries and tool, to be installed into /opt/ombrel in this layout. With debug
# information, which is where build paths would show, and without optimisation, which plays no part here.
build_layout() {
    local shared=OFF
    [[ $3 != shared-* ]] || shared=ON
    "$CMAKE" -S "$1" -B "$2" -G Ninja --log-level=WARNING \
        -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O0 -g1" \
        -DCMAKE_UNITY_BUILD=ON \
        -DCMAKE_INSTALL_PREFIX=/opt/ombrel -DCMAKE_INSTALL_LIBDIR="$(libdir_of "$3")" -DBUILD_SHARED_LIBS=$shared \
        -DOMBREL_BUILD_JSON=ON -DOMBREL_BUILD_INSPECTION=ON -DOMBREL_BUILD_TOOLS=ON -DOMBREL_BUILD_TESTS=OFF -DOMBREL_BUILD_BENCHMARKS=OFF
    "$CMAKE" --build "$2" --target ombrel-effects ombrel_EffectInspection
}

# A copy of the consumers' sources outside the project, so that nothing is found by standing near it.
copy_consumer() {
    rm -rf "$1"
    mkdir -p "$1/examples"
    cp -r "$SOURCE_DIR"/tests/consumer/{own-effect,own-export-header,find-package,subproject,json.cpp} "$SOURCE_DIR/examples/vibrance.cpp" "$1"
    cp -r "$SOURCE_DIR/examples/own-effect" "$1/examples"
}

run_program() {
    local output
    output=$("$1") || fail "$1 ended with $?"
    expect "output of $1" "$2" "$output"
}

# The three programs in folder $1.
run_programs() {
    run_program "$1/vibrance" "strength 40, equal: yes"
    run_program "$1/own-effect" "own effect: fine"
    [[ ${2-} == without-json ]] || run_program "$1/json" "json: fine"
}
