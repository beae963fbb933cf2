"""schema.py FOLDER EXAMPLES: what a validator that is none of ours says of stored effects by the schemas in FOLDER, which
write-schema-trees has written. EXAMPLES has stored effects, of each class one in its folder "effects"."""

import copy
import json
import pathlib
import sys

from jsonschema import Draft202012Validator

# What no schema can tell.
BEYOND = {"too-deep", "narrowed-float", "duplicate-element", "changes-on-write", "lost-by-copy", "refused"}

# What passes, and what does not, whatever a check says of it.
CASES = [
    (True, None),
    (True, []),
    (True, [None]),
    (True, {"name": "EFFECT_VIBRANCE"}),
    (True, [{"name": "EFFECT_VIBRANCE"}, None, {"name": "EFFECT_ACID", "radius": 2}]),
    (True, {"name": "EFFECT_VIBRANCE", "strength": 5.0}),
    (True, {"name": "EFFECT_VIBRANCE", "strength": -2147483648}),
    (True, {"name": "EFFECT_VIBRANCE", "unknown": [{}]}),
    (True, {"name": "EFFECT_VIBRANCE", "implName": "ffmpeg", "helperSettings": {"applyMode": ["ApplyStop"], "maxWidth": 9}}),
    (True, {"name": "EFFECT_ADJUSTER", "highlights": 1, "smartBlur": {}}),
    (True, {"name": "EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadows": 0.1}),
    (True, {"name": "EFFECT_TRANSPOSE", "angle": "Angle_90"}),
    (True, {"name": "EFFECT_NEGATE_VIDEO", "mode": ["Alpha", "Red"]}),
    (True, {"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff0000ff"}),
    (True, {"name": "EFFECT_GRADIENT", "gradient": [{"key": 255, "value": "ff0000ff"}]}),
    (True, {"name": "SettingsEffectFacePackage", "currentFaceIndex": -1}),
    (True, {"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "EFFECT_VIBRANCE", "strength": 1}}]}),
    (True, {"name": "effectSettingsTileStub", "pre": [None, {"name": "EFFECT_ACID"}]}),
    (False, 3),
    (False, "EFFECT_VIBRANCE"),
    (False, [[]]),
    (False, {}),
    (False, [{"strength": 3}]),
    (False, {"name": "EFFECT_NOTHING"}),
    (False, {"name": "EFFECT_BLEND"}),
    (False, {"name": None}),
    (False, {"name": "EFFECT_VIBRANCE", "strength": "3"}),
    (False, {"name": "EFFECT_VIBRANCE", "strength": True}),
    (False, {"name": "EFFECT_VIBRANCE", "strength": None}),
    (False, {"name": "EFFECT_VIBRANCE", "strength": 3.5}),
    (False, {"name": "EFFECT_VIBRANCE", "strength": 2147483648}),
    (False, {"name": "EFFECT_VIBRANCE", "strength": 1e30}),
    (False, {"name": "EFFECT_VIBRANCE", "implName": 3}),
    (False, {"name": "EFFECT_VIBRANCE", "helperSettings": {"maxWidth": -1}}),
    (False, {"name": "EFFECT_VIBRANCE", "helperSettings": {"applyMode": "ApplyStop"}}),
    (False, {"name": "EFFECT_ADJUSTER", "highlights": "NaN"}),
    (False, {"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 0.5}}),
    (False, {"name": "EFFECT_ADJUSTER", "smartBlur": 3}),
    (False, {"name": "EFFECT_TRANSPOSE", "angle": "angle_90"}),
    (False, {"name": "EFFECT_TRANSPOSE", "angle": ""}),
    (False, {"name": "EFFECT_TRANSPOSE", "angle": 2}),
    (False, {"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red", "Red"]}),
    (False, {"name": "EFFECT_NEGATE_VIDEO", "mode": "Red"}),
    (False, {"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "FF0000FF"}),
    (False, {"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff0000ff\n"}),
    (False, {"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff0000ff0"}),
    (False, {"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff"}),
    (False, {"name": "EFFECT_GRADIENT", "gradient": [{"key": 256, "value": "ff0000ff"}]}),
    (False, {"name": "EFFECT_GRADIENT", "gradient": [{"value": "ff0000ff"}]}),
    (False, {"name": "EFFECT_GRADIENT", "gradient": [{"key": 1}]}),
    (False, {"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "EFFECT_NOTHING"}}]}),
    (False, {"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_ACID", "radius": "x"}]}),
]

failures = 0


def expect(passes, schema, tree, what):
    global failures
    if validators[schema].is_valid(tree) != passes:
        failures += 1
        print(f"FAILED: the schema \"{schema}\" {'refuses' if passes else 'takes'} {what}: {json.dumps(tree)[:2000]}")
        for error in list(validators[schema].iter_errors(tree))[:5]:
            print(f"  {error.json_path}: {error.message[:300]}")


def broken(effect):
    """The effect with each of its values once replaced by one of another kind, and without its name."""
    for key, value in effect.items():
        copied = copy.deepcopy(effect)
        copied[key] = 3 if isinstance(value, dict) else "text" if isinstance(value, list) else {}
        yield copied
    yield {key: value for key, value in effect.items() if key != "name"}


def expect_defaults_to_pass(schema):
    """Every default passes the schema that it stands in."""
    global failures
    whole = validators[schema]
    pending = [whole.schema]
    while pending:
        part = pending.pop()
        if isinstance(part, list):
            pending.extend(part)
        if not isinstance(part, dict):
            continue
        pending.extend(part.values())
        if "default" in part:
            document = {**part, "$defs": whole.schema["$defs"], "$schema": whole.schema["$schema"]}
            if not Draft202012Validator(document).is_valid(part["default"]):
                failures += 1
                print(f"FAILED: a default does not pass: {json.dumps(part)}")


folder, examples = map(pathlib.Path, sys.argv[1:])
validators = {}
for line in (folder / "schemas.jsonl").open(encoding="utf-8"):
    entry = json.loads(line)
    Draft202012Validator.check_schema(entry["schema"])
    validators[entry["name"]] = Draft202012Validator(entry["schema"])

for passes, tree in CASES:
    expect(passes, "open", tree, "a case")
    expect(passes and "unknown" not in (tree or {}), "closed", tree, "a case")
    expect(passes or tree == {"name": "EFFECT_ADJUSTER", "highlights": "NaN"}, "texts", tree, "a case")
expect_defaults_to_pass("closed")

for file in sorted(examples.glob("*.json")):
    expect(True, "closed", json.loads(file.read_text(encoding="utf-8")), file.name)

count = 0
effects = {file.stem: json.loads(file.read_text(encoding="utf-8")) for file in sorted((examples / "effects").glob("*.json"))}
for class_id, effect in effects.items():
    expect(True, "closed", effect, "a stored effect")
    expect(True, class_id, effect, "a stored effect of its class")
    expect(True, class_id, [effect, None], "stored effects of its class")
    other = next(other for other in effects if other != class_id)
    expect(False, class_id, effects[other], "an effect of another class")
    for tree in broken(effect):
        expect(False, "open", tree, "a broken effect")
        expect(False, class_id, tree, "a broken effect of its class")
        count += 1
if count < 200 or len(effects) < 94:
    failures += 1
    print(f"FAILED: only {count} effects were broken, of {len(effects)}")

passed = refused = 0
for line in (folder / "trees.jsonl").open(encoding="utf-8"):
    entry = json.loads(line)
    faults = {code for severity, code in map(str.split, entry["findings"]) if severity != "note"}
    if entry["schema"] != "closed":
        faults.discard("unknown-key")
    if not faults:
        passed += 1
        expect(True, entry["schema"], entry["tree"], "a tree without findings")
    elif faults - BEYOND:
        refused += 1
        expect(False, entry["schema"], entry["tree"], f"a tree with {', '.join(sorted(faults))}")
if passed < 100 or refused < 100:
    failures += 1
    print(f"FAILED: only {passed} random trees are without findings, and {refused} with some")

print(f"{count} broken effects, {passed} random trees that pass, {refused} that do not; {failures} failures")
sys.exit(1 if failures else 0)
