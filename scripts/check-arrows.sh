#!/bin/sh
# Fails, naming the places, if a file includes one of a folder that its own folder must not know,
# or if an include is spelled so that this can't be seen. All of src is on the include path, so the
# compiler alone doesn't keep these arrows.
#   scripts/check-arrows.sh [BUILD_FOLDER...]
# Of each build folder it looks at what the compiler read, too, however it was included; then
# permissions that are no longer used fail as well.
set -eu
cd "$(dirname "$0")/.."

# FOLDER: what it may include beside itself.
allowed='
text:
errors:
command_line:
store: store/records text errors
store/records: store
backup: store text
orders: store store/records text errors
ui: text errors
ui/pictures: ui
ui/script: ui text
ui/paper: ui text
desktop/look: ui
desktop/dialogs: desktop/look store text
desktop/keys: desktop/dialogs desktop/look
desktop/controls: desktop/dialogs desktop/keys desktop/look ui ui/paper text
desktop/lists: desktop/dialogs desktop/keys desktop/look ui ui/paper text
desktop/printing: desktop/dialogs desktop/look ui ui/paper
desktop: desktop/controls desktop/dialogs desktop/keys desktop/lists desktop/look ui ui/paper text
windows: desktop desktop/controls desktop/dialogs desktop/keys desktop/look register enquiry customer entry fulfil reports
program: store text ui
customer: program orders store store/records text ui
documents: program orders store text ui
enquiry: customer documents entry program orders store store/records text ui
register: backup enquiry program orders store text ui
entry: customer documents program orders store text ui errors
fulfil: customer entry program orders store store/records text ui errors
reports: documents program orders store text ui
app: command_line register enquiry customer entry fulfil reports program store text ui desktop desktop/keys desktop/look desktop/printing windows ui/paper ui/pictures ui/script
tools/archive: command_line backup store text orders store/records
tools/demo: command_line text store/records store orders
tools/mirxpdf: command_line documents store text ui/paper ui/pictures desktop/look
bench: tools/archive tools/demo enquiry register store customer entry desktop desktop/look ui fulfil store/records documents tools/mirxpdf ui/pictures orders reports text
'

sources='src/*.h src/*.cpp tools/*.h tools/*.cpp bench/*.h bench/*.cpp'
found=$(mktemp)
trap 'rm -f "$found"' EXIT

# Only `#include "x"` and `#include <x>` are read below, so nothing else is let in.
if git ls-files $sources | xargs grep -nE '^[[:space:]]*(/\*.*\*/[[:space:]]*)*(#|%:|\?\?=)' |
    grep -E ':[0-9]+:.*(include|import|embed)|(#|%:|\?\?=)[[:space:]]*(\\$|/\*)' |
    grep -vE ':#include ("[^"]+"|<[^>]+>)( *//.*)?$'; then
    echo "to be spelled as #include \"...\" or #include <...>"
    exit 1
fi

git ls-files $sources | xargs grep -n '^#include ["<][^">]*/' |
    sed -E 's/^([^:]*:[0-9]+):#include ["<]([^">]*)[">].*/\1 \2/' >"$found"
for build in "$@"; do
    # A line for each file that a compiler read:  OBJECT FILE
    ninja -C "$build" -t deps |
        awk -v root="$(pwd)/" '
            /^[^ ].*\(VALID\)$/ { object = $1; sub(/:$/, "", object); next }
            /^[^ ]/ { object = ""; next }
            object == "" { next }
            index($1, root) == 1 { print object, substr($1, length(root) + 1) }
            sub(/^(\.\.\/)+/, "", $1) { print object, $1 }'
done | awk '$1 ~ /^(src|tools)\// && $2 ~ /^(src|tools|bench)\//' | sort -u >>"$found"

awk -v allowed="$allowed" -v strict="$#" '
    function folder(path) { sub("/[^/]*$", "", path); sub(/^src\//, "", path); return path }
    # Of an object of the build: sources that are read together stand in a folder of their own.
    function built_from(object) { gsub(/CMakeFiles\/[^\/]*\.dir\/(Unity\/)?/, "", object); return folder(object) }
    function reach(from, to,   f) {
        if (from == to || (from, to) in may) return 1
        if ((from, to) in seen) return 0
        seen[from, to] = 1
        for (f in known) if ((from, f) in may && reach(f, to)) return 1
        return 0
    }
    BEGIN {
        lines = split(allowed, line, "\n")
        for (l = 1; l <= lines; ++l) {
            words = split(line[l], word, /:? +|:$/)
            if (word[1] == "") continue
            known[word[1]] = 1
            for (w = 2; w <= words; ++w) if (word[w] != "") may[word[1], word[w]] = 1
        }
    }
    $1 ~ /\.o$/ {
        from = built_from($1); to = folder($2)
        if ((from, to) in judged) next
        judged[from, to] = 1
        split("", seen)
        knows = reach(from, to)
        # Subfolders may be read together in the name of their folder.
        if ($1 ~ /\/Unity\//) for (f in known) if (index(f, from "/") == 1) knows = knows || reach(f, to)
        if (!knows) { print $1 ": reads " $2 ", of a folder that " from " must not know"; bad = 1 }
        next
    }
    {
        from = $1; sub(/:.*/, "", from); from = folder(from)
        to = folder($2)
        if (("tools/" to) in known) to = "tools/" to
    }
    !(from in known) { print $1 ": " from " is missing in the table of scripts/check-arrows.sh"; bad = 1; next }
    # Anything of ours, also by a way round through ".."; system headers such as <sys/stat.h> are not.
    $2 ~ /\.\./ || to in known {
        used[from, to] = 1
        if (to != from && !((from, to) in may)) { print $1 ": " from " must not include " to; bad = 1 }
    }
    END {
        if (strict) for (one in may) if (!(one in used)) {
            split(one, pair, SUBSEP)
            print "scripts/check-arrows.sh: " pair[1] " no longer includes " pair[2]; bad = 1
        }
        exit bad
    }' "$found"
