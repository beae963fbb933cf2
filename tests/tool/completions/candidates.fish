# What fish offers for each line of the standard input, a line for each.
#   fish --no-config candidates.fish COMPLETION
source $argv[1]
while read -l line
    set -l candidates (complete -C "$line" | string replace -r '\t.*' '')
    echo "$candidates"
end
