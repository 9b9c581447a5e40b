#!/usr/bin/env bash
# Starts the real program with its real window on an X server of its own, hands it two files and quits it by its Exit
# button. It must end by itself with status 0 and leave the files alone.
#
# usage: start_and_quit.sh QUILLMARK
set -euo pipefail

if [ "${2:-}" != on-own-server ]; then
    script=$(realpath "$0")
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    cd "$scratch"
    touch first.txt second.txt
    env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb HOME="$scratch" XDG_DATA_HOME="$scratch/data" \
        xvfb-run -a "$script" "$1" on-own-server
    [ "$(echo *.txt)" = "first.txt second.txt" ] || { echo "the files were touched: $(ls)"; exit 1; }
    exit 0
fi

"$1" 'first.txt|second.txt' &
program=$!
timeout 120 xdotool search --sync --onlyvisible --name '^Quillmark - Renamer$' >window &
wait -n || true # until the window is there or the program is gone
if [ ! -s window ]; then
    kill "$program" 2>/dev/null || true
    echo "the window didn't appear"
    exit 1
fi
xdotool windowfocus --sync "$(cat window)" key alt+x
wait "$program" || { echo "the program ended with status $?"; exit 1; }
