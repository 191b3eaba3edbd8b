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
python3 - "$scratch/document.json" "$slides_at_most" >"$scratch/play.robot" <<'PYTHON'
import json
import sys

document = json.load(open(sys.argv[1], encoding="utf-8"))
# A list of shows has no slides of its own: as many as there may be.
slides = min(len(document.get("List1", [])) or int(sys.argv[2]), int(sys.argv[2]))
interval = document.get("state", {}).get("Form1.Timer1.Interval", 3000)
# A picture is taken in the middle of each slide's time.
for i in range(slides):
    print(f"@{interval * i + interval // 2} shot {i + 1:02}.png")
print("quit")
PYTHON

name=$(basename "${document%.*}")
mkdir -p "$folder/$name"
folder=$(realpath "$folder")
cd "$folder/$name"
rm -f -- [0-9][0-9].png
"$program" --robot "$scratch/play.robot" --trace trace.jsonl --app-folder "$scratch/app" "$document"
if ! grep -q '"event":"slide"' trace.jsonl; then
    echo "no slide of $document could be shown; see $folder/$name/trace.jsonl" >&2
    exit 1
fi
echo "$(find . -name '[0-9][0-9].png' | wc -l) pictures of $name are in $folder/$name"
