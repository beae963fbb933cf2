# Completion of ombrel-effects for fish, written by the program itself.

# The command that stands before the cursor and the number of the argument there, counted from 1, a line each.
function __ombrel_effects_place
    set -l command ''
    set -l place 1
    set -l option ''
    set -l has_ended ''
    set -l words (commandline -opc)
    set -e words[1]
    for word in $words
        if test -n "$option"
            set option ''
        else if string match -q -- -- "$word"; and test -z "$has_ended"
            set has_ended 1
        else if string match -q -- '-?*' "$word"; and test -z "$has_ended"
            switch "$command $word"
                case 'reference --notes' 'reference --examples' 'reference --output' 'get --max-bytes' 'set --max-bytes' 'unset --max-bytes' 'check --max-bytes' 'check --jobs' 'check --ignore' 'check --max-findings' 'check --for' 'check --junit' 'show --max-bytes' 'show --jobs' 'thin --max-bytes' 'thin --jobs' 'freeze --max-bytes' 'freeze --jobs' 'normalise --max-bytes' 'normalise --jobs' 'convert --max-bytes' 'convert --jobs' 'convert --for' 'diff --max-bytes' 'patch --max-bytes' 'merge --max-bytes' 'insert --max-bytes' 'remove --max-bytes' 'move --max-bytes' 'extract --max-bytes'
                    set option "$word"
            end
        else if test -z "$command"
            set command "$word"
        else
            set place (math $place + 1)
        end
    end
    printf '%s\n' "$command" $place
end

# Whether the cursor is at an argument of a command: the command, the number of its first and its last argument that is meant.
function __ombrel_effects_at
    set -l at (__ombrel_effects_place)
    test "$at[1]" = "$argv[1]"; or return 1
    set -q argv[2]; or return 0
    test $at[2] -ge $argv[2]; or return 1
    set -q argv[3]; or return 0
    test $at[2] -le $argv[3]
end

# The second column of what the program prints for a command.
function __ombrel_effects_ask
    set -l words (commandline -opc)
    $words[1] $argv[1] 2>/dev/null | string replace -rf '^\S+\s+(\S+).*' '$1'
end

# The folders for the value of an option, which may stand behind "=".
function __ombrel_effects_folders
    __fish_complete_directories (string replace -r -- '^--[^=]*=' '' (commandline -ct))
end

complete -c ombrel-effects -f
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -l version -d 'Display program version information and exit'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a list -d 'List the effect classes: class, class id, inputs, registered or not'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a describe -d 'Describe a class: its keys, their kinds, defaults and names'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a schema -d 'Print a JSON Schema of stored effects, by which editors complete and check them'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a new -d 'Print a default effect with all properties'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a reference -d 'Write the reference of all effect classes as Markdown'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a get -d 'Print one value as JSON; with an index alone, the whole effect'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a set -d 'Change one value and keep all others'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a unset -d 'Take out one key, which then has its default'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a check -d 'Say what is wrong with stored effects: FILE:LINE:COLUMN: error: PATH: message [code]'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a show -d 'Show effects with all properties; * marks what is not the default, ! what is wrong'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a thin -d 'Print the effects without what has its default'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a freeze -d 'Print the effects with every key, so that no later default can change them'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a normalise -d 'Print the effects as the library reads and writes them'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a convert -d 'Print the effects as another release reads them to the same values'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a diff -d 'Say what differs between two files by what is read, or between the files of two folders'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a patch -d 'Do what a JSON Patch (RFC 6902) says, all of it or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a merge -d 'Put together what two files have made of a third; a conflict takes the value of OURS'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a insert -d 'Put an effect, or another element, into a list'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a remove -d 'Take an effect, or another element, out of a list'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a move -d 'Give an effect, or another element, another place in its list or another one'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a extract -d 'Print one effect, or another value, as it stands in the file'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a manual -d 'Print the manual page, for man'
complete -c ombrel-effects -n '__ombrel_effects_at \'\'' -a completion -d 'Print the script by which a shell completes commands, options and values'
complete -c ombrel-effects -n '__ombrel_effects_at list' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at list' -l json -d 'As a JSON list'
complete -c ombrel-effects -n '__ombrel_effects_at list 1 1' -a '(__ombrel_effects_ask list)'
complete -c ombrel-effects -n '__ombrel_effects_at describe' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at describe' -l json -d 'As JSON'
complete -c ombrel-effects -n '__ombrel_effects_at describe 1 1' -a '(__ombrel_effects_ask list)'
complete -c ombrel-effects -n '__ombrel_effects_at schema' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at schema' -l closed -d 'Refuse unknown keys'
complete -c ombrel-effects -n '__ombrel_effects_at schema' -l non-finite -d 'Take the strings "NaN", "Infinity" and "-Infinity" where a float stands'
complete -c ombrel-effects -n '__ombrel_effects_at schema 1 1' -a '(__ombrel_effects_ask list)'
complete -c ombrel-effects -n '__ombrel_effects_at new' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at new' -l non-finite -d 'Write floats that are no finite numbers as strings'
complete -c ombrel-effects -n '__ombrel_effects_at new 1 1' -a '(__ombrel_effects_ask list)'
complete -c ombrel-effects -n '__ombrel_effects_at reference' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at reference' -l notes -x -a '(__ombrel_effects_folders)' -d 'Folder with the notes on each class: what it compares, when it is empty, its members without a key'
complete -c ombrel-effects -n '__ombrel_effects_at reference' -l examples -x -a '(__ombrel_effects_folders)' -d 'Folder with a stored effect of each class: <class id>.json'
complete -c ombrel-effects -n '__ombrel_effects_at reference' -l output -x -a '(__ombrel_effects_folders)' -d 'Folder for the pages; created if it does not exist'
complete -c ombrel-effects -n '__ombrel_effects_at get' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at get' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at get' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at get' -l raw -d 'As it stands in the file, also where it cannot be read'
complete -c ombrel-effects -n '__ombrel_effects_at get 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at set' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at set' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at set' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at set' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at set' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at set 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at unset' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at unset' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at unset' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at unset' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at unset' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at unset 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at check' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l quiet -d 'No summary and no progress'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l jobs -x -d 'Work on so many files at once'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l lines -d 'JSON Lines: each line is an effect, a list of effects, or {"id": ..., "effects": ...}'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l json -d 'A JSON object per finding, a line each'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l strict -d 'Notes end with exit code 1 too'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l fix -d 'Mend what can be mended and print the document; the findings go to the standard error'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l ignore -x -a '\'no-name\' \'unknown-effect\' \'wrong-kind\' \'bad-colour\' \'number-too-large\' \'too-deep\' \'not-an-effect\' \'not-registered\' \'refused\' \'unknown-name\' \'number-for-name\' \'cut-integer\' \'truncated-float\' \'narrowed-float\' \'colour-not-canonical\' \'ignored-value\' \'duplicate-element\' \'unknown-key\' \'lost-by-copy\' \'changes-on-write\' \'other-default\' \'default-written\' \'null-effect\' \'ragged-rows\' \'not-a-number\' \'no-schema\'' -d 'Leave a code out, such as unknown-key; may be given several times'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l max-findings -x -d 'End the check of a file with so many findings'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l for -x -a '\'0.1\'' -d 'Say what this release would refuse, lose or read as something else'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l junit -r -F -d 'Write an XML file too, in which each file is a test'
complete -c ombrel-effects -n '__ombrel_effects_at check' -l in-place -d 'With --fix: replace the files, each all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at check 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at show' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l quiet -d 'No summary and no progress'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l jobs -x -d 'Work on so many files at once'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l lines -d 'JSON Lines: each line is an effect, a list of effects, or {"id": ..., "effects": ...}'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l changed -d 'Without what has its default'
complete -c ombrel-effects -n '__ombrel_effects_at show' -l json -d 'What is read, with every key, as JSON'
complete -c ombrel-effects -n '__ombrel_effects_at show 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at thin' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l quiet -d 'No summary and no progress'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l jobs -x -d 'Work on so many files at once'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l lines -d 'JSON Lines: each line is an effect, a list of effects, or {"id": ..., "effects": ...}; each becomes a line, and one that cannot be worked on stays as it is'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at thin' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at thin 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l quiet -d 'No summary and no progress'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l jobs -x -d 'Work on so many files at once'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l lines -d 'JSON Lines: each line is an effect, a list of effects, or {"id": ..., "effects": ...}; each becomes a line, and one that cannot be worked on stays as it is'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at freeze' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at freeze 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l quiet -d 'No summary and no progress'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l jobs -x -d 'Work on so many files at once'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l lines -d 'JSON Lines: each line is an effect, a list of effects, or {"id": ..., "effects": ...}; each becomes a line, and one that cannot be worked on stays as it is'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at normalise' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at normalise 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at convert' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l quiet -d 'No summary and no progress'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l jobs -x -d 'Work on so many files at once'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l lines -d 'JSON Lines: each line is an effect, a list of effects, or {"id": ..., "effects": ...}; each becomes a line, and one that cannot be worked on stays as it is'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l for -x -a '\'0.1\'' -d 'The release that is to read them'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at convert' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at convert 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at diff' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at diff' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at diff' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at diff' -l json -d 'As the JSON Patch (RFC 6902) that makes the one of the other'
complete -c ombrel-effects -n '__ombrel_effects_at diff 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at diff 2 2' -F
complete -c ombrel-effects -n '__ombrel_effects_at patch' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at patch' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at patch' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at patch' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at patch' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at patch 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at patch 2 2' -F
complete -c ombrel-effects -n '__ombrel_effects_at merge' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at merge' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at merge' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at merge' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at merge' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at merge 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at merge 2 2' -F
complete -c ombrel-effects -n '__ombrel_effects_at merge 3 3' -F
complete -c ombrel-effects -n '__ombrel_effects_at insert' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at insert' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at insert' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at insert' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at insert' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at insert 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at remove' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at remove' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at remove' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at remove' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at remove' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at remove 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at move' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at move' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at move' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at move' -l in-place -d 'Replace the file instead of printing, all or nothing'
complete -c ombrel-effects -n '__ombrel_effects_at move' -l force -d 'Write the result even if something is changed or lost that was not asked for; the exit code stays 1'
complete -c ombrel-effects -n '__ombrel_effects_at move 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at extract' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at extract' -l non-finite -d 'Read and write floats that are no finite numbers as the strings "NaN", "Infinity", "-Infinity"'
complete -c ombrel-effects -n '__ombrel_effects_at extract' -l max-bytes -x -d 'Refuse a file, or with --lines a line, of more bytes'
complete -c ombrel-effects -n '__ombrel_effects_at extract 1 1' -F
complete -c ombrel-effects -n '__ombrel_effects_at manual' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at completion' -s h -l help -d 'Print this help message and exit'
complete -c ombrel-effects -n '__ombrel_effects_at completion 1 1' -a '\'bash\' \'fish\' \'zsh\''
