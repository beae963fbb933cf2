"""Files that are made to take long, through all commands that take a file: each ends in time, with a code that says how."""

import json
import pathlib
import random
import resource
import subprocess
import sys
import tempfile

program, size, seconds = sys.argv[1], int(sys.argv[2]), float(sys.argv[3])

DEEPEST = min(510, size // 160)  # effects in effects


def repeated(head, part, tail, separator=",", room=size):
    """As many parts as have room; "%d" in a part becomes its number."""
    parts = []
    length = len(head) + len(tail)
    while length < room:
        parts.append(part.replace("%d", str(len(parts))))
        length += len(parts[-1]) + len(separator)
    return head + separator.join(parts) + tail


def listed(part):
    return repeated("[", part, "]")


def nested(levels, inner):
    begin = '{"name":"effectSettingsTileStub","effectRows":[{"cols":[['
    return begin * levels + inner + "]]}]}" * levels


def deep(head, part, tail):
    """As deep as can be read, with as many parts as have room."""
    return nested(DEEPEST, repeated(head, part, tail, room=size - len(nested(DEEPEST, ""))))


ACID = '{"name":"EFFECT_ACID",'
# Each with a value that may be in it.
FILES = {
    "brackets": ("[" * size, "0"),
    "lists in lists": ("[" * 4000 + "]" * 4000, "0/0/0"),
    "short lists in lists": (listed("[" * 400 + "]" * 400), "0/0/0"),
    "spaces": (" " * size + "[]", "0"),
    "nulls": (listed("null"), "0"),
    "empty maps": (listed("{}"), "0/name"),
    "empty maps and a default": (listed("{}")[:-1] + ',{"name":"EFFECT_ACID","implName":"default"}]', "0/name"),
    "long key": (ACID + '"' + "a" * size + '":1}', "radius"),
    "long name": ('{"name":"' + "E" * size + '"}', "name"),
    "long text of control characters": (repeated('{"name":"EFFECT_ACID","implName":"', "\\u001b", '"}', ""), "implName"),
    "unknown effects": (listed('{"name":"EFFECT_%d"}'), "0/radius"),
    "unknown keys": (repeated(ACID, '"radiu%d":0', "}"), "radius"),
    "defaults": (listed(ACID + '"radius":0,"sigma":0.5}'), "0/radius"),
    "wrong kinds": (listed(ACID + '"radius":"x","sigma":[]}'), "0/radius"),
    "much of an effect": (listed('{"name":"EFFECT_ADJUSTER","smartBlur":{"lumaRadius":5.5,"x":1},"vibrance":{}}'), "0/smartBlur/lumaRadius"),
    "computed values": (listed('{"name":"EFFECT_FISH_EYE","intensity":3.0,"deviation":%d.5}'), "0/deviation"),
    "a long list": (repeated('{"name":"EFFECT_BLUR_RADIAL","trace":[', '{"x":1.5,"y":"a"}', "]}"), "trace/0/x"),
    "a long map of colours": (repeated('{"name":"EFFECT_GRADIENT","gradient":[', '{"key":%d,"value":"ff0000ff"}', "]}"), "gradient/0/value"),
    "one element many times": (repeated(ACID + '"helperSettings":{"applyMode":[', '"ApplyStop"', "]}}"), "helperSettings/applyMode/0"),
    "many unknown elements": (repeated(ACID + '"helperSettings":{"applyMode":[', '"Apply%d"', "]}}"), "helperSettings/applyMode/0"),
    "many rows": (repeated('{"name":"effectSettingsTileStub","effectRows":[', '{"cols":[[' + ACID + '"radius":0}]]}', "]}"), "effectRows/0/cols/0/0/radius"),
    "too deep": (nested(600, ACID + '"radius":1}'), "effectRows/0/cols/0/0/effectRows"),
    "deep unknown keys": (deep(ACID, '"k%d":0', "}"), "implName"),
    "deep unknown effects": (deep("", '{"name":"EFFECT_%d"}', ""), "implName"),
    "deep wrong kinds": (deep("", ACID + '"radius":"x"}', ""), "implName"),
    "deep computed values": (deep("", '{"name":"EFFECT_FISH_EYE","intensity":3.0,"deviation":%d.5}', ""), "implName"),
}
# Lists whose other side has all elements at other places, half of them, or others; files that patches are for.
NUMBERS = [str(number) for number in range(100000, 100000 + size // 8)]
SHUFFLED = random.Random(1).sample(NUMBERS, len(NUMBERS))
HALF = NUMBERS[len(NUMBERS) // 2 :]


def plain(elements):
    return "[" + ",".join(elements) + "]"


def deepest(elements):
    return nested(DEEPEST, ",".join(elements[: (size - len(nested(DEEPEST, ""))) // 8]))


PAIRS = {
    "numbers in another order": (plain(NUMBERS), plain(SHUFFLED)),
    "numbers turned around": (plain(NUMBERS), plain(NUMBERS[::-1])),
    "the second half": (plain(NUMBERS), plain(HALF)),
    "twice as many": (plain(HALF), plain(NUMBERS)),
    "every second": (plain(NUMBERS), plain(NUMBERS[::2])),
    "deep numbers in another order": (deepest(NUMBERS), deepest(SHUFFLED)),
    "the second half of deep numbers": (deepest(NUMBERS), deepest(HALF)),
    "elements that go": (plain(NUMBERS), listed('{"op":"remove","path":"/0"}')),
    "elements that come": (plain(NUMBERS), listed('{"op":"add","path":"/0","value":1}')),
    "elements that move": (plain(NUMBERS), listed('{"op":"move","from":"/0","path":"/%s"}' % (len(NUMBERS) - 1))),
    "elements of two lists": (
        f"[{plain(NUMBERS[::2])},{plain(NUMBERS[1::2])}]",
        listed('{"op":"remove","path":"/0/0"},{"op":"move","from":"/1/9","path":"/0/9"}'),
    ),
    "copies": (plain(NUMBERS), listed('{"op":"copy","from":"","path":"/0"}')),
    "tests": (plain(NUMBERS), listed('{"op":"test","path":"/0","value":100000}')),
    "keys that come": ("[{}]", listed('{"op":"add","path":"/0/k%d","value":[]}')),
}
PAIR_COMMANDS = [
    ["diff", "FILE", "OTHER"],
    ["diff", "--json", "FILE", "OTHER"],
    ["patch", "FILE", "OTHER"],
    ["merge", "FILE", "FILE", "OTHER"],
    ["merge", "FILE", "OTHER", "OTHER"],
]
COMMANDS = [
    ["check", "FILE"],
    ["check", "--json", "FILE"],
    ["check", "--fix", "FILE"],
    ["show", "FILE"],
    ["show", "--changed", "FILE"],
    ["show", "--json", "FILE"],
    ["check", "--for", "0.1", "FILE"],
    ["convert", "--for", "0.1", "FILE"],
    ["thin", "FILE"],
    ["freeze", "FILE"],
    ["normalise", "FILE"],
    ["get", "FILE", "PATH"],
    ["get", "--raw", "FILE", "PATH"],
    ["set", "FILE", "PATH", "5"],
    ["set", "--in-place", "--force", "FILE", "PATH", "ffffffff"],
    ["unset", "FILE", "PATH"],
    ["diff", "FILE", "OTHER"],
    ["diff", "--json", "OTHER", "FILE"],
    ["patch", "FILE", "OTHER"],
    ["merge", "FILE", "OTHER", "FILE"],
]


def changed(text):
    """The same file with each number and text otherwise, in another order."""
    text = text.replace("5", "6").replace('"x"', '"y"').replace("radius", "sigma")
    try:
        tree = json.loads(text)
    except (ValueError, RecursionError):
        return text
    return json.dumps(tree[::-1] if isinstance(tree, list) else tree)


def run(file, other, path, command):
    """The processor time that it takes, which does not depend on what else the machine does."""
    arguments = [{"FILE": file, "OTHER": other, "PATH": path}.get(word, word) for word in command]
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    ended = subprocess.run([program, *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=300)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return ended.returncode, after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


failures = []
longest = (0.0, "", [])


def time_commands(name, text, other_text, path, commands):
    global longest
    with tempfile.TemporaryDirectory() as folder:
        file = str(pathlib.Path(folder) / "hostile.json")
        other = str(pathlib.Path(folder) / "other.json")
        pathlib.Path(other).write_text(other_text)
        for command in commands:
            pathlib.Path(file).write_text(text)
            code, taken = run(file, other, path, command)
            longest = max(longest, (taken, name, command))
            if not 0 <= code <= 4 or taken > seconds:
                failures.append(f"{name}: {' '.join(command)}: code {code}, {taken:.2f} s")


for name, (text, path) in FILES.items():
    time_commands(name, text, changed(text), path, COMMANDS)
for name, (text, other_text) in PAIRS.items():
    time_commands(name, text, other_text, "", PAIR_COMMANDS)
print(f"the longest: {longest[0]:.2f} s, {longest[1]}: {' '.join(longest[2])}")
sys.exit("\n".join(failures) or 0)
