#!/bin/sh
# Makes the manual:  scripts/manual.sh OUT_DIR [BIN_DIR]
# The pictures come from the programs in BIN_DIR (build/release/bin), at work in a demonstration
# company that is made for them; then the chapters of docs/ become one HTML and one PDF file.
set -eu
out=$(mkdir -p "$1" && cd "$1" && pwd)
bin=$(cd "${2:-$(dirname "$0")/../build/release/bin}" && pwd)
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
scripts/manual-pictures.sh "$work/pictures" "$bin"
# The system's own interpreter has the packaged modules, whatever other is first in the path.
/usr/bin/python3 scripts/manual.py docs "$work/pictures" "$out"
