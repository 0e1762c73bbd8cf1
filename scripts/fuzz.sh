#!/usr/bin/env bash
# scripts/fuzz.sh [SECONDS [NAME...]]
# Builds every libFuzzer target with clang in build-fuzz/ and runs each (or the NAMEs given) for
# SECONDS (default 60), two at a time, from its committed corpus in fuzz/corpus/<name>/ (<name>
# is the executable's name without _fuzz). Prints a table of target, seconds, executions and
# result; a finding makes the script exit non-zero and leaves its reproducer in
# build-fuzz/findings/<name>/.
# A unit running longer than OVI18N_FUZZ_TIMEOUT seconds (default 300: the clock is the wall's,
# and a niced run on a busy machine waits long for the CPU) is a finding.
# OVI18N_FUZZ_UPDATE_CORPUS=1 then merges (-merge=1) the new inputs that add coverage into
# fuzz/corpus/<name>/.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/lib/build_tree.sh

seconds=${1:-60}
case $seconds in '' | *[!0-9]*) echo "usage: scripts/fuzz.sh [SECONDS [NAME...]]" >&2; exit 2 ;; esac
shift $(($# > 0 ? 1 : 0))
timeout=${OVI18N_FUZZ_TIMEOUT:-300}

scripts/install-deps.sh
out=build-fuzz
configure_tree "$out" -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
    -DOVI18N_FUZZ=ON -DOVI18N_BUILD_TESTS=OFF -DOVI18N_BUILD_TOOLS=OFF \
    -DOVI18N_BUILD_BENCHMARKS=OFF -DOVI18N_SANITIZE=
cmake --build "$out" -j"$jobs"

mapfile -t targets < <(find "$out/fuzz" -maxdepth 1 -type f -executable -name '*_fuzz' | sort)
if [ $# -gt 0 ]; then
    wanted=()
    for name in "$@"; do
        [ -x "$out/fuzz/${name}_fuzz" ] || { echo "fuzz: no target $name" >&2; exit 2; }
        wanted+=("$out/fuzz/${name}_fuzz")
    done
    targets=("${wanted[@]}")
fi
if [ ${#targets[@]} -eq 0 ]; then
    echo "fuzz: no *_fuzz target was built in $out/fuzz" >&2
    exit 1
fi

run_target() {
    local exe=$1 name
    name=$(basename "$exe" _fuzz)
    local work=$out/corpus/$name findings=$out/findings/$name log=$out/logs/$name.log
    rm -rf "$work" "$findings"
    mkdir -p "$work" "$findings" "$out/logs" "fuzz/corpus/$name"
    local status=0
    # New inputs go to the work directory; the committed corpus is read only.
    "$exe" -max_total_time="$seconds" -timeout="$timeout" -print_final_stats=1 \
        -artifact_prefix="$findings/" "$work" "fuzz/corpus/$name" >"$log" 2>&1 || status=$?
    echo "$status" >"$out/logs/$name.status"
    if [ "$status" -eq 0 ] && [ "${OVI18N_FUZZ_UPDATE_CORPUS:-0}" = 1 ]; then
        # Adds only the new inputs that reach something the committed ones don't; the committed
        # ones keep their names.
        "$exe" -merge=1 "fuzz/corpus/$name" "$work" >>"$log" 2>&1
    fi
}

echo "fuzz: ${#targets[@]} targets, ${seconds}s each, two at a time"
for exe in "${targets[@]}"; do
    while [ "$(jobs -rp | wc -l)" -ge 2 ]; do wait -n || true; done
    run_target "$exe" &
done
wait

failed=0
printf '%-20s %8s %14s  %s\n' target seconds executions result
for exe in "${targets[@]}"; do
    name=$(basename "$exe" _fuzz)
    log=$out/logs/$name.log
    execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    result=ok
    if [ "$(cat "$out/logs/$name.status")" != 0 ]; then
        failed=1
        reproducer=$(find "$out/findings/$name" -type f ! -name 'slow-unit-*' | head -1)
        result="FINDING: ${reproducer:-see $log} (replay: $exe <file>)"
    fi
    printf '%-20s %8s %14s  %s\n' "$name" "$seconds" "${execs:-?}" "$result"
done
exit "$failed"
