#!/usr/bin/env bash
# Makes the Debian packages, and installs, uses, upgrades and removes them in a system that has nothing else. Made in another folder
# at another time, they are the same, byte by byte.
#
# Needs root for the bare system, and apt's mirror. SOURCE_DIR, WORK_DIR and CMAKE come from CTest.
set -euo pipefail

fail() {
    echo "FAILED: $*" >&2
    exit 1
}
[[ $(id -u) == 0 ]] || { echo "packages: a bare system takes root"; exit 77; }

rm -rf "$WORK_DIR/here" "$WORK_DIR/elsewhere" "$WORK_DIR/old"
mkdir -p "$WORK_DIR"
cd "$WORK_DIR"
unset SOURCE_DATE_EPOCH CMAKE_CXX_COMPILER_LAUNCHER # which may note the folder

# make_packages FOLDER [COMMAND...]: copies the sources into the folder and runs what makes the packages by the command.
make_packages() {
    local folder=$1
    mkdir -p "$folder"
    cp -r "$SOURCE_DIR"/{CHANGELOG.md,CMakeLists.txt,CMakePresets.json,cmake,debugger,examples,src,tools} "$folder"
    [[ $folder != old ]] || sed -i -E 's/(VERSION_MINOR) .*/\1 0/; s/(VERSION_PATCH) .*/\1 9/' "$folder/src/OmbrelVersion.h"
    (cd "$folder" && "${@:2}" "$CMAKE" --workflow --preset package >log 2>&1) || fail "$folder: $(tail -20 "$folder/log")"
}
echo "packages: making them"
make_packages here
make_packages elsewhere faketime -f '+400d'
make_packages old

packages=(here/build/packages/*.deb)
((${#packages[@]} == 5)) || fail "expected 5 packages, found ${packages[*]}"
for file in "${packages[@]}" here/build/packages/*.tar.gz; do
    cmp "$file" "elsewhere/${file#here/}" || fail "${file##*/} depends on where or when it is made"
done
for file in "${packages[@]}"; do
    [[ -z $(dpkg-deb --ctrl-tarfile "$file" | tar -t | grep -E '/(pre|post)(inst|rm)$') ]] || fail "$file has maintainer scripts"
done

echo "packages: lintian"
tags=$(lintian --tag-display-limit 0 --allow-root "${packages[@]}") || fail "$tags"
[[ -z $tags ]] || fail "$tags"

echo "packages: a bare system"
root=$WORK_DIR/root
if [[ ! -e $root/complete ]]; then
    rm -rf "$root"
    debootstrap --variant=minbase --include=g++,cmake,make,pkg-config,libboost-dev "$(. /etc/os-release && echo "$VERSION_CODENAME")" \
        "$root" "$(sed -nE 's/^(deb|URIs:) *(\[.*\])? *(https?:[^ ]*).*/\3/p' /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null |
            head -1)" >debootstrap.log 2>&1 || fail "$(tail -5 debootstrap.log)"
    touch "$root/complete"
fi
inside() { LC_ALL=C.UTF-8 chroot "$root" "$@"; }
inside dpkg --purge $(inside dpkg-query -W -f '${Package}\n' '*ombrel*' 2>/dev/null) >/dev/null 2>&1 || true
rm -rf "$root/test"
mkdir "$root/test"
cp -r "$SOURCE_DIR/tests/packages/consumer" "$SOURCE_DIR/examples" "$root/test"
cp here/build/packages/*.deb "$root/test"
mkdir "$root/test/old"
cp old/build/packages/*.deb "$root/test/old"

expected='{"name":"EFFECT_ACID","radius":3} 0 findings'
# use FOLDER: builds a program there and runs it, with each way to find the libraries.
use() {
    inside cmake -S /test/consumer -B "/test/$1" --log-level=WARNING >/dev/null
    inside cmake --build "/test/$1" >/dev/null
    inside sh -c "c++ -std=c++20 -o /test/$1/pkg-config /test/consumer/main.cpp \
        \$(pkg-config --cflags --libs ombrel-effect-inspection ombrel-property-tree-json)"
    local program
    for program in shared static pkg-config; do
        [[ $(inside "/test/$1/$program") == "$expected" ]] || fail "$program prints $(inside "/test/$1/$program")"
    done
    inside ombrel-effects check /test/examples/portrait.json >/dev/null || fail "the tool ended with $?"
}

echo "packages: install version 0.0.9"
inside sh -c 'dpkg -i /test/old/*.deb' >/dev/null
[[ $(inside ombrel-effects --version) == *0.0.9 ]] || fail "the tool is $(inside ombrel-effects --version)"
use before

echo "packages: upgrade"
inside sh -c 'dpkg -i /test/*.deb' >/dev/null
version=$(sed -n 's/^#define OMBREL_VERSION_[A-Z]* \([0-9]*\)$/\1/p' "$SOURCE_DIR/src/OmbrelVersion.h" | paste -sd.)
[[ $(inside ombrel-effects --version) == *"$version" ]] || fail "the tool is $(inside ombrel-effects --version)"
use after
[[ $(inside /test/before/shared) == "$expected" ]] || fail "a program of the older libraries no longer runs"

echo "packages: remove"
inside dpkg --purge $(inside dpkg-query -W -f '${Package}\n' '*ombrel*') >/dev/null
left=$(inside find / -xdev -path /test -prune -o -path /proc -prune -o -iname '*ombrel*' -print)
[[ -z $left ]] || fail "left behind: $left"
! inside ldconfig -p | grep ombrel || fail "the loader still lists a library"
echo "packages: fine"
