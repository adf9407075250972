#!/usr/bin/env bash
# Makes the pictures of the player's window in docs/images/: each example game at a telling moment. The
# programs must have been built by the default preset. Needs the packages of "install_deps.sh screenshots".
# usage: scripts/screenshots.sh [name...]   (all without a name)
set -euo pipefail
cd "$(dirname "$0")/.."

programs=build/default/bin
images=docs/images
work=$(mktemp -d)
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
mkdir -m 700 "$XDG_RUNTIME_DIR"

server= player=
stop() { if [ -n "$1" ]; then kill "$1" 2>/dev/null || true; wait "$1" 2>/dev/null || true; fi; }
trap 'stop "$player"; stop "$server"; rm -rf "$work"' EXIT

exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1000x800x24 >/dev/null 2>&1 3>"$work/display" &
server=$!
until [ -s "$work/display" ]; do sleep 0.1; done
DISPLAY=:$(head -n 1 "$work/display")
export DISPLAY

# shot NAME KIND SOURCE THEME SCRIPT LINES: plays the first LINES lines of a script and takes the window.
shot() {
    local name=$1 kind=$2 source=$3 theme=$4 script=$5 lines=$6 line window
    local game="$work/$name/$(basename "$(dirname "$source")").fbd"
    mkdir -p "$work/$name" "$XDG_CONFIG_HOME/Fabula"
    cp -r "$(dirname "$source")/." "$work/$name/"
    "$programs/fabula" import "$kind" "$source" "$game" 2>/dev/null
    printf '[Startup]\nTheme=%s\n' "$theme" >"$XDG_CONFIG_HOME/Fabula/Fabula.ini"
    "$programs/FabulaEngine" "$game" 2>/dev/null &
    player=$!
    window=$(xdotool search --sync --onlyvisible --pid "$player" --name Version | head -n 1)
    xdotool windowfocus "$window"
    while IFS= read -r line; do
        xdotool type --delay 4 -- "$line"
        xdotool key Return
    done < <(head -n "$lines" "$script")
    sleep 1
    import -window "$window" -colors 128 -define png:compression-level=9 "PNG8:$images/$name.png"
    stop "$player"
    player=
    echo "$images/$name.png: $(stat -c %s "$images/$name.png") bytes"
}

wanted() { [ ${#names[@]} -eq 0 ] || [[ " ${names[*]} " == *" $1 "* ]]; }

names=("$@")
mkdir -p "$images"
while IFS='|' read -r name kind source theme script lines; do
    if wanted "$name"; then shot "$name" "$kind" "examples/$source" "$theme" "examples/$script" "$lines"; fi
done <<'TABLE'
lighthouse-light|ace|lighthouse/lighthouse.txt|light|lighthouse/walkthrough.scr|6
lighthouse-dark|ace|lighthouse/lighthouse.txt|dark|lighthouse/walkthrough.scr|14
signal-box-light|pcvel|signal_box/signal_box.sce|light|signal_box/walkthrough.scr|8
signal-box-dark|pcvel|signal_box/signal_box.sce|dark|signal_box/walkthrough.scr|12
cellar-light|fabula|cellar/cellar.ext|light|cellar/walkthrough.scr|3
cellar-dark|fabula|cellar/cellar.ext|dark|cellar/walkthrough.scr|10
TABLE
