#!/bin/bash
# A show in full screen on Wayland, on a plain and on a scaled monitor: the picture stands pixel by
# pixel in the middle of the whole monitor, above the desktop's panel. A list of shows starts
# without a question, so nobody has to type.
set -euo pipefail
source "$(dirname "$0")/screen.sh"
picture=$PARAPICO_DATA/pattern.png  # 640x400

rm -rf "$PARAPICO_SCRATCH"
mkdir -p -m 700 "$PARAPICO_SCRATCH/run"
XDG_RUNTIME_DIR=$(mktemp -d)  # the path of a socket must be short
export XDG_RUNTIME_DIR WAYLAND_DISPLAY=parapico XDG_PICTURES_DIR=$PARAPICO_SCRATCH
export QT_QPA_PLATFORM=wayland
cd "$PARAPICO_SCRATCH"

# DesktopShows X Y: the picture there, black in the corners, on the monitor of 1600x1200.
DesktopShows() {
    rm -f wayland-screenshot*.png
    if ! weston-screenshooter >screenshooter 2>&1; then return 1; fi
    mv wayland-screenshot*.png seen.png
    [[ $(convert seen.png -crop "640x400+$1+$2" +repage png:- |
        compare -metric AE - "$picture" null: 2>&1) == 0 ]] &&
        [[ $(convert seen.png -format '%[pixel:p{0,0}] %[pixel:p{1599,1199}]' info:) \
            =~ ^(black|s?rgba?\(0,0,0(,1)?\))\ (black|s?rgba?\(0,0,0(,1)?\))$ ]]
}

Ready() { [[ -S $XDG_RUNTIME_DIR/$WAYLAND_DISPLAY ]]; }

for scale in 1 2; do
    weston --backend=headless-backend.so --use-pixman --width=$((1600 / scale)) --height=$((1200 / scale)) \
        --scale="$scale" --debug --idle-time=0 --socket="$WAYLAND_DISPLAY" >desktop 2>&1 &
    server=$!
    program=$server
    trap 'kill "$program" "$server" 2>/dev/null || true; rm -rf "$XDG_RUNTIME_DIR"' EXIT
    touch output
    WaitFor "the desktop at $scale" Ready
    StartProgram "$PARAPICO_DATA/still.kvl"
    trap 'kill "$program" "$server" 2>/dev/null || true; rm -rf "$XDG_RUNTIME_DIR"' EXIT
    WaitFor "the picture at $scale" DesktopShows 480 400
    kill "$program"
    wait "$program" 2>/dev/null || true
    kill "$server"
    wait "$server" 2>/dev/null || true
done
rm -rf "$XDG_RUNTIME_DIR"
trap - EXIT
echo "the show stood on Wayland"
