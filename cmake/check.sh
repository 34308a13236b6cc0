#!/usr/bin/env bash
# The gates behind ./dev check. Every gate runs, also after one failed; the last line sums up.
# With ZSG_FREE_ROOM set, each build is removed after the last gate that needs it: where the disk is
# small, one of them at a time.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. cmake/run-steps.sh

jobs=$(nproc 2>/dev/null || echo 2)
sources() { git ls-files -- '*.h' '*.cpp'; }

workflow() { cmake --workflow --preset "$1"; }

# run_steps calls after_STEP when STEP has ended.
free_room() { [[ -z ${ZSG_FREE_ROOM-} ]] || rm -rf "${@/#/build/}"; }

do_format() { sources | xargs clang-format-14 --dry-run --Werror; }

# Which folder may include which: the table stands in the script.
do_layering() { cmake/layering.py; }

do_dev() { workflow dev; }

# What clang-tidy says of the library and the programs. The compiler's own warnings, also those of
# the tests, come with the asan gate, which compiles everything with clang. No precompiled headers
# here, so that a source which leans on somebody else's includes has less company to hide in.
do_clang() {
    cmake --preset clang >/dev/null || return 1
    # What only Windows compiles is not in the compilation database.
    sources | grep -E '^(src|apps|platform)/.*\.cpp$' | grep -v '_windows\.cpp$' |
        cmake/tidy.py build/clang
}
after_clang() { free_room clang; }

do_headers() {
    cmake --preset dev >/dev/null &&
        cmake --build --preset dev -j "$jobs" --target all_verify_interface_header_sets
}
after_headers() { free_room dev; }

# With clang: this one build also has the libFuzzer targets, so that nothing is compiled twice.
do_asan() { workflow asan; }

# Where threads meet, and the application that links static libraries.
do_tsan() {
    cmake --preset tsan >/dev/null &&
        cmake --build --preset tsan -j "$jobs" \
            --target zsg_nyxembedded_test zsg_zcore_test zsg_nyxrender_test zsg_values_test \
            zsg_painting_test nyxembedded zsg_translations &&
        ctest --preset tsan
}
after_tsan() { free_room tsan; }

do_fuzz() {
    cmake --preset asan >/dev/null && cmake --build --preset asan -j "$jobs" --target fuzzers ||
        return 1
    local seconds=${ZSG_FUZZ_SECONDS:-20}
    export seconds
    # Whole paths: some targets change into a folder of their own.
    run_fuzzer() {
        local name
        name=$(basename "$1")
        mkdir -p "build/fuzz/corpus/$name" "build/fuzz/artifacts"
        "$1" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -verbosity=0 \
            -print_final_stats=0 -artifact_prefix="$PWD/build/fuzz/artifacts/$name-" \
            "$PWD/build/fuzz/corpus/$name" "$PWD/fuzz/corpus/$name" >"build/fuzz/$name.log" 2>&1 || {
            tail -50 "build/fuzz/$name.log"
            return 1
        }
        printf '%s: %s s without a finding\n' "$name" "$seconds"
    }
    export -f run_fuzzer
    printf '%s\n' build/asan/bin/fuzz_* | xargs -P "$jobs" -I{} bash -c 'run_fuzzer {}'
}
after_fuzz() { free_room asan; }

# All sources for Windows, against the headers of a Qt that is configured there and not built: that
# and the tests are for ./dev windows.
do_windows-compile() {
    cmake/windows/dependencies.sh headers && cmake --preset mingw-compile &&
        cmake --build --preset mingw-compile --target zsg_precompiled_library &&
        cmake/windows/compile.py build/mingw-compile
}

# Every text that users read stands in the catalogues, and every one of the German ones in German.
do_translations() {
    catalogue_is_complete zscenegraph src platform/embedded apps/host &&
        catalogue_is_complete workbench apps/workbench
}

# catalogue_is_complete NAME FOLDER...
catalogue_is_complete() {
    local folder=build/translations language file
    mkdir -p "$folder" && cp i18n/"$1"_*.ts "$folder" &&
        /usr/lib/qt6/bin/lupdate -silent -locations none -no-obsolete -I apps "${@:2}" \
            -ts "$folder/$1"_*.ts || return 1
    for language in en de; do
        file=$1_$language.ts
        diff -u "i18n/$file" "$folder/$file" || {
            echo 'texts have changed: run the lupdate line of cmake/check.sh on the catalogue'
            return 1
        }
    done
    ! grep -B3 'type="unfinished"' "i18n/$1_de.ts"
}

do_docs() {
    mkdir -p build/docs && doxygen docs/Doxyfile
}

all=(format layering translations dev headers clang asan fuzz tsan windows-compile docs)
wanted=("$@")
((${#wanted[@]})) || wanted=("${all[@]}")
must_know check "${wanted[@]}"
run_steps check "${wanted[@]}"
