# What zsh makes of the beginning of a line, in a terminal of its own: the last word of each line of the standard input.
#   zsh -f candidates.zsh FOLDER_OF_FUNCTIONS SCRATCH_FILE
zmodload zsh/zpty zsh/zselect || exit 1

answers=$2
: >$answers

# Waits for so many answers, at most 20 s.
wait_for() {
    local -i tries
    local output
    for ((tries = 0; tries < 2000; ++tries)); do
        while zpty -rt terminal output; do :; done # which would stop where nobody reads
        (($(wc -l <$answers) >= $1)) && return
        zselect -t 1
    done
    print -ru2 -- "zsh did not answer $1 times"
    exit 1
}

zpty terminal exec zsh -f -i
zpty -w terminal "fpath=(${(q)1} \$fpath); autoload -Uz compinit; compinit -u -D; setopt no_auto_menu
answer() { print -r -- \$BUFFER >>${(q)answers}; BUFFER=; }; zle -N answer; bindkey '^G' answer
print ready >>${(q)answers}"
integer count=1
wait_for count
while IFS= read -r line; do
    zpty -wn terminal "$line"$'\t\a'
    wait_for $((++count))
done
zpty -d terminal
for line in ${(f)"$(tail -n +2 $answers)"}; do
    print -r -- ${${=line}[-1]}
done
