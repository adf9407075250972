#!/usr/bin/env bash
# Names the source files that are not formatted as .clang-format says, and fails when there are any; --fix formats them.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files --cached --others --exclude-standard "*.h" "*.cpp" | sort)
if [ "${1:-}" = --fix ]; then
    clang-format -i "${files[@]}"
    exit
fi
wrong=$(printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 200 clang-format --dry-run 2>&1 |
        sed -n 's/^\([^:]*\):[0-9].*clang-format-violations.*/not formatted: \1/p' | sort -u)
[ -z "$wrong" ] || { echo "$wrong"; exit 1; }
