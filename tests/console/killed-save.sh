#!/usr/bin/env bash
# killed-save.sh SOURCE_DIR WORK_DIR CONSOLE...: the console is killed while it saves again and
# again, and the file is always a whole one: the scene before or after the change.
set -euo pipefail
scene=$1/examples/scenes/showroom.json
work=$2
shift 2
rm -rf "$work"
mkdir -p "$work"
cd "$work"

printf 'scene save before.json\ncolor set 3 0.25 0.5 0.75\nscene save after.json\n' >make.zsg
"$@" "$scene" --script make.zsg >make.out
! cmp -s before.json after.json
cp before.json saved.json
{
    printf 'events show off\ncolor set 3 0.25 0.5 0.75\n'
    for ((i = 0; i < 20000; ++i)); do
        printf 'undo\nscene save saved.json\nredo\nscene save saved.json\n'
    done
} >save.zsg
before=0
after=0
for round in 1 2 3 4 5 6 7 8; do
    "$@" "$scene" --script save.zsg >save.out 2>&1 &
    # Not before it has begun, however slow the machine is.
    touch start
    until [[ saved.json -nt start ]] || ! kill -0 $!; do sleep 0.05; done
    sleep 0.$((round * 7 % 10))
    kill -0 $! || { cat save.out; exit 1; } # it must not have come to its end
    kill -KILL $!
    wait $! || true
    if cmp -s saved.json before.json; then
        before=$((before + 1))
    elif cmp -s saved.json after.json; then
        after=$((after + 1))
    else
        printf 'neither the one nor the other:\n'
        cat saved.json
        exit 1
    fi
done
printf 'killed %d times: %d before, %d after\n' "$round" "$before" "$after"
