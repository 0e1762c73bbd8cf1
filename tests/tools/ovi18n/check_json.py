"""Runs 'TOOL ARG... --json' and compares values of its document; for 'locale', first the shape
consumers rely on.

usage: check_json.py TOOL ARG... -- [--raw-env NAME=HEXBYTES]... [CHECK]...
A CHECK is PATH=VALUE (exact, as JSON or as a plain string), PATH~=TEXT (the value, or a string in
the list, contains TEXT), or PATH=null. PATH is dotted: global.categories.messages.name,
messages_fallback.0; a part KEY:VALUE picks the list element whose KEY is VALUE, as in
encodings.name:UTF-8.
"""
import json
import os
import subprocess
import sys

SHAPE = {"status": int, "status_message": str, "warning_message": str,
         "l10n_resource_enabled": bool, "environment.before": dict, "environment.after": dict,
         "found.XpgEncoding": str, "found.ErrorEvents": list, "database.warnings": list,
         "c_library.codeset": str, "messages_fallback": list, "icu.default_locale": str,
         "icu.default_converter": str}
SHAPE.update({"javavm." + f: str for f in ("language", "region", "resource_language",
              "resource_region", "format_language", "format_region", "file_encoding")})
for locale in ("classic", "system", "global"):
    SHAPE.update({f"{locale}.{f}": str for f in ("encoding", "terminal_encoding",
                  "terminal_input_encoding", "terminal_output_encoding", "jvm_encoding",
                  "paper_size", "unit_system")})
    SHAPE.update({f"{locale}.categories.{c}.{f}": str
                  for c in ("ctype", "collate", "time", "numeric", "monetary", "messages")
                  for f in ("name", "modifier", "language", "region")})


def lookup(document, path):
    value = document
    for part in path.split("."):
        if isinstance(value, list) and ":" in part:
            key, wanted = part.split(":", 1)
            value = next(item for item in value if item.get(key) == wanted)
        else:
            value = value[int(part)] if isinstance(value, list) else value[part]
    return value


def main(argv):
    split = argv.index("--")
    tool, command, args = argv[1], argv[2:split], argv[split + 1:]
    env = os.environb.copy()
    checks = []
    while args:
        arg = args.pop(0)
        if arg == "--raw-env":
            name, hexbytes = args.pop(0).split("=", 1)
            env[name.encode()] = bytes.fromhex(hexbytes)
        else:
            checks.append(arg)

    run = subprocess.run([tool] + command + ["--json"], env=env, capture_output=True)
    if run.returncode != 0:
        sys.exit(f"exit {run.returncode}: {run.stderr.decode(errors='replace')}")
    report = json.loads(run.stdout.decode("utf-8"))  # strict: invalid UTF-8 fails here

    failures = []
    for path, kind in SHAPE.items() if command == ["locale"] else ():
        try:
            if type(lookup(report, path)) is not kind:
                failures.append(f"{path}: not a {kind.__name__}")
        except (KeyError, IndexError, TypeError):
            failures.append(f"{path}: missing")
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
