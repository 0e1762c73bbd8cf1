#!/usr/bin/env bash
# Builds everything and runs the whole suite; then builds again under ThreadSanitizer and runs the
# multi-threaded tests there. OVI18N_SKIP_TSAN=1 skips the second half.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
jobs=$(nproc)
generator=(); command -v ninja >/dev/null && generator=(-G Ninja)

cmake -S . -B build "${generator[@]}" -DOVI18N_BUILD_BENCHMARKS=ON >/dev/null
cmake --build build -j"$jobs"
(cd build && ctest --output-on-failure -j"$jobs")

if [ "${OVI18N_SKIP_TSAN:-0}" != 1 ]; then
    cmake -S . -B build-tsan "${generator[@]}" -DOVI18N_SANITIZE=thread \
        -DOVI18N_BUILD_BENCHMARKS=OFF -DOVI18N_BUILD_TOOLS=OFF >/dev/null
    cmake --build build-tsan -j"$jobs"
    (cd build-tsan && ctest --output-on-failure -j"$jobs" -L threads)
fi
