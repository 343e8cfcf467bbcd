#!/bin/sh
# Makes the Debian packages from the release build and checks it:  scripts/package.sh
# They end in build/release/: the programs, vantora-ordini_*.deb, and vantora-ordini-manuale_*.deb.
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh packages-manual.txt packages-package.txt
scripts/build.sh release vantora-ordini vantora-script vantora-archive vantora-demo mirxpdf \
    package_files manual
build=build/release

desktop-file-validate packaging/*.desktop
appstreamcli validate --no-net --explain "$build"/packaging/*.metainfo.xml

rm -f "$build"/vantora-ordini*.deb
(cd "$build" && cpack -G DEB >cpack.log) || { cat "$build/cpack.log"; exit 1; }
lintian --fail-on error,warning --info "$build"/vantora-ordini*.deb
