"""The small changes that scripts/mutate makes, one at a time, to a C++ source in the house style."""

import hashlib
import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    file: str
    kind: str
    span: slice  # of the text that is replaced
    after: str
    line: int
    old: str  # the whole lines, for people
    new: str
    id: str  # the same in each run, and wherever in the file the lines are


def without(text, begin, brackets):
    """The text with each `begin`, which ends with a bracket, and all up to the one that closes it blanked out."""
    for match in re.finditer(begin, text):
        end, depth = match.end(), 1
        while depth != 0:
            depth += {brackets[0]: 1, brackets[1]: -1}.get(text[end], 0)
            end += 1
        text = text[:match.start()] + re.sub(r"\S", " ", text[match.start():end]) + text[end:]
    return text


def masked(text):
    """The text with what is not to be changed blanked out, character for character."""
    text = re.sub(r"""//[^\n]*|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'|(?m:^[ \t]*\#[^\n]*)|\boperator\S+(?=\()""",
                  lambda match: re.sub(r"\S", "_" if match[0][0] in "\"'" else " ", match[0]), text)
    text = without(text, r"\bstatic_assert\(", "()")
    text = without(text, r"\brequires ?\(", "()")
    return without(text, r"\btemplate <", "<>")


def added(number, step):
    return str(float(number) * 2 if len(number) > 9 else float(number) + step) if "." in number else str(int(number) + step)


SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+": "-", "-": "+",
         "*": "/", "+=": "-=", "-=": "+=", "++": "--", "--": "++", "true": "false", "false": "true"}
FIELD = r"(?:\w+Descriptor<[^<>]*>|\bEntry<\w+>\([^()]*\))"
NAME = r"(?:[^\s=\[]|\[[^\]]*\])+"  # or a longer way to something, but no type and no more words
STATEMENT = rf"(?:throw |::new |(?:\+\+|--)\S|{NAME}\(|{NAME} [-+]?= |{NAME}(?:\+\+|--))"

# kind, pattern in the masked text, and what stands in the place of its first group
CHANGES = [
    ("relation", r" (<=?|>=?|==|!=)(?=[ \n])", lambda text: [SWAPS[text]]),
    ("logic", r" (&&|\|\|)(?=[ \n])", lambda text: [SWAPS[text]]),
    ("logic", r"(!)(?=[\w(:])", lambda text: [""]),
    ("arithmetic", r" ([-+*]|[-+]=) ", lambda text: [SWAPS[text]]),
    ("arithmetic", r"(\+\+|--)", lambda text: [SWAPS[text]]),
    ("constant", r"(?<![\w.])(\d+(?:\.\d+)?)(?![\w.]| bits)", lambda text: [added(text, 1)]),
    ("constant", r"(?<![\w.])([1-9]\d*)(?![\w.])", lambda text: [added(text, -1)]),
    ("constant", r"\b(true|false)\b", lambda text: [SWAPS[text]]),
    ("condition", r"\b(?:if|while) \((?:[^;\n]*; )?([^;\n]*)\)\n", lambda text: [f"!({text})"] if text[0] != "!" else []),
    ("condition", r"\bfor \([^;\n]*; ([^;\n]+);", lambda text: [f"!({text})"]),
    ("choice", r" (\?) ", lambda text: ["|| true ?", "&& false ?"]),
    ("statement", rf"(?<=[;{{}}:])\s*\n +((?!return|using){STATEMENT}[^\n]*);(?=\s*\n)", lambda text: [""]),
    ("default", r" m_\w+ = (-?\d+(?:\.\d+)?);", lambda text: [added(text, 1)]),
    ("default", r" m_\w+ = (true|false);", lambda text: [SWAPS[text]]),
    ("default", r" m_\w+ = (\w+::\w+);", lambda text: [f"{text.split('::')[0]}(static_cast<int>({text}) + 1)"]),
    ("order", rf"({FIELD})(?=(,\s+)({FIELD}))", lambda text: [text]),
]


def mutants_of(file, text, kinds):
    """All changes of these kinds that can be made to the text of a file."""
    mask = masked(text)
    seen = []
    for kind, pattern, replace in CHANGES:
        if kind not in kinds.split():
            continue
        for match in re.finditer(pattern, mask):
            start, end = match.span(1)
            for after in replace(text[start:end]):
                if kind == "order":
                    end = match.end(3)
                    after = "".join(text[slice(*match.span(group))] for group in (3, 2, 1))
                if kind == "constant" and re.search(r" m_\w+ = -?$", text[:start].rsplit("\n", 1)[-1]):
                    continue  # a default
                line_start, line_end = text.rfind("\n", 0, start) + 1, text.find("\n", end)
                old = " ".join(text[line_start:line_end].split())
                new = " ".join((text[line_start:start] + after + text[end:line_end]).split())
                place = (file, old, new)
                seen.append(place)
                id = hashlib.sha1(repr((place, seen.count(place))).encode()).hexdigest()[:10]
                yield Mutant(file, kind, slice(start, end), after, text.count("\n", 0, start) + 1, old, new, id)
