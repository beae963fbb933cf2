"""Writes one of the programs or outputs that a guide shows into a file: the block whose fence has its name."""

import re
import sys

guide, name, target = sys.argv[1:]
text = open(guide, encoding="utf-8").read()
blocks = re.findall(r"^```\w+ " + re.escape(name) + r"\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)
if len(blocks) != 1:
    sys.exit(f"{guide}: expected one block {name}, found {len(blocks)}")
with open(target, "w", encoding="utf-8") as file:
    file.write(blocks[0])
