#!/usr/bin/env bash
# Installs what is missing, builds, and opens an example game: in the authoring tool when there is a display, else it
# is played in the terminal.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install_deps.sh build
mkdir -p build
echo "build: default"
{ cmake --preset default -DFABULA_TESTS=OFF -DFABULA_BENCH=OFF -B build/run &&
  cmake --build build/run -j "$(nproc)"; } >build/run.log 2>&1 || { tail -n 100 build/run.log; exit 1; }

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "opening: the lighthouse"
    exec build/run/bin/FabulaIDE build/run/examples/lighthouse.fbd
fi
echo "playing: the lighthouse (QUIT leaves it)"
exec build/run/bin/fabula play build/run/examples/lighthouse.fbd
