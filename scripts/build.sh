#!/bin/sh
# Configures a preset and builds it:  scripts/build.sh PRESET [TARGET...]
set -eu
cd "$(dirname "$0")/.."

preset=$1
shift
cmake --preset "$preset" >/dev/null
if [ $# -gt 0 ]; then
    cmake --build --preset "$preset" --target "$@"
else
    cmake --build --preset "$preset"
fi
