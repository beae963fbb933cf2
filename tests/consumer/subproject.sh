#!/usr/bin/env bash
# A project that has the library's sources below it builds the library and nothing else of them, and runs.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/subproject
copy_consumer "$work"
"$CMAKE" -S "$work/subproject" -B "$work/build" -G Ninja --log-level=WARNING \
    -DCMAKE_CXX_COMPILER="$CXX" -DOMBREL_SOURCE_DIR="$SOURCE_DIR" -DCMAKE_UNITY_BUILD=ON
"$CMAKE" --build "$work/build"
run_programs "$work/build" without-json

# Its parent's installation has nothing of the library.
"$CMAKE" --install "$work/build" --prefix "$work/installed"
[[ ! -e $work/installed ]] || fail "the subproject installs $(find "$work/installed" -type f | head -3)"
