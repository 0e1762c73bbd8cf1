#!/usr/bin/env bash
# Builds everything and runs the whole suite; then the multi-threaded tests again under
# ThreadSanitizer, and the whole suite again built with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer. OVI18N_SKIP_TSAN=1 and OVI18N_SKIP_ASAN=1 skip those passes.
set -euo pipefail
cd "$(dirname "$0")/.."
# Every ctest call goes through run_ctest (scripts/lib/build_tree.sh), which passes
# --no-tests=error: a tree configured without tests fails instead of passing empty.
. scripts/lib/build_tree.sh

scripts/install-deps.sh

echo "== plain build, whole suite (build/)"
configure_tree build -DOVI18N_BUILD_TESTS=ON -DOVI18N_BUILD_TOOLS=ON -DOVI18N_BUILD_BENCHMARKS=ON \
    -DOVI18N_SANITIZE= -DOVI18N_FUZZ=OFF
cmake --build build -j"$jobs"
run_ctest build

if [ "${OVI18N_SKIP_TSAN:-0}" != 1 ]; then
    echo "== ThreadSanitizer, multi-threaded tests (build-tsan/)"
    configure_tree build-tsan -DCMAKE_C_COMPILER=gcc -DCMAKE_CXX_COMPILER=g++ -DOVI18N_BUILD_TESTS=ON -DOVI18N_BUILD_TOOLS=OFF \
        -DOVI18N_BUILD_BENCHMARKS=OFF -DOVI18N_SANITIZE=thread -DOVI18N_FUZZ=OFF
    cmake --build build-tsan -j"$jobs"
    TSAN_OPTIONS="halt_on_error=1:suppressions=$PWD/tests/support/tsan.supp" \
        run_ctest build-tsan -L threads
fi

if [ "${OVI18N_SKIP_ASAN:-0}" != 1 ]; then
    echo "== clang AddressSanitizer + UndefinedBehaviorSanitizer, whole suite (build-asan/)"
    # The tool stays in: its own tests run it. glibc keeps one allocation of setlocale's for the
    # life of the process; that is the one suppression.
    configure_tree build-asan -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
        -DOVI18N_BUILD_TESTS=ON -DOVI18N_BUILD_TOOLS=ON -DOVI18N_BUILD_BENCHMARKS=OFF \
        -DOVI18N_SANITIZE=address,undefined -DOVI18N_FUZZ=OFF
    cmake --build build-asan -j"$jobs"
    ASAN_OPTIONS=halt_on_error=1:detect_leaks=1:abort_on_error=0 \
        UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
        LSAN_OPTIONS="suppressions=$PWD/tests/support/lsan.supp" \
        run_ctest build-asan
fi
