#!/bin/sh
# Installs the packages into an empty root, which knows only which packages this machine has, over
# an older version with everything in one, works with the programs from there, with the manual and
# without it, and removes them: a person's settings and the archive stay through all of it.
#   scripts/check-package.sh PROGRAMS.deb MANUAL.deb
set -eu
programs=$(realpath "$1")
manual=$(realpath "$2")
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
cp /var/lib/dpkg/status "$root/var/lib/dpkg/"
sed -i '/^Package: vantora-ordini/,/^$/d' "$root/var/lib/dpkg/status"
fakeroot=
[ "$(id -u)" -eq 0 ] || fakeroot=fakeroot
# Refused if the machine lacks something that the packages say they need.
packages() {
    $fakeroot dpkg --root="$root" --force-script-chrootless "$@" >"$root/log" 2>&1 || {
        grep -v "files list file" "$root/log"
        exit 1
    }
}

bin=$root/usr/bin
book=$root/usr/share/doc/vantora-ordini/vantora-ordini-manuale.pdf
drive=$root/drive
mkdir -m 700 "$root/home"
export HOME="$root/home" XDG_CONFIG_HOME="$root/home" XDG_RUNTIME_DIR="$root/home"
export QT_QPA_PLATFORM=offscreen

# work: both front ends open the company's register and an order; its archive stays sound.
work() {
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

# night: what the unit of the nightly timer starts copies the company and finds it sound.
night() {
    start=$(sed -n 's/^ExecStart=\([^ ]*\).*/\1/p' "$root/usr/lib/systemd/user/vantora-notte@.service")
    CARTELLA=$drive COPIE=$root/copies TENERE=2 POSTA= "$root$start" ordini001
    "$bin/vantora-archive" --drive "$root/copies"/ditta001-* ordini001 check --quiet
}

# An older version: it has a file that is gone by now, and the manual.
mkdir "$root/older"
dpkg-deb -R "$programs" "$root/older/tree"
dpkg-deb -x "$manual" "$root/older/tree"
sed -i 's/^Version:.*/Version: 15.0-1/' "$root/older/tree/DEBIAN/control"
touch "$root/older/tree/usr/share/doc/vantora-ordini/gone"
rm -r "$root/older/tree/usr/share/doc/vantora-ordini-manuale"
$fakeroot dpkg-deb --root-owner-group -b "$root/older/tree" "$root/older.deb" >"$root/log"
packages --install "$root/older.deb"
"$bin/vantora-demo" "$drive" 001
test -s "$drive/mirwin/mirwin/mirxpdf.conf"
echo "server = smtp.example.it" >"$drive/mirwin/mirwin/mirxpdf.conf"
mkdir "$root/home/Vantora"
echo "[company]" >"$root/home/Vantora/Ordini.conf"
find "$root/home" "$drive" -type f -exec cksum {} + | sort >"$root/before"

packages --install "$programs" "$manual"
test -s "$book"
test ! -e "$root/usr/share/doc/vantora-ordini/gone"
for program in "$bin"/*; do
    gzip -t "$root/usr/share/man/man1/$(basename "$program").1.gz"
    "$program" --version >/dev/null
done
find "$root/home" "$drive" -type f -exec cksum {} + | sort | cmp - "$root/before"
work
night
packages --remove vantora-ordini-manuale
test ! -e "$book"
work
cp -a "$drive" "$root/kept"
packages --remove vantora-ordini
test ! -e "$bin/vantora-ordini"
diff -r "$drive" "$root/kept"
test -s "$root/home/Vantora/Ordini.conf"
