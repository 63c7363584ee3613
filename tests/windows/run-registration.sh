#!/bin/sh
# Registers and unregisters the component with regsvr32, for all users and for one user, in a new prefix. Compares the
# whole registry before, between and after.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh

new_prefix
folder="$work/Plötsmith für Excel"
mkdir -p "$folder"
cp "$windows/Plotsmith.dll" "$folder"
library=$(windows_path "$folder/Plotsmith.dll")

# Checks the exit code of regsvr32 with options: CODE OPTION...
regsvr32_exits() {
  expected=$1
  shift
  code=0
  wine regsvr32 /s "$@" "$library" >/dev/null 2>&1 || code=$?
  [ "$code" -eq "$expected" ] && passes || fails "it exits with $code instead of $expected" "regsvr32 $*"
}

# Checks that exactly these values were added to the registry below Software\Classes of a root: CASE ROOT.
values_added() {
  dump "$work/now"
  LC_ALL=C comm -13 "$work/before" "$work/now" | grep -E '\] ("|@)' |
    sed -E "s/^$2 \[Software\\\\Classes\\\\//; s/^Typelib/TypeLib/; s/=\"Z:.*Plotsmith\.dll\"/=\"LIBRARY\"/; s/=\"Z:.* Excel\"/=\"FOLDER\"/" |
    LC_ALL=C sort >"$work/added"
  same_file "$1" "$work/added" "$work/expected"
}

# Checks that the registry is the same as before: CASE.
nothing_left() {
  dump "$work/now"
  same_file "$1" "$work/now" "$work/before"
}

# Checks that VBScript can make the object by both names, or ends without output: CASE EXPECTED-LINE.
creates() {
  cat >"$work/create.vbs" <<'END'
WScript.Echo TypeName(CreateObject("Plotsmith.CPlotsmithController")) & " " & _
  TypeName(CreateObject("Plotsmith.CPlotsmithController.1"))
END
  made=$(run_script "$(windows_path "$work/create.vbs")")
  [ "$made" = "$2" ] && passes || fails "it says \"$made\"" "$1"
}

case $windows in
  *x86) platform=win32 ;;
  *) platform=win64 ;;
esac
sed "s/PLATFORM/$platform/" tests/windows/registration.txt >"$work/expected"

creates "before" ""
dump "$work/before"
regsvr32_exits 0
values_added "for all" system
creates "for all" "IPlotsmithController IPlotsmithController"
regsvr32_exits 0
values_added "for all, again" system
regsvr32_exits 0 /u
nothing_left "unregistered for all"
regsvr32_exits 0 /u
nothing_left "unregistered for all, again"

# Wine doesn't find classes of one user, but the written values are the same.
regsvr32_exits 0 /n /i:user
values_added "for the user" user
regsvr32_exits 0 /n /i:user
regsvr32_exits 0 /u /n /i:user
nothing_left "unregistered for the user"

regsvr32_exits 0 /n /i
values_added "for all, by /i" system
regsvr32_exits 0 /n /i:user
regsvr32_exits 0 /u /n /i:user
values_added "unregistered for the user, and not for all" system
regsvr32_exits 0 /u /n /i
nothing_left "unregistered for all, by /i"

regsvr32_exits 5 /n /i:everyone
nothing_left "no such scope"
creates "in the end" ""

# A registration that fails midway leaves the registry unchanged: with an earlier registration of another file, or with
# none. It fails at the interface, whose key exists only during the session and can't contain keys that persist.
wine regsvr32 /s "$(windows_path "$windows/PlotsmithTestBoxes.dll")" >/dev/null 2>&1
mkdir "$work/Other"
cp "$windows/Plotsmith.dll" "$work/Other"
cat >"$work/fail.js" <<'END'
new ActiveXObject("PlotsmithTest.Boxes").MakeVolatileKey(
    "Software\\Classes\\Interface\\{95DC0874-0F63-4B7B-97E4-0A487C3BF061}");
var exitCode = new ActiveXObject("WScript.Shell").Run(
    'regsvr32 /s "' + WScript.Arguments(0) + '"', 0, true);
WScript.Echo(exitCode);
END
fails_on_its_way() {
  dump "$work/before"
  code=$(run_script "$(windows_path "$work/fail.js")" "$(windows_path "$work/Other/Plotsmith.dll")")
  [ "$code" = 5 ] && passes || fails "regsvr32 exits with \"$code\" instead of 5" "$1"
  nothing_left "$1"
}
fails_on_its_way "a registration that fails"
regsvr32_exits 0
wine reg delete 'HKLM\Software\Classes\Interface\{95DC0874-0F63-4B7B-97E4-0A487C3BF061}' /f >/dev/null 2>&1
fails_on_its_way "another registration that fails"
finish
