#!/bin/sh
# Fails, naming the places, if a file includes one of a folder that its own folder must not know.
# All of src is on the include path, so the compiler alone doesn't keep these arrows.
set -eu
cd "$(dirname "$0")/.."

# FOLDER: what it may include beside itself.
allowed='
text:
errors:
store: store/records text
store/records: store text
orders: store store/records text errors
ui: text errors
ui/pictures: ui
ui/script: ui text
ui/paper: ui text
desktop/look: ui
desktop/dialogs: desktop/look
desktop/keys: desktop/look ui
desktop/controls: desktop/dialogs desktop/keys desktop/look ui ui/paper text
desktop/lists: desktop/dialogs desktop/keys desktop/look ui ui/paper text
desktop/printing: desktop/dialogs desktop/look ui ui/paper
desktop: desktop/controls desktop/keys desktop/lists desktop/look desktop/printing ui ui/paper ui/script text
windows: desktop desktop/controls desktop/dialogs desktop/keys desktop/look register enquiry customer entry fulfil reports ui ui/paper
program: orders store store/records text ui
customer: program orders store store/records text ui
documents: program orders store store/records text ui errors
enquiry: customer documents entry program orders store store/records text ui
register: enquiry program orders store store/records text ui
entry: customer documents program orders store store/records text ui errors
fulfil: customer documents entry program orders store store/records text ui errors
reports: documents program orders store store/records text ui
app: register enquiry customer entry fulfil reports documents program store store/records text ui desktop desktop/look desktop/printing windows ui/paper ui/pictures ui/script
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
