"""Run in gdb: follows the .natvis file step by step, as its reader does, with each expression evaluated in the program.

So every name in the file is one of the program's, and what the file shows is compared."""

import os
import re
import sys
import xml.etree.ElementTree as ElementTree

import gdb

sys.path.insert(0, os.path.dirname(__file__))
import check

sys.path.insert(0, os.path.dirname(os.environ["OMBREL_PRINTERS"]))
import ombrel_gdb

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"
types = {}


def evaluate(expression, subject, variables=()):
    """Members, which begin with m_, are those of `subject`; variables become gdb's own."""
    gdb.set_convenience_variable("subject", subject.address)
    expression = re.sub(r"(?<![\w.>])(m_\w+)", r"(*$subject).\1", expression)
    for name in variables:
        expression = re.sub(r"(?<![\w.>$])%s\b" % name, "$natvis_" + name, expression)
    return gdb.parse_and_eval(expression)


def holds(element, subject, variables=()):
    condition = element.get("Condition")
    return condition is None or bool(evaluate(condition, subject, variables))


def text_of(value):
    if value.type.code == gdb.TYPE_CODE_REF:
        value = value.referenced_value()
    name = str(value.type.strip_typedefs().unqualified())
    if name in types:
        return display(value)
    if "basic_string<" in name.split(",")[0]:
        return ombrel_gdb.text_of(value)
    return "vector" if "vector<" in name else str(value)


def filled_in(text, subject, variables=()):
    """A text with expressions in braces; doubled braces are braces."""
    parts = re.split(r"(\{\{|\}\}|\{[^{}]*\})", text)
    result = ""
    for part in parts:
        if part in ("{{", "}}"):
            result += part[0]
        elif part.startswith("{"):
            result += text_of(evaluate(part[1:-1], subject, variables))
        else:
            result += part
    return result


def display(value):
    for element in types[str(value.type.strip_typedefs().unqualified())].findall(NAMESPACE + "DisplayString"):
        if holds(element, value):
            return filled_in(element.text, value)
    return "(nothing to display)"


class CustomList:
    def __init__(self, subject):
        self.subject = subject
        self.variables = []
        self.items = []

    def execute(self, elements):
        was_true = False
        for element in elements:
            kind = element.tag.replace(NAMESPACE, "") if isinstance(element.tag, str) else "comment"
            if kind == "Variable":
                value = evaluate(element.get("InitialValue"), self.subject, self.variables)
                self.variables.append(element.get("Name"))
                gdb.set_convenience_variable("natvis_" + element.get("Name"), value)
            elif kind == "Loop":
                while holds(element, self.subject, self.variables):
                    self.execute(element)
            elif kind == "If":
                was_true = holds(element, self.subject, self.variables)
                if was_true:
                    self.execute(element)
            elif kind == "Else":
                if not was_true:
                    self.execute(element)
            elif kind == "Exec":
                evaluate(element.text, self.subject, self.variables)
            elif kind == "Item":
                name = filled_in(element.get("Name"), self.subject, self.variables)
                self.items.append((name, text_of(evaluate(element.text, self.subject, self.variables))))
            else:
                raise ValueError("this reader does not know " + kind)


def children(value):
    items = []
    expand = types[str(value.type.strip_typedefs().unqualified())].find(NAMESPACE + "Expand")
    for element in expand if expand is not None else ():
        if not isinstance(element.tag, str) or not holds(element, value):
            continue
        if element.tag == NAMESPACE + "ExpandedItem":
            content = evaluate(element.text, value)
            items += children(content) if str(content.type.strip_typedefs()) in types else [("", text_of(content))]
        else:
            custom = CustomList(value)
            custom.execute(element)
            items += custom.items
    return items


def check_natvis():
    for element in ElementTree.parse(os.environ["OMBREL_NATVIS"]).getroot():
        types[element.get("Name")] = element
    check.expect("the types", ["Ombrel::PropertyTreeScalar", "Ombrel::PropertyTree", "Ombrel::PropertyTreeMap"], list(types))
    for name, expected, expected_children in [
        ("null", "null", []),
        ("flag", "true", []),
        ("number", "-5", []),
        ("real", "0.5", []),
        ("text", 'a "short" text', []),
        ("scalar", "2.5", []),
        ("list", "vector", [("", "vector")]),
        ("empty", "{ size=0 }", []),
        ("map", "{ size=3 }", [("[name]", "EFFECT_ACID"), ("[radius]", "3"), ("[trace]", "vector")]),
        ("map.m_map.content", "{ size=3 }", [("[name]", "EFFECT_ACID"), ("[radius]", "3"), ("[trace]", "vector")]),
        ("gaps", "{ size=2 }", [("[b]", "b"), ("[d]", "d")]),
        ("falling", "{ size=3 }", [("[c]", "c"), ("[b]", "b"), ("[a]", "a")]),
    ]:
        value = gdb.parse_and_eval(name)
        check.expect(name, expected, display(value))
        check.expect("the children of " + name, expected_children, children(value))
    keys = sorted(name for name, _ in children(gdb.parse_and_eval("large")))
    check.expect("the keys of the large map", ["[key %d]" % (1000 + i) for i in range(600)], keys)


check.run(check_natvis)
