#!/usr/bin/env bash
# Fails when a source file is not formatted as .clang-format says; --fix formats instead.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files --cached --others --exclude-standard "*.h" "*.cpp" | sort)
if [ "${1:-}" = --fix ]; then
    clang-format -i "${files[@]}"
else
    clang-format --dry-run --Werror "${files[@]}"
fi
