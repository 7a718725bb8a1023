#!/bin/sh
# The sub-commands for people: what they print and how they exit.
cli=$1
out=$(mktemp)
err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT
failed=0

# runs STATUS ARGUMENT...: runs the command and looks at its exit status
runs() {
    wanted=$1
    shift
    "$cli" "$@" >"$out" 2>"$err" </dev/null
    status=$?
    if [ "$status" -ne "$wanted" ]; then
        echo "exit $status instead of $wanted: $*"
        failed=1
    fi
}

prints() {
    if ! grep -qF -- "$1" "$out"; then
        echo "standard output lacks: $1"
        failed=1
    fi
}

tells() {
    if ! grep -qF -- "$1" "$err"; then
        echo "standard error lacks: $1"
        failed=1
    fi
}

runs 0 solve --topic "Converting Inches To Yards" --problem 40
prints " 1. To convert inches to yards, first convert inches to feet:"
prints "       Convert inches to feet, then convert feet to yards."
prints " 8. 40 inches = 1.11 yards"
prints "       Substitute the number of inches back into the equation."

runs 0 solve --topic "Converting Inches To Yards" --problem 4+0 --set RoundDigits=4
prints "40 inches = 1.1111 yards"
tells "The '+' sign is not allowed in 'Converting Inches To Yards'."

runs 0 solve --topic "Meter Conversions" --box 4=-2.5 --list 1=6 --list 2=3
prints "-2.5 km = -2500 m"

runs 0 solve --topic "Converting Feet To Yards" --problem 7 --json
prints '"failure":null'

runs 1 solve --topic "Converting Inches To Yards" --problem 4.
tells "The format of the entered problem was not recognized."
prints "4."
runs 1 solve --topic "Converting Inches To Yards" --problem=-
tells "not solved"
runs 1 solve --topic "Converting Inches To Yards" --problem=- --json
tells "not solved"
runs 1 solve --file none.nrl
runs 0 solve --topic "Converting Feet To Yards" --problem 3 --answer x --set UseFractions=false \
    --set mnuShowStep=true
runs 0 solve --topic "Meter Conversions" --box 4=5 --list 1=1 --list 1=0 --list 2=0
prints "5 mm = 5 mm"

runs 0 solve --topic "Addition" --box 1=47 --box 2=38
prints " 2. Add 7 and 8 (15) ."
prints "    + 3 8"
prints "    -------"
prints "      8 5"
runs 0 solve --topic "Division" --box 1=7 --box 2=95
tells "The numbers will be switched"
prints "    7 )9 5"
runs 0 solve --topic "Addition" --box 1=47 --box 2=38 --json
prints '"lines":[]'
runs 1 solve --topic "Division" --box 1=9999999999 --box 2=3
tells "Overflow!"
runs 1 solve --topic "Addition" --box 1=47
tells "not entered completely"

runs 2 solve --topic "Converting Inches To Parsecs" --problem 40
tells "unknown topic"
runs 2 solve --problem 40
runs 2 solve --topic "Meter Conversions" --box 7=1
runs 2 solve --topic "Meter Conversions" --box four=1
runs 2 solve --topic "Meter Conversions" --list 1
runs 2 solve --topic "Meter Conversions" --list 1=9
runs 2 solve --topic "Meter Conversions" --set RoundDigits=9
runs 2 solve --topic "Meter Conversions" --set Colour=1
runs 2
runs 2 dance
runs 2 solve --nonsense

runs 0 type --topic "Converting Inches To Feet" -- -4
prints "refused: The '-' sign is not allowed"
prints "Solve! is on."
runs 0 type --topic "Converting Inches To Feet" 4 --json
prints '"solvable":true'

runs 0 topics
prints "    Converting Inches To Yards"
prints "Lengths"
runs 0 topics --json
prints '"caption":"Solving Equations"'

runs 0 --help
prints "solve"
runs 0 --version
prints "numerello-cli"
runs 0 batch
runs 2 learn
tells "not built yet"
runs 2 example --topic "Addition" --complex
tells "not built yet"

if "$cli" topics --json >/dev/full 2>"$err"; then
    echo "a full disk was not noticed"
    failed=1
fi
tells "could not be written"

exit $failed
