#!/usr/bin/env bash
# Header, library, package and tool have one version. changelog.sh says the same of the changelog and releases/.
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

# Below 1.0 a new minor version may break its callers, so that it is part of the name by which the loader finds a library. The
# exported names have the version of the first release that has this name.
if [[ $LAYOUT == shared-* ]]; then
    case $VERSION in
    0.*) compatible=${VERSION%.*} first=$compatible ;;
    *) compatible=${VERSION%%.*} first=$compatible.0 ;;
    esac
    for library in libombrel-effect-settings libombrel-property-tree-json libombrel-effect-inspection; do
        soname=$(readelf -dW "$libdir/$library.so" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
        expect "name of $library for the loader" "$library.so.$compatible" "$soname"
        versions=$(readelf -VW "$libdir/$library.so" | sed -n '/^Version definition/,/^$/s/.*Index: \([0-9]*\).*Name: /\1 /p')
        expect "first version of the names of $library" "2 OMBREL_$first" "$(sed -n 2p <<<"$versions")"
    done
fi
