#!/usr/bin/env bash
# hard-files.sh SOURCE_DIR WORK_DIR CONSOLE...
# Every loader and the writer of scenes, once in a plain folder, and once for each thing that files
# and systems make hard. All must say and write the same.
set -euo pipefail
examples=$1/examples
work=$2
shift 2
console=("$@")
environment=()
rm -rf "$work"
mkdir -p "$work/plain"
cd "$work"

# session VARIANT FOLDER [SPELLED]: a session on the files of the folder, named as SPELLED.
session() {
    local variant=$1 spelled=${3:-$work/$2}
    cat >"$2/session.zsg" <<EOT
events show off
journal record on
ior load metal "$spelled/gold.csv"
ior show metal
ior load pairs "$spelled/copper.nk"
ior show pairs
cmf load "$spelled/furniture.json"
cmf show
weave load cloth "$spelled/cloth.json"
weave show cloth
brush load "$spelled/leaves.json"
brush show color_texture_filepath
brush set basic_spacing_percent 35.5
brush save "$spelled/brush.json"
color set 3 0.25 0.5 0.75
journal
scene save "$spelled/saved.json"
scene load "$spelled/saved.json"
scene
EOT
    [[ $variant != crlf ]] || sed -i 's/$/\r/' "$2"/*.{json,csv,nk,zsg}
    [[ $variant != protected ]] || chmod a-w "$2"/*
    env "${environment[@]}" "${console[@]}" "$spelled/scene.json" --script "$spelled/session.zsg" >"$variant.raw" ||
        { printf '%s: the session failed\n' "$variant"; exit 1; }
    # A path is shown as the system writes it.
    sed -e 's|\\|/|g' -e "s|$spelled|FOLDER|g" "$variant.raw" >"$variant.out"
    cmp plain.out "$variant.out" && cmp plain/saved.json "$2/saved.json"
}

cp "$examples/scenes/showroom.json" plain/scene.json
cp "$examples"/{data/gold.csv,data/copper.nk,cmf/good/furniture.json,brushes/leaves.json,brushes/leaf.png} plain
printf 'weave new cloth twill 2 1\nweave save cloth plain/cloth.json\n' |
    "${console[@]}" plain/scene.json >make.out
cp -r plain original
session plain plain

deep=$(printf '%0100d/' 1 2 3)deep # beyond the 260 characters that Windows once had
mkdir -p "${deep%/*}"
for folder in "Füße 漆" "$deep" crlf protected comma; do
    cp -r original "$folder"
done
session letters "Füße 漆"
session deep "$deep"
session crlf crlf
session protected protected
if [[ -n ${WINEPREFIX-} ]]; then # another drive, which Wine takes from a link
    ln -sfn "$work" "$WINEPREFIX/dosdevices/x:"
    cp -r original drive
    session drive drive X:/drive
    rm "$WINEPREFIX/dosdevices/x:" # else this folder is X: from now on
fi

# A locale with a decimal comma, which a program with Qt takes over from the environment.
mkdir locales
localedef -f UTF-8 -i de_DE locales/de_DE.UTF-8 >/dev/null 2>&1 || true # it may warn
environment=("LOCPATH=$work/locales" LC_ALL=de_DE.UTF-8)
if [[ $(env "${environment[@]}" locale decimal_point 2>/dev/null) == , ]]; then
    session comma comma
else
    printf 'no locale with a decimal comma can be had\n'
fi
