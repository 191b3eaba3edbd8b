# What the user-interface tests share: a program on the display, its window, colours of
# the screen. Everything waits for what it expects, and what changes by itself stands for some
# seconds, so that a busy machine sees it, too.
# Needs PARAPICO, PARAPICO_DATA, PARAPICO_SCRATCH. Sets `program` and `window`.

limit=600  # tries of 0.2 s and what they take themselves
ground='#405060'  # of the screen where no window is

# Until COMMAND…: tries it again and again; false when it never succeeds.
Until() {
    local try
    for ((try = 0; try < limit; ++try)); do
        if "$@"; then return 0; fi
        sleep 0.2
    done
    return 1
}

# StartDisplay WxH: another X server, for what the common one cannot show.
StartDisplay() {
    mkdir -p "$PARAPICO_SCRATCH"
    exec 3>"$PARAPICO_SCRATCH/display"
    Xvfb -noreset -nolisten tcp -displayfd 3 -screen 0 "$1x24" 2>/dev/null &
    server=$!
    trap 'kill "$server" 2>/dev/null || true' EXIT
    Until test -s "$PARAPICO_SCRATCH/display"
    DISPLAY=:$(<"$PARAPICO_SCRATCH/display")
    export DISPLAY
    xsetroot -solid "$ground"
}

StartProgram() {
    rm -rf "$PARAPICO_SCRATCH/home"
    mkdir -p "$PARAPICO_SCRATCH/home"
    # The size that the clicks' places belong to, whatever the monitor has room for.
    printf 'window1\r\n 840 \r\n 586 \r\n 0 \r\n' >"$PARAPICO_SCRATCH/home/window.dat"
    PARAPICO_HOME="$PARAPICO_SCRATCH/home" "$PARAPICO" "$@" >"$PARAPICO_SCRATCH/output" 2>&1 &
    program=$!
    trap 'kill "$program" ${server:-} 2>/dev/null || true' EXIT
}

Fail() {
    import -window root "$PARAPICO_SCRATCH/failed.png" || true
    echo "failed: $1 (see $PARAPICO_SCRATCH/failed.png)" >&2
    cat "$PARAPICO_SCRATCH/output" >&2
    exit 1
}

# WaitFor WHAT COMMAND…: until the command succeeds.
WaitFor() {
    local what=$1
    shift
    HoldsOrEnded() {
        "$@" || ! kill -0 "$program" 2>/dev/null
    }
    Until HoldsOrEnded "$@" || Fail "$what"
    kill -0 "$program" 2>/dev/null || Fail "$what: the program has ended"
}

# What is seen of the whole screen now, as a short word.
Screen() { import -window root rgb:- | cksum; }
ScreenIsNot() { [[ $(Screen) != "$1" ]]; }
seen=''
StandsStill() {
    local before=$seen
    seen=$(Screen)
    [[ $seen == "$before" ]]
}

WaitForStill() {
    seen=''
    WaitFor "$1" StandsStill
}

# Seen WHAT COMMAND…: does it, and waits until the screen is another one and stands still.
Seen() {
    local what=$1 before
    before=$(Screen)
    shift
    "$@"
    WaitFor "$what is seen" ScreenIsNot "$before"
    WaitForStill "$what stands"
}

HasEnded() { ! kill -0 "$program" 2>/dev/null; }
WaitForEnd() {
    Until HasEnded || Fail "$1"
}

FindWindow() {
    window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
    [[ -n $window ]]
}

WaitForWindow() {
    WaitFor "a window named $1" FindWindow "$1"
    xdotool windowfocus --sync "$window" 2>/dev/null || true
}

WaitForDialog() {
    WaitForWindow 'ファイルを開く'
    WaitForStill 'the whole dialog'
}

MoveWindow() {
    xdotool windowmove --sync "$window" "$1" "$2"
    WaitForStill 'the window in its place'
}

# Position in the window, in pixels.
Click() {
    xdotool mousemove --sync --window "$window" "$1" "$2" click 1
}

# What START looks like: it can be pressed while nothing plays.
StartButton() { import -window "$window" -crop 60x24+15+533 rgb:- | cksum; }
StartIsNot() { [[ $(StartButton) != "$1" ]]; }

ColorAt() {
    local x y
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^[XY]=')"
    x=$((X + $1)) y=$((Y + $2))
    import -window root -crop "1x1+$x+$y" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}' | head -n 1
}

HasColor() { [[ $(ColorAt "$1" "$2") == "$3" ]]; }

WaitForColor() { WaitFor "$4" HasColor "$1" "$2" "$3"; }

ExpectColor() {
    HasColor "$1" "$2" "$3" || Fail "$4: found $(ColorAt "$1" "$2")"
}

# Of the whole screen: position in pixels, colour.
ScreenHas() {
    local found
    found=$(import -window root -crop "1x1+$1+$2" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}')
    [[ ${found%%$'\n'*} == "$3" ]]
}

ExpectScreen() {
    ScreenHas "$1" "$2" "$3" || Fail "at $1,$2 there is no $3: $4"
}

# ScreenShows PICTURE X Y: pixel by pixel, with its corner there.
ScreenShows() {
    local size
    size=$(identify -format '%wx%h' "$1")
    [[ $(import -window root -crop "$size+$2+$3" +repage png:- |
        compare -metric AE - "$1" null: 2>&1) == 0 ]]
}

# The show asks before it starts; Enter means nothing once it runs.
StartedShowShows() {
    xdotool key Return
    ScreenShows "$@"
}

CloseProgram() {
    kill "$program"
    wait "$program" 2>/dev/null || true
    if [[ -n ${server:-} ]]; then kill "$server"; fi
    trap - EXIT
}
