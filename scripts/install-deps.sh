#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the fuzz targets need; does nothing when
# all are present. As root it runs apt-get, with its output in a log file; otherwise it prints
# the command to run.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
    build-essential cmake ninja-build pkg-config ccache
    libicu-dev libexpat1-dev
    libboost-thread-dev libboost-filesystem-dev libboost-system-dev
    libboost-date-time-dev libboost-chrono-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    locales clang libclang-rt-14-dev unicode-cldr-core python3
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
echo "install-deps: missing ${missing[*]}"

if [ "$(id -u)" -ne 0 ]; then
    echo "install-deps: not root; run:  sudo apt-get install -y ${missing[*]}" >&2
    exit 1
fi

mkdir -p build
log=$PWD/build/install-deps.log
: >"$log"
export DEBIAN_FRONTEND=noninteractive
step() {
    local what=$1
    shift
    echo "install-deps: $what"
    if ! "$@" >>"$log" 2>&1; then
        echo "install-deps: failed while ${what%...}; see $log" >&2
        exit 1
    fi
}
step "updating the package lists..." apt-get update
step "installing ${#missing[@]} packages..." apt-get install -y --no-install-recommends "${missing[@]}"
echo "install-deps: done"
