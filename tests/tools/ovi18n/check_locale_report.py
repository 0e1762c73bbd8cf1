"""Runs 'ovi18n locale --json' and checks values of its report.

usage: check_locale_report.py TOOL [--raw-env NAME=HEXBYTES]... [CHECK]...
A CHECK is PATH=VALUE (exact), PATH~=TEXT (the value, or a string in the list, contains TEXT),
or PATH=null. PATH is dotted: global.categories.messages.name, messages_fallback.0.
"""
import json
import os
import subprocess
import sys


def lookup(document, path):
    value = document
    for part in path.split("."):
        value = value[int(part)] if isinstance(value, list) else value[part]
    return value


def main(argv):
    tool, args = argv[1], argv[2:]
    env = os.environb.copy()
    checks = []
    while args:
        arg = args.pop(0)
        if arg == "--raw-env":
            name, hexbytes = args.pop(0).split("=", 1)
            env[name.encode()] = bytes.fromhex(hexbytes)
        else:
            checks.append(arg)

    run = subprocess.run([tool, "locale", "--json"], env=env, capture_output=True)
    if run.returncode != 0:
        sys.exit(f"exit {run.returncode}: {run.stderr.decode(errors='replace')}")
    report = json.loads(run.stdout.decode("utf-8"))  # strict: invalid UTF-8 fails here

    failures = []
    for check in checks:
        contains = "~=" in check
        path, expected = check.split("~=" if contains else "=", 1)
        actual = lookup(report, path)
        if contains:
            items = actual if isinstance(actual, list) else [actual]
            ok = any(expected in item for item in items)
        elif expected == "null":
            ok = actual is None
        else:
            ok = actual == expected or json.dumps(actual, separators=(",", ":")) == expected
        if not ok:
            failures.append(f"{check}: got {json.dumps(actual)}")
    if failures:
        sys.exit("\n".join(failures) + "\n" + json.dumps(report, indent=2))


if __name__ == "__main__":
    main(sys.argv)
