#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need; does nothing when all are present.
# As root it runs apt-get; otherwise it prints the command to run.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    libicu-dev libexpat1-dev
    libboost-thread-dev libboost-filesystem-dev libboost-system-dev
    libboost-date-time-dev libboost-chrono-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    locales clang libclang-rt-14-dev unicode-cldr-core unicode-data python3
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
else
    echo "missing packages; run:" >&2
    echo "  sudo apt-get install -y ${missing[*]}" >&2
    exit 1
fi
