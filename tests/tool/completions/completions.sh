#!/usr/bin/env bash
# What a shell offers for the beginning of a line.
#   completions.sh SHELL PROGRAM SCRATCH_FOLDER
# The exit code is 77 if the shell is not installed.
set -euo pipefail

shell=$1 program=$2 scratch=$3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if ! command -v "$shell" >/dev/null; then
    echo "$shell is not installed; scripts/setup tests installs it"
    exit 77
fi

rm -rf "$scratch"
mkdir -p "$scratch"/{home,completion,bin,work/folder}
cd "$scratch/work"
touch first.json second.txt
ln -s "$program" ../bin/ombrel-effects
export HOME=$scratch/home PATH=$scratch/bin:$PATH XDG_CONFIG_HOME=$scratch/home XDG_DATA_HOME=$scratch/home TERM=xterm

# The file has the name under which zsh looks for it.
completion=$scratch/completion/_ombrel-effects
ombrel-effects completion "$shell" >"$completion"
"$shell" -n "$completion"

# Behind " => " is what is offered. Where a space stands before it, the next word is to be offered.
cat >../cases <<'END'
ombrel-effects sch => schema
ombrel-effects no => normalise
ombrel-effects un => unset
ombrel-effects s => schema set show
ombrel-effects nothing =>
ombrel-effects --v => --version
ombrel-effects list --j => --json
ombrel-effects check --str => --strict
ombrel-effects check first.json --str => --strict
ombrel-effects check --i => --ignore --in-place
ombrel-effects check --closed =>
ombrel-effects check --ignore unknown => unknown-effect unknown-key unknown-name
ombrel-effects check --ignore unknown-k => unknown-key
ombrel-effects check --ignore=unknown-k => unknown-key
ombrel-effects check --ignore unknown-key --ignore=too-d => too-deep
ombrel-effects check --jobs  =>
ombrel-effects check --jobs 2 f => first.json folder
ombrel-effects check --jobs=2 s => second.txt
ombrel-effects check first.json second.txt fo => folder
ombrel-effects describe EFFECT_AC => EFFECT_ACID
ombrel-effects describe --json EFFECT_AC => EFFECT_ACID
ombrel-effects describe effectSettingsS => effectSettingsSimple
ombrel-effects describe EFFECT_ACID EFFECT_ =>
ombrel-effects schema EFFECT_AC => EFFECT_ACID
ombrel-effects new EFFECT_AC => EFFECT_ACID
ombrel-effects list EFFECT_ADJ => EFFECT_ADJUSTER
../bin/ombrel-effects describe EFFECT_AC => EFFECT_ACID
ombrel-effects get s => second.txt
ombrel-effects get second.txt  =>
ombrel-effects get --max-bytes 5 s => second.txt
ombrel-effects get --max-bytes 5 second.txt f =>
ombrel-effects set list s =>
ombrel-effects set -- fi => first.json
ombrel-effects set -- --for =>
ombrel-effects set -- -x fi =>
ombrel-effects reference --output  => folder
ombrel-effects reference --output fo => folder
ombrel-effects reference --output=fo => folder
ombrel-effects completion f => fish
ombrel-effects completion  => bash fish zsh
END

sed -E 's/ => ?/\t/' ../cases >../table

# All of the commands, of their options and of the classes.
words() { tr -s ' ' '\n' | sed '/^$/d' | sort | paste -sd' '; }
commands=$(ombrel-effects --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p' | words)
[[ $commands == *show* ]]
printf '%s\t%s\n' "ombrel-effects " "$commands" >>../table
for command in $commands; do
    options=$(ombrel-effects "$command" --help | sed -nE 's/^  (-h,)?(--[a-z-]*).*/\2/p' | words)
    printf '%s\t%s\n' "ombrel-effects $command --" "$options" >>../table
done
printf '%s\t%s\n' "ombrel-effects describe " "$(ombrel-effects list | awk '{ print $2 }' | words)" >>../table

# zsh shows no list that could be read, so that it is asked where there is one answer.
if [[ $shell == zsh ]]; then
    sed -i -nE '/\t[^ ]+$/p' ../table
fi
case $shell in
bash) candidates() { bash --norc "$here/candidates.bash" "$completion"; } ;;
fish) candidates() { fish --no-config "$here/candidates.fish" "$completion"; } ;;
zsh) candidates() { zsh -f "$here/candidates.zsh" "$scratch/completion" "$scratch/answers"; } ;;
esac
cut -f1 ../table | candidates >../found 2>../complaints
if [[ -s ../complaints ]]; then
    head -20 ../complaints >&2
    exit 1
fi

failures=0
while IFS=$'\t' read -r line expected <&3 && IFS= read -r found <&4; do
    found=$(tr ' ' '\n' <<<"$found" | sed -E 's/^--[a-z-]*=//; s/\/$//' | words)
    if [[ $found != "$(words <<<"$expected")" ]]; then
        echo "FAILED: $shell offers for '$line': '$found', expected '$expected'" >&2
        ((++failures))
    fi
done 3<../table 4<../found
[[ $(wc -l <../table) == $(wc -l <../found) ]]
((failures == 0))
