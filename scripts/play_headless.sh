#!/bin/bash
# play_headless.sh PROGRAM DOCUMENT FOLDER: plays a show on the virtual clock and leaves a picture
# of each of its first slides in the folder.
set -euo pipefail
program=$1 document=$2 folder=$3
slides_at_most=16

if [[ ! -f $document ]]; then
    echo "no such file: $document" >&2
    exit 1
fi
document=$(realpath -s "$document")
program=$(realpath "$program")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export QT_QPA_PLATFORM=offscreen

"$program" --inspect "$document" >"$scratch/document.json" || {
    echo "not a show that can be played: $document" >&2
    python3 -c 'import json, sys
for message in json.load(sys.stdin).get("messages", []): print(message["text"], file=sys.stderr)' \
        <"$scratch/document.json" || true
    exit 1
}
# How long a slide takes depends on its effects, so the show is played twice, both times alike: once
# for the times at which its pictures stand, once for a shot in the middle of each slide's time.
python3 - "$scratch/document.json" "$slides_at_most" >"$scratch/listen.robot" <<'PYTHON'
import json
import sys

SLOWEST_EFFECTS_MS = 20000

document = json.load(open(sys.argv[1], encoding="utf-8"))
# A list of shows has no slides of its own: as many as there may be.
slides = min(len(document.get("List1", [])) or int(sys.argv[2]), int(sys.argv[2]))
interval = document.get("state", {}).get("Form1.Timer1.Interval", 3000)
print(f"@{slides * (interval + SLOWEST_EFFECTS_MS)} quit")
PYTHON
"$program" --robot "$scratch/listen.robot" --trace "$scratch/trace.jsonl" \
    --app-folder "$scratch/app1" "$document"
python3 - "$scratch/document.json" "$scratch/trace.jsonl" "$slides_at_most" \
    >"$scratch/play.robot" <<'PYTHON'
import json
import sys

document = json.load(open(sys.argv[1], encoding="utf-8"))
interval = document.get("state", {}).get("Form1.Timer1.Interval", 3000)
slides = min(len(document.get("List1", [])) or int(sys.argv[3]), int(sys.argv[3]))
events = [json.loads(line) for line in open(sys.argv[2], encoding="utf-8")]
times = [event["t"] for event in events if event["event"] == "slide"][:slides]
for i, stands in enumerate(times):
    print(f"@{stands + interval / 2:.0f} shot {i + 1:02}.png")
print("quit")
PYTHON

name=$(basename "${document%.*}")
mkdir -p "$folder/$name"
folder=$(realpath "$folder")
cd "$folder/$name"
rm -f -- [0-9][0-9].png
"$program" --robot "$scratch/play.robot" --trace trace.jsonl --app-folder "$scratch/app2" "$document"
if ! grep -q '"event":"slide"' trace.jsonl; then
    echo "no slide of $document could be shown; see $folder/$name/trace.jsonl" >&2
    exit 1
fi
echo "$(find . -name '[0-9][0-9].png' | wc -l) pictures of $name are in $folder/$name"
