"""usage: check_convert.py TOOL

Runs 'ovi18n convert' on generated inputs in a temporary directory and checks output, exit code
and the report of bad input."""
import os
import subprocess
import sys
import tempfile

PIECE = 1 << 20  # the tool reads its input in pieces of this size
TEXT = "Grüße, 東京 € 😀\nzweite Zeile\n"
failures = []


def run(tool, args, stdin=b""):
    r = subprocess.run([tool, "convert"] + args, input=stdin, capture_output=True)
    return r.returncode, r.stdout, r.stderr.decode(errors="replace")


def expect(what, actual, wanted):
    if actual != wanted:
        failures.append(f"{what}: got {actual!r:.200}, expected {wanted!r:.200}")


def main(tool, tmp):
    for enc, py in [("UTF-8", "utf-8"), ("UTF-16BE", "utf-16-be"), ("GB18030", "gb18030"),
                    ("UTF-32LE", "utf-32-le"), ("utf8", "utf-8")]:
        code, out, _ = run(tool, ["--from", "UTF-8", "--to", enc], TEXT.encode())
        expect(f"to {enc}", (code, out.decode(py)), (0, TEXT))
        code, back, _ = run(tool, ["--from", enc, "--to", "UTF-8"], out)
        expect(f"from {enc}", (code, back.decode()), (0, TEXT))

    # The same unencodable character under every mode.
    for mode, wanted in [("replace", b"a\x1ab"), ("substitute=?", b"a?b"),
                         ("escape-icu", b"a%U20ACb"), ("escape-java", b"a\\u20ACb"),
                         ("escape-c", b"a\\u20ACb"), ("escape-xml-dec", b"a&#8364;b"),
                         ("escape-xml-hex", b"a&#x20AC;b"), ("escape-unicode", b"a{U+20AC}b"),
                         ("escape-css2", b"a\\20AC b")]:
        code, out, _ = run(tool, ["--from", "UTF-8", "--to", "ISO-8859-1", "--on-error", mode],
                           "a€b".encode())
        expect(mode, (code, out), (0, wanted))
    code, out, err = run(tool, ["--from", "UTF-8", "--to", "ISO-8859-1"], "x\na€b".encode())
    expect("stop on output", (code, out, err),
           (1, b"x\na", "ovi18n: standard input:2:2: U+20AC cannot be written in ISO-8859-1\n"))
    code, out, _ = run(tool, ["--from", "UTF-8", "--to", "UTF-8", "--on-error", "replace"],
                       b"a\xffb")
    expect("bad input replaced", (code, out), (0, "a\ufffdb".encode()))

    # Bad input under stop: valid text before it, then where it is.
    cut = b"a" * (PIECE - 1)
    for what, data, valid, report in [
            ("at the start", b"\xff\xfeabc", b"", "1:1: invalid UTF-8 input at byte 0: ff"),
            ("on line 3", b"a\nb\ncd\xc3(", b"a\nb\ncd", "3:3: invalid UTF-8 input at byte 6: c3"),
            ("across pieces", cut + b"\xe3\x81(", cut, f"1:{PIECE}: invalid UTF-8 input at byte "
             f"{PIECE - 1}: e3 81"),
            ("cut off at the end", b"ok\xf0\x9f\x98", b"ok",
             "1:3: invalid UTF-8 input at byte 2: f0 9f 98")]:
        code, out, err = run(tool, ["--from", "UTF-8", "--to", "UTF-16LE"], data)
        expect(what, (code, out, err), (1, valid.decode().encode("utf-16-le"),
                                         f"ovi18n: standard input:{report}\n"))

    # Characters cut by piece boundaries, and several files one after the other.
    big = os.path.join(tmp, "big.txt")
    with open(big, "wb") as f:
        f.write(b"x" * (PIECE - 2) + "😀€".encode() * 3)
    small = os.path.join(tmp, "small.txt")
    with open(small, "wb") as f:
        f.write(b"end\n")
    code, out, err = run(tool, ["--from", "UTF-8", "--to", "UTF-16BE", big, small])
    expect("pieces and files", (code, out.decode("utf-16-be"), err),
           (0, "x" * (PIECE - 2) + "😀€" * 3 + "end\n", ""))

    # Inputs of several pieces are cut after line feeds and decoded on several threads; the
    # result must be what one thread decoding in order gives, bad input and its report included.
    for enc, py, text in [("EUC-JP", "euc-jp", "Tokyo: 東京の天気は晴れ。\n"),
                          ("Shift_JIS", "shift_jis", "Tokyo: 東京の天気は晴れ。\n"),
                          ("UTF-8", "utf-8", "Köln 東京 😀\n"),
                          ("GB18030", "gb18030", "Köln 东京 😀\n")]:
        ok = text.encode(py)
        lines = 3 * PIECE // len(ok)
        bad = ok * lines + b"\xff" + ok * 100
        one_line = ok.replace(b"\n", b" ") * (3 * PIECE // len(ok))
        for what, data in [("clean", ok * lines + ok[:-1]), ("bad", bad), ("one line", one_line)]:
            path = os.path.join(tmp, "many.txt")
            with open(path, "wb") as f:
                f.write(data)
            for mode in ["stop", "replace"]:
                args = ["--from", enc, "--to", "UTF-8", "--on-error", mode, path]
                expect(f"{enc} {what} {mode} threads", run(tool, args),
                       run(tool, ["--jobs", "1"] + args))
        code, out, err = run(tool, ["--from", enc, "--to", "UTF-8"], bad)
        expect(f"{enc} bad report", (code, out == ok.decode(py).encode() * lines, err),
               (1, True, f"ovi18n: standard input:{lines + 1}:1: invalid {enc} input at byte "
                         f"{len(ok) * lines}: ff\n"))

    code, _, err = run(tool, ["--from", "UTF-8", "--to", "UTF-8", os.path.join(tmp, "none")])
    expect("missing file", (code, err.startswith("ovi18n: ")), (1, True))
    code, out, err = run(tool, ["--from", "nonsense", "--to", "UTF-8"])
    expect("unknown encoding", (code, out, err.startswith("ovi18n: unknown encoding")),
           (2, b"", True))


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as tmp:
        main(sys.argv[1], tmp)
    if failures:
        sys.exit("\n".join(failures))
