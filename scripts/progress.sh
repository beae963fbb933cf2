# shellcheck shell=bash
# What the scripts share to show that they are at work.

# now_and_then PATTERN: passes on what it reads, but of the lines that fit the pattern only one in five seconds.
now_and_then() {
    local line next=0
    while IFS= read -r line; do
        if [[ $line =~ $1 ]]; then
            ((SECONDS >= next)) || continue
            next=$((SECONDS + 5))
        fi
        printf '%s\n' "$line"
    done
}

# build ARGUMENT...: cmake --build with these. On a terminal ninja shows its progress itself, in one line that it renews.
build() {
    if [[ -t 1 ]]; then
        cmake --build "$@"
    else
        cmake --build "$@" | now_and_then '^\[[0-9]+/[0-9]+\] '
    fi
}

# minutes SECONDS: prints "about 1 minute" or more, never less than the seconds are.
minutes() {
    local minutes=$((($1 + 59) / 60))
    ((minutes > 1)) && echo "about $minutes minutes" || echo "about 1 minute"
}

# about SECONDS: the minutes that this machine needs for what takes one processor so many seconds.
about() { minutes $(($1 / $(nproc))); }
