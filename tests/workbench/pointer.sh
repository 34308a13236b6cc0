#!/usr/bin/env bash
# pointer.sh SOURCE_DIR WORK_DIR WORKBENCH
# Two drags with the pointer of a real display, which nothing else tries: the toolkit's own start of
# a drag, and moves as a display sends them. Ends with 77 where the display or the hand is missing.
set -euo pipefail
source=$1 work=$2 window=$3
command -v Xvfb >/dev/null && command -v xdotool >/dev/null || exit 77
rm -rf "$work"
mkdir -p "$work"
cd "$work"

program=
mkfifo display
Xvfb -displayfd 5 -screen 0 1400x1000x24 -nolisten tcp 5<>display >/dev/null 2>&1 &
server=$!
trap 'kill $program $server 2>/dev/null; wait' EXIT
read -rt 30 number <display
export DISPLAY=:$number QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
export XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
chmod 700 "$work"

until_true() { # COMMAND...
    local end=$((SECONDS + 60))
    until "$@" 2>/dev/null; do
        if ((SECONDS > end)) || ! kill -0 "$program"; then
            printf 'not so: %s\n' "$*"
            cat said
            exit 1
        fi
        sleep 0.1
    done
}
# What two steps back leave says how many entries each drag was.
cat >check.zsg <<'END'
expect undo 2
scene save both.json
undo
scene save hue.json
undo
scene save done.json
END
cat >places.zsg <<'END'
events show off
window show console
window select colours Cable
window select colours Teal
window where wheel
window where colourGrid Gold
window where subColours
window where consoleInput
END
"$window" "$source/examples/scenes/showroom.json" --size 1200x900 --script places.zsg >said 2>&1 &
program=$!
until_true grep -q consoleInput said
place() { awk -v name="$1" '$1 == name { print $2, $3, $4, $5 }' said; }
hand() { xdotool "$@" && sleep 0.05; }

# A quarter of the ring.
read -r x y width height < <(place wheel)
radius=$(((width < height ? width : height) * 92 / 200))
hand mousemove $((x + radius)) "$y" mousedown 1
for degree in 10 20 30 40 50 60 70 80 90; do
    hand mousemove $(awk -v x="$x" -v y="$y" -v r=$radius -v a=$degree \
        'BEGIN { a *= 3.14159265 / 180; printf "%d %d", x + r * cos(a), y - r * sin(a) }')
done
hand mouseup 1

# A tile onto the list of sub-colours.
read -r x y _ < <(place colourGrid)
read -r to_x to_y _ < <(place subColours)
hand mousemove "$x" "$y" mousedown 1
for step in 1 2 3 4 5 6 7 8 9 10; do
    hand mousemove $((x + (to_x - x) * step / 10)) $((y + (to_y - y) * step / 10))
done
hand mousemove $((to_x + 1)) "$to_y"
sleep 0.5
hand mouseup 1
sleep 0.5

read -r x y _ < <(place consoleInput)
hand mousemove "$x" "$y" click 1
hand windowfocus "$(xdotool getmouselocation --shell | sed -n 's/^WINDOW=//p')"
hand type 'read check.zsg'
hand key Return
until_true test -s done.json
value() { grep "\"name\": *\"$1\"" "$2"; }
[[ $(value Teal hue.json) != "$(value Teal done.json)" ]] || { echo 'the hue was not dragged'; exit 1; }
[[ $(value Cable both.json) != "$(value Cable hue.json)" ]] || { echo 'nothing was dropped'; exit 1; }
