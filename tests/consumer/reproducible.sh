#!/usr/bin/env bash
# Built from another folder, and in another place below it, everything that is installed is the same, byte by byte.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/elsewhere
rm -rf "$work"
mkdir -p "$work/sources of a name with spaces"
cd "$work/sources of a name with spaces"
cp -r "$SOURCE_DIR"/{CMakeLists.txt,cmake,debugger,examples,src,tools} .
build_layout . out shared-lib
DESTDIR=$work/installed "$CMAKE" --install out >/dev/null

first=$(prefix_of shared-lib) second=$work/installed/opt/ombrel
[[ -x $first/bin/ombrel-effects && -f $first/lib/libombrel-property-tree-json.so ]] || fail "there is nothing to compare in $first"
diff -r "$first" "$second" || fail "the installed files depend on the folder in which they were built"
