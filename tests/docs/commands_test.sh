#!/usr/bin/env bash
# Runs the commands of a document as they are written, one after the other in one shell, as its reader would.
#
#   commands_test.sh DOCUMENT SOURCES PROGRAMS
#
# DOCUMENT lies below SOURCES; PROGRAMS is the folder of vantorra-batch. Blocks fenced with "```sh" are run; those fenced
# with "```sh by-hand" are not, as they need root, other machines, or minutes. The shell starts in a folder that holds
# the sample videos in "raw", some of them under hostile names, and an empty folder "mkv"; ~/Videos is that folder.
set -euo pipefail
document=$1 sources=$2 programs=$3

sandbox=$(mktemp -d)
trap 'rm -rf "$sandbox"' EXIT
mkdir -p "$sandbox/home" "$sandbox/work/mkv"
ln -s "$sandbox/work" "$sandbox/home/Videos"
cd "$sandbox/work"
"$sources/scripts/sample-videos" raw
for name in "it's \"one\" \$HOME \`id\`; # x" $'two\nlines' '-dash %d {} {1} \n' ':::' '  blanks  '; do
    cp raw/clip.mp4 "raw/$name.mp4"
done
videos=$(find raw -type f -printf x | wc -c)

# Says which block it is in, so that a failure names it.
awk '
    /^```sh$/ { inside = 1; printf "printf \"== line %d\\n\"\n", NR + 1; next }
    /^```/ { inside = 0 }
    inside
' "$sources/$document" >"$sandbox/commands"
blocks=$(grep -c '^printf "== line' "$sandbox/commands" || true)
[ "$blocks" -gt 0 ] || { echo "$document holds no commands that can be run" >&2; exit 1; }

export HOME=$sandbox/home PATH=$programs:$PATH LC_ALL=C.UTF-8
unset VANTORRA_HOME XDG_DATA_HOME
bash -euo pipefail "$sandbox/commands"

fail() {
    echo "$document: $*" >&2
    exit 1
}
# What the text promises.
made=$(find mkv -maxdepth 1 -name '*.mkv' -size +0 -printf x | wc -c)
[ "$made" -eq "$videos" ] || fail "$videos videos, but $made outputs"
case $document in
docs/scaling.md)
    [ "$(tr -dc '\0' <commands | wc -c)" -eq "$videos" ] || fail "not a command for each video"
    [ -s mkv/one/clip.mkv ] && [ -s mkv/two/old.mkv ] || fail "the folders of the shows are not done"
    ;;
docs/manual.md)
    languages=$(mkvmerge --identification-format json --identify "kept/two languages.mkv" |
        jq -r '[.tracks[] | select(.type == "audio") | .properties.language] | join(" ")')
    [ "$languages" = eng ] || fail "the audio that stayed is \"$languages\""
    ;;
esac
echo "$document: $blocks blocks ran"
