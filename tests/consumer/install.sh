#!/usr/bin/env bash
# Builds the library once and installs it in four layouts: shared and static, with and without an architecture folder in lib.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

rm -rf "$WORK_DIR/installed"
for layout in shared-lib shared-arch static-lib static-arch; do
    build_layout "$SOURCE_DIR" "$WORK_DIR/build" $layout
    DESTDIR="$WORK_DIR/installed/$layout" "$CMAKE" --install "$WORK_DIR/build" >/dev/null
    mv "$WORK_DIR/installed/$layout/opt/ombrel" "$(prefix_of $layout)"
done
