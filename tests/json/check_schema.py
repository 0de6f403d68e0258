#!/usr/bin/python3
"""check_schema.py FILE: whether the validator that Debian packages says of EDIDs what they should hear.

FILE holds {"schema": ..., "sound": {NAME: EDID}, "faulty": {PATH: EDID}}. The schema has to be one, by its meta-schema;
each sound EDID passes, each faulty one fails at its path.
"""
import json
import sys

import jsonschema

given = json.load(open(sys.argv[1], encoding="utf-8"))
validator_class = jsonschema.Draft202012Validator
validator_class.check_schema(given["schema"])
validator = validator_class(given["schema"])
faults = []


def path_of(error):
    return ".".join(str(part) for part in error.absolute_path)


for name, edid in given["sound"].items():
    for error in validator.iter_errors(edid):
        faults.append(f"{name}: {path_of(error)}: {error.message[-200:]}")
for path, edid in given["faulty"].items():
    found = [path_of(error) for error in validator.iter_errors(edid)]
    if path not in found:
        faults.append(f"{path} passes, of {found}")
print("\n".join(faults[:20]))
print(len(given["sound"]), "sound and", len(given["faulty"]), "faulty EDIDs")
sys.exit(1 if faults else 0)
