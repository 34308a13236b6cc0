#!/usr/bin/env bash
# demo.sh CONSOLE FOLDER: runs the demonstration scripts in FOLDER, which is made anew, and writes
# index.html there: what was said, with the pictures where they were drawn.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
console=$(realpath "$1")
rm -rf "$2"
mkdir -p "$2"
cd "$2"
# Scripts name files by their path in the project, and write into the folder they run in.
ln -s "$project/examples" examples

# The tour is told here and on the page, the other sessions only there.
for script in examples/scripts/tour.zsg examples/scripts/demo-*.zsg \
    examples/scripts/*-session.zsg; do
    name=$(basename "$script" .zsg)
    "$console" examples/scenes/showroom.json --script "$script" --echo >"$name.txt"
    [[ $name != tour ]] || cat "$name.txt"
    # Now, since a later script may write a picture of the same name.
    LC_ALL=C awk -v name="$name" -v script="$script" -f "$project/cmake/demo-section.awk" \
        "$name.txt" >>sections.html
done
{
    cat "$project/cmake/demo-head.html"
    printf '<nav>\n'
    sed -n 's|^<h2 id="\([^"]*\)">\(.*\)</h2>$|<a href="#\1">\2</a>|p' sections.html
    printf '</nav>\n'
    cat sections.html
    printf '</main>\n</body>\n</html>\n'
} >index.html
rm sections.html
printf '\n== with its pictures, and with %d more sessions, in %s/index.html\n' \
    $(($(ls ./*.txt | wc -l) - 1)) "$2"
