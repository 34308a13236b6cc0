#!/usr/bin/env bash
# no-room.sh SOURCE_DIR WORK_DIR CONSOLE [WINDOW]
# Every command that writes a file, where nothing can be written any more: each says so, and the
# file that it was to replace is as it was.
set -euo pipefail
examples=$1/examples
work=$2
console=$3
window=${4-}
export LC_ALL=C QT_QPA_PLATFORM=offscreen XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
rm -rf "$work"
mkdir -p "$work/files"
cd "$work"

writers=(
    "weave save cloth weave.json" "weave save cloth weave.svg" "gradient save dusk gradient.svg"
    "curve save ease curve.svg" "ior save gold ior.svg" "color card colors.svg"
    "multi card multis.svg" "colorway board colorways.svg" "lightlayer save lights.svg"
    "brush save brush.json" "brush sheet brushes.svg" "cmf save schema.json"
    "picture save picture.png" "scene save scene.json"
)
cat >session.zsg <<EOT
events show off
weave new cloth twill 2 1
gradient new dusk
gradient add dusk 0 1 0 0
gradient add dusk 1 0 0 1
curve new ease
curve set ease UU 0 0 0 0 1 1 1 1 2 2 2 2
ior load gold "$examples/data/gold.csv"
brush load "$examples/brushes/soft-round.json"
surface new 64
EOT
for writer in "${writers[@]}"; do
    file=files/${writer##* }
    printf 'old' >"$file"
    printf '%s %s\n' "${writer% *}" "$file" >>session.zsg
done
trap '' XFSZ # by default the system ends who writes
said=$(ulimit -f 0; "$console" "$examples/scenes/showroom.json" --keep-going --script session.zsg 2>&1) &&
    { printf 'it ended well\n%s\n' "$said"; exit 1; }
if [[ -n $window ]]; then
    writers+=("--screenshot window.png")
    printf 'old' >files/window.png
    said+=$'\n'$(ulimit -f 0; "$window" "$examples/scenes/showroom.json" --screenshot files/window.png 2>&1) &&
        { printf 'the window ended well\n'; exit 1; }
fi
for writer in "${writers[@]}"; do
    file=files/${writer##* }
    [[ $said == *"$file: File too large"* ]] || { printf '%s said nothing:\n%s\n' "$writer" "$said"; exit 1; }
    [[ $(<"$file") == old ]] || { printf '%s destroyed its file\n' "$writer"; exit 1; }
done
(($(find files -type f | wc -l) == ${#writers[@]})) || { ls -A files; exit 1; }
printf '%d files are as they were\n' "${#writers[@]}"
