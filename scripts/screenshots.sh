#!/usr/bin/env bash
# Makes the pictures of the windows in docs/images/: each example game at a telling moment, and the authoring tool. The
# programs and the games must have been built by the default preset. Needs the packages of "install_deps.sh screenshots".
# usage: scripts/screenshots.sh [name...]   (all without a name)
set -euo pipefail
cd "$(dirname "$0")/.."

images=docs/images
work=$(mktemp -d)
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
mkdir -m 700 "$XDG_RUNTIME_DIR"

server= player=
stop() { if [ -n "$1" ]; then kill "$1" 2>/dev/null || true; wait "$1" 2>/dev/null || true; fi; }
trap 'stop "$player"; stop "$server"; rm -rf "$work"' EXIT

exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1400x900x24 >/dev/null 2>&1 3>"$work/display" &
server=$!
until [ -s "$work/display" ]; do sleep 0.1; done
DISPLAY=:$(head -n 1 "$work/display")
export DISPLAY

# shot NAME GAME THEME LINES: plays the first LINES lines of the game's walkthrough and takes the window.
shot() {
    local name=$1 game=$2 theme=$3 lines=$4 line window
    mkdir -p "$XDG_CONFIG_HOME/Fabula"
    printf '[Startup]\nTheme=%s\n' "$theme" >"$XDG_CONFIG_HOME/Fabula/Fabula.ini"
    rm -rf "$XDG_DATA_HOME"  # no session to go on with
    build/default/bin/FabulaEngine "build/default/examples/$game.fbd" 2>/dev/null &
    player=$!
    window=$(xdotool search --sync --onlyvisible --pid "$player" --name Version | head -n 1)
    xdotool windowfocus "$window"
    while IFS= read -r line; do
        xdotool type --delay 4 -- "$line"
        xdotool key Return
    done < <(head -n "$lines" "examples/$game/walkthrough.scr")
    sleep 1
    import -window "$window" +dither -colors 128 -define png:compression-level=9 "PNG8:$images/$name.png"
    stop "$player"
    player=
    echo "$images/$name.png: $(stat -c %s "$images/$name.png") bytes"
}

# desk NAME GAME THEME TABLE [TITLE KEY...]: takes the window of the authoring tool on a table of a game, by its
# number; without a game, on how to get one. With a title, takes the window of that title, which the keys open.
desk() {
    local name=$1 game=$2 theme=$3 table=$4 title=${5:-} window file=""
    mkdir -p "$XDG_CONFIG_HOME/Fabula"
    if [ "$game" != none ]; then
        # Beside its pictures, which it names by their paths.
        cp -R build/default/examples/pictures "$work/"
        file=$work/$game.fbd
        cp "build/default/examples/$game.fbd" "$file"
    fi
    # A file that was open before opens at the table that was in view.
    printf '[Startup]\nTheme=%s\nCurrentSet=%s\nCurrentESNum=0\n[MRUFiles]\n1=%s\n' "$theme" "$table" "$file" \
        >"$XDG_CONFIG_HOME/Fabula/Fabula.ini"
    build/default/bin/FabulaIDE ${file:+"$file"} 2>/dev/null &
    player=$!
    window=$(xdotool search --sync --onlyvisible --pid "$player" --name "Fabula IDE" | head -n 1)
    sleep 2.5
    if [ -n "$title" ]; then
        # In a wide window the record would open beside the rows.
        xdotool windowsize --sync "$window" 1000 760 windowfocus "$window"
        xdotool key --delay 40 "${@:6}"
        window=$(xdotool search --sync --all --onlyvisible --pid "$player" --name "$title" | head -n 1)
        sleep 1
    fi
    import -window "$window" +dither -colors 128 -define png:compression-level=9 "PNG8:$images/$name.png"
    stop "$player"
    player=
    echo "$images/$name.png: $(stat -c %s "$images/$name.png") bytes"
}

wanted() { [ ${#names[@]} -eq 0 ] || [[ " ${names[*]} " == *" $1 "* ]]; }

names=("$@")
mkdir -p "$images"
while read -r name game theme lines; do
    if wanted "$name"; then shot "$name" "$game" "$theme" "$lines"; fi
done <<'TABLE'
lighthouse-light lighthouse light 6
lighthouse-dark lighthouse dark 89
signal-box-light signal_box light 4
signal-box-dark signal_box dark 12
cellar-light cellar light 3
cellar-dark cellar dark 54
TABLE

# A row that ends with a backslash goes on in the next line.
# shellcheck disable=SC2162
while read name game theme table rest; do
    # shellcheck disable=SC2086
    if wanted "$name"; then desk "$name" "$game" "$theme" "$table" $rest; fi
done <<'TABLE'
desk-start-light none light 5
desk-start-dark none dark 5
desk-locations-light lighthouse light 1
desk-processes-dark lighthouse dark 6 Fabula F8
desk-vocabulary-light lighthouse light 8
desk-messages-dark signal_box dark 2
desk-location-editor-light lighthouse light 1 Location Home Down Down Down Down Down Down Down Return
desk-process-editor-dark lighthouse dark 6 Process ctrl+k s w a p Return Down Return \
    ctrl+Home ctrl+Right ctrl+Right ctrl+Right ctrl+Right
desk-settings-light lighthouse light 5 Settings F4
desk-picture-editor-light lighthouse light 34 Picture Home Down Down Down Return r e d r a w Return Prior shift+Right
desk-picture-editor-dark lighthouse dark 34 Picture Home Down Return r e d r a w Return g r i d Return
desk-character-editor-light cellar light 33 Character Home Down Down Down Down Down Down Down Down Down Return Tab
desk-character-editor-dark cellar dark 33 Character Home Down Down Down Down Return
desk-character-table-light cellar light 33 Table Home alt+t c
desk-character-table-dark cellar dark 33 Table Home alt+t c
TABLE

# The picture that docs/drawing.md teaches, drawn by its commands.
if wanted drawing-house; then
    fabula=build/default/bin/fabula
    mkdir "$work/drawings"
    { echo "DEFPAPER 1"; sed -n '/^    INK 4 PLOT/,/ END$/p' docs/drawing.md; } >"$work/drawings/0.draw"
    "$fabula" new "$work/house.fbd" >/dev/null
    "$fabula" draw "$work/house.fbd" --add "$work/drawings"
    "$fabula" draw "$work/house.fbd" 0 "$images/drawing-house.png" --scale 2 --force
fi

if wanted tutorial; then
    # shellcheck source=scripts/tutorial_pictures.sh
    . scripts/tutorial_pictures.sh
    tutorial
fi
