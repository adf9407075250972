#!/usr/bin/env bash
# Looks with clang-tidy (.clang-tidy) at the sources under src/, as the preset sanitize compiles them: that has to be
# configured, and its precompiled headers built. Sources that are compiled together are looked at together.
# usage: scripts/check_tidy.sh [--all | COMMIT]
#   COMMIT  only what holds a source that differs from it, and for a header that differs the source of its name, or one
#           that includes it; by default from the commit before the last
#   --all   everything: about ten minutes of processor time
set -euo pipefail
cd "$(dirname "$0")/.."

commands=build/sanitize/compile_commands.json
if [ ! -e "$commands" ]; then
    echo "build the preset sanitize first: $commands is missing" >&2
    exit 1
fi

# Every file that is compiled of src/, with the sources that it includes; one that includes none stands for itself.
compiled() {
    python3 - "$commands" <<'PYTHON'
import json, re, sys
for entry in json.load(open(sys.argv[1])):
    file = entry["file"]
    if "/src/" not in file or "/tests/" in file or "qrc_" in file:
        continue
    sources = re.findall(r'#include "(.*\.cpp)"', open(file).read()) if "/Unity/" in file else [file]
    print(file, *sources)
PYTHON
}

# The sources that show what has changed since a commit.
changed_since() {
    git diff --name-only --diff-filter=d "$1" -- 'src/*.cpp' 'src/*.h' | while read -r file; do
        if [[ $file == *.cpp ]]; then
            echo "$file"
        elif [ -e "${file%.h}.cpp" ]; then
            echo "${file%.h}.cpp"
        else
            included=${file#src/}
            grep -rlF --include='*.cpp' "#include \"${included#apps/}\"" src | sort | head -n 1 || true
        fi
    done | sort -u
}

if [ "${1:-}" = --all ]; then
    files=$(compiled | cut -d' ' -f1)
else
    base=${1:-HEAD~1}
    if ! git rev-parse --quiet --verify "$base^{commit}" >/dev/null; then
        echo "clang-tidy: $base is not here to compare with"
        exit 0
    fi
    changed=$(changed_since "$base")
    if [ -z "$changed" ]; then
        echo "clang-tidy: no source has changed"
        exit 0
    fi
    files=$(compiled | grep -F "$changed" | cut -d' ' -f1 || true)
fi
echo "clang-tidy: looking at $(wc -w <<<"$files") files"
# Its count of what it found in the system's headers is of no use to anybody.
xargs -r -P "$(nproc)" -n 1 clang-tidy -p build/sanitize --quiet <<<"$files" 2> >(grep -v 'warnings generated' >&2)
