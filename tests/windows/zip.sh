#!/usr/bin/env bash
# zip.sh SOURCE_DIR BUILD_DIR WORK_DIR: makes the zip, and takes it for what a stranger gets: its
# programs need nothing but it and Windows, every licence is there, and an application builds
# against it and runs.
set -euo pipefail
source=$1
build=$2
work=$3
wine=/usr/lib/wine/wine64
fail() {
    printf 'zip: %s\n' "$*"
    exit 1
}

rm -rf "$work"
mkdir -p "$work"
cd "$work"
cpack --config "$build/CPackConfig.cmake" -B "$work" >cpack.log || fail "$(tail cpack.log)"
cmake -E tar xf zscenegraph-*.zip
rm -rf _CPack_Packages
root=$(echo "$work"/zscenegraph-*/)

system='^(KERNEL32|msvcrt|USER32|ADVAPI32|ole32|SHELL32|WS2_32|NETAPI32|VERSION|WINMM|MPR|USERENV|ntdll|AUTHZ|bcrypt|api-ms-win-[a-z0-9-]+)\.dll$'
for file in "$root"bin/*.{dll,exe}; do
    while read -r import; do
        [[ -e ${root}bin/$import ]] || grep -qiE "$system" <<<"$import" ||
            fail "${file##*/} needs $import"
    done < <(x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: //p')
done
for library in nyxrender zcore ztask zscenegraph nyxembedded Qt6Core libstdc++-6 libgcc_s_seh-1 \
    libwinpthread-1; do
    [[ -s ${root}bin/$library.dll ]] || fail "there is no $library.dll"
done
for licence in Qt6Core+libpng libgcc+libstdc++ libwinpthread zlib nlohmann-json CLI11 LGPL-3 GPL-3; do
    [[ -s ${root}licenses/$licence.txt ]] || fail "there is no licence of $licence"
done
x86_64-w64-mingw32-objdump -s -j .rsrc "${root}bin/zscenegraph.dll" | grep -q 'F.i.l.e.V.e' ||
    fail "zscenegraph.dll has no version resource"
grep -q longPathAware "${root}bin/zsg-console.exe" || fail "zsg-console.exe has no manifest"

# A system that has never seen the project.
export WINEPREFIX=$work/wine WINEDLLOVERRIDES='mscoree,mshtml='
unset WINEPATH
"$wine" wineboot --init
console=("$wine" "${root}bin/zsg-console.exe")
"${console[@]}" --version | grep -q '^zsg-console [0-9]' || fail "the console has no version"
ln -s "$source/examples" examples
scene=examples/scenes/showroom.json
"${console[@]}" check "$scene"
session() { # SCRIPT [OPTION ...]
    local script=$source/$1
    "${console[@]}" "$scene" --script "$script.zsg" "${@:2}" >found.out
    cmp found.out "$script.out"
}
session examples/scripts/colour-session
session examples/scripts/demo-2-values
session tests/console/calls/german --lang de
mkdir application
cp "$source/tests/windows/application.txt" application/CMakeLists.txt
cp "$source/examples/programs/first_steps.cpp" application
cmake -G Ninja -S application -B built -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$source/cmake/windows/toolchain.cmake" \
    -Dzscenegraph_DIR="${root}lib/cmake/zscenegraph" >built.log
cmake --build built >>built.log
WINEPATH=${root}bin "$wine" built/application.exe "$scene" | grep -q '^heard ColorUpdated' ||
    fail "the application says something else"
