#!/bin/sh
# Installs what the build needs and this machine lacks; quick and silent if nothing is missing.
# Further lists of this folder may be named:  scripts/install-packages.sh packages-manual.txt
set -eu
cd "$(dirname "$0")"

missing=
for package in $(grep -hv '^#' packages.txt "$@"); do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
    as_root=sudo
    command -v sudo >/dev/null || {
        echo "Packages are missing, and only root may install them. As root:" >&2
        echo "    apt-get update && apt-get install --no-install-recommends$missing" >&2
        echo "Then repeat the command." >&2
        exit 1
    }
fi
echo "Installing:$missing"
if ! $as_root apt-get update -qq ||
    ! DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing \
        >/dev/null; then
    echo "The packages can't be installed: see above. Once the network, the room on the disk or the" >&2
    echo "right to install is there, repeat the command." >&2
    exit 1
fi
