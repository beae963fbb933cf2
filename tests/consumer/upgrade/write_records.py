"""Writes a header by which the program of upgrade.sh touches what the records of a release hold: write_records.py SOURCE TARGET

SOURCE is the folder of the release. For each record there is a `Change`, which sets each public member and calls each plain
setter. `ExerciseAll` takes each settings class of which the release has an example. So the place of each member is compiled
into the program, and no list names them.
"""

import pathlib
import re
import sys
import textwrap

LINES = re.MULTILINE | re.DOTALL
RECORD = re.compile(r"^(?:class|struct) (?:OMBREL_API )?(\w+)(?:\s+: public ([^{;]*?))?\s*\{\n(.*?)^\};", LINES)
NESTED = re.compile(r"^    struct \w+\n    \{\n.*?^    \};$", LINES)
BASE = re.compile(r"Record<\w+, (\w+)>")
CLASS_ID = re.compile(r'CLASS_NAME = "(\w+)"')
MEMBER = re.compile(r"^    (?!static |using |return | )[\w:<>, ]+ ([a-z]\w*)(?: = [^;(\n]*|\{[^;\n]*)?;", LINES)
SETTER = re.compile(r"^    void Set(\w+)\([\w:]+ value\)", LINES)
SETTINGS = re.compile(r"^class OMBREL_API (\w+)\s+: public EffectSettings\w+Reflection<\s*(?:Proc::)?(\w+),", LINES)


def records(text):
    """The name, base and public part of each record of a header, those within records first."""
    for name, base, body in RECORD.findall(text):
        public = re.split(r"^(?:private|protected):$", body, flags=re.MULTILINE)[0]
        for nested in NESTED.findall(public):
            for inner, _, members in RECORD.findall(textwrap.dedent(nested)):
                yield f"{name}::{inner}", "", members
        yield name, base, public


def change(name, base, public):
    """The body of the record's `Change`; empty if there is nothing to set."""
    lines = [f"    Change(static_cast<{inherited}&>(record), make);\n" for inherited in BASE.findall(base)]
    lines += [f"    Change(record.{member}, make);\n" for member in MEMBER.findall(public)]
    lines += [f"    record.Set{setter}(make.Made<std::remove_cvref_t<decltype(record.Get{setter}())>>());\n"
              for setter in SETTER.findall(public) if f" Get{setter}()" in public]
    return "".join(lines)


def main(source, target):
    includes, declarations, bodies, calls, ids = [], [], [], [], {}
    for path in sorted((source / "src/Proc").glob("*Settings/*.h")):
        include = f'#include "{path.relative_to(source / "src")}"\n'
        for name, base, public in records(path.read_text(encoding="utf-8")):
            ids.update((name, class_id) for class_id in CLASS_ID.findall(public))
            body = path.parent.name == "Settings" and name != "RgbaColor" and change(name, base, public)
            if body:
                includes.append(include)
                declarations.append(f"void Change({name}& record, Maker& make);\n")
                bodies.append(f"\ninline void Change({name}& record, Maker& make)\n{{\n{body}}}\n")

    registered = {path.stem for path in (source / "examples/effects").glob("*.json")}
    for path in sorted((source / "src/Proc/EffectSettings").glob("*.h")):
        for settings, record in SETTINGS.findall(path.read_text(encoding="utf-8")):
            if ids.get(record) in registered:
                includes.append(f'#include "{path.relative_to(source / "src")}"\n')
                calls.append(f"    Exercise<Ombrel::PhotoCore::{settings}>();\n")

    if len(bodies) < 90 or len(calls) < 90:
        sys.exit(f"{source}: only {len(bodies)} records and {len(calls)} settings classes were found")
    target.write_text("".join([
        *dict.fromkeys(includes), "\nnamespace Upgrade\n{\n\nusing namespace Ombrel::Proc;\n\n", *declarations, *bodies,
        "\ninline void ExerciseAll()\n{\n", *calls, "}\n\n} // namespace Upgrade\n"]), encoding="utf-8")


main(*map(pathlib.Path, sys.argv[1:]))
