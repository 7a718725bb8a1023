#!/bin/sh
# Runs window tests on a real screen with a window manager instead of offscreen.
#   on_screen.sh TESTS [ARGUMENT...]
set -eu
home=$(mktemp -d)
mkfifo "$home/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$home/number" 2>/dev/null &
screen=$!
trap 'kill $screen 2>/dev/null; rm -rf "$home"' EXIT
read -r number <"$home/number"
export DISPLAY=":$number" XDG_RUNTIME_DIR="$home" NUMERELLO_TESTS_ON_SCREEN=1
openbox --sm-disable >/dev/null 2>&1 &
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "window id"; do
    sleep 0.1
done
"$@"
