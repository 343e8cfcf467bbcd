#!/bin/sh
# Configures a preset and builds it:  scripts/build.sh PRESET [TARGET...]
set -eu
cd "$(dirname "$0")/.."

preset=$1
shift
stopped() {
    echo "The build stopped: see above. Once there is room on the disk (df -h .), repeat the command;" >&2
    echo "if it stops at the same place, remove build/$preset first." >&2
    exit 1
}
cmake --preset "$preset" >/dev/null || stopped
[ $# -eq 0 ] || set -- --target "$@"
cmake --build --preset "$preset" "$@" || stopped
