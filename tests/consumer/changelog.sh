#!/usr/bin/env bash
# The changelog's first section is that of the project's version. Once it has a date, what the release stored is frozen in
# releases/.
#
# The first section always has a number: the first change after a release raises the version and begins a section
# "(unreleased)", so that no build has the version of a release that it is not.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

release=${VERSION%.*}
first=$(grep -m1 '^## ' "$SOURCE_DIR/CHANGELOG.md")
case $first in
"## $VERSION (unreleased)") is_released=no ;;
"## $VERSION - "[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]) is_released=yes ;;
*) fail "first section of the changelog: expected '## $VERSION (unreleased)' or '## $VERSION - YYYY-MM-DD', found '$first'" ;;
esac
date=${first##* }
[[ $is_released == no || $(date -d "$date" +%F 2>/dev/null) == "$date" ]] || fail "the changelog: $date is no day"

# Each section has the two parts, and all but the first a date.
parts="users, maintainers, "
sections=$(sed -nE 's/^## .* \(unreleased\)$/unreleased: /p; s/^## .* - [0-9-]+$/released: /p; s/^### For (users|maintainers)$/\1, /p
    t; /^###? /s/$/; /p' "$SOURCE_DIR/CHANGELOG.md" | tr -d '\n')
[[ $sections =~ ^(un)?released:\ $parts(released:\ $parts)*$ ]] || fail "sections and parts of the changelog: $sections"

newest=""
[[ ! -d $SOURCE_DIR/releases ]] || newest=$(cd "$SOURCE_DIR/releases" && find . -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | sort -V | tail -1)
if [[ $is_released == yes ]]; then
    expect "newest folder of releases/, since $VERSION has a date" "$release" "$newest"
elif [[ -n $newest ]]; then
    expect "newest of $release and the folders of releases/" "$release" "$(printf '%s\n' "$release" "$newest" | sort -V | tail -1)"
fi

# Each folder is of the release that its name says.
work=$WORK_DIR/changelog
mkdir -p "$work"
cat >"$work/release.cmake" <<'END'
file(READ ${FILE} manifest)
string(JSON release GET "${manifest}" release)
message("${release}")
END
for folder in "$SOURCE_DIR/releases"/*/; do
    [[ -d $folder ]] || continue
    expect "release of ${folder}manifest.json" "$(basename "$folder")" \
        "$("$CMAKE" -DFILE="${folder}manifest.json" -P "$work/release.cmake" 2>&1)"
done
