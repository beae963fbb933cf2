#!/usr/bin/env bash
# What README.md shows holds as it stands. Its blocks are run in their order, in a copy of the project and with a home of its
# own. The first word after the fence says what a block is:
#
#   sh         commands
#   console    commands behind "$ " with what they print; a line "..." stands for any lines
#   others     a file, whose name is the second word
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/readme
rm -rf "$work"
mkdir -p "$work/blocks" "$work/home" "$work/project"
cd "$work/project"
cp -r "$SOURCE_DIR"/{CMakeLists.txt,CMakePresets.json,README.md,cmake,debugger,examples,scripts,src,tools} .
export HOME=$work/home

# Each block is a file: its first line what stands behind the fence, the others its text.
awk -v blocks="$work/blocks" '
    /^```/ && !inside { inside = 1; file = sprintf("%s/%03d", blocks, ++count); print substr($0, 4) >file; next }
    /^```/ { inside = 0; close(file); next }
    inside { print >file }
    !inside && /^[ >]+```/ { print "a block that is not at the left margin: " $0 >"/dev/stderr"; exit 1 }
    END { if (inside) { print "the last block has no end" >"/dev/stderr"; exit 1 } }' README.md

# A pattern for expected lines, without a special meaning for anything but "...".
pattern_of() {
    sed -E 's/[^A-Za-z0-9 ]/\\&/g; s/^\\\.\\\.\\\.$/*/' <<<"$1"
}

# What a command says is seen if the test ends there.
trap '(($? == 0)) || tail -20 "$work/output" >&2' EXIT

# A newcomer is not met by warnings.
no_warnings() {
    if grep -n -A3 'warning:' "$work/output"; then fail "$1 warns"; fi
}

command='' expected=''
# Runs the command and compares.
run_command() {
    local found
    [[ -n $command ]] || return 0
    echo "$ $command"
    eval "$command" >"$work/output" 2>&1 || fail "$command ended with $?"
    [[ $expected == *warning:* ]] || no_warnings "$command"
    found=$(<"$work/output")
    # shellcheck disable=SC2053 # a pattern
    [[ $found == $(pattern_of "${expected%$'\n'}") ]] ||
        fail "$command printed (right) what README.md does not show (left):
$(diff <(echo "${expected%$'\n'}") <(echo "$found"))"
    command='' expected=''
}

for block in "$work"/blocks/*; do
    read -r kind name <"$block"
    tail -n +2 "$block" >"$work/text"
    case $kind in
    sh)
        echo "$(<"$work/text")"
        # shellcheck source=/dev/null
        source "$work/text" >"$work/output" 2>&1
        no_warnings "$(<"$work/text")"
        ;;
    console)
        while IFS= read -r line; do
            case $line in
            '$ '*) run_command; command=${line#\$ } ;;
            *) expected+=$line$'\n' ;;
            esac
        done <"$work/text"
        run_command
        ;;
    *)
        [[ -n $name ]] || fail "the block \"$kind\" of README.md is neither run nor has the name of a file: $(head -3 "$work/text")"
        mkdir -p "$(dirname "$name")"
        cp "$work/text" "$name"
        ;;
    esac
done
