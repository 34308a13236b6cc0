# Sourced by check.sh and release.sh.
# run_steps WHO STEP...: runs each function do_STEP, also after one failed, with its output in
# build/WHO-STEP.log; says how each went and how long it took, and sums up. 1 when one failed.
# A function after_STEP, where there is one, is called when the step has ended, however it went.
run_steps() {
    local who=$1 name start failed=()
    shift
    mkdir -p build
    for name in "$@"; do
        start=$SECONDS
        printf '\n== %s: %s\n' "$who" "$name"
        if "do_$name" >"build/$who-$name.log" 2>&1; then
            printf 'ok (%d s)\n' $((SECONDS - start))
        else
            tail -n 60 "build/$who-$name.log"
            printf 'FAILED (%d s), all of it in build/%s-%s.log\n' $((SECONDS - start)) "$who" "$name"
            failed+=("$name")
        fi
        if declare -F "after_$name" >/dev/null; then "after_$name"; fi
    done
    printf '\n'
    ((${#failed[@]})) && printf '%s: failed: %s\n' "$who" "${failed[*]}"
    printf '%d passed, %d failed\n' $(($# - ${#failed[@]})) ${#failed[@]}
    ((${#failed[@]} == 0))
}

# must_know WHO STEP...: ends the script when there is no function do_STEP.
must_know() {
    local who=$1 name
    shift
    for name in "$@"; do
        declare -F "do_$name" >/dev/null || {
            printf '%s: there is no %s (there are: %s)\n' "$who" "$name" "${all[*]}" >&2
            exit 1
        }
    done
}
