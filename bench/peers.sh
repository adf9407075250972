#!/usr/bin/env bash
# Plays 12,000 commands through `fabula play`, through an interpreter of another system and through a game that is a
# program of its own, in turn, five times, and compares turns a second, the start and the memory. Installs what is
# missing: Debian's frotz, inform6-compiler, inform6-library and open-adventure.
# usage: bench/peers.sh [FOLDER], the folder of a build; build/default without one
set -euo pipefail
cd "$(dirname "$0")/.."
built=$(realpath "${1:-build/default}")
PATH=$PATH:/usr/games

packages=()
command -v dfrotz >/dev/null || packages+=(frotz)
command -v advent >/dev/null || packages+=(open-adventure)
command -v inform6 >/dev/null || packages+=(inform6-compiler)
[ -d /usr/share/inform6/library ] || packages+=(inform6-library)
if [ ${#packages[@]} -gt 0 ]; then
    as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "installing: ${packages[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${packages[@]}" >/dev/null
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
inform6 +include_path=/usr/share/inform6/library bench/two_rooms.inf "$work/two_rooms.z5" >/dev/null
"$built/bench/make_bench_game" small "$work/small.fbd"
"$built/bench/make_bench_game" large "$work/large.fbd"
python3 bench/compare_peers.py "$built/bin/fabula" "$work"
