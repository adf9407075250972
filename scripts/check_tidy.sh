#!/usr/bin/env bash
# Looks with clang-tidy (.clang-tidy) at sources under src/, through the compile commands of build/sanitize.
# usage: scripts/check_tidy.sh [--all | COMMIT]
#   COMMIT  only the sources that differ from it; default: the commit before the last
#   --all   every source: about 40 minutes of processor time
set -euo pipefail
cd "$(dirname "$0")/.."

commands=build/sanitize/compile_commands.json
if [ ! -e "$commands" ]; then
    echo "build the preset sanitize first: $commands is missing" >&2
    exit 1
fi

if [ "${1:-}" = --all ]; then
    files=$(git ls-files 'src/*.cpp')
else
    files=$(git diff --name-only --diff-filter=d "${1:-HEAD~1}" -- 'src/*.cpp' 2>/dev/null || git ls-files 'src/*.cpp')
fi
if [ -z "$files" ]; then
    echo "clang-tidy: no source to look at"
    exit 0
fi
echo "clang-tidy: $(wc -l <<<"$files") sources"
xargs -P "$(nproc)" -n 4 clang-tidy -p build/sanitize --quiet <<<"$files" 2> >(grep -v 'warnings generated' >&2 || true)
