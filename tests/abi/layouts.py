"""Lists how the classes and enumerations of the public headers lie in memory. gdb runs it with an object file that was compiled
from the headers.

Each line names its class and its member, so that it can be read alone where it differs from an older one. What a class has from
a base that is a template stands with the class: the template has no layout of its own.
"""

import re
import sys
import traceback

import gdb


def spelled(name):
    """The name of a type without what depends on the compiler and on the standard library's version."""
    name = re.sub(r"\b(class|struct|union|enum) ", "", name)
    name = re.sub(r"\bstd::(__cxx11|__1)::", "std::", name)
    name = re.sub(r"\b(\d+)[uU]?[lL]{0,2}\b", r"\1", name)
    while "> >" in name:
        name = name.replace("> >", ">>")
    return name.replace("std::basic_string<char, std::char_traits<char>, std::allocator<char>>", "std::string")


def spelled_type(type):
    return spelled(str(type.strip_typedefs()))


def is_template(type):
    return "<" in (type.strip_typedefs().name or "")


def members(name, type, start=0):
    """The lines of a class's bases and members, the first of which stands at `start` of the object."""
    for field in type.fields():
        if not hasattr(field, "bitpos"):  # static
            continue
        size = "size %d" % field.type.sizeof
        if field.bitpos is None:  # only the virtual table says where it is
            yield "%s: virtual base %s, %s" % (name, spelled_type(field.type), size)
            continue
        place = "at %d" % (start + field.bitpos // 8)
        if field.is_base_class and not is_template(field.type):
            yield "%s: base %s, %s, %s" % (name, spelled_type(field.type), place, size)
        elif field.is_base_class or not field.name:
            yield from members(name, field.type.strip_typedefs(), start + field.bitpos // 8)
        elif field.name.startswith("_vptr"):
            yield "%s: pointer to virtual operations, %s" % (name, place)
        elif field.bitsize:
            yield "%s::%s: %s, bits %d to %d, %s" % (name, field.name, place, field.bitpos % 8,
                                                    field.bitpos % 8 + field.bitsize - 1, spelled_type(field.type))
        else:
            yield "%s::%s: %s, %s, %s" % (name, field.name, place, size, spelled_type(field.type))


def bases(type):
    for field in type.fields():
        if field.is_base_class:
            yield spelled_type(field.type)
            yield from bases(field.type.strip_typedefs())


def print_layouts():
    listed = gdb.execute("info types ^Ombrel::", to_string=True)
    found = {}
    for name in re.findall(r"^\d+:\s+(Ombrel::.+);$", listed, re.MULTILINE):
        type = gdb.lookup_type(name)
        if type.code in (gdb.TYPE_CODE_STRUCT, gdb.TYPE_CODE_UNION, gdb.TYPE_CODE_ENUM) and type.sizeof:
            found[spelled(name)] = type
    if not found:
        raise RuntimeError("the object file describes no type of the library")
    enumerations = {name for name, type in found.items() if type.code == gdb.TYPE_CODE_ENUM}
    within = {base for name in found.keys() - enumerations for base in bases(found[name])}
    for name, type in sorted(found.items()):
        if name in enumerations:
            print("%s: size %d" % (name, type.sizeof))
            for field in type.fields():
                print("%s::%s: number %d" % (name, field.name.split("::")[-1], field.enumval))
            continue
        lines = list(members(name, type))
        if is_template(type) and (name in within or not lines):
            continue
        print("%s: size %d, alignment %d" % (name, type.sizeof, type.alignof))
        for line in lines:
            print(line)


try:
    gdb.execute("set width 0")
    gdb.execute("set debuginfod enabled off")
    print_layouts()
except Exception:
    traceback.print_exc(file=sys.stderr)
    gdb.execute("quit 1")
