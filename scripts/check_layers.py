#!/usr/bin/env python3
"""Fails when a source file includes a file of a layer above its own.

The layers and the paths they own come from the ```layers block of src/README.md, lowest first.
Only includes that resolve to a file of the tree count; system and third-party headers don't.
"""
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^">]+)[">]')
SCANNED = ("src", "include", "tools")
SUFFIXES = (".hpp", ".cpp", ".h", ".c")


def read_layers(readme):
    text = open(readme, encoding="utf-8").read()
    block = re.search(r"```layers\n(.*?)```", text, re.S)
    if not block:
        sys.exit(f"{readme}: no ```layers block")
    owners = []
    names = []
    for rank, line in enumerate(l for l in block.group(1).splitlines() if l.strip()):
        name, paths = line.split(":", 1)
        names.append(name.strip())
        owners += [(path.rstrip("/"), rank) for path in paths.split()]
    # Longest path first, so src/i18n/lcmgmt/startup wins over src/i18n/lcmgmt.
    owners.sort(key=lambda owner: -len(owner[0]))
    return owners, names


def layer_of(path, owners):
    for prefix, rank in owners:
        if path == prefix or path.startswith(prefix + "/"):
            return rank
    return None


def resolve(root, including, name):
    for base in (os.path.dirname(including), "src", "include"):
        candidate = os.path.normpath(os.path.join(base, name))
        if os.path.isfile(os.path.join(root, candidate)):
            return candidate
    return None


def violations(root, owners, names):
    for top in SCANNED:
        for folder, _, files in os.walk(os.path.join(root, top)):
            for file in sorted(files):
                if not file.endswith(SUFFIXES):
                    continue
                path = os.path.relpath(os.path.join(folder, file), root)
                rank = layer_of(path, owners)
                if rank is None:
                    yield f"{path}: belongs to no layer"
                    continue
                with open(os.path.join(root, path), encoding="utf-8", errors="replace") as text:
                    for number, line in enumerate(text, 1):
                        match = INCLUDE.match(line)
                        target = match and resolve(root, path, match.group(1))
                        target_rank = target and layer_of(target, owners)
                        if target_rank is not None and target_rank > rank:
                            yield (f"{path}:{number}: {names[rank]} includes {target} "
                                   f"of {names[target_rank]}")


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else "."
    owners, names = read_layers(os.path.join(root, "src", "README.md"))
    found = list(violations(root, owners, names))
    for message in found:
        print(message)
    print(f"{len(found)} include(s) against the layer order")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
