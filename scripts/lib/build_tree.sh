# Shared by the scripts: configure a build tree with every option stated, and run CTest so that
# a run that executes nothing fails. Sourced, not run.

jobs=$(nproc)

# configure_tree DIR [cmake -D options...]
# Every tree gets the generator and, when ccache is there, the compiler launcher; the caller
# states every project option the tree depends on, so a tree left behind by another script (or
# by hand) can't change what this one builds or tests.
configure_tree() {
    local dir=$1
    shift
    local extra=()
    command -v ninja >/dev/null && [ ! -f "$dir/CMakeCache.txt" ] && extra+=(-G Ninja)
    if command -v ccache >/dev/null; then
        extra+=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    cmake -S . -B "$dir" "${extra[@]}" "$@" >/dev/null
}

# run_ctest DIR [ctest options...]
run_ctest() {
    local dir=$1
    shift
    ctest --test-dir "$dir" --output-on-failure --no-tests=error -j"$jobs" "$@"
}
