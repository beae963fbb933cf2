# Sums up what `llvm-cov show` prints, for scripts/coverage. root is the folder before src/, with its slash; list is the page
# with what cannot be reached, which has a row "| `file` | `line` | reason |" for each line.

BEGIN {
    while ((getline row < list) > 0) {
        if (row ~ /^\| `src\//) {
            split(row, part, "`")
            listed[part[2] ": " part[4]] = 1
        }
    }
}

/^\/.*:$/ {
    file = substr($0, length(root) + 1, length($0) - length(root) - 1)
    folder = file
    sub(/\/[^\/]*$/, "", folder)
    if (!(folder in lines)) {
        folders[++folderCount] = folder
    }
    next
}

# A line with its count: "   12|      3|code"
/^ *[0-9]+\| *[0-9]/ {
    split($0, part, "|")
    ++lines[folder]
    if (part[2] + 0 == 0) {
        ++missedLines[folder]
        code = substr($0, length(part[1]) + length(part[2]) + 3)
        gsub(/^ +/, "", code)
        if ((file ": " code) in listed) {
            isMissed[file ": " code] = 1
        } else {
            faults[++faultCount] = file ":" part[1] + 0 ": not reached: " code
        }
    }
    next
}

# A branch of one instance: "  |  Branch (12:9): [True: 3, False: 0]". What is folded has one way only, as an `if constexpr`.
/Branch \(/ {
    split($0, part, /[():]+/)
    place = file ":" part[2] ":" part[3]
    Way(place ": never true", "True: [0-9.]+")
    Way(place ": never false", "False: [0-9.]+")
}

function Way(name, pattern)
{
    if (match($0, pattern)) {
        if (!(name in count)) {
            ways[++wayCount] = name
            wayFolder[name] = folder
        }
        split(substr($0, RSTART, RLENGTH), part, " ")
        count[name] += part[2]
    }
}

function Percent(missed, all)
{
    return all == 0 ? 100 : 100 * (all - missed) / all
}

function Row(name, lines, missedLines, branches, missedBranches)
{
    printf "%-26s %7d %7d %7.2f %% %8d %7d %7.2f %%\n", name, lines, missedLines, Percent(missedLines, lines), branches,
           missedBranches, Percent(missedBranches, branches)
}

END {
    for (i = 1; i <= wayCount; ++i) {
        folder = wayFolder[ways[i]]
        ++branches[folder]
        if (count[ways[i]] == 0) {
            ++missedBranches[folder]
            print ways[i]
        }
    }
    printf "\n%-26s %7s %7s %9s %8s %7s %9s\n", "folder", "lines", "missed", "reached", "branches", "missed", "reached"
    for (i = 1; i <= folderCount; ++i) {
        folder = folders[i]
        Row(folder, lines[folder], missedLines[folder], branches[folder], missedBranches[folder])
        allLines += lines[folder]
        allMissedLines += missedLines[folder]
        allBranches += branches[folder]
        allMissedBranches += missedBranches[folder]
    }
    Row("all", allLines, allMissedLines, allBranches, allMissedBranches)

    for (line in listed) {
        if (!(line in isMissed)) {
            faults[++faultCount] = line ": listed in docs/coverage.md, but reached or gone"
        }
    }
    if (allLines == 0) {
        faults[++faultCount] = "nothing was measured"
    }
    if (Percent(allMissedBranches, allBranches) < 98) {
        faults[++faultCount] = "less than 98 % of the branches are reached"
    }
    for (i = 1; i <= faultCount; ++i) {
        print faults[i] > "/dev/stderr"
    }
    exit faultCount != 0
}
