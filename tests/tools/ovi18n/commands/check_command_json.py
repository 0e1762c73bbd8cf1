"""usage: check_command_json.py TOOL ARG... -- PATH=VALUE...

Runs 'TOOL ARG... --json' and compares values (as JSON or as plain strings). PATH is dotted; a
part KEY:VALUE picks the list element whose KEY is VALUE, as in encodings.name:UTF-8."""
import json
import subprocess
import sys


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
    tool, args, checks = argv[1], argv[2:split], argv[split + 1:]
    run = subprocess.run([tool] + args + ["--json"], capture_output=True)
    if run.returncode != 0:
        sys.exit(f"exit {run.returncode}: {run.stderr.decode(errors='replace')}")
    document = json.loads(run.stdout.decode("utf-8"))
    failures = []
    for check in checks:
        path, expected = check.split("=", 1)
        actual = lookup(document, path)
        if actual != expected and json.dumps(actual) != expected:
            failures.append(f"{check}: got {json.dumps(actual)}")
    if failures:
        sys.exit("\n".join(failures))


if __name__ == "__main__":
    main(sys.argv)
