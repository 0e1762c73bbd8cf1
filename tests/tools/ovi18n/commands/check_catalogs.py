"""usage: check_catalogs.py TOOL

Seeds a resources tree with one fault of each kind the 'check' command knows, and checks that
each is reported once, where it is; then 'catalogs' and the HTML page over the same tree."""
import json
import os
import subprocess
import sys
import tempfile

ENTRIES = "<rsccat><message>\n{}\n</message></rsccat>\n"
TREE = {
    "en/main.xml": ENTRIES.format('<entry key="hello">Hello {0}</entry>\n'
                                  '<entry key="named">Hi {user}</entry>\n'
                                  "<entry key=\"gone\">{n,plural, =0{Aujourd'hui} other{# don't}}</entry>"),
    "de/main.xml": ENTRIES.format('<entry key="hello">Hallo {1}</entry>\n'
                                  '<entry key="named">Hallo {user}</entry>\n'
                                  '<entry key="extra">Extra</entry>'),
    "en/faults.xml": ENTRIES.format('<entry key="dup">one</entry>\n'
                                    '<entry key="dup">two</entry>\n'
                                    '<entry key="bad-key">x</entry>\n'
                                    '<entry key="esc">\\u00</entry>\n'
                                    '<entry key="pat">{0</entry>\n'
                                    "<entry key=\"apos\">'{0}' here</entry>"),
    "en/broken.xml": ENTRIES.format('<entry key="k">x</entry>'),
    "de/broken.xml": ENTRIES.format('<entry key="k">x <b>y</b></entry>'),
    "en/open.xml": "<rsccat><message>\n<entry key=\"k\">open\n",
    "de/open.xml": ENTRIES.format(""),
    "de/only.xml": ENTRIES.format('<entry key="k">nur</entry>'),
    "en/sub/bad-name.xml": ENTRIES.format(""),
}
# kind -> (file, line) of its one report; line 0 for the file as a whole.
EXPECTED = {
    "duplicate-key": ("en/faults.xml", 3), "bad-key": ("en/faults.xml", 4),
    "bad-escape": ("en/faults.xml", 5), "bad-pattern": ("en/faults.xml", 6),
    "apostrophe": ("en/faults.xml", 7), "missing-catalog": ("de/faults.xml", 0),
    "holes-differ": ("de/main.xml", 2), "missing-key": ("de/main.xml", 0),
    "no-original": ("de/main.xml", 4), "unreadable": ("de/broken.xml", 2),
    "unclosed": ("en/open.xml", 0), "no-original-catalog": ("de/only.xml", 0),
    "bad-catalog-name": ("en/sub/bad-name.xml", 0),
}
failures = []


def expect(what, actual, wanted):
    if actual != wanted:
        failures.append(f"{what}: got {actual!r:.300}, expected {wanted!r:.300}")


def main(tool, root):
    resources = os.path.join(root, "resources", "app")
    for name, text in TREE.items():
        os.makedirs(os.path.dirname(os.path.join(resources, name)), exist_ok=True)
        with open(os.path.join(resources, name), "w", encoding="utf-8") as f:
            f.write(text)
    html = os.path.join(root, "report.html")
    run = subprocess.run([tool, "check", "--root", root, "--json", "--html", html],
                         capture_output=True)
    expect("check exit", run.returncode, 1)
    report = json.loads(run.stdout.decode("utf-8"))
    found = {}
    for f in report["findings"]:
        found.setdefault(f["kind"], []).append(
            (os.path.relpath(f["file"], resources), f["line"]))
    expect("findings", found, {k: [v] for k, v in EXPECTED.items()})
    errors = sum(f["severity"] == "error" for f in report["findings"])
    expect("error count", (report["errors"], report["warnings"]),
           (errors, len(EXPECTED) - errors))
    de = report["coverage"][0]
    # en has 3 + 5 distinct + 1 + 0 messages; de has 2 of main's and none elsewhere.
    expect("de coverage", (de["locale"], de["translated"], de["total"]), ("de", 2, 9))

    with open(html, encoding="utf-8") as f:
        page = f.read()
    for needle in ("<script", "<link", "src=", "http"):
        expect(f"'{needle}' in the page", needle in page, False)
    expect("bars", page.count('class="bar"'), 5)  # four catalogs and the total, one locale

    text = subprocess.run([tool, "check", "--root", root], capture_output=True, text=True)
    line = f"{os.path.join(resources, 'de/broken.xml')}:2:18: error: "
    expect("text report", line in text.stdout, True)
    expect("stderr", text.stderr.count("\n"), 1)

    run = subprocess.run([tool, "catalogs", "--root", root, "--json"], capture_output=True)
    listing = {l["locale"]: {c["catalog"]: c["entries"] for c in l["catalogs"]}
               for l in json.loads(run.stdout)["locales"]}
    expect("catalogs", listing, {
        "de": {"app:broken": None, "app:main": 3, "app:open": 0, "app:only": 1},
        "en": {"app:broken": 1, "app:faults": 5, "app:main": 3, "app:open": 0}})


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as tmp:
        main(sys.argv[1], tmp)
    for f in failures:
        print(f)
    sys.exit(1 if failures else 0)
