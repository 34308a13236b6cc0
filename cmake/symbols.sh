#!/usr/bin/env bash
# symbols.sh FOLDER [--update]: holds what the libraries in FOLDER export against the lists of
# packaging/symbols, or rewrites the lists. A line that has gone or changed breaks programs that are
# built already; one that has come is a promise. Any build will do.
set -euo pipefail
folder=$(realpath "$1")
update=${2-}
cd "$(dirname "${BASH_SOURCE[0]}")/../packaging/symbols"
export LC_ALL=C

# Of a class with virtual functions its table stands for all that describes it. Weak functions are
# left out: most come and go with the compiler's choices, and those of the instances of a template
# are as many as its table promises.
exported() { # NAME
    nm -DC --defined-only "$folder/lib$1.so" | cut -d' ' -f2- |
        grep -vE '^([Wuw] |. typeinfo |V vtable for (std|__gnu_cxx|nlohmann|Q)\b)' |
        if [[ $1 == nyxembedded ]]; then grep -v '^V .* for zsg::'; else cat; fi |
        cut -d' ' -f2- | sort -u
}

code=0
for name in zscenegraph nyxrender zcore ztask nyxembedded; do
    if [[ $update == --update ]]; then
        exported "$name" >"lib$name.txt"
    else
        exported "$name" | diff -u "lib$name.txt" - || code=1
    fi
done
if ((code)); then
    echo 'the libraries export something else; if that is meant: cmake/symbols.sh FOLDER --update'
fi
exit $code
