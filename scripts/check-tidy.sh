#!/bin/sh
# Fails, naming the places, if clang-tidy finds something in the program's logic, its tools or the benches.
# The windows are left out: their toolkit's headers would take longer than all the rest.
#   scripts/check-tidy.sh [FILE...]
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh packages-checks.txt

# A preset that reads files one by one.
build=build/debug
[ -f "$build/compile_commands.json" ] || cmake --preset debug >/dev/null
if [ $# -eq 0 ]; then
    set -- $(git ls-files 'src/*.cpp' 'tools/*.cpp' 'bench/*.cpp' | grep -v -E '^src/(desktop|windows|ui/paper|app/desktop_)')
fi
# Its count of what it passed over in system headers is of no use.
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet 2>/tmp/tidy.$$ ||
    { grep -v 'warnings\? generated' /tmp/tidy.$$; rm -f /tmp/tidy.$$; exit 1; }
rm -f /tmp/tidy.$$
