#!/bin/sh
# Runs one journey through the real program on a screen and a message bus of its own.
#   run.sh PROGRAM PICTURES JOURNEY.py [SCALE]
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)

# The buses are started in this environment: a folder of their own keeps them apart from any other.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_RUNTIME_DIR="$home" XDG_CONFIG_HOME="$home/config" XDG_CACHE_HOME="$home/cache"
export PYTHONDONTWRITEBYTECODE=1
# Nothing is printed on a real printer.
export CUPS_SERVER=/nowhere
unset DISPLAY WAYLAND_DISPLAY AT_SPI_BUS_ADDRESS

timeout --kill-after=5 90 dbus-run-session -- /usr/bin/python3 "$here/$3" "$1" "$2" ${4:-}
