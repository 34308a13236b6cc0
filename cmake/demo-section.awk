# Turns what one script said (with --echo) into a part of the demonstration's page: the first
# comment is its title, other comments are text between, and a picture stands behind the command
# that drew it.

function escaped(s) {
    gsub(/&/, "\\&amp;", s)
    gsub(/</, "\\&lt;", s)
    gsub(/>/, "\\&gt;", s)
    return s
}

# A block of the colour before each "#rrggbb".
function swatched(s,    out, hex) {
    out = ""
    while (match(s, /#[0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f]/)) {
        hex = substr(s, RSTART, RLENGTH)
        out = out substr(s, 1, RSTART - 1) "<i style=\"background:" hex "\"></i>" hex
        s = substr(s, RSTART + RLENGTH)
    }
    return out s
}

function flush() {
    sub(/\n+$/, "", said)
    if (said != "") {
        print "<pre>" said "</pre>"
    }
    said = ""
    showPicture()
}

# The file that the last command named, if it is a picture that it wrote.
function showPicture(    command, base64, type) {
    if (picture == "") {
        return
    }
    base64 = ""
    command = "test -f " picture " && base64 -w0 " picture
    command | getline base64
    close(command)
    if (base64 != "") {
        type = picture ~ /svg$/ ? "svg+xml" : "png"
        printf "<figure><img alt=\"%s\" src=\"data:image/%s;base64,%s\"><figcaption>%s</figcaption></figure>\n",
               picture, type, base64, picture
    }
    picture = ""
}

# What the comment lines so far say: the first sentence of the first ones is the title.
function comment(    end) {
    if (note == "") {
        return
    }
    if (!titled++) {
        end = match(note, /\.( |$)/) ? RSTART : length(note) + 1
        printf "<h2 id=\"%s\">%s</h2>\n<p class=\"script\">%s</p>\n",
               name, escaped(substr(note, 1, end - 1)), escaped(script)
        note = substr(note, end + 2)
    }
    if (note != "") {
        printf "<p>%s</p>\n", escaped(note)
    }
    note = ""
}

/^#/ {
    flush()
    sub(/^#+ */, "")
    note = note (note == "" ? "" : " ") $0
    next
}

{ comment() }

/^zsg> / {
    if (picture != "") {
        flush()
    }
    # What a script only checks is of less interest to who reads the page.
    mark = $2 == "expect" ? "s" : "b"
    said = said "<" mark ">" swatched(escaped($0)) "</" mark ">\n"
    # Only plain names of files in this folder.
    if ($2 != "expect" && match($0, / [A-Za-z0-9_-]+\.(svg|png)( |$)/)) {
        picture = substr($0, RSTART + 1, RLENGTH - 1)
        sub(/ $/, "", picture)
    }
    next
}

/^$/ { if (said != "" && picture == "") said = said "\n"; next }

/^(event|[0-9]+ events) / { said = said "<s>" swatched(escaped($0)) "</s>\n"; next }

{ said = said swatched(escaped($0)) "\n" }

END {
    flush()
    comment()
}
