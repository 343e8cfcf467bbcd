#!/bin/sh
# Installs what is missing, builds, makes a demonstration company if there is none, and opens the
# program on it. Safe to repeat.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh
scripts/build.sh release vantora-ordini vantora-script vantora-demo mirxpdf

bin=build/release/bin
drive=demo
company=001
if [ ! -d "$drive/mirwin/mirwin/miraz0.$company" ]; then
    echo "Making the demonstration company in $drive/"
    "$bin/vantora-demo" "$drive" "$company"
fi
general=$drive/mirwin/mirwin
cmp -s "$bin/mirxpdf" "$general/mirxpdf" || install -m 755 "$bin/mirxpdf" "$general/mirxpdf"
[ -e "$general/mirxpdf.conf" ] || install -m 600 "$bin/mirxpdf.conf" "$general/mirxpdf.conf"

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$bin/vantora-ordini" --drive "$drive" "ordini$company" "$@"
fi

echo "There is no display here, so this is the register by the scripted front end:"
printf 'rows mirorc.elenco 0 20\n' |
    "$bin/vantora-script" --drive "$drive" "ordini$company" |
    sed 's/.*"value":\[\[/[/; s/\],\[/]\n[/g; s/\]\].*/]/'
