#!/usr/bin/env bash
# The manual page is shown without a warning, and says of each command, option and exit code what the help says.
#   manual.sh PROGRAM
# The exit code is 77 if groff is not installed.
set -euo pipefail

if ! command -v groff >/dev/null; then
    echo "groff is not installed; scripts/setup tests installs it"
    exit 77
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$1" manual >"$scratch/page"
# In lines without an end, so that a text stands in one, and without bold letters.
groff -ww -man -Tutf8 -rLL=5000n -P-cbou "$scratch/page" >"$scratch/shown" 2>"$scratch/warnings"
if [[ -s $scratch/warnings ]]; then
    cat "$scratch/warnings" >&2
    exit 1
fi

{
    "$1" --help | sed -nE '/^Subcommands:/,$ s/^ +([^ ]+) +(.*)/\2/p'
    for command in $("$1" --help | sed -nE '/^Subcommands:/,/^$/ s/^  ([a-z-]+) .*/\1/p'); do
        "$1" "$command" --help | sed -nE '/^(Positionals|Options):/,/^Exit/ s/^ .*  ([^ ].*)/\1/p'
    done
} | sort -u >"$scratch/texts"
(($(wc -l <"$scratch/texts") > 40))

failures=0
while IFS= read -r text; do
    if ! grep -qF -e "$text" "$scratch/shown"; then
        echo "FAILED: the manual page does not say: $text" >&2
        ((++failures))
    fi
done <"$scratch/texts"
((failures == 0))
