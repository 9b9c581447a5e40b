#!/usr/bin/env bash
# Starts the real program with its real windows on an X server of its own, hands it two files, gives them a prefix by keys
# alone, and quits in the main window. It must end by itself with status 0, keep its settings and have renamed both files.
#
# usage: rename_by_keys.sh QUILLMARK
set -euo pipefail

if [ "${2:-}" != on-own-server ]; then
    script=$(realpath "$0")
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    cd "$scratch"
    touch first.txt second.txt
    env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb HOME="$scratch" XDG_DATA_HOME="$scratch/data" \
        xvfb-run -a "$script" "$1" on-own-server
    [ -s data/Quillmark/Quillmark.ini ] || { echo "no settings were kept: $(find data)"; exit 1; }
    [ "$(echo *.txt)" = "my_first.txt my_second.txt" ] || { echo "the files are not renamed: $(ls)"; exit 1; }
    exit 0
fi

"$1" 'first.txt|second.txt' &
program=$!

# press TITLE KEY...: waits for a window and presses keys in it.
press() {
    : >window
    timeout 120 xdotool search --sync --onlyvisible --name "$1" >window &
    wait -n || true # until the window is there or the program is gone
    if [ ! -s window ]; then
        kill "$program" 2>/dev/null || true
        echo "the window $1 didn't appear"
        exit 1
    fi
    xdotool windowfocus --sync "$(head -1 window)" key "${@:2}"
}
press_if_there() {
    local found
    found=$(xdotool search --onlyvisible --name "$1" | head -1) || true
    [ -z "$found" ] || xdotool windowfocus "$found" key "$2" || true # it may have gone meanwhile
}

# press_until CONDITION TITLE KEY: presses a key in a window, if that is there, until a condition holds. A message that the
# key came too early is closed.
press_until() {
    local condition=$1 title=$2
    until eval "$condition"; do
        press_if_there '^Renamer$' Return
        press_if_there "$title" "$3"
    done
}
# The list of actions, its entry "Prefix" with a check; the box beside it; preview. Rename when that is done, and quit.
press '^Quillmark - Renamer$' alt+a p space alt+i m y underscore alt+p
press_until '[ -e my_second.txt ]' '^Quillmark - Renamer$' alt+r
press_until '! kill -0 "$program" 2>/dev/null' '^Quillmark$' ctrl+q
wait "$program" || { echo "the program ended with status $?"; exit 1; }
