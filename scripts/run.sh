#!/usr/bin/env bash
# Builds the library and runs the ovi18n tool on the sample installation in the build tree.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
generator=(); command -v ninja >/dev/null && generator=(-G Ninja)
cmake -S . -B build "${generator[@]}" -DOVI18N_BUILD_TESTS=OFF -DOVI18N_BUILD_BENCHMARKS=OFF >/dev/null
cmake --build build --target ovi18n_tool -j"$(nproc)"
exec build/bin/x64linux/ovi18n locale "$@"
