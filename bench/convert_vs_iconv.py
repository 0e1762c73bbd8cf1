#!/usr/bin/env python3
"""usage: convert_vs_iconv.py OVI18N [MEGABYTES] [RUNS]

Times 'ovi18n convert' against iconv on the same generated inputs (EUC-JP to UTF-8 and UTF-8 to
ISO-8859-15), whole processes with output to /dev/null, and prints the median wall time and peak
resident size of each and their ratio. Inputs live in a temporary directory removed at the end.
"""
import os
import statistics
import subprocess
import sys
import tempfile

JAPANESE = "東京の天気は晴れです。Tokyo weather report, 気温は二十度。\n"
LATIN = "Grüße aus Köln: déjà vu, coût 20 € - señor Ångström.\n"


def make_input(path, text, encoding, megabytes):
    block = (text * 4096).encode(encoding)
    with open(path, "wb") as f:
        for _ in range(megabytes * (1 << 20) // len(block) + 1):
            f.write(block)


def measure(command, runs):
    times, peaks = [], []
    for _ in range(runs):
        r = subprocess.run(["/usr/bin/time", "-f", "%e %M"] + command,
                           stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True)
        seconds, kib = r.stderr.decode().split()[-2:]
        times.append(float(seconds))
        peaks.append(int(kib))
    return statistics.median(times), max(peaks)


def main(tool, megabytes, runs):
    with tempfile.TemporaryDirectory() as tmp:
        cases = [("EUC-JP", "UTF-8", JAPANESE, "euc-jp"),
                 ("UTF-8", "ISO-8859-15", LATIN, "utf-8")]
        print(f"{megabytes} MB inputs, median of {runs} runs")
        print("| conversion | ovi18n s | iconv s | ratio | ovi18n peak KiB | iconv peak KiB |")
        print("|---|---:|---:|---:|---:|---:|")
        for source, target, text, python_name in cases:
            path = os.path.join(tmp, source + ".txt")
            make_input(path, text, python_name, megabytes)
            ours = measure([tool, "convert", "--quiet", "--from", source, "--to", target, path],
                           runs)
            theirs = measure(["iconv", "-f", source, "-t", target, path], runs)
            print(f"| {source} → {target} | {ours[0]:.2f} | {theirs[0]:.2f} | "
                  f"{ours[0] / theirs[0]:.2f} | {ours[1]} | {theirs[1]} |")
            os.remove(path)


if __name__ == "__main__":
    main(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 100,
         int(sys.argv[3]) if len(sys.argv) > 3 else 5)
