#!/bin/sh
# Installs the package into an empty root, which knows only which packages this machine has, and
# works with the programs from there: with the manual, and without it.
#   scripts/check-package.sh PACKAGE.deb
set -eu
package=$(realpath "$1")
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

# Refused if the machine lacks something that the package says it needs.
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
cp /var/lib/dpkg/status "$root/var/lib/dpkg/"
fakeroot=
[ "$(id -u)" -eq 0 ] || fakeroot=fakeroot
$fakeroot dpkg --root="$root" --install "$package" >"$root/log" 2>&1 || {
    grep -v "files list file" "$root/log"
    exit 1
}

bin=$root/usr/bin
for program in "$bin"/*; do
    gzip -t "$root/usr/share/man/man1/$(basename "$program").1.gz"
done
test -s "$root/usr/share/doc/vantora-ordini/vantora-ordini-manuale.pdf"

# work: both front ends open a new company's register and an order; its archive stays sound.
drive=$root/drive
mkdir -m 700 "$root/home"
export HOME="$root/home" XDG_CONFIG_HOME="$root/home" XDG_RUNTIME_DIR="$root/home"
export QT_QPA_PLATFORM=offscreen
work() {
    rm -rf "$drive"
    "$bin/vantora-demo" "$drive" 001
    test -s "$drive/mirwin/mirwin/mirxpdf.conf"
    for front in "$bin/vantora-script" "$bin/vantora-ordini --script -"; do
        printf '%s\n' 'rows mirorc.elenco 1 3' 'cell mirorc.elenco 1 1' 'get mirorcz.artic(0)' |
            $front --drive "$drive" ordini001 >"$root/replies" 2>"$root/said"
        if [ "$(grep -c '"ok":true' "$root/replies")" -ne 3 ] || grep '"ok":false' "$root/replies"; then
            cat "$root/replies" "$root/said"
            echo "check-package.sh: $front refuses commands" >&2
            exit 1
        fi
    done
    "$bin/vantora-archive" --drive "$drive" ordini001 check
}
work
rm -r "$root/usr/share/doc"
work
