"""Shows PropertyTree, PropertyTreeScalar and PropertyTreeMap in gdb as what they hold.

Load it with `source <prefix>/share/ombrel-effect-settings/ombrel_gdb.py`, by hand or in ~/.gdbinit. The program needs debug
information, the library does not. `print tree` shows a tree; `set print elements` and `set print max-depth` limit it.
"""

import struct

import gdb
import gdb.printing

SCALAR_BOOL, SCALAR_INTEGER, SCALAR_FLOAT, SCALAR_STRING = 1, 2, 3, 4
STATE_NULL, STATE_MAP, STATE_LIST, STATE_GAP = 0, 5, 6, 7


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


def without_marks(state):
    return int(state) & 0xFF


def scalar_text(scalar):
    kind = without_marks(scalar["m_kind"])
    bits = int(scalar["m_bits"])
    if kind == SCALAR_BOOL:
        return "true" if bits else "false"
    if kind == SCALAR_INTEGER:
        return str(bits - (1 << 64) if bits >> 63 else bits)
    if kind == SCALAR_FLOAT:
        return repr(struct.unpack("=d", struct.pack("=Q", bits))[0])
    if kind == SCALAR_STRING:
        return quoted(text_of(scalar["m_text"].dereference()))
    return "invalid scalar of kind %d" % kind


def entries(tree_map):
    """The keys and children of a map in key order.

    A program that never looks at an entry or at the header of a block has no type for it. So entries are found by the size of
    their two parts, and headers are read as words: the next block, and how many slots follow. With an index the entries are in
    any order in the blocks, and free slots are marked as the gaps are.
    """
    root = tree_map["m_root"]
    if not root:
        return []
    tree_type = gdb.lookup_type("Ombrel::PropertyTree")
    scalar_pointer = gdb.lookup_type("Ombrel::PropertyTreeScalar").pointer()
    text_pointer = gdb.Value(0).cast(scalar_pointer)["m_text"].type  # it is in an anonymous union
    child_offset = -(-text_pointer.sizeof // tree_type.alignof) * tree_type.alignof

    def entries_in(slots, count):
        for slot in range(int(count)):
            address = slots + slot * (child_offset + tree_type.sizeof)
            child = gdb.Value(address + child_offset).cast(tree_type.pointer()).dereference()
            if without_marks(child["m_null"]["state"]) != STATE_GAP:
                yield gdb.Value(address).cast(text_pointer.pointer()).dereference().dereference(), child

    first_slots = int(root) + root.type.target().sizeof
    if not root["index"]:
        return list(entries_in(first_slots, root["used"]))
    found = list(entries_in(first_slots, root["capacity"]))
    word_type = root["size"].type
    block = int(gdb.Value(int(root["index"])).cast(word_type.pointer())[0])
    while block:
        header = gdb.Value(block).cast(word_type.pointer())
        found += entries_in(block + 2 * word_type.sizeof, header[1])
        block = int(header[0])
    return sorted(found, key=lambda entry: text_of(entry[0]).encode("utf-8", "surrogateescape"))


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
        self.is_map = without_marks(value["m_null"]["state"]) == STATE_MAP

    def to_string(self):
        if self.is_map:
            return "map of %d" % size_of_map(self.value["m_map"]["content"])
        return "list of %d" % len(self.elements())

    def elements(self):
        """The addresses of a list's elements. Every usual vector begins with pointers to its first element and behind its last.

        A program that only passes lists on has no type for the vector.
        """
        bounds = self.value["m_list"]["content"].cast(self.value.type.unqualified().pointer().pointer())
        first, end = bounds[0], bounds[1]
        return [first + i for i in range(int(end - first))]

    def children(self):
        if self.is_map:
            return map_children(self.value["m_map"]["content"])
        return (("[%d]" % i, element.dereference()) for i, element in enumerate(self.elements()))

    def display_hint(self):
        return "map" if self.is_map else "array"


class TreeScalarPrinter:
    """A tree that is null or a scalar."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        state = without_marks(self.value["m_null"]["state"])
        return "null" if state == STATE_NULL else scalar_text(self.value["m_scalar"])


def tree_printer(value):
    is_container = without_marks(value["m_null"]["state"]) in (STATE_MAP, STATE_LIST)
    return TreeContainerPrinter(value) if is_container else TreeScalarPrinter(value)


def printers():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("ombrel-effect-settings")
    collection.add_printer("PropertyTree", "^Ombrel::PropertyTree$", tree_printer)
    collection.add_printer("PropertyTreeScalar", "^Ombrel::PropertyTreeScalar$", ScalarPrinter)
    collection.add_printer("PropertyTreeMap", "^Ombrel::PropertyTreeMap$", MapPrinter)
    return collection


gdb.printing.register_pretty_printer(gdb.current_objfile(), printers(), replace=True)
