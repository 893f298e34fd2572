#!/usr/bin/env python3
"""Validates what the commands print against docs/*.schema.json: PROGRAM SAMPLE DOCS SCRATCH.

The schemas allow members that they do not know, since later versions may have more. Here these are
faults: each member that is printed has to be described.
"""
import copy
import json
import shutil
import subprocess
import sys
from pathlib import Path

from jsonschema import Draft202012Validator

program, sample, docs, scratch = sys.argv[1:]
faults = 0


def fail(text):
    global faults
    faults += 1
    print(text, file=sys.stderr)


def schema(name):
    text = json.loads((Path(docs) / name).read_text(encoding="utf-8"))
    Draft202012Validator.check_schema(text)
    return text


def strict(node):
    """No object has members that its schema does not name."""
    if isinstance(node, list):
        return [strict(part) for part in node]
    if not isinstance(node, dict):
        return node
    node = {key: strict(part) for key, part in node.items()}
    if node.get("type") == "object" and "required" in node and "$schema" not in node:
        node["additionalProperties"] = False
    return node


def run(*words):
    done = subprocess.run([program, *words], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    return done.stdout.decode("utf-8")


def check(what, validator, value, expected=True):
    errors = [f"{error.json_path}: {error.message[:200]}" for error in validator.iter_errors(value)]
    if expected != (not errors):
        fail(f"{what}: " + ("\n  ".join(errors[:5]) if errors else "a fault is not noticed"))


export_schema = strict(schema("export.schema.json"))
output_schema = strict(schema("output.schema.json"))

for name, definition in export_schema["$defs"].items():
    other = output_schema["$defs"].get(name)
    if other and other != definition:
        fail(f"the schemas describe \"{name}\" differently")


def output_validator(command):
    return Draft202012Validator({"$ref": "#/$defs/" + command, "$defs": output_schema["$defs"]})


# Products with few page counts, with many, with none, and with what nobody would write.
catalogue = Path(scratch) / "catalogue-of-schemas"
shutil.rmtree(catalogue, ignore_errors=True)
shutil.copytree(sample, catalogue)
changes = {
    "cup2.xml": ('<usablesize width="2000"', '<usablesize width="-5"'),
    "book_mini.xml": ("<spine pages=\"", "<spine pages=\"1\" width=\"-40\"/><spine pages=\""),
    "pdt1.xml": ("<pages>", "<productionnumbering>7,-2,5</productionnumbering><pageswithcontent>0,3</pageswithcontent><pages>"),
}
for name, (old, new) in changes.items():
    path = catalogue / "products" / name
    text = path.read_text(encoding="utf-8")
    if old not in text:
        fail(f"{name} has no {old}")
    path.write_text(text.replace(old, new, 1), encoding="utf-8")

exports = Draft202012Validator(export_schema)
lines = {}
for resources in (sample, str(catalogue)):
    for line in run("export", "--resources", resources).splitlines():
        value = json.loads(line)
        check(f"export: {line[:60]}", exports, value)
        lines[value["type"]] = value
if sorted(lines) != ["catalogue", "legacyProduct", "product", "productType", "theme"]:
    fail(f"export has the types {sorted(lines)}")

commands = (
    ["list"], ["list", "--earlier"], ["list", "--columns", "size,space"], ["themes"], ["themes", "--key-account", "1"],
    ["show", "BOOK_A4_PORTRAIT"], ["show", "BOOK_A4_PORTRAIT", "--theme", "hochzeit", "--pages", "27"],
    ["show", "BOOK_A4_PORTRAIT", "--origin", "--theme", "hochzeit"],
    ["show", "BOOK_CLASSIC_A4"], ["show", "CUP2"], ["show", "PDT1"], ["show", "BOOK_MINI"],
    ["compatible", "BOOK_A4_PORTRAIT"],
    ["why", "CUP2"], ["why", "BOOK_CLASSIC_A4", "--pages", "26", "--theme", "hochzeit", "--key-account", "1"],
    ["why", "BOOK_A4_PORTRAIT", "--pages", "27", "--theme", "design", "--page", "5", "--compatible-with", "BOOK_MINI",
     "--criterion", "binding,paper,space,increment"],
    ["compatible", "CUP2", "--criterion", "paper", "--theme", "hochzeit"], ["variants", "CUP2"],
    ["check", "--pedantic"],
)
for words in commands:
    text = run(*words, "--json", "--resources", str(catalogue))
    check(" ".join(words), output_validator(words[0]), json.loads(text))
check("diff", output_validator("diff"), json.loads(run("diff", sample, str(catalogue), "--json")))
for command in subprocess.run([program], stderr=subprocess.PIPE, check=False).stderr.decode().partition(
        ": use ")[2].partition(" (")[0].split(", "):
    if "--json" in run(command, "--help") and command not in ["diff", *(words[0] for words in commands)]:
        fail(f"no output of {command} is validated")
baseline = catalogue / "known.json"
run("check", "--resources", str(catalogue), "--pedantic", "--write-baseline", str(baseline))
check("baseline", output_validator("baseline"), json.loads(baseline.read_text(encoding="utf-8")))

for words in (["--list-tags"], ["--explain", "spine-pages-twice"]):
    check(" ".join(words), output_validator("checkTags"), json.loads(run("check", *words, "--json")))

# What a schema is for: a member that is missing or of another type, anywhere, is noticed.


def spoilt(value):
    """Copies of the value, each without one member or with a wrong one."""
    if isinstance(value, dict):
        for key, part in value.items():
            yield {other: value[other] for other in value if other != key}
            yield {**value, key: [["?"]]}
            for worse in spoilt(part):
                yield {**value, key: worse}
    elif isinstance(value, list) and value and isinstance(value[0], dict):
        for worse in spoilt(value[0]):
            yield [worse, *value[1:]]


book = next(value for value in map(json.loads, run("export", "--resources", sample).splitlines())
            if value["type"] == "product" and value["product"]["name"] == "BOOK_A4_PORTRAIT")
table = book["byPageCount"]
book["byPageCount"] = {"pageCounts": table["pageCounts"], "values": {}}
for value in (*lines.values(), book):
    value = copy.deepcopy(value)
    for worse in spoilt(value):
        check(f"spoilt {value['type']}: {json.dumps(worse)[:300]}", exports, worse, expected=False)

sys.exit(1 if faults else 0)
