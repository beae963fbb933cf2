#!/usr/bin/env bash
# A project outside the tree finds the package by find_package, builds against it and runs.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/find-package-$LAYOUT
copy_consumer "$work"
"$CMAKE" -S "$work/find-package" -B "$work/build" -G Ninja --log-level=WARNING \
    -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$(prefix_of "$LAYOUT")" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
found=$(sed -n 's/^found:INTERNAL=//p' "$work/build/CMakeCache.txt")
expect "the package found" "$(prefix_of "$LAYOUT")/$(libdir_of "$LAYOUT")/cmake/OmbrelEffectSettings" "$found"
"$CMAKE" --build "$work/build"
run_programs "$work/build"
run_program "$work/build/own-export-header" "EFFECT_ACID"

# So does the installed example.
cp -r "$(prefix_of "$LAYOUT")"/share/doc/*/examples/own-effect "$work/installed-example"
"$CMAKE" -S "$work/installed-example" -B "$work/build-example" -G Ninja --log-level=WARNING \
    -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$(prefix_of "$LAYOUT")" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
"$CMAKE" --build "$work/build-example"
run_program "$work/build-example/own-effect" "$(sed -n '/^```text own-effect.out$/,/^```$/p' "$SOURCE_DIR/docs/guides/own-effects.md" | sed '1d;$d')"
