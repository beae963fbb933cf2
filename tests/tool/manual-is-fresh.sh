#!/usr/bin/env bash
# The manual page and the completions are those that the tool prints now.
#   manual-is-fresh.sh PROGRAM SOURCES_OF_THE_TOOL
set -euo pipefail

failures=0
# is_fresh FILE COMMAND...
is_fresh() {
    diff --unified=0 "$1" <("${@:2}") && return
    echo "$1 is out of date; run scripts/update" >&2
    ((++failures))
}
is_fresh "$2/man/ombrel-effects.1" "$1" manual
is_fresh "$2/completions/ombrel-effects.bash" "$1" completion bash
is_fresh "$2/completions/ombrel-effects.fish" "$1" completion fish
is_fresh "$2/completions/_ombrel-effects" "$1" completion zsh
((failures == 0))
