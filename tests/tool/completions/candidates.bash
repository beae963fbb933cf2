# What bash offers for each line of the standard input, a line for each.
#   bash --norc candidates.bash COMPLETION
# shellcheck disable=SC2034 # what a completion reads
set -u
# shellcheck source=/dev/null
source "$1"
[[ $(complete -p ombrel-effects) == 'complete -F _ombrel_effects ombrel-effects' ]] || exit 1

# What bash adds by itself where a completion has nothing to offer, but only while it completes.
compopt() {
    case $* in
    '-o default') mapfile -t COMPREPLY < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]#=}") ;;
    '-o dirnames') mapfile -t COMPREPLY < <(compgen -d -- "${COMP_WORDS[COMP_CWORD]#=}") ;;
    *) return 1 ;;
    esac
}

while IFS= read -r line; do
    read -ra COMP_WORDS <<<"${line//=/ = }" # as COMP_WORDBREAKS has it
    [[ $line != *' ' ]] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _ombrel_effects "${COMP_WORDS[0]}" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    echo "${COMPREPLY[*]}"
done
