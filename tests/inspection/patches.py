"""Applies the patches that write-patches has written, from the standard input, by an implementation that is none of ours."""

import json
import sys

import jsonpatch

pairs = foreign = refused = 0


def same(one, other):
    """Equal as JSON has it: true is not 1."""
    if isinstance(one, bool) or isinstance(other, bool):
        return one is other
    if isinstance(one, dict) and isinstance(other, dict):
        return one.keys() == other.keys() and all(same(value, other[key]) for key, value in one.items())
    if isinstance(one, list) and isinstance(other, list):
        return len(one) == len(other) and all(map(same, one, other))
    return one == other


def patched(tree, patch):
    """What the patch makes of the tree, or None if it is refused."""
    try:
        return [jsonpatch.apply_patch(tree, patch)]
    except (jsonpatch.JsonPatchException, jsonpatch.JsonPointerException, TypeError, KeyError):
        return None


for line in sys.stdin:
    case = json.loads(line)
    result = patched(case["before"], case["patch"])
    if "inverse" in case:
        pairs += 1
        if result is None or not same(result[0], case["result"]):
            sys.exit(f"another result: {line}\n{result}")
        back = patched(result[0], case["inverse"])
        if back is None or not same(back[0], case["before"]):
            sys.exit(f"the inverse does not lead back: {line}\n{back}")
    else:
        foreign += 1
        refused += case["isRefused"]
        if (result is None) != case["isRefused"] or (result is not None and not same(result[0], case["result"])):
            sys.exit(f"a patch is applied otherwise: {line}\n{result}")
print(f"{pairs} pairs there and back; {foreign} other patches, of which {refused} are refused")
if pairs == 0 or foreign == 0 or refused in (0, foreign):
    sys.exit("too few")
