#!/bin/bash
# On a scaled desktop the full screen counts in the monitor's own pixels: a picture stands there
# pixel by pixel, in the middle of the whole monitor.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

StartDisplay 1600x1200
for QT_SCALE_FACTOR in 2 1.5 1.25; do
    export QT_SCALE_FACTOR
    StartProgram "$PARAPICO_DATA/still.kvs"
    WaitFor "the picture at $QT_SCALE_FACTOR" \
        StartedShowShows "$PARAPICO_DATA/pattern.png" 480 400
    for corner in '0 0' '1599 0' '0 1199' '1599 1199' '479 400' '1120 799'; do
        read -r x y <<<"$corner"
        ExpectScreen "$x" "$y" '#000000' "the monitor is covered at $QT_SCALE_FACTOR"
    done
    kill "$program"
    wait "$program" 2>/dev/null || true
done
trap 'kill "$server" 2>/dev/null || true' EXIT
echo "the picture stood pixel by pixel"
