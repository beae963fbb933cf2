"""Each line of `check --json` is as the schema of the output says, and every code of the schema is one that --ignore takes."""

import json
import pathlib
import subprocess
import sys

from jsonschema import Draft202012Validator

program, source = sys.argv[1], pathlib.Path(sys.argv[2])
schema = json.loads((source / "docs/check-output.schema.json").read_text(encoding="utf-8"))
Draft202012Validator.check_schema(schema)
validator = Draft202012Validator(schema)


def lines_of(arguments, text):
    result = subprocess.run([program, "check", "--json", "--quiet", *arguments], input=text, capture_output=True, text=True)
    return [json.loads(line) for line in result.stdout.splitlines()]


broken = str(source / "examples/inspection/broken.json")
nested = '{"id": [1], "effects": [null, {"name": 5}, {"name": "EFFECT_ACID", "sigma": "x"}]}\n'
found = lines_of([broken, str(source / "examples/changing.json")], "") + lines_of(["--lines", "-"], nested)
if len(found) < 12:
    sys.exit(f"expected a line for each finding, found {len(found)}")
for line in found:
    validator.validate(line)
if not any("id" in line for line in found):
    sys.exit("the id is not handed through")

for code in schema["properties"]["code"]["enum"]:
    result = subprocess.run([program, "check", "--quiet", "--ignore", code, "-"], input="[]", capture_output=True, text=True)
    if result.returncode != 0:
        sys.exit(f"--ignore {code}: {result.stderr}")
