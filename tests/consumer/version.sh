#!/usr/bin/env bash
# Header, library, package, tool and changelog have one version.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

prefix=$(prefix_of "$LAYOUT")
libdir=$prefix/$(libdir_of "$LAYOUT")
export PKG_CONFIG_PATH=$libdir/pkgconfig
work=$WORK_DIR/version-$LAYOUT
rm -rf "$work"
mkdir -p "$work"

# What a program is compiled with, and what it runs with.
# shellcheck disable=SC2046 # pkg-config prints words
"$CXX" -std=c++20 -o "$work/version" "$SOURCE_DIR/tests/consumer/version.cpp" -Wl,-rpath,"$libdir" \
    $(pkg-config --cflags --libs ombrel-effect-settings)
run_program "$work/version" "$VERSION, as numbers $VERSION, library $VERSION"

expect "version of the tool" "ombrel-effects $VERSION" "$("$prefix/bin/ombrel-effects" --version)"
for package in ombrel-effect-settings ombrel-property-tree-json ombrel-effect-inspection; do
    expect "version of $package for pkg-config" "$VERSION" "$(pkg-config --modversion $package)"
done
cat >"$work/package.cmake" <<'END'
include(${FILE})
message("${PACKAGE_VERSION}")
END
expect "version of the package for CMake" "$VERSION" \
    "$("$CMAKE" -DFILE="$libdir/cmake/OmbrelEffectSettings/OmbrelEffectSettingsConfigVersion.cmake" -P "$work/package.cmake" 2>&1)"
expect "version of the changelog's first section" "$VERSION" \
    "$(sed -n 's/^## \([0-9.]*\)\( (unreleased)\)\?$/\1/p' "$SOURCE_DIR/CHANGELOG.md" | head -1)"
expect "first section of the changelog" "## $VERSION" "$(grep -m1 '^## ' "$SOURCE_DIR/CHANGELOG.md" | sed 's/ (unreleased)$//')"

# Below 1.0 a new minor version may break its callers, so that it is part of the name by which the loader finds a library.
if [[ $LAYOUT == shared-* ]]; then
    case $VERSION in
    0.*) compatible=${VERSION%.*} ;;
    *) compatible=${VERSION%%.*} ;;
    esac
    for library in libombrel-effect-settings libombrel-property-tree-json libombrel-effect-inspection; do
        soname=$(readelf -dW "$libdir/$library.so" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
        expect "name of $library for the loader" "$library.so.$compatible" "$soname"
    done
fi
