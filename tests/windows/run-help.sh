#!/bin/sh
# Opens the topics of Plotsmith.chm by number, like the Help buttons, with Wine's HTML Help, whose trace names the
# opened page.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh

new_prefix
# The trace of calls between libraries is limited to those of HTML Help.
wine reg add 'HKCU\Software\Wine\Debug' /v RelayInclude /d 'hhctrl.ocx.HtmlHelpA;hhctrl.ocx.HtmlHelpW' /f >/dev/null 2>&1
folder="$work/Hilfe für Plotsmith"
mkdir "$folder"
scripts/help-chm.sh "$folder/Plotsmith.chm"
help=$(windows_path "$folder/Plotsmith.chm")
numbers=$(sed -n 's/^\([0-9][0-9]*\)\t.*/\1/p' docs/help/topics.tsv)

# Opens topics one after the other: FILE NUMBER...
open_topics() {
  WINEDEBUG=+htmlhelp,+relay timeout 20 wine "$windows/plotsmith_windows_help.exe" "$@" >"$work/printed" 2>"$work/trace" ||
    fails "it exits with $?" "$*"
  tr -d '\r' <"$work/printed" >"$work/said"
}

# Checks that no topic is opened and that a message box gives the reason: CASE FILE SENTENCE.
says() {
  open_topics "$2" 1
  printf '1: Brindle Plotsmith [OK]: %s\n' "$3" >"$work/expected"
  same_file "$1" "$work/said" "$work/expected"
}

# shellcheck disable=SC2086  # a list of words
open_topics "$help" $numbers
sed -n 's/.*:navigate_url L"mk:@MSITStore:.*::\/\(.*\)"$/\1/p' "$work/trace" >"$work/pages"
sed -n 's/^[0-9][0-9]*\t\([^\t]*\)\t.*/help\/\1/p' docs/help/topics.tsv >"$work/expected"
same_file "pages by number" "$work/pages" "$work/expected"
cp "$work/expected" "$work/expected-pages"
echo "$numbers" | sed 's/$/: /' >"$work/expected"
same_file "no boxes" "$work/said" "$work/expected"

# Wine's code page has all letters of this folder, but not all of the next one.
function_of() { sed -n 's/.*Call hhctrl.ocx.\(HtmlHelp[AW]\)(.*/\1/p' "$work/trace" | head -n 1; }
[ "$(function_of)" = HtmlHelpA ] && passes || fails "it is $(function_of)" "the function for a path in the code page"
other="$work/Справка"
mkdir "$other"
cp "$folder/Plotsmith.chm" "$other"
open_topics "$(windows_path "$other/Plotsmith.chm")" 1
sed -n 's/.*:navigate_url L"mk:@MSITStore:.*::\/\(.*\)"$/\1/p' "$work/trace" >"$work/pages"
head -n 1 "$work/expected-pages" >"$work/expected"
same_file "the page, of a path beyond the code page" "$work/pages" "$work/expected"
[ "$(function_of)" = HtmlHelpW ] && passes || fails "it is $(function_of)" "the function for a path beyond the code page"

open_topics "$help" 99
printf '99: Brindle Plotsmith [OK]: HTML Help can'"'"'t show topic 99 of "%s".\n' "$help" >"$work/expected"
same_file "no such number" "$work/said" "$work/expected"
says "no path" "" "The host hasn't set the path of the help file."
missing=$(windows_path "$folder")\\None.chm
says "no file" "$missing" "The help file \"$missing\" isn't there."
echo "not a CHM file" >"$folder/Text.chm"
text=$(windows_path "$folder/Text.chm")
says "not a help file" "$text" "HTML Help can't show topic 1 of \"$text\"."
finish
