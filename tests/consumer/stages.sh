#!/usr/bin/env bash
# scripts/test runs the stages that are named, goes on after a failure and lists at the end what failed. The programs that it
# starts are stand-ins here.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/stages
rm -rf "$work"
mkdir -p "$work/bin" "$work/project"
cp -r "$SOURCE_DIR/scripts" "$work/project"
export PATH=$work/bin:$PATH
stand_in() {
    cat >"$1"
    chmod +x "$1"
}

stand_in "$work/project/scripts/setup" <<<'echo "setup: $*" >>"$(dirname "$0")/../calls"'
stand_in "$work/bin/nproc" <<<'echo 2'
# Configures or builds; clang's build fails.
stand_in "$work/bin/cmake" <<'END'
#!/bin/bash
echo "cmake $*" | sed 's/ --log-level.*//' >>calls
[[ $* != "--build --preset clang" ]]
END
# The tests of asan fail.
stand_in "$work/bin/ctest" <<'END'
#!/bin/bash
echo "ctest $*" >>calls
echo "100% tests passed"
[[ $2 == asan ]] || exit 0
echo "[  FAILED  ] Crop.Adds (1 ms)
[  FAILED  ] 1 test, listed below:
[  FAILED  ] Crop.Adds

The following tests FAILED:
	  7 - effects_test (Failed)
Errors while running CTest"
exit 8
END

run() { (cd "$work/project" && rm -f calls && scripts/test "$@" 2>&1) || echo "ended with $?"; }

output=$(run)
expect "calls of scripts/test" "setup: build tests
cmake --preset dev
cmake --build --preset dev
ctest --preset dev --parallel 2" "$(<"$work/project/calls")"
expect "last line of scripts/test" "100% tests passed" "$(tail -1 <<<"$output")"

output=$(run asan clang package)
expect "calls for three stages" "setup: build clang tests
cmake --preset asan
cmake --build --preset asan
ctest --preset asan --parallel 2
cmake --preset clang
cmake --build --preset clang
cmake --preset package
ctest --preset package --parallel 2" "$(<"$work/project/calls")"
expect "what failed" "== what failed
asan failed
	  7 - effects_test (Failed)
[  FAILED  ] Crop.Adds
clang failed to build
ended with 1" "$(sed -n '/^== what failed/,$p' <<<"$output" | sed '/^$/d')"

output=$(run --within 2 asan tsan dev)
expect "what there is no time for" "== left out for lack of time: asan tsan dev" "$(tail -1 <<<"$output")"
output=$(run --within 3 asan tsan)
expect "what there is some time for" "== left out for lack of time: asan" "$(tail -1 <<<"$output")"

output=$(run --all)
expect "builds of the stage warnings" "g++,RelWithDebInfo g++,MinSizeRel clang++,RelWithDebInfo clang++,Release clang++,MinSizeRel" \
    "$(sed -n 's,^cmake --build build/,,p' "$work/project/calls" | xargs)"
expect "the stages and minutes in README.md" "$(sed -n 's/^== \([a-z0-9]*\): about \([0-9]*\) minutes*$/\1 \2/p' <<<"$output")" \
    "$(sed -n '/^| Stage /,/^$/s/^| `\([a-z0-9]*\)` .* \([0-9]*\) |$/\1 \2/p' "$SOURCE_DIR/README.md")"

output=$(run nonsense)
expect "usage" "ended with 2" "$(tail -1 <<<"$output")"
