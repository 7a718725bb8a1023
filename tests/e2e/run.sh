#!/bin/sh
# Runs one journey through the real program on a screen and a message bus of its own.
#   run.sh PROGRAM PICTURES JOURNEY.py [SCALE]
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
export PYTHONDONTWRITEBYTECODE=1 NO_AT_BRIDGE=0
exec timeout --kill-after=5 90 dbus-run-session -- /usr/bin/python3 "$here/$3" "$1" "$2" ${4:-}
