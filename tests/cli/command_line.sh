#!/bin/sh
# The sub-commands for people: what they print and how they exit.
cli=$1
out=$(mktemp)
err=$(mktemp)
file=$(mktemp)
trap 'rm -f "$out" "$err" "$file"' EXIT
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

runs 0 solve --topic "Arithmetic Principles" --problem=0x=0
prints "0x=0"
prints "       Since 0 equals 0 then x can be any real number."

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
runs 0 solve --topic "Converting Feet To Yards" --problem 3 --answer x --set UseFractions=false \
    --set mnuShowStep=true
runs 0 solve --topic "Meter Conversions" --box 4=5 --list 1=1 --list 1=0 --list 2=0
prints "5 mm = 5 mm"

runs 0 solve --topic "Subtraction" --box 1=1000 --box 2=1
prints "0  10 10 10"
prints "1  0  0  0"
for command in "solve --problem 1/2" "type 1/2" example learn; do
    # shellcheck disable=SC2086  # each is several words
    runs 2 $command --topic "fraction arithmetic"
    tells 'numerello-cli: unknown topic "fraction arithmetic"'
    tells "    Fraction Arithmetic"
    tells '"numerello-cli topics" lists'
done
runs 0 solve --topic "Fraction Arithmetic" --problem 1/2+1/3
prints "#1/2#+#1/3#"

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

saved='Addition BB  BB 47 BB 38 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 200'
printf '%s\r\n' "$saved" >"$file"
runs 0 solve --file "$file"
prints " 2. Add 7 and 8 (15) ."
prints "      8 5"
runs 0 solve --file "$file" --json
prints '"code":200'
printf 'Converting Inches To Yards BB 4x0 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 53' >"$file"
runs 0 solve --file "$file" --set RoundDigits=4
prints "40 inches = 1.1111 yards"
tells "The key 'x' was refused"
printf 'Means BB 3,4 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 62\n' >"$file"
runs 0 solve --file "$file"
prints "3.5"
printf 'Arithmetic BB 4+ BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n' >"$file"
runs 1 solve --file "$file"
tells "The format of the entered problem was not recognized."
printf 'Proportions BB  BB 1 BB 2 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 20\n' >"$file"
runs 1 solve --file "$file"
tells "not entered completely"
runs 2 solve --file "$file" --set Colour=1
runs 2 solve --file "$file" --topic "Addition"
runs 2 solve --file "$file" --problem 4
runs 2 solve --file "$file" --box 1=4
runs 2 solve --file "$file" --list 1=0

printf '%s' "${saved% BB 200}" >"$file"
runs 1 solve --file "$file"
tells "$file has fewer than twelve fields"
runs 1 solve --file "$file" --json
prints '"ok":false,"error":"'"$file"' has fewer than twelve fields"'
tells "$file has fewer than twelve fields"
printf '%s' "${saved% 200}" >"$file"
runs 1 solve --file "$file"
tells "has fewer than twelve fields"
printf '%s two hundred' "${saved% 200}" >"$file"
runs 1 solve --file "$file"
tells "has no topic code in its twelfth field"
printf 'Long %s' "$saved" >"$file"
runs 1 solve --file "$file"
tells "names no topic of the catalogue"
head -c 1048577 /dev/zero >"$file"
runs 1 solve --file "$file"
tells "is longer than 1048576 bytes"
: >"$file"
runs 1 solve --file "$file"
tells "has fewer than twelve fields"
runs 1 solve --file none.nrl
tells "none.nrl cannot be used: No such file or directory"
runs 1 solve --file /
tells "Is a directory"
runs 1 solve --file /dev/null
tells "is not a file on a disk"
runs 1 solve --file ''

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
runs 0 learn
prints "Type the beginning of a topic"
runs 0 learn --topic "Addition"
prints "Enter numbers into both boxes."
runs 2 learn --topic "Lengths"
tells "unknown topic"
runs 0 example --topic "Proportions"
prints "First numerator = "
runs 0 example --topic "Addition" --complex --count 3
if ! awk '!/^Top box = [0-9][0-9], Lower box = [0-9][0-9]$/ { exit 1 } END { exit NR != 3 }' "$out"; then
    echo "not three complex additions"
    failed=1
fi
runs 2 example --topic "Addition" --count 0
runs 2 example --topic "Lengths"
tells "unknown topic"
runs 2 example

if "$cli" topics --json >/dev/full 2>"$err"; then
    echo "a full disk was not noticed"
    failed=1
fi
tells "could not be written"

exit $failed
