#!/usr/bin/env bash
# Runs the commands of a document as they are written, one after the other in one shell, as its reader would.
#
#   commands_test.sh DOCUMENT SOURCES PROGRAMS
#
# DOCUMENT lies below SOURCES; PROGRAMS is the folder of vantorra-batch. Blocks fenced with "```sh" are run; those fenced
# with "```sh by-hand" are not, as they need root, other machines, or minutes. The shell starts in a folder that holds
# the sample videos in "raw", some of them under hostile names, two episodes with companions in "season", and an empty
# folder "mkv"; ~/Videos is that folder.
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
mkdir -p season/fonts
cp "raw/two languages.mkv" "season/Episode 1.mkv"
cp raw/clip.mp4 "season/Episode 2.mkv"
printf '1\n00:00:00,200 --> 00:00:01,800\nHello\n' >"season/Episode 1.en.srt"
ffmpeg -nostdin -v error -f lavfi -i sine=duration=2 "season/Episode 1.mp3"
printf 'Title=Comments\nLanguage=German (ger)\n' >"season/Episode 1.mp3.opt"
printf '00:00:00.000 Intro\n00:00:01.000 Act Two\n' >"season/Episode 1_Chapters.txt"
echo font >season/fonts/harbour.ttf
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
    # What the jq expression $3 makes of what mkvmerge says of the file $1 has to be $2.
    holds() {
        local found
        found=$(mkvmerge --identification-format json --identify "$1" | jq -r "$3")
        [ "$found" = "$2" ] || fail "$1 holds \"$found\", not \"$2\""
    }
    of_type() { echo "[.tracks[] | select(.type == \"$1\") | .properties$2] | map(tostring) | join(\" \")"; }
    holds "kept/two languages.mkv" eng "$(of_type audio .language)"
    holds "subtitled/Episode 1.mkv" "eng und" "$(of_type subtitles .language)"
    holds "spoken/Episode 1.mkv" "eng eng" "$(of_type subtitles .language)"
    holds "commented/Episode 1.mkv" "eng ger ger" "$(of_type audio .language)"
    holds "commented/Episode 1.mkv" "null null Comments" "$(of_type audio .track_name)"
    holds "chaptered/Episode 1.mkv" 2 '.chapters[0].num_entries'
    holds "lettered/Episode 2.mkv" harbour.ttf '[.attachments[].file_name] | join(" ")'
    holds "titled/Episode 2.mkv" "Harbour Lights" '.container.properties.title'
    [ -n "$(find pieces -name 'Episode 1*.mkv')" ] || fail "nothing was cut"
    [ -s "outbox/Episode 1.mkv" ] && [ -z "$(find inbox -name '*.mkv')" ] || fail "the sources are not cleared away"
    ;;
esac
echo "$document: $blocks blocks ran"
