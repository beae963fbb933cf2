#!/usr/bin/env bash
# Whether the tests are built is the caller's choice; without them nothing asks for GoogleTest. Configures only.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/options
rm -rf "$work"

# configure NAME OPTION...: without GoogleTest.
configure() {
    (cd "$SOURCE_DIR" && "$CMAKE" -B "$work/$1" -G Ninja --log-level=ERROR -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON "${@:2}") >"$work-$1.log" 2>&1
}

# option NAME OPTION: its value.
option() {
    sed -n "s/^$2:BOOL=//p" "$work/$1/CMakeCache.txt"
}

configure release --preset release || fail "the preset release asks for more than there is: $(cat "$work-release.log")"
expect "OMBREL_BUILD_TESTS of the preset release" OFF "$(option release OMBREL_BUILD_TESTS)"

configure without-testing -S . -DBUILD_TESTING=OFF || fail "BUILD_TESTING=OFF is not heeded: $(cat "$work-without-testing.log")"
expect "OMBREL_BUILD_TESTS with BUILD_TESTING=OFF" OFF "$(option without-testing OMBREL_BUILD_TESTS)"

if configure by-default -S .; then fail "the tests are not built by default"; fi
expect "OMBREL_BUILD_TESTS by default" ON "$(option by-default OMBREL_BUILD_TESTS)"
