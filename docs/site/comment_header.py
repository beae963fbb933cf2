"""Doxygen's view of one header: what the sources say elsewhere stands beside each declaration.

Doxygen refuses what has no comment. Most such members of this library need none of their own: a field of a record has its key
in the field list of the record's source, a copy copies, a second overload does the same as the first. This filter says so, from
where it is known, and joins each class with the reference of the effects and with the guides that include its header. What
it cannot say stays without a comment, and Doxygen names it.

Everything is added within a line, so that Doxygen's line numbers are those of the header.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
HEADER = pathlib.Path(sys.argv[1]).resolve()
INCLUDED = HEADER.relative_to(ROOT / "src").as_posix()

# Members that have one meaning wherever they stand. `{}` is the class.
KNOWN = [
    (r"static constexpr const char\* CLASS_NAME\b", "The class id, as a constant that is there before any initialiser runs."),
    (r"static const std::string CLASS_ID;", "The class id."),
    (r"static const (Proc::)?RecordSchema& Schema\(\)", "What reading, writing and comparing know of the fields."),
    (r"{}\(\)", "Every member has its default."),
    (r"(explicit )?{}\((const {}|{} const)& ?\w*\)", "Copies."),
    (r"{}\({}&& ?\w*\)", "Moves."),
    (r"{}& operator=\(const {}& ?\w*\)", "Copies."),
    (r"{}& operator=\({}&& ?\w*\)", "Moves."),
    (r"bool operator==\(const {}& ?\w*\) const = default;", "Whether all members are equal."),
    (r"(friend )?void swap\(", "Exchanges the contents."),
    (r"(friend )?bool operator!=\(", "The opposite of `==`."),
    (r"using \w+_(type|reference|iterator|const_iterator) =|using (reference|iterator) =", "As a standard container has it."),
    (r"\w+ (c?r?(begin|end)|empty|size)\(\)", "As a standard container has it."),
]


def reference_sections():
    """The class id of each settings class, and its place in the reference."""
    sections = {}
    for page in sorted((ROOT / "docs/reference").glob("*.md")):
        for name, class_id in re.findall(r"^## (\w+)\n\n`([^`]+)`, ", page.read_text(), re.M):
            sections[name] = (class_id, f"../docs/reference/{page.stem}.html#{name.lower()}")
    return sections


def record_links(sections):
    """The settings class of each record, as the bases in the headers name it."""
    links = {}
    for header in (ROOT / "src/Proc/EffectSettings").glob("*.h"):
        for record, name in re.findall(r"\bEffectSettings\w+<(?:Proc::)?(\w+), (\w+)>", header.read_text()):
            if name in sections:
                links[record] = (name, sections[name][1])
    return links


def guides():
    """The guides whose programs include the header."""
    pages = sorted((ROOT / "docs/guides").glob("*.md")) + [ROOT / "docs/inspection.md", ROOT / "docs/versions.md"]
    found = []
    for page in pages:
        text = page.read_text()
        if re.search(rf'^#include "{re.escape(INCLUDED)}"$', text, re.M):
            title = re.search(r"^# (.+)$", text, re.M)[1]
            found.append(f"[{title}](../{page.relative_to(ROOT).with_suffix('.html').as_posix()})")
    return ", ".join(found)


def enumeration_comment(name, owner, sections, records):
    """An enumeration with names is stored by these; the reference lists them."""
    source = HEADER.with_suffix(".cpp")
    if not source.exists() or not re.search(rf"struct EnumNames<(?:\w+::)*{name}>", source.read_text()):
        return None
    place = sections.get(owner) or records.get(owner) or (None, "../docs/reference/README.html")
    return f"Stored by name. [The reference]({place[1]}) has the names."


def field_comments():
    """What the field lists of the header's source say: comments by the class and its member."""
    source = HEADER.with_suffix(".cpp")
    comments = {}
    if not source.exists():
        return comments
    for body in re.split(r"(?=::Schema\(\) noexcept\n)", source.read_text())[1:]:
        owner = re.search(r"(?:using R = |Describe<)([\w:]+?)[;,]", body)
        if not owner:
            continue
        owner = owner[1].split("::")[-1]
        for member in re.findall(r"FieldDescriptor<&\w+::(\w+)", body):
            comments[owner, member] = f'Stored as "{member.removeprefix("m_")}".'
        for key, setter, getter in re.findall(r'Accessor\w*<\s*"(\w+)",\s*&\w+::(\w+),\s*&\w+::(\w+)', body):
            comments[owner, setter] = f'Sets what is stored as "{key}".'
            comments[owner, getter] = f'What is stored as "{key}".'
    return comments


def comment_file(lines):
    """What stands above the namespace is about the whole header. Returns whether there is such a comment."""
    place = next((index for index, line in enumerate(lines) if line.startswith("namespace ")), 0)
    first = place
    while lines[first - 1].startswith("//"):
        first -= 1
    if first == place or place == 0:
        return False
    for index in range(first, place):
        lines[index] = "///" + lines[index].lstrip("/")
    lines[first] = f"/// @file {INCLUDED} @brief" + lines[first].removeprefix("///")
    return True


def main():
    sections = reference_sections()
    records = record_links(sections)
    fields = field_comments()
    shown_in = guides()
    classes = []  # the classes and the enumeration around the line, with their indentation
    documented = set()  # the functions of the class that have a comment in the header
    has_comment = False
    block = []  # the last comment; it is for all declarations up to the next empty line
    plain = []  # the lines of a comment that is not for the reference, but says why functions are deleted
    private_below = None  # how far the private part of a class is indented, as long as the line is in one
    lines = HEADER.read_text().split("\n")
    if not comment_file(lines):
        print(f"/** @file {INCLUDED} @brief Declared in {INCLUDED}. */", end=" ")
    for line in lines:
        code = line.strip()
        indentation = len(line) - len(line.lstrip())
        if code and private_below is not None and indentation <= private_below:
            private_below = None
        if code == "private:" and private_below is None:
            private_below = indentation
        elif private_below is not None:
            print()  # which Doxygen would list in part
            continue
        if code.startswith("///"):
            block = (block if has_comment else []) + [code.removeprefix("///").strip()]
            has_comment = True
            print(line)
            continue
        definition = re.match(r"(?:template <.*> )?(?:class|struct) (?:OMBREL_[A-Z_]+ )?(?:[\w:]+::)?(\w+)(?: final)?(?: : .*)?$", code)
        goes_on = re.match(r"template\b.*[^;{}]$|requires", code) and not definition
        if not code or goes_on or code.startswith(("//", "#", "{", "}")) or re.match(r"(public|private|protected):", code):
            has_comment = has_comment and bool(code) and not code.startswith(("#", "}"))
            if not code or code.startswith(("//", "#")):
                block = []
                plain = plain + [code.removeprefix("//").strip()] if code.startswith("//") else []
            print(line)
            continue
        while classes and indentation <= classes[-1][0]:
            classes.pop()
        if indentation > (classes[-1][0] + 4 if classes else 0):
            print(line)  # what goes on from the line before, or stands in a function
            continue
        owner = classes[-1][1] if classes else ""
        added = []

        enumeration = re.match(r"enum class (\w+)", code)
        name = re.search(r"(~?\w+|operator\W+)\(", code) or re.search(r"(\w+)(?:;| = |\{)", code)
        name = name[1] if name else ""
        if definition:
            block = []
            name = definition[1]
            classes.append((indentation, name))
            documented = set()
            if name in sections:
                class_id, place = sections[name]
                added.append(f"The effect `{class_id}`. [The reference]({place}) has its keys, kinds and defaults.")
            elif name in records:
                added.append(f"The parameters of [{records[name][0]}]({records[name][1]}), which has their keys, kinds and defaults.")
            if has_comment or added:
                added += [f"@see {shown_in}"] if shown_in else []
        elif not has_comment and plain and code.endswith("= delete;"):
            added.append(" ".join(plain))
        elif not has_comment:
            for pattern, comment in KNOWN:
                if re.match(r"(OMBREL_[A-Z_]+ )*" + pattern.replace("{}", re.escape(owner or "-")), code):
                    added.append(comment)
                    break
            else:
                if (owner, name) in fields:
                    added.append(fields[owner, name])
                elif block and name:
                    added.append(" ".join(block))
                elif beside := re.search(r"[;,}] +// (.+)$", code):
                    added.append(beside[1])
                elif name and name in documented:
                    added.append("The same, " + ("of a constant object." if re.search(r"\) const\b", code) else "for other arguments."))
                elif enumeration and (comment := enumeration_comment(enumeration[1], owner, sections, records)):
                    added.append(comment)
        elif indentation == 0 and shown_in and re.match(r"OMBREL_[A-Z_]*API ", code):
            added.append(f"@see {shown_in}")
        if has_comment and not definition:
            documented.add(name)
        if enumeration and not code.endswith(";"):
            block = []
            classes.append((indentation, enumeration[1]))
        has_comment = False
        # Doxygen joins it with a comment before it.
        comment = f"/** {' '.join(added)} */ " if added else ""
        print(line[:indentation] + comment + code)


if __name__ == "__main__":
    main()
