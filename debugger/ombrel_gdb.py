"""Shows PropertyTree, PropertyTreeScalar and PropertyTreeMap in gdb as what they hold.

Load it with `source <prefix>/share/ombrel-effect-settings/ombrel_gdb.py`, by hand or in ~/.gdbinit. The program needs debug
information, the library does not. `print tree` shows a tree; `set print elements` and `set print max-depth` limit it.
"""

import struct

import gdb
import gdb.printing

SCALAR_BOOL, SCALAR_INTEGER, SCALAR_FLOAT, SCALAR_STRING = 1, 2, 3, 4
STATE_NULL, STATE_MAP, STATE_LIST = 0, 5, 6


def text_of(string):
    """The content of a std::string of libstdc++ or libc++."""
    names = [field.name for field in string.type.strip_typedefs().fields()]
    if "_M_string_length" in names:
        start, size = string["_M_dataplus"]["_M_p"], string["_M_string_length"]
    else:
        content = string["__r_"]["__value_"]
        short = content["__s"]
        if short["__is_long_"]:
            start, size = content["__l"]["__data_"], content["__l"]["__size_"]
        else:
            start, size = short["__data_"].address, short["__size_"]
    if not size:
        return ""
    return gdb.selected_inferior().read_memory(int(start), int(size)).tobytes().decode("utf-8", "backslashreplace")


def quoted(text):
    escapes = {'"': '\\"', "\\": "\\\\", "\n": "\\n", "\t": "\\t", "\r": "\\r"}
    return '"' + "".join(escapes.get(c, c if c.isprintable() else "\\x%02x" % ord(c)) for c in text) + '"'


def scalar_text(scalar):
    kind = int(scalar["m_kind"])
    bits = int(scalar["m_bits"])
    if kind == SCALAR_BOOL:
        return "true" if bits else "false"
    if kind == SCALAR_INTEGER:
        return str(bits - (1 << 64) if bits >> 63 else bits)
    if kind == SCALAR_FLOAT:
        return repr(struct.unpack("=d", struct.pack("=Q", bits))[0])
    if kind == SCALAR_STRING:
        return quoted(text_of(scalar["m_text"]))
    return "invalid scalar of kind %d" % kind


def entries(tree_map):
    """The keys and children of a map in key order.

    A program that never looks at an entry has no type for it, and the types of the index are in the library. So entries are
    found by the size of their two parts, and the index is read as words.
    """
    root = tree_map["m_root"]
    if not root:
        return
    tree_type = gdb.lookup_type("Ombrel::PropertyTree")
    scalar_pointer = gdb.lookup_type("Ombrel::PropertyTreeScalar").pointer()
    key_type = gdb.Value(0).cast(scalar_pointer)["m_text"].type  # it is in an anonymous union
    alignment = tree_type.alignof
    child_offset = -(-key_type.sizeof // alignment) * alignment
    entry_size = child_offset + tree_type.sizeof
    word = root["index"].type.sizeof
    size_type = root["size"].type

    def words(address, count):
        pointer = gdb.Value(address).cast(size_type.pointer())
        return [int(pointer[i]) for i in range(count)]

    def entry_at(address):
        key = gdb.Value(address).cast(key_type.pointer()).dereference()
        return key, gdb.Value(address + child_offset).cast(tree_type.pointer()).dereference()

    if root["index"]:
        leaves, leaves_in_use = words(int(root["index"]), 2)
        for leaf in range(leaves_in_use):
            places, _heads, count, _capacity = words(leaves + leaf * 4 * word, 4)
            for place in range(count):
                yield entry_at(words(places + place * word, 1)[0])
        return
    gaps = int(root["gaps"])
    slot = int(root) + root.type.target().sizeof + int(root["capacity"]) * 8  # behind the heads of the keys
    while slot != int(root["end"]):
        if not gaps & 1:
            yield entry_at(slot)
        gaps >>= 1
        slot += entry_size


def size_of_map(tree_map):
    return int(tree_map["m_root"]["size"]) if tree_map["m_root"] else 0


def map_children(tree_map):
    for number, (key, child) in enumerate(entries(tree_map)):
        yield "key %d" % number, text_of(key)
        yield "child %d" % number, child


class ScalarPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return scalar_text(self.value)


class MapPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return "map of %d" % size_of_map(self.value)

    def children(self):
        return map_children(self.value)

    def display_hint(self):
        return "map"


class TreeContainerPrinter:
    """A tree that is a map or a list; gdb takes what has children() for a container."""

    def __init__(self, value):
        self.value = value
        self.is_map = int(value["m_null"]["state"]) == STATE_MAP

    def content(self):
        return self.value["m_map" if self.is_map else "m_list"]["content"]

    def to_string(self):
        if self.is_map:
            return "map of %d" % size_of_map(self.content())
        return "list of %d" % len(self.elements())

    def elements(self):
        """The addresses of a list's elements, with libstdc++ or libc++."""
        content = self.content()
        names = [field.name for field in content.type.strip_typedefs().fields()]
        if "__begin_" in names:
            first, end = content["__begin_"], content["__end_"]
        else:
            first, end = content["_M_impl"]["_M_start"], content["_M_impl"]["_M_finish"]
        return [first + i for i in range(int(end - first))]

    def children(self):
        if self.is_map:
            return map_children(self.content())
        return (("[%d]" % i, element.dereference()) for i, element in enumerate(self.elements()))

    def display_hint(self):
        return "map" if self.is_map else "array"


class TreeScalarPrinter:
    """A tree that is null or a scalar."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        state = int(self.value["m_null"]["state"])
        return "null" if state == STATE_NULL else scalar_text(self.value["m_scalar"])


def tree_printer(value):
    is_container = int(value["m_null"]["state"]) in (STATE_MAP, STATE_LIST)
    return TreeContainerPrinter(value) if is_container else TreeScalarPrinter(value)


def printers():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("ombrel-effect-settings")
    collection.add_printer("PropertyTree", "^Ombrel::PropertyTree$", tree_printer)
    collection.add_printer("PropertyTreeScalar", "^Ombrel::PropertyTreeScalar$", ScalarPrinter)
    collection.add_printer("PropertyTreeMap", "^Ombrel::PropertyTreeMap$", MapPrinter)
    return collection


gdb.printing.register_pretty_printer(gdb.current_objfile(), printers(), replace=True)
