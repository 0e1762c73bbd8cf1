#!/usr/bin/env python3
"""Runs codecvt_bench with JSON output and prints each library figure as a ratio of its time
to raw ICU (one reused converter), to ICU's UTF-8 functions where they apply, and to iconv.
A ratio above 1 means the library is slower. Usage: codecvt_ratios.py [path/to/codecvt_bench]
[extra benchmark flags]."""
import json
import subprocess
import sys

LIBRARY = ("to_ustring", "to_string", "do_convert")
BASELINES = ("icu_ucnv", "icu_utf8", "iconv")


def main():
    binary = sys.argv[1] if len(sys.argv) > 1 else "build/bench/codecvt_bench"
    flags = sys.argv[2:] or ["--benchmark_min_time=0.2"]
    output = subprocess.run([binary, "--benchmark_format=json"] + flags, check=True,
                            capture_output=True, text=True).stdout
    times = {}
    throughput = {}
    for run in json.loads(output)["benchmarks"]:
        parts = run["name"].split("/")
        if parts[0] == "threads":
            throughput[(parts[1], int(parts[2]), parts[-1])] = (run["real_time"],
                                                                run["bytes_per_second"])
            continue
        direction, encoding, size, impl = parts[:4]
        times[(direction, encoding, int(size), impl)] = run["cpu_time"]

    print("| direction | encoding | bytes | library call | ns | / ICU ucnv | / ICU UTF-8 | / iconv |")
    print("|---|---|---:|---|---:|---:|---:|---:|")
    for key in sorted(k for k in times if k[0] != "threads" and k[3] in LIBRARY):
        direction, encoding, size, impl = key
        cells = []
        for base in BASELINES:
            base_time = times.get((direction, encoding, size, base))
            cells.append(f"{times[key] / base_time:.2f}" if base_time else "-")
        print(f"| {direction} | {encoding} | {size} | {impl} | {times[key]:.0f} | "
              + " | ".join(cells) + " |")
    if throughput:
        print()
        print("| to_ustring, default encoding | bytes | threads | ns per call (wall) | MB/s | "
              "/ 1 thread |")
        print("|---|---:|---|---:|---:|---:|")
        for key in sorted(throughput):
            encoding, size, threads = key
            wall, rate = throughput[key]
            one = throughput.get((encoding, size, "threads:1"))
            print(f"| {encoding} | {size} | {threads} | {wall:.0f} | {rate / 1e6:.0f} | "
                  f"{rate / one[1]:.2f} |")


if __name__ == "__main__":
    main()
