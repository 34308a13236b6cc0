#!/usr/bin/env bash
# The steps behind ./dev release, which say whether this tree can be released. All of them run, also
# after one failed; release.sh --only STEP... runs some, release.sh --update rewrites what is kept of
# the interface in packaging/ (for a change of it that is meant).
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. cmake/run-steps.sh

here=$PWD
libraries=(zscenegraph nyxrender zcore ztask nyxembedded)
packages=build/package/packages
version=$(sed -n 's/^#define ZSG_VERSION_[A-Z]* \([0-9]*\)$/\1/p' include/zsg/version.h | paste -sd.)

# One place says the version (documents may show one), and it has not been released from another commit.
do_version() {
    local others tagged
    echo "this is $version"
    others=$(git grep -lwF "$version" -- . ':!CHANGELOG.md' ':!docs' ':!include/zsg/version.h')
    [[ -z $others ]] || {
        echo "the version stands in other places too: $others"
        return 1
    }
    tagged=$(git rev-parse -q --verify "refs/tags/v$version^{commit}") || return 0
    [[ $tagged == "$(git rev-parse HEAD)" ]] || {
        echo "$version has been released: raise it in include/zsg/version.h"
        return 1
    }
}

# The newest section is that of this version, and has lines.
do_changelog() {
    awk -v wanted="## $version" '/^## / { if (++sections == 1) found = $0 == wanted }
        sections == 1 && /^- / { ++lines }
        END { print lines + 0 " lines"; exit !(found && lines) }' CHANGELOG.md || {
        echo "CHANGELOG.md does not begin with a section '## $version' that has lines"
        return 1
    }
}

do_documents() { ./dev docs; }
do_packages() { ./dev package; }
do_lintian() { lintian --allow-root --fail-on error,warning "$packages"/*.deb; }
do_symbols() { cmake/symbols.sh build/package/lib; }

# What programs that are built already know of the libraries: layouts, virtual functions, values.
abi_of() { # LIBRARY
    abidw --exported-interfaces-only --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed \
        --drop-private-types --drop-undefined-syms \
        --headers-dir include --headers-dir platform/include --headers-dir platform/embedded/include \
        "build/package/lib/lib$1.so"
}
do_abi() {
    local name folder code=0
    folder=$(mktemp -d)
    for name in "${libraries[@]}"; do
        xz -dc "packaging/abi/lib$name.abi.xz" >"$folder/lib$name.abi" &&
            abi_of "$name" >"$folder/now.abi" &&
            abidiff "$folder/lib$name.abi" "$folder/now.abi" || code=1
    done
    rm -r "$folder"
    return $code
}

# The tour tells what it has to tell, and the page is made, by the program that is packaged.
do_demo() {
    local console=$here/build/package/bin/zsg-console
    cmake/demo.sh "$console" build/release-demo &&
        (cd build/release-demo && "$console" examples/scenes/showroom.json \
            --script examples/scripts/tour.zsg) | diff -u examples/scripts/tour.out -
}

do_proof() {
    ((EUID == 0)) || {
        echo 'a bare system can only be set up as root'
        return 1
    }
    cmake/package-proof.sh
}

# Built again from what git has, elsewhere, without a cache, in another language and time zone.
do_reproducible() {
    local again file code=0
    again=$(mktemp -d)/elsewhere
    mkdir "$again"
    git ls-files -z | tar -c --null -T - | tar -x -C "$again"
    (cd "$again" && SOURCE_DATE_EPOCH=$(git -C "$here" log -1 --format=%ct) &&
        export SOURCE_DATE_EPOCH && CCACHE_DISABLE=1 TZ=Pacific/Auckland LC_ALL=C.UTF-8 ./dev package) || return 1
    for file in "$packages"/*; do
        cmp "$file" "$again/$file" && echo "the same: ${file##*/}" || code=1
    done
    ((code)) && echo "to be compared with $again/$packages" || rm -r "${again%/*}"
    return $code
}

all=(version changelog documents packages lintian symbols abi demo proof reproducible)
case ${1-} in
--update)
    cmake/symbols.sh build/package/lib --update
    mkdir -p packaging/abi
    for name in "${libraries[@]}"; do
        abi_of "$name" | xz -9 >"packaging/abi/lib$name.abi.xz"
    done
    exit
    ;;
--only) wanted=("${@:2}") ;;
*) wanted=("${all[@]}") ;;
esac
must_know release "${wanted[@]}"
[[ -d build/package/lib || " ${wanted[*]} " == *' packages '* ]] ||
    echo 'Nothing is packaged yet: only version, changelog and documents can pass before ./dev package.'
run_steps release "${wanted[@]}"
