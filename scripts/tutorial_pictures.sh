# The pictures of docs/tutorial.md: the tutorial's game is made in the authoring tool, by keys, as the tutorial tells.
# Read by screenshots.sh, which has the screen, the folders and the list of names.

desk_window= window=

# at TITLE: waits for the window whose title begins so, and gives it the keyboard, as a window manager would.
at() {
    window=$(xdotool search --sync --onlyvisible --name "^$1" | tail -n 1)
    xdotool windowfocus "$window"
    sleep 0.4
}
back() { sleep 0.4; window=$desk_window; xdotool windowfocus "$window"; sleep 0.2; }
keys() { xdotool key --delay 60 "$@"; sleep 0.2; }
types() { xdotool type --delay 8 -- "$1"; sleep 0.3; }

# take NAME: the window at hand, and what is open over it.
take() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    sleep 0.5
    eval "$(xdotool getwindowgeometry --shell "$window")"
    import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage +dither -colors 128 \
        -define png:compression-level=9 "PNG8:$images/tutorial-$1.png"
    echo "$images/tutorial-$1.png: $(stat -c %s "$images/tutorial-$1.png") bytes"
}

# table NAME: from the rows to the tree, to the table whose name begins so, and to its rows.
table() { keys F6; types "$1"; keys F6 F6; }
# opens KEY TITLE: the dialog that a key opens.
opens() { keys "$1"; at "$2"; }
update() { keys ctrl+Return; back; }

place() { types "$1"; keys alt+d ctrl+a; types "$2"; }
word() { opens ctrl+n "Vocabulary Editor"; types "$1"; keys "alt+$2"; }
thing() { opens ctrl+n "Object $1"; types "$2"; keys alt+r alt+m ctrl+a; types "$3"; }
rule() {
    opens ctrl+n "Process Table Editor"
    keys alt+v; types "$1"; keys alt+n; types "$2"; keys alt+b; types "$3"
    shift 3
    local part
    for part; do keys Tab; types "$part"; done
    update
}

tutorial() {
    local desk=$PWD/build/default/bin/FabulaIDE
    mkdir -p "$XDG_CONFIG_HOME/Fabula" "$work/games"
    printf '[Startup]\nTheme=light\n' >"$XDG_CONFIG_HOME/Fabula/Fabula.ini"
    (cd "$work/games" && exec "$desk") 2>/dev/null &
    player=$!
    at "Fabula IDE"
    sleep 1
    # The first start of a version reports it in a box.
    if xdotool search --onlyvisible --name "^Changes to" >/dev/null; then
        at "Changes to"
        keys Return
        at "Fabula IDE"
    fi
    desk_window=$window
    # In a wide window records would open beside the rows, and there would be no windows to picture.
    xdotool windowsize --sync "$window" 1000 760 windowfocus "$window"

    opens ctrl+shift+n "Create a Fabula Database"
    types "$work/games/cake.fbd"
    keys Return
    at "Choose Type"
    take type
    keys Return
    sleep 1
    xdotool windowfocus "$(xdotool search --onlyvisible --class Fabula | sort -n | tail -n 1)"
    keys Return
    back
    take new

    table loc
    opens Return "Location 0"
    place "The kitchen" "You are in the kitchen. It is ten at night, and at tea there was cake. The hall is north.\
 In the east wall is the door of the pantry."
    take location
    update
    opens ctrl+n "Location 1"
    place "The hall" "You are in the hall. The clock ticks as if nobody had been sent to bed. The kitchen is south."
    update
    opens ctrl+n "Location 2"
    place "The pantry" "You are in the pantry, among jars with your aunt's writing on them. The kitchen is west."
    update
    keys Home Up Up
    local exits
    for exits in "0:N 1 E 2" "1:S 0" "2:W 0"; do
        opens Return "Location ${exits%%:*}"
        keys alt+l
        types "${exits#*:}"
        if [ "${exits%%:*}" = 0 ]; then take exits; fi
        update
        keys Down
    done
    take locations

    table voc
    word DOOR o
    take word
    update
    word OPEN v; update
    word UNLOCK v; keys Tab ctrl+a; types 33; update
    word EAT v; update
    keys Delete
    at "Confirm"
    keys Return
    at "Delete Word"
    keys Return
    sleep 0.5
    at "Delete Word"
    keys Return
    back
    keys alt+e
    take undo
    keys Escape Escape
    back
    keys ctrl+z

    table obj
    thing 0 "a small brass key" 1
    take object
    update
    thing 1 "the last slice of cake" 2; update

    table fl
    keys ctrl+k
    types 60
    keys Return
    opens Return "Flag 60"
    keys alt+s
    types Switch
    keys alt+d
    types "The pantry is open."
    take flag
    update

    table resp
    opens ctrl+n "Process Table Editor"
    keys alt+v
    types EAST
    keys alt+b
    types "at 0 zero 60 mess"
    keys Tab
    types '"The pantry is locked. It has been locked since the business with the jam.'
    take completion
    keys Tab
    types "done"
    update
    rule OPEN DOOR "at 0 notzero @pantry" 'message "It is open.' done
    rule OPEN DOOR "at 0 notcarr @key" 'message "You have nothing to open it with.' done
    rule OPEN DOOR "at 0 set @pantry" 'message "The key turns without a sound. You have done this before.' done
    rule EAT CAKE "present @cake" \
         'plus 30 100 message "You eat the cake in the dark, standing up. It is the best cake in the world.' \
         "score turns end"
    take rules

    opens F4 "Adventure Settings"
    keys alt+n ctrl+a
    types "The Last Slice"
    take settings
    update

    opens F7 "Verify"
    sleep 1
    take verify
    keys Return
    back

    keys F5
    at "The Last Slice"
    sleep 1
    local sentence
    for sentence in e "open door" n "take key" s "unlock the door with the key" e "eat cake"; do
        types "$sentence"
        keys Return
        sleep 0.3
    done
    take play
    types n
    keys Return
    stop "$player"
    player=
}
