#!/usr/bin/env bash
# What the Windows build links and Debian does not have for MinGW: Qt Core, and libpng, which Qt's
# source carries. They are made once from Debian's own source package and kept in the user's cache.
#   dependencies.sh headers    Qt configured, not built: enough to compile
#   dependencies.sh libraries  both built (Qt Core: 20 minutes of processor time, once)
# build/mingw-dependencies becomes a link to them; what a step says is in <step>.log there.
set -euo pipefail
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
wanted=${1:-libraries}
jobs=$(nproc 2>/dev/null || echo 2)
fail() {
    printf 'dependencies: %s\n' "$*" >&2
    exit 1
}

# Host and target Qt must be the same version: the host's tools make code for the target.
version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev) || fail "qt6-base-dev is not there"
root=${XDG_CACHE_HOME:-$HOME/.cache}/zscenegraph/mingw-qt-${version//[+~]/-}
mkdir -p "$root"
cd "$root"
exec 9>lock
flock 9 # two builds at once share the folder

# once STEP: runs the function of that name unless it has come to its end before.
once() {
    [[ -e $1.done ]] && return
    printf '%s ...\n' "$1" >&2
    (
        set -e
        "$1"
    ) >"$1.log" 2>&1 9>&- &
    wait $! || {
        tail -n 30 "$1.log" >&2
        fail "$1 failed, all of it in $root/$1.log"
    }
    touch "$1.done"
}

# Through the mirror that the machine uses, with lists beside the system's.
fetch() {
    rm -rf source apt
    mkdir -p apt/sources apt/lists/partial apt/archives/partial
    local file
    for file in /etc/apt/sources.list.d/*.sources; do
        [[ -e $file ]] && sed 's/^Types:.*/Types: deb-src/' "$file" >"apt/sources/${file##*/}"
    done
    [[ -e /etc/apt/sources.list ]] &&
        sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >apt/sources/plain.list
    local options=(-q -o Dir::Etc::sourcelist=/dev/null
        -o "Dir::Etc::sourceparts=$root/apt/sources" -o "Dir::State::lists=$root/apt/lists"
        -o "Dir::Cache=$root/apt" -o "APT::Sandbox::User=$(id -un)")
    apt-get "${options[@]}" update
    (cd apt && apt-get "${options[@]}" source --download-only "qt6-base=$version")
    # apt has compared the sums; the package's signer need not be known here.
    dpkg-source --no-check -x apt/qt6-base_*.dsc source
    rm -rf apt qt6-base_*
}

configure() {
    rm -rf build
    local off=(gui widgets network sql xml testlib dbus concurrent printsupport icu glib zstd
        pkg_config mimetype_database system_zlib system_pcre2 system_doubleconversion)
    off=("${off[@]/#/-DFEATURE_}")
    cmake -G Ninja -S source -B build \
        -DCMAKE_TOOLCHAIN_FILE="$tools/mingw.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="$(dirname "$(compgen -G '/usr/lib/*/cmake/Qt6HostInfo')")" \
        -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF "${off[@]/%/=OFF}"
}

libpng() {
    cmake -G Ninja -S "$tools/png" -B png-build -DLIBPNG="$root/source/src/3rdparty/libpng" \
        -DCMAKE_TOOLCHAIN_FILE="$tools/mingw.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$root/png"
    cmake --build png-build -j "$jobs"
    cmake --install png-build
    rm -rf png-build
}

build() { cmake --build build -j "$jobs"; }

# Headers without a library come from the host's packages, but not with all of /usr/include.
mkdir -p headers/include headers/share/cmake
cp -rpu /usr/include/{nlohmann,CLI,valijson} headers/include
cp -rpu /usr/share/cmake/{nlohmann_json,CLI11,valijson} headers/share/cmake

case $wanted in
headers)
    once fetch
    once libpng
    once configure
    ;;
libraries)
    once fetch
    once libpng
    once configure
    once build
    ;;
*) fail "headers or libraries, not $wanted" ;;
esac
mkdir -p "$tools/../../build"
ln -sfn "$root" "$tools/../../build/mingw-dependencies"
