#!/usr/bin/env bash
# Installs what is missing, builds and runs every test: an optimised build by g++, the same tests built by clang under
# the sanitizers, the programs that need no Qt without it, what plays a game without the packages of all other programs,
# and the checks of formatting, includes, links, and what clang-tidy finds in what the last commit changed.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install_deps.sh test

# The tests write many small files and wait for the disk each time; in memory they need not.
[ -w /dev/shm ] && export TMPDIR=/dev/shm

build() {
    echo "build: $1"
    cmake --preset "$1" >"build/$1.log" 2>&1 || { cat "build/$1.log"; exit 1; }
    cmake --build --preset "$1" -j "$(nproc)" >>"build/$1.log" 2>&1 || { tail -n 100 "build/$1.log"; exit 1; }
}

mkdir -p build
echo "format: checking"
scripts/check_format.sh
build default
echo "tests: default"
ctest --preset default -j "$(nproc)"
build sanitize
echo "tests: sanitize"
ctest --preset sanitize -j "$(nproc)"
scripts/check_tidy.sh
build core-only
build core
# Those packages are on this machine: a source of the core that included one would compile.
others='/usr/include/(.*/)?(pcre2|histedit|editline|curses|term\.h|minizip|CLI|nlohmann|dtl|qt6|rtmidi|fluidsynth)'
included=$(ninja -C build/core -t deps)
[ -n "$included" ] || { echo "core: what it includes is not known" >&2; exit 1; }
if grep -E "$others" <<<"$included"; then
    echo "core: it includes what it is to do without" >&2
    exit 1
fi
echo "all tests passed"
