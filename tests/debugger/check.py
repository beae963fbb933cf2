"""What the checks in gdb have in common: the program at its end, and expectations."""

import sys
import traceback

import gdb

failures = []


def expect(what, expected, found):
    if expected != found:
        failures.append("%s\n  expected %s\n  found    %s" % (what, expected, found))


def run(check):
    """Runs the program to Stop(), calls `check` in main's frame, and ends gdb with what came of it."""
    try:
        gdb.execute("set debuginfod enabled off")
        gdb.execute("set print elements 200")
        gdb.execute("break Stop")
        gdb.execute("run", to_string=True)
        gdb.execute("up", to_string=True)
        check()
    except Exception:
        failures.append(traceback.format_exc())
    for failure in failures:
        print("FAILED: " + failure, file=sys.stderr)
    gdb.execute("kill", to_string=True)
    gdb.execute("quit %d" % (1 if failures else 0))
