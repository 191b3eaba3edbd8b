# What the user-interface tests share: a program of one's own on the display, its window, colours of
# the screen. Everything waits for what it expects, at most 20 seconds.
# Needs PARAPICO, PARAPICO_DATA, PARAPICO_SCRATCH. Sets `program` and `window`.

limit=100  # tries of 0.2 s

StartProgram() {
    rm -rf "$PARAPICO_SCRATCH"
    mkdir -p "$PARAPICO_SCRATCH"
    PARAPICO_HOME="$PARAPICO_SCRATCH/home" "$PARAPICO" "$@" >"$PARAPICO_SCRATCH/output" 2>&1 &
    program=$!
    trap 'kill "$program" 2>/dev/null || true' EXIT
}

Fail() {
    import -window root "$PARAPICO_SCRATCH/failed.png" || true
    echo "failed: $1 (see $PARAPICO_SCRATCH/failed.png)" >&2
    cat "$PARAPICO_SCRATCH/output" >&2
    exit 1
}

# WaitFor WHAT COMMAND…: until the command succeeds.
WaitFor() {
    local what=$1 try
    shift
    for ((try = 0; try < limit; ++try)); do
        if "$@"; then return 0; fi
        kill -0 "$program" 2>/dev/null || Fail "$what: the program has ended"
        sleep 0.2
    done
    Fail "$what"
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
    sleep 0.5
}

MoveWindow() {
    xdotool windowmove --sync "$window" "$1" "$2"
    sleep 0.3
}

# Position in the window, in pixels.
Click() {
    xdotool mousemove --sync --window "$window" "$1" "$2" click 1
}

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

CloseProgram() {
    kill "$program"
    wait "$program" 2>/dev/null || true
    trap - EXIT
}
