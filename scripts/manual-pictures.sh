#!/bin/sh
# Makes the pictures of the manual:  scripts/manual-pictures.sh DIR BIN_DIR
# docs/pictures.script works a day in a new demonstration company, without a display; the documents
# printed on the way become pictures too.
set -eu
mkdir -p "$1"
out=$(cd "$1" && pwd)
bin=$(cd "$2" && pwd)
script=$(cd "$(dirname "$0")/../docs" && pwd)/pictures.script

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -m 700 "$work/home"
"$bin/vantora-demo" "$work/drive" 001

# A screen of 1100 by 700 points, drawn at double size: small windows make readable pictures.
cat >"$work/screen.json" <<'J'
{"screens": [{"name": "screen", "x": 0, "y": 0, "width": 2200, "height": 1400,
              "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}
J
export HOME="$work/home" XDG_CONFIG_HOME="$work/home" XDG_RUNTIME_DIR="$work/home"
export QT_QPA_PLATFORM="offscreen:configfile=$work/screen.json" QT_SCALE_FACTOR=2

# run FROM: the part of the day between the line "# == FROM" and the next one.
run() {
    part=$(sed -n "/^# == $1\$/,/^# == /p" "$script")
    (cd "$out" && printf '%s\n' "$part" |
        "$bin/vantora-ordini" --drive "$work/drive" --script - ordini001 2>/dev/null) >"$work/replies"
    if grep -n '"ok":false' "$work/replies" >&2; then
        echo "manual-pictures.sh: a command of the part \"$1\" was refused" >&2
        exit 1
    fi
}

# paper NAME: the first page of the document printed last.
paper() {
    "$bin/mirxpdf" --drive "$work/drive" --no-window "***,c:\\mirdoc.rto,C:\\$1.pdf,***"
    pdftoppm -r 110 -f 1 -l 1 -singlefile -png "$work/drive/$1.pdf" "$out/$1"
}

run mattina
paper ordine
run pomeriggio
paper ddt_stampato
