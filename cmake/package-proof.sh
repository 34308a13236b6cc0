#!/usr/bin/env bash
# Installs the packages of ./dev package in a bare Debian and does there what README.md tells an
# application's developer. As root: cmake/package-proof.sh [FOLDER [MIRROR]]
# FOLDER holds the bare system and may be one of an earlier run; it needs debootstrap.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
root=${1:-build/package/root}
mirror=${2:-http://deb.debian.org/debian}

say() { printf '== %4d s: %s\n' "$SECONDS" "$*"; }
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"; }
block() { awk -v "fence=\`\`\`$1" '$0 == fence && !done { on = 1; next } /^```/ { if (on) done = 1; on = 0 } on' README.md; }

if [[ ! -e $root/etc/debian_version ]]; then
    debootstrap --variant=minbase bookworm "$root" "$mirror" >"$root.log"
    say "a bare system"
fi
cp /etc/resolv.conf "$root/etc/"
rm -rf "$root/proof"
mkdir -p "$root/proof"
cp build/package/packages/*.deb build/package/packages/*.ddeb "$root/proof"
mountpoint -q "$root/proc" || mount -t proc proc "$root/proc"
trap 'umount "$root/proc"' EXIT

# There are no terminals in here; what an earlier run installed goes.
echo 'Dpkg::Use-Pty "0";' >"$root/etc/apt/apt.conf.d/90proof"
inside apt-get update -qq
inside sh -c 'dpkg-query -W -f "\${Package} " "libzscenegraph*" "zsg-*" 2>/dev/null | xargs -r dpkg --purge >/dev/null'
inside sh -c 'apt-get install -y -qq --no-install-recommends /proof/zsg-tools_*.deb /proof/libzscenegraph0_*.deb >/dev/null'
say "the programs are installed: $(inside zsg-console --version)"
inside zsg-console check /usr/share/zscenegraph/examples/scenes/showroom.json
inside sh -c 'cp -r /usr/share/zscenegraph/examples /proof && cd /proof &&
    zsg-console examples/scenes/showroom.json --script examples/scripts/demo-1-scene.zsg >demo.out'
cmp "$root/proof/demo.out" examples/scripts/demo-1-scene.out
say "a script runs"
printf 'color name Teal Petrol\nhistory\n' >"$root/proof/rename"
inside zsg-console --lang de /usr/share/zscenegraph/examples/scenes/showroom.json --script /proof/rename |
    grep -F 'Farbe umbenennen (Petrol)' >/dev/null
say "in German too"
inside sh -c 'apt-get install -y -qq --no-install-recommends /proof/zsg-workbench_*.deb >/dev/null'
inside QT_QPA_PLATFORM=offscreen zsg-workbench /proof/examples/scenes/showroom.json \
    --screenshot /proof/window.png
[[ $(head -c 4 "$root/proof/window.png" | tail -c 3) == PNG ]]
say "the window opens"

inside sh -c 'apt-get install -y -qq --no-install-recommends /proof/libzscenegraph-dev_*.deb \
    /proof/libzscenegraph-doc_*.deb g++ cmake ninja-build pkg-config >/dev/null'
say "the development files are installed"
block cpp >"$root/proof/first_steps.cpp"
block cmake >"$root/proof/CMakeLists.txt"
block text >"$root/proof/wanted"
inside sh -c 'cd /proof && cmake -G Ninja -S . -B build >/dev/null && cmake --build build >/dev/null &&
    build/first_steps examples/scenes/showroom.json >by-cmake'
cmp "$root/proof/by-cmake" "$root/proof/wanted"
say "README's program is built by CMake and runs"
inside sh -c "cd /proof && $(block sh) && ./first_steps examples/scenes/showroom.json >by-pkg-config"
cmp "$root/proof/by-pkg-config" "$root/proof/wanted"
say "README's program is built by pkg-config and runs"
inside test -e /usr/share/doc/libzscenegraph-doc/html/index.html
inside sh -c 'apt-get install -y -qq --no-install-recommends gdb >/dev/null'
inside sh -c 'dpkg -i /proof/libzscenegraph0-dbgsym_*.ddeb >/dev/null && cd /proof &&
    gdb -batch -ex "set breakpoint pending on" -ex "break zsg::ColorController::setDisplayName" -ex run \
        -ex "print id" --args build/first_steps examples/scenes/showroom.json' >"$root/proof/gdb.out" 2>&1
grep -F '$1 = ColorId 1' "$root/proof/gdb.out" >/dev/null || {
    cat "$root/proof/gdb.out"
    exit 1
}
say "gdb knows the library's types"
# dpkg tells what was changed, and succeeds.
changed=$(inside dpkg --verify libzscenegraph0 libzscenegraph0-dbgsym libzscenegraph-dev libzscenegraph-doc zsg-tools zsg-workbench)
[[ -z $changed ]] || {
    echo "$changed"
    exit 1
}
say "all as it should be"
