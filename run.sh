#!/usr/bin/env bash
# Installs what is missing, builds, creates an adventure and shows its tables.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install_deps.sh build
mkdir -p build
echo "build: default"
{ cmake --preset default -DFABULA_TESTS=OFF -DFABULA_BENCH=OFF -B build/run &&
  cmake --build build/run -j "$(nproc)"; } >build/run.log 2>&1 || { tail -n 100 build/run.log; exit 1; }

game=build/run/first.fbd
echo "creating: $game"
build/run/bin/fabula new "$game" --starter --force
echo "its tables:"
build/run/bin/fabula tables "$game"
