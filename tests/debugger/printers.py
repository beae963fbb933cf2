"""Run in gdb: what it shows of each tree in subject.cpp."""

import os
import re
import sys

import gdb

sys.path.insert(0, os.path.dirname(__file__))
import check

gdb.execute("source " + os.environ["OMBREL_PRINTERS"])


def shown(expression):
    return gdb.execute("print " + expression, to_string=True).split(" = ", 1)[1].rstrip("\n")


def check_printers():
    for expression, expected in {
        "null": "null",
        "flag": "true",
        "number": "-5",
        "real": "0.5",
        "text": '"a \\"short\\" text"',
        "longText": '"' + 40 * "x" + '"',
        "list": 'list of 3 = {1, "two", null}',
        "empty": "map of 0",
        "map": 'map of 3 = {[name] = "EFFECT_ACID", [radius] = 3, [trace] = list of 3 = {1, "two", null}}',
        "map.m_map.content": 'map of 3 = {[name] = "EFFECT_ACID", [radius] = 3, [trace] = list of 3 = {1, "two", null}}',
        "gaps": 'map of 2 = {[b] = "b", [d] = "d"}',
        "falling": 'map of 3 = {[a] = "a", [b] = "b", [c] = "c"}',
        "scalar": "2.5",
        "*&scalar": "2.5",
    }.items():
        check.expect(expression, expected, shown(expression))

    gdb.execute("set print elements 0")
    large = shown("large")
    keys = ["[key %d]" % (1000 + i) for i in range(600)]
    check.expect("the keys of the large map", keys, re.findall(r"\[key \d+\]", large))
    check.expect("the large map's beginning", "map of 600 = {[key 1000] = 0, [key 1001] = 343,", large[:47])


check.run(check_printers)
