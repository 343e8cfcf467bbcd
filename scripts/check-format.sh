#!/bin/sh
# Fails, naming the places, if a source file isn't formatted.
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh packages-checks.txt

git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
