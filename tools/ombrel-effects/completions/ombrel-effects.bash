# Completion of ombrel-effects for bash, written by the program itself.

# Offers those of the words behind the first that begin with it.
_ombrel_effects_offer()
{
    local word
    for word in "${@:2}"; do
        [[ $word != "$1"* ]] || COMPREPLY+=("$word")
    done
}

# Offers the second column of what the program prints: the beginning of the word, the program, its command.
_ombrel_effects_ask()
{
    local word
    while read -r _ word _; do
        _ombrel_effects_offer "$1" "$word"
    done <<<"$("$2" "$3" 2>/dev/null)"
}

# Whether a value belongs to an option: the command, the option.
_ombrel_effects_has_value()
{
    case "$1 $2" in
    'reference --notes' | 'reference --examples' | 'reference --output') ;;
    'get --max-bytes') ;;
    'set --max-bytes') ;;
    'unset --max-bytes') ;;
    'check --max-bytes' | 'check --jobs' | 'check --ignore' | 'check --max-findings' | 'check --for' | 'check --junit') ;;
    'show --max-bytes' | 'show --jobs') ;;
    'thin --max-bytes' | 'thin --jobs') ;;
    'freeze --max-bytes' | 'freeze --jobs') ;;
    'normalise --max-bytes' | 'normalise --jobs') ;;
    'convert --max-bytes' | 'convert --jobs' | 'convert --for') ;;
    'diff --max-bytes') ;;
    'patch --max-bytes') ;;
    'merge --max-bytes') ;;
    'insert --max-bytes') ;;
    'remove --max-bytes') ;;
    'move --max-bytes') ;;
    'extract --max-bytes') ;;
    *) return 1 ;;
    esac
}

_ombrel_effects()
{
    local program=${1/#~\//$HOME/} current=${COMP_WORDS[COMP_CWORD]} command='' option='' has_ended='' word at
    local -i place=1 index
    COMPREPLY=()
    for ((index = 1; index < COMP_CWORD; ++index)); do
        word=${COMP_WORDS[index]}
        if [[ $option ]]; then
            [[ $word == = ]] || option=''
        elif [[ $word == -- && ! $has_ended ]]; then
            has_ended=1
        elif [[ $word == -?* && ! $has_ended ]]; then
            ! _ombrel_effects_has_value "$command" "$word" || option=$word
        elif [[ ! $command ]]; then
            command=$word
        else
            ((++place))
        fi
    done
    at=$place
    if [[ $option ]]; then
        at=$option
        [[ $current != = ]] || current=''
    elif [[ $current == -* && ! $has_ended ]]; then
        at=-
    fi
    case "$command $at" in
    ' 1') _ombrel_effects_offer "$current" list describe schema new reference get set unset check show thin freeze normalise convert diff patch merge insert remove move extract manual completion ;;
    ' -') _ombrel_effects_offer "$current" -h --help --version ;;
    'list 1') _ombrel_effects_ask "$current" "$program" list ;;
    'list -' | 'list '[1-9]*) _ombrel_effects_offer "$current" -h --help --json ;;
    'describe 1') _ombrel_effects_ask "$current" "$program" list ;;
    'describe -' | 'describe '[1-9]*) _ombrel_effects_offer "$current" -h --help --json ;;
    'schema 1') _ombrel_effects_ask "$current" "$program" list ;;
    'schema -' | 'schema '[1-9]*) _ombrel_effects_offer "$current" -h --help --closed --non-finite ;;
    'new 1') _ombrel_effects_ask "$current" "$program" list ;;
    'new -' | 'new '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite ;;
    'reference --notes') compopt -o dirnames ;;
    'reference --examples') compopt -o dirnames ;;
    'reference --output') compopt -o dirnames ;;
    'reference -' | 'reference '[1-9]*) _ombrel_effects_offer "$current" -h --help --notes --examples --output ;;
    'get 1') compopt -o default ;;
    'get 2') ;;
    'get -' | 'get '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --raw ;;
    'set 1') compopt -o default ;;
    'set 2') ;;
    'set 3') ;;
    'set -' | 'set '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'unset 1') compopt -o default ;;
    'unset 2') ;;
    'unset -' | 'unset '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'check --ignore') _ombrel_effects_offer "$current" no-name unknown-effect wrong-kind bad-colour number-too-large too-deep not-an-effect not-registered refused unknown-name number-for-name cut-integer truncated-float narrowed-float colour-not-canonical ignored-value duplicate-element unknown-key lost-by-copy changes-on-write other-default default-written null-effect ragged-rows not-a-number no-schema ;;
    'check --for') _ombrel_effects_offer "$current" 0.1 ;;
    'check --junit') compopt -o default ;;
    'check '[1-9]*) compopt -o default ;;
    'check -') _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --quiet --jobs --lines --json --strict --fix --ignore --max-findings --for --junit --in-place ;;
    'show '[1-9]*) compopt -o default ;;
    'show -') _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --quiet --jobs --lines --changed --json ;;
    'thin '[1-9]*) compopt -o default ;;
    'thin -') _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --quiet --jobs --lines --in-place --force ;;
    'freeze '[1-9]*) compopt -o default ;;
    'freeze -') _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --quiet --jobs --lines --in-place --force ;;
    'normalise '[1-9]*) compopt -o default ;;
    'normalise -') _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --quiet --jobs --lines --in-place --force ;;
    'convert --for') _ombrel_effects_offer "$current" 0.1 ;;
    'convert '[1-9]*) compopt -o default ;;
    'convert -') _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --quiet --jobs --lines --for --in-place --force ;;
    'diff 1') compopt -o default ;;
    'diff 2') compopt -o default ;;
    'diff -' | 'diff '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --json ;;
    'patch 1') compopt -o default ;;
    'patch 2') compopt -o default ;;
    'patch -' | 'patch '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'merge 1') compopt -o default ;;
    'merge 2') compopt -o default ;;
    'merge 3') compopt -o default ;;
    'merge -' | 'merge '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'insert 1') compopt -o default ;;
    'insert 2') ;;
    'insert 3') ;;
    'insert -' | 'insert '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'remove 1') compopt -o default ;;
    'remove 2') ;;
    'remove -' | 'remove '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'move 1') compopt -o default ;;
    'move 2') ;;
    'move 3') ;;
    'move -' | 'move '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes --in-place --force ;;
    'extract 1') compopt -o default ;;
    'extract 2') ;;
    'extract -' | 'extract '[1-9]*) _ombrel_effects_offer "$current" -h --help --non-finite --max-bytes ;;
    'manual -' | 'manual '[1-9]*) _ombrel_effects_offer "$current" -h --help ;;
    'completion 1') _ombrel_effects_offer "$current" bash fish zsh ;;
    'completion -' | 'completion '[1-9]*) _ombrel_effects_offer "$current" -h --help ;;
    esac
}

complete -F _ombrel_effects ombrel-effects
