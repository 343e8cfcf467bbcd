#!/bin/sh
# Installs what is missing, builds everything and runs all tests. Safe to repeat.
#   ./test.sh [PRESET]    release (default), debug or sanitizers
set -eu
cd "$(dirname "$0")"

preset=${1:-release}
scripts/install-packages.sh packages-tests.txt
scripts/build.sh "$preset"
ctest --preset "$preset"
