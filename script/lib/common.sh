# Shared by the scripts: where the checkout is, how they speak, and a build that is quiet unless it fails.
# To be sourced, behind "set -euo pipefail".

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
readonly top

say() { printf '%s\n' "$*" >&2; }

fail() {
    say "$(basename "$0"): $*"
    exit 1
}

# run_quietly LOG COMMAND...: shows what the command printed only if it fails; LOG keeps it in any case.
run_quietly() {
    local log=$1
    shift
    if ! "$@" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        fail "'$*' failed; all of its output is in $log"
    fi
}

# build PRESET [CACHE ARGUMENTS...]: configures and builds one preset of CMakePresets.json in build/PRESET.
build() {
    local preset=$1
    shift
    mkdir -p "$top/build"
    say "Building $preset ..."
    (
        cd "$top"
        run_quietly "build/$preset-configure.log" cmake --preset "$preset" "$@"
        run_quietly "build/$preset-build.log" cmake --build --preset "$preset"
    )
}

# The C++ and C files of the project, each ended by a null byte.
source_files() {
    (cd "$top" && find . \( -path ./build -o -path ./.git \) -prune -o \
        -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.c' \) -print0 | sort -z)
}
