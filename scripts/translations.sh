#!/usr/bin/env bash
# Brings the texts of a translation up to date with the sources, and makes of them the file that the programs look for.
# usage: scripts/translations.sh LANGUAGE [FOLDER]
# LANGUAGE is a code such as "de" or "pt_BR"; FOLDER (translations/) holds fabula_LANGUAGE.ts and gets fabula_LANGUAGE.qm.
set -euo pipefail
language=${1:?usage: scripts/translations.sh LANGUAGE [FOLDER]}
root=$(cd "$(dirname "$0")/.." && pwd)
folder=${2:-$root/translations}
PATH=$PATH:/usr/lib/qt6/bin
if ! [[ $language =~ ^[a-z]{2,3}(_[A-Z]{2})?$ ]]; then
    echo "'$language' is no code of a language, such as de or pt_BR" >&2
    exit 1
fi

mkdir -p "$folder"
texts=$folder/fabula_$language.ts
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 "$root/scripts/sentences.py" "$work/sentences.cpp"
lupdate "$root/src/apps" "$work/sentences.cpp" -I "$root/src/apps" -locations none -no-obsolete \
    -target-language "$language" -ts "$texts"
lrelease "$texts" -qm "${texts%.ts}.qm"
