#!/bin/bash
# The desktop's media keys play a show: commands on the session bus, colours on the screen.
set -euo pipefail
if [[ ${1:-} != on-a-bus ]]; then
    exec dbus-run-session -- bash "$0" on-a-bus
fi
source "$(dirname "$0")/screen.sh"

player=org.mpris.MediaPlayer2.parapico
Ask() { gdbus call --session --dest "$player" --object-path /org/mpris/MediaPlayer2 --method "$@"; }
Key() { Ask "org.mpris.MediaPlayer2.Player.$1" >/dev/null; }
Says() {
    [[ $(Ask org.freedesktop.DBus.Properties.Get org.mpris.MediaPlayer2.Player "$1") == *"$2"* ]]
}

command -v gdbus >/dev/null || { echo "gdbus is missing" >&2; exit 1; }
StartProgram
WaitForWindow 'Win Ver.9.10'
MoveWindow 100 60
Seen 'the menu' xdotool key --window "$window" alt+f
xdotool key o
WaitForDialog
xdotool type --delay 5 "$PARAPICO_DATA/five_slow.kvs"
xdotool key Return
WaitForWindow 'five_slow.kvs'

WaitFor 'a show that stands still' Says PlaybackStatus Stopped
Key Play
WaitForColor 420 250 '#FF0000' 'the first picture is red'
WaitFor 'a running show' Says PlaybackStatus Playing
WaitFor 'the name of the slide' Says Metadata a.png
Key PlayPause
WaitFor 'a paused show' Says PlaybackStatus Paused
Key Next
WaitForColor 420 250 '#00FF00' 'the second picture is green'
WaitFor 'the name of the next slide' Says Metadata b.png
Key Previous
WaitForColor 420 250 '#FF0000' 'the picture before is red'
Key Stop
WaitFor 'the end of the show' Says PlaybackStatus Stopped
CloseProgram
echo "the keys played the show"
