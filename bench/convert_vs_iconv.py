#!/usr/bin/env python3
"""usage: convert_vs_iconv.py OVI18N [MEGABYTES] [RUNS]

Times 'ovi18n convert' against iconv on the same generated inputs (EUC-JP to UTF-8 and UTF-8 to
ISO-8859-15), whole processes with output to /dev/null, and prints for each the median wall
time, the median CPU time (user + system, steadier on a loaded machine), their ratios and the
peak resident size. Inputs live in a temporary directory removed at the end.
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
    times, cpu, peaks = [], [], []
    for _ in range(runs):
        r = subprocess.run(["/usr/bin/time", "-f", "%e %U %S %M"] + command,
                           stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True)
        seconds, user, system, kib = r.stderr.decode().split()[-4:]
        times.append(float(seconds))
        cpu.append(float(user) + float(system))
        peaks.append(int(kib))
    return statistics.median(times), statistics.median(cpu), max(peaks)


def main(tool, megabytes, runs):
    with tempfile.TemporaryDirectory() as tmp:
        cases = [("EUC-JP", "UTF-8", JAPANESE, "euc-jp"),
                 ("UTF-8", "ISO-8859-15", LATIN, "utf-8")]
        print(f"{megabytes} MB inputs, median of {runs} runs")
        print("| conversion | ovi18n wall s | iconv wall s | wall ratio | ovi18n CPU s | "
              "iconv CPU s | CPU ratio | ovi18n peak KiB | iconv peak KiB |")
        print("|---|---:|---:|---:|---:|---:|---:|---:|---:|")
        for source, target, text, python_name in cases:
            path = os.path.join(tmp, source + ".txt")
            make_input(path, text, python_name, megabytes)
            ours = measure([tool, "convert", "--quiet", "--from", source, "--to", target, path],
                           runs)
            theirs = measure(["iconv", "-f", source, "-t", target, path], runs)
            print(f"| {source} → {target} | {ours[0]:.2f} | {theirs[0]:.2f} | "
                  f"{ours[0] / theirs[0]:.2f} | {ours[1]:.2f} | {theirs[1]:.2f} | "
                  f"{ours[1] / theirs[1]:.2f} | {ours[2]} | {theirs[2]} |")
            os.remove(path)


if __name__ == "__main__":
    main(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 100,
         int(sys.argv[3]) if len(sys.argv) > 3 else 5)
