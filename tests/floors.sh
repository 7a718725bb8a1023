#!/bin/sh
# An include may only point to the floor below or the same room: every room lists what it may see.
# Nothing below ui/ includes a Qt header.
cd "$1" || exit 2
status=0

check() {
    room=$1
    allowed=$2
    [ -d "$room" ] || return
    for wrong in $(grep -rhoE '^#include "[a-z]+/' "$room" --include=*.h --include=*.cpp |
        sed -E 's/#include "([a-z]+)\//\1/' | sort -u); do
        case " $room $allowed " in
            *" $wrong "*) ;;
            *)
                echo "$room/ includes $wrong/, which does not stand below it"
                status=1
                ;;
        esac
    done
}

check core ""
check notation "core"
check topics "core"
check catalogue "core notation topics"
check engine "core notation"
check typeset "core"
check columns "core notation typeset engine topics catalogue"
check worksheet "core notation typeset engine topics catalogue"
check graph "core typeset"
check output "core notation typeset engine topics catalogue columns graph"
check app "core notation catalogue topics engine typeset columns worksheet output graph"
check help "core notation catalogue topics engine typeset columns worksheet output graph app"
check cli "core notation catalogue topics engine typeset columns worksheet output graph app"

if grep -rnE '^#include <Q' core notation catalogue topics engine typeset columns worksheet output graph \
    app help cli --include=*.h --include=*.cpp 2>/dev/null; then
    echo "the files above include Qt below ui/"
    status=1
fi
exit $status
