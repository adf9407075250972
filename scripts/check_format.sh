#!/usr/bin/env bash
# Names the source files that are not formatted as .clang-format says, and fails when there are any; --fix formats them.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files --cached --others --exclude-standard "*.h" "*.cpp" | sort)
if [ "${1:-}" = --fix ]; then
    clang-format -i "${files[@]}"
    exit
fi
wrong=0
for file in "${files[@]}"; do
    clang-format --dry-run --Werror "$file" 2>/dev/null || { echo "not formatted: $file"; wrong=1; }
done
exit $wrong
