#!/bin/sh
# Fails, naming the places, if a file includes one of a folder that its own folder must not know.
# All of src is on the include path, so the compiler alone doesn't keep these arrows.
set -eu
cd "$(dirname "$0")/.."

# FOLDER: what it may include beside itself.
allowed='
store: store/records store/text
store/records: store
store/text:
ui: store/text
ui/pictures: ui
ui/script: ui store/text
ui/paper: ui store/text
ui/look: ui
ui/desktop: ui ui/paper ui/look ui/script ui/desktop/layouts store/text
ui/desktop/layouts: ui ui/paper ui/look ui/desktop store/text
program: store store/records store/text ui
customer: program store store/records store/text ui
documents: program store store/records store/text ui
register: program store store/records store/text ui
entry: customer documents program store store/records store/text ui
fulfil: customer documents entry program store store/records store/text ui
reports: documents program store store/records store/text ui
app: register customer entry fulfil reports documents program store store/records store/text ui ui/desktop ui/look ui/paper ui/pictures ui/script
'

git ls-files 'src/*.h' 'src/*.cpp' |
    xargs grep -n '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<][^">]*/' |
    awk -v allowed="$allowed" '
        function folder(path) { sub("/[^/]*$", "", path); return path }
        BEGIN {
            lines = split(allowed, line, "\n")
            for (l = 1; l <= lines; ++l) {
                words = split(line[l], word, /:? +|:$/)
                known[word[1]] = 1
                for (w = 2; w <= words; ++w)
                    may[word[1], word[w]] = 1
            }
        }
        {
            match($0, /^[^:]*:[0-9]+:/)
            place = substr($0, 1, RLENGTH - 1)
            from = place; sub(/^src\//, "", from); sub(/:.*/, "", from); from = folder(from)
            match($0, /["<][^">]*/)
            to = folder(substr($0, RSTART + 1, RLENGTH - 1))
        }
        !(from in known) { print place ": " from " is missing in the table of scripts/check-arrows.sh"; bad = 1; next }
        # Anything of src, also by a way round through "..", counts; system headers such as <sys/stat.h> do not.
        to ~ /\.\./ || to in known {
            if (to != from && !((from, to) in may)) {
                print place ": " from " must not include " to
                bad = 1
            }
        }
        END { exit bad }'
