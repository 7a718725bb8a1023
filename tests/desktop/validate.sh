#!/bin/sh
# Asks the desktop's own tools what they think of the files that are installed.
#   validate.sh DESTINATION NUMERELLO NUMERELLO_CLI VERSION
# DESTINATION is a folder that everything was installed into; the programs are those just built.
share=$1/share
numerello=$2
cli=$3
version=$4
id=com.example.numerello
status=0
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "$*" >&2
    status=1
}

# silent WHAT COMMAND...: what speaks has something to complain of
silent() {
    what=$1
    shift
    "$@" >"$scratch/output" 2>&1 || fail "$what: refused"
    if [ -s "$scratch/output" ]; then
        fail "$what:"
        cat "$scratch/output" >&2
    fi
}

silent "the desktop entry" desktop-file-validate "$share/applications/$id.desktop"
metainfo=$share/metainfo/$id.metainfo.xml
appstreamcli validate --no-net --pedantic --no-color "$metainfo" >"$scratch/output" 2>&1 ||
    fail "the metadata are refused"
if grep -E '^ *(E|W|I|P): ' "$scratch/output" >&2; then
    fail "the metadata are complained of"
fi
grep -q "<release version=\"$version\"" "$metainfo" || fail "the metadata are of another version"

# The file type is known, by the name of its files.
mkdir -p "$scratch/mime"
cp -r "$share/mime/packages" "$scratch/mime/"
silent "the file type" env XDG_DATA_HOME="$scratch" update-mime-database "$scratch/mime"
grep -qx '50:application/x-numerello:\*\.nrl' "$scratch/mime/globs2" ||
    fail "the file type is not known by its ending"
grep -qx 'MimeType=application/x-numerello;' "$share/applications/$id.desktop" ||
    fail "the program does not open its own files"

# Every example is a problem that the program loads and works.
count=0
for example in "$share"/numerello/examples/*.nrl; do
    count=$((count + 1))
    "$cli" solve --file "$example" --answer 2 --answer 3 --answer 4 >"$scratch/output" ||
        fail "$example: not solved"
done
[ "$count" -eq 8 ] || fail "there are $count examples for the 8 topics of no tree"

# Manual pages: nothing to warn of, the version, every command and every option.
for page in numerello numerello-cli; do
    gzip -dc "$share/man/man1/$page.1.gz" >"$scratch/$page.1" || fail "there is no manual of $page"
    silent "the manual of $page" sh -c "LC_ALL=C.UTF-8 MANWIDTH=80 \
        man --warnings -E UTF-8 -l '$scratch/$page.1' 2>&1 >/dev/null"
    grep -q "Numerello $version" "$scratch/$page.1" || fail "the manual of $page is of another version"
done

# manual PAGE: its words, with plain hyphens
manual() {
    sed 's/\\-/-/g' "$scratch/$1.1"
}
words() {
    manual "$1" | grep -qE -- "(^|[^a-z-])$2([^a-z-]|\$)" || fail "the manual of $1 has no $2"
}
for option in $(QT_QPA_PLATFORM=offscreen "$numerello" --help 2>/dev/null | grep -oE '^ *(-[a-z], )?--[a-z-]+' |
    grep -oE -- '--[a-z-]+'); do
    words numerello "$option"
done
commands=$("$cli" --help | sed -n '/^Subcommands:/,$p' | grep -oE '^  [a-z]+')
[ -n "$commands" ] || fail "the command line lists no commands"
for command in $commands; do
    words numerello-cli "$command"
    for option in $("$cli" "$command" --help | grep -oE '^  (-[a-z],)?--[a-z]+' |
        grep -oE -- '--[a-z]+'); do
        words numerello-cli "$option"
    done
done

# Every icon is a picture of the size that its folder promises.
icons=0
for icon in "$share"/icons/hicolor/*x*/*/*.png; do
    size=$(basename "$(dirname "$(dirname "$icon")")")
    # Width and height stand in the header as two numbers of four bytes.
    real=$(od -An -tu1 -j16 -N8 "$icon" |
        awk '{print $1*16777216+$2*65536+$3*256+$4 "x" $5*16777216+$6*65536+$7*256+$8}')
    [ "$size" = "$real" ] || fail "$icon is $real"
    icons=$((icons + 1))
done
[ "$icons" -eq 16 ] || fail "there are $icons icons, not 8 of the program and 8 of its files"
for name in $(sed -n 's/^Icon=//p' "$share/applications/$id.desktop") application-x-numerello; do
    for context in apps mimetypes; do
        [ -s "$share/icons/hicolor/scalable/$context/$name.svg" ] && continue 2
    done
    fail "there is no icon $name"
done
exit $status
