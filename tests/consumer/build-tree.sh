#!/usr/bin/env bash
# The package is found in the library's build tree too, here the one that package.install leaves.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/find-in-build-tree
copy_consumer "$work"
"$CMAKE" -S "$work/find-package" -B "$work/build" -G Ninja --log-level=WARNING \
    -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$WORK_DIR/build" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
found=$(sed -n 's/^found:INTERNAL=//p' "$work/build/CMakeCache.txt")
expect "the package found" "$WORK_DIR/build" "$found"
"$CMAKE" --build "$work/build" --target vibrance json
run_program "$work/build/vibrance" "strength 40, equal: yes"
run_program "$work/build/json" "json: fine"
