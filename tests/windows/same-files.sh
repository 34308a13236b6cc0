#!/usr/bin/env bash
# same-files.sh SOURCE_DIR WORK_DIR NATIVE_CONSOLE CONSOLE...: a scene that is saved on Windows is
# byte for byte the one saved on Linux, and so is what each writes when it reads the other's.
set -euo pipefail
scene=$1/examples/scenes/showroom.json
native=$3
rm -rf "$2"
mkdir -p "$2"
cd "$2"
shift 3
[[ -x $native ]] || { printf 'there is no build for Linux: %s\n' "$native"; exit 1; }
"$native" convert "$scene" linux.json
"$@" convert "$scene" windows.json
cmp linux.json windows.json
"$native" convert windows.json from-windows.json
"$@" convert linux.json from-linux.json
cmp linux.json from-windows.json
cmp linux.json from-linux.json
