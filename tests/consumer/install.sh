#!/usr/bin/env bash
# Builds the library once and installs it in four layouts: shared and static, with and without an architecture folder in lib.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

rm -rf "$WORK_DIR/installed"
for layout in shared-lib shared-arch static-lib static-arch; do
    [[ $layout == shared-* ]] && shared=ON || shared=OFF
    # With debug information, which is where build paths would show, and without optimisation, which plays no part here.
    "$CMAKE" -S "$SOURCE_DIR" -B "$WORK_DIR/build" -G Ninja --log-level=WARNING \
        -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O0 -g1" \
        -DCMAKE_UNITY_BUILD=ON \
        -DCMAKE_INSTALL_PREFIX=/opt/ombrel -DCMAKE_INSTALL_LIBDIR="$(libdir_of $layout)" -DBUILD_SHARED_LIBS="$shared" \
        -DOMBREL_BUILD_JSON=ON -DOMBREL_BUILD_TOOLS=OFF -DOMBREL_BUILD_TESTS=OFF -DOMBREL_BUILD_BENCHMARKS=OFF
    "$CMAKE" --build "$WORK_DIR/build"
    DESTDIR="$WORK_DIR/installed/$layout" "$CMAKE" --install "$WORK_DIR/build" >/dev/null
    mv "$WORK_DIR/installed/$layout/opt/ombrel" "$(prefix_of $layout)"
done
