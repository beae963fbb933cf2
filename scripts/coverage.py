"""Sums up what `llvm-cov export` prints, for scripts/coverage: which lines and branches of src/ the tests do not reach.

docs/coverage.md lists what cannot be reached, in a row "| `file` | `line` | reason |" for each line.
"""

import collections
import json
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIST = ROOT / "docs" / "coverage.md"
LEAST = 98  # per cent of the ways of the branches


def counts_of_lines(segments):
    """The highest count of what starts in a line or goes on there from the line before; only of lines that hold code.

    A segment has a line, a column and a count. It says whether the count is one, whether a region of code starts there, and
    whether that region is a gap between statements. It reaches to the next segment.
    """
    by_line = collections.defaultdict(list)
    for line, _, count, has_count, is_entry, is_gap in segments:
        by_line[line].append((count, has_count, is_entry, is_gap))
    before = (0, False, False, False)
    for line in range(min(by_line, default=0), max(by_line, default=-1) + 1):
        here = by_line.get(line, [])
        starting = [count for count, has_count, is_entry, is_gap in here if has_count and is_entry and not is_gap]
        is_skipped = here and here[0][2] and not here[0][1]  # by the preprocessor
        if (not is_skipped and (before[1] or starting)) or any(has_count and is_entry for _, has_count, is_entry, _ in here):
            yield line, max([before[0], *starting])
        before = here[-1] if here else before


def counts_of_ways(branches, text):
    """How often each condition was true and false, in all instances together. An `if constexpr` may go one way in all of them."""
    ways = collections.Counter()
    for line, column, _, _, times_true, times_false, *_ in branches:
        ways[line, column, "true"] += times_true
        ways[line, column, "false"] += times_false
    return {way: count for way, count in sorted(ways.items(), key=lambda item: item[0][:2])
            if count or "if constexpr" not in text[way[0] - 1]}


class Share:
    """How many there are, and how many of them are missed."""

    def __init__(self, counts=()):
        self.all = len(counts)
        self.missed = sum(count == 0 for count in counts)

    def __iadd__(self, other):
        self.all += other.all
        self.missed += other.missed
        return self

    def reached(self):
        return 100 * (self.all - self.missed) / self.all if self.all else 100

    def __str__(self):
        return f" {self.all:8} {self.missed:7} {self.reached():7.2f} %"


def main():
    listed = set(re.findall(r"(?m)^\| `(src/[^`]*)` \| `([^`]*)`", LIST.read_text()))
    missed, faults = set(), []
    table = collections.defaultdict(lambda: (Share(), Share()))
    for file in sorted(json.load(sys.stdin)["data"][0]["files"], key=lambda file: file["filename"]):
        path = pathlib.Path(file["filename"])
        name, text = str(path.relative_to(ROOT)), path.read_text().splitlines()
        lines, ways = dict(counts_of_lines(file["segments"])), counts_of_ways(file["branches"], text)
        for line in (line for line, count in lines.items() if count == 0):
            code = text[line - 1].strip()
            missed.add((name, code))
            if (name, code) not in listed:
                faults.append(f"{name}:{line}: not reached: {code}")
        for (line, column, value), count in ways.items():
            if count == 0:
                print(f"{name}:{line}:{column}: never {value}")
        for row in str(path.parent.relative_to(ROOT)), "all":
            for share, counts in zip(table[row], (lines, ways)):
                share += Share(counts.values())

    print(f"\n{'folder':<25} {'lines':>8} {'missed':>7} {'reached':>9} {'branches':>8} {'missed':>7} {'reached':>9}")
    for row in [*(row for row in table if row != "all"), "all"]:
        print(f"{row:<25}{table[row][0]}{table[row][1]}")

    faults += [f"{name}: {line}: listed in docs/coverage.md, but reached or gone" for name, line in sorted(listed - missed)]
    if table["all"][0].all == 0:
        faults.append("nothing was measured")
    if table["all"][1].reached() < LEAST:
        faults.append(f"less than {LEAST} % of the branches are reached")
    return "\n".join(faults)


if __name__ == "__main__":
    sys.exit(main() or 0)
