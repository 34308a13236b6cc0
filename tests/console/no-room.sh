#!/usr/bin/env bash
# no-room.sh SOURCE_DIR WORK_DIR CONSOLE [WINDOW]
# Where the system lets nothing be written any more, console and window say so, and the file that
# was to be replaced is as it was.
set -euo pipefail
scene=$1/examples/scenes/showroom.json
work=$2
console=$3
window=${4-}
export LC_ALL=C QT_QPA_PLATFORM=offscreen XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
rm -rf "$work"
mkdir -p "$work/files"
cd "$work"
trap '' XFSZ # by default the system ends who writes

# refuses FILE COMMAND...
refuses() {
    local file=files/$1 said
    shift
    printf 'old' >"$file"
    said=$(ulimit -f 0; "$@" 2>&1) && { printf '%s ended well\n%s\n' "$1" "$said"; exit 1; }
    [[ $said == *"$file: File too large"* ]] || { printf '%s said:\n%s\n' "$1" "$said"; exit 1; }
    [[ $(<"$file") == old ]] || { printf '%s destroyed its file\n' "$1"; exit 1; }
}
refuses scene.json "$console" convert "$scene" files/scene.json
[[ -z $window ]] || refuses window.png "$window" "$scene" --screenshot files/window.png
(($(find files -type f | wc -l) == 1 + (${#window} > 0))) || { ls -A files; exit 1; }
