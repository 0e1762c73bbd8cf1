#!/usr/bin/env python3
"""Runs unicode_text_bench with repetitions and prints the median CPU time of each library
figure as a ratio to the raw ICU call it wraps. Usage: unicode_text_ratios.py [binary]."""
import json
import subprocess
import sys


def main():
    binary = sys.argv[1] if len(sys.argv) > 1 else "build/bench/unicode_text_bench"
    flags = ["--benchmark_format=json", "--benchmark_repetitions=5",
             "--benchmark_report_aggregates_only=true"]
    runs = json.loads(subprocess.run([binary] + flags, check=True, capture_output=True,
                                     text=True).stdout)["benchmarks"]
    medians = {r["run_name"]: r["cpu_time"] for r in runs if r["aggregate_name"] == "median"}
    print("| operation | units | library ns | ICU ns | ratio |")
    print("|---|---:|---:|---:|---:|")
    for name, time in medians.items():
        operation, impl, units = name.split("/")
        if impl != "library":
            continue
        base = medians.get(f"{operation}/icu/{units}") or medians.get(
            f"{operation.rsplit('_', 1)[0]}/icu/{units}")
        print(f"| {operation} | {units} | {time:.0f} | {base:.0f} | {time / base:.2f} |")


if __name__ == "__main__":
    main()
