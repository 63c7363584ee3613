#!/bin/sh
# Installs Plotsmith for all users and for one user, runs the installed programs, and uninstalls it, in a new prefix.
# Compares the registry and all files of the drive before, between and after.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh
# Wine would also put the entries of the start menu into the menu of the desktop.
WINEDLLOVERRIDES="$WINEDLLOVERRIDES;winemenubuilder.exe="

version=$(sed -n 's/^project(plotsmith VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
stage=$root/build/installer/files
new_prefix
setup=$(windows_path build/PlotsmithSetup.exe)
older=$(windows_path "$work")\\older.exe
drive=$WINEPREFIX/drive_c
user=$(ls "$drive/users" | grep -v Public)
for_all='C:\Program Files\Plotsmith'
menu_for_all='C:\ProgramData\Microsoft\Windows\Start Menu\Programs\Plotsmith'
programs_of_user="C:\\users\\$user\\AppData\\Local\\Programs"
for_user="$programs_of_user\\Plotsmith"
menu_for_user="C:\\users\\$user\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Plotsmith"

# Prints the folder or file of a Windows path: PATH.
unix_path() { printf '%s\n' "$drive/${1#C:\\}" | tr '\\' /; }

# Stores the current registry and files, without the folder of the uninstaller's own copy, which Wine would delete
# before the copy: NAME.
record() {
  dump "$work/$1.registry"
  (cd "$drive" && find . ! -path './users/*/Temp/~nsu*.tmp' | LC_ALL=C sort) >"$work/$1.files"
}

# Checks that the registry and the files are the same as stored: CASE NAME.
same_state() {
  record now
  same_file "$1: registry" "$work/now.registry" "$work/$2.registry"
  same_file "$1: files" "$work/now.files" "$work/$2.files"
}

# Checks the exit code of a command line that is passed unchanged to Windows: CASE CODE COMMAND-LINE. The text after /D=
# and _?= in the command line of an installer has blanks and no quotes.
exits() {
  printf '@%s\r\n@exit %%ERRORLEVEL%%\r\n' "$3" >"$work/command.bat"
  code=0
  timeout 120 wine cmd /c "$(windows_path "$work/command.bat")" >/dev/null 2>&1 || code=$?
  [ "$code" -eq "$2" ] && passes || fails "it exits with $code instead of $2" "$1"
}

# Uninstalls. The uninstaller starts a copy of itself, which Windows deletes at the next start: CASE FOLDER.
uninstall() {
  exits "$1" 0 "\"$2\\Uninstall.exe\" /S"
  wineserver -w
  wine wineboot >/dev/null 2>&1
}

# Prints the registry entries that a DLL writes for regsvr32, except the folder of the help: FOLDER PLATFORM SUBFOLDER.
classes() {
  folder=$(printf '%s\n' "$1" | sed 's/\\/\\\\/g')
  sed -E "s/PLATFORM|win64/$2/; s/LIBRARY/$folder\\\\$3\\\\Plotsmith.dll/; s/FOLDER/$folder/" tests/windows/registration.txt
}

# Prints all registry values that an installation adds, in Wine's locations. Wine has two copies of class names for all
# users, and one copy of classes for one user, as the last DLL has written them: ROOT FOLDER.
expected_values() {
  {
    classes "$2" win64 x64
    classes "$2" win32 x86 | case $1 in
      system) sed '/^TypeLib/!s/^/Wow6432Node\\/' ;;
      user) grep '\\win32\]' ;;
    esac
  } | sed 's/^/Classes\\/'
  size=$(printf '%08x' "$(du -sk "$stage" | cut -f 1)")
  sed 's/^/Microsoft\\Windows\\CurrentVersion\\Uninstall\\Plotsmith] /' <<END
"DisplayIcon"="$2\\Uninstall.exe"
"DisplayName"="Brindle Plotsmith"
"DisplayVersion"="$version"
"EstimatedSize"=dword:$size
"InstallLocation"="$2"
"NoModify"=dword:00000001
"NoRepair"=dword:00000001
"Publisher"="Brindle"
"QuietUninstallString"="\\"$2\\Uninstall.exe\\" /S"
"UninstallString"="\\"$2\\Uninstall.exe\\""
END
}

# Prints all files and folders that an installation adds: ROOT FOLDER MENU.
expected_files() {
  (cd "$stage" && find . -mindepth 1 -printf "$(printf '%s\n' "$2" | sed 's/\\/\\\\/g')\\\\%P\n")
  printf '%s\n' "$2" "$2\\Uninstall.exe" "$3" "$3\\Plotsmith Help.lnk" "$3\\Plotsmith for Excel.lnk"
  [ "$1" = system ] || printf '%s\n' "$programs_of_user"
}

# Checks that exactly the installed values and files were added since the beginning: CASE ROOT FOLDER MENU.
all_is_there() {
  record now
  LC_ALL=C comm -13 "$work/before.registry" "$work/now.registry" | grep -E '\] ("|@)' |
    sed 's/\\Typelib\\/\\TypeLib\\/' | LC_ALL=C sort >"$work/added"
  expected_values "$2" "$3" | sed "s/^/$2 [Software\\\\/" | LC_ALL=C sort -u >"$work/expected"
  same_file "$1: registry" "$work/added" "$work/expected"
  LC_ALL=C comm -13 "$work/before.files" "$work/now.files" >"$work/added"
  expected_files "$2" "$3" "$4" | sed 's/^C:/./' | tr '\\' / | LC_ALL=C sort >"$work/expected"
  same_file "$1: files" "$work/added" "$work/expected"
  diff -r "$stage" "$(unix_path "$3")" | grep -v '^Only in .*: Uninstall.exe$' >"$work/differences" || true
  same_file "$1: contents" "$work/differences" /dev/null
}

# Checks that an installed script of the host add-in refreshes a workbook with the installed component like the
# installed command: CASE FOLDER.
works() {
  copy=$(windows_path "$work")
  {
    cat "$(unix_path "$2")/example/plotsmith.js"
    cat <<'END'
var excel = new ActiveXObject("PlotsmithTestHost.Application");
var boxes = new ActiveXObject("PlotsmithTest.Boxes");
excel.Open(WScript.Arguments(0));
var addIn = new PlotsmithAddIn(excel);
addIn.refresh();
excel.SaveAs(WScript.Arguments(1));
WScript.Echo(addIn.helpFile + " " + new ActiveXObject("Scripting.FileSystemObject").FileExists(addIn.helpFile));
WScript.Echo("[" + boxes.Take() + "]");
END
  } >"$work/use.js"
  WINEDEBUG=+loaddll wine "$cscript" //nologo "$copy\\use.js" "$2\\example\\bicycle-sales.xlsx" "$copy\\script.xlsx" \
    2>"$work/loaded" | tr -d '\r' >"$work/printed"
  grep -o 'Loaded L".*[\]Plotsmith\.dll"' "$work/loaded" | sed 's/\\\\/\\/g' >>"$work/printed" || true
  printf '%s\n' "$2\\Plotsmith.chm true" "[]" "Loaded L\"$2\\x64\\Plotsmith.dll\"" >"$work/expected"
  same_file "$1: the component" "$work/printed" "$work/expected"
  exits "$1: the command" 0 \
    "\"$2\\plotsmith.exe\" refresh \"$2\\example\\bicycle-sales.xlsx\" -o $copy\\command.xlsx"
  cmp "$work/script.xlsx" "$work/command.xlsx" 2>"$work/differences" || true
  same_file "$1: the book" "$work/differences" /dev/null
}

# Makes the installer of an older version, which has files that no longer exist.
make_older() {
  cp -r "$stage" "$work/older"
  mkdir "$work/older/macros"
  echo old | tee "$work/older/macros/old.bas" >"$work/older/old.txt"
  packaging/windows/make-setup.sh "$work/older" "$work/older.exe" 0.0.9
}

# Keeps a file open in a program until the program is ended. Windows treats a loaded DLL like an open file, but Wine
# doesn't: FILE.
hold() {
  mkfifo "$work/line"
  printf '@set /p line=>>"%s"\r\n' "$1" >"$work/hold.bat"
  wine cmd /c "$(windows_path "$work/hold.bat")" <"$work/line" >/dev/null 2>&1 &
  holder=$!
  exec 9>"$work/line"
  sleep 3
}

release() {
  echo >&9
  exec 9>&-
  wait "$holder" || true
  rm "$work/line"
}

make_older
register "$windows/PlotsmithTestHost.dll" "$windows/PlotsmithTestBoxes.dll"
# Wine's script host and wineboot write their own entries when they first start.
printf 'WScript.Echo(typeof new ActiveXObject("Plotsmith.CPlotsmithController"));' >"$work/create.js"
create() { run_script "$(windows_path "$work/create.js")"; }
create >"$work/printed"
wine wineboot >/dev/null 2>&1
record before

exits "for all" 0 "$setup /S /AllUsers"
all_is_there "for all" system "$for_all" "$menu_for_all"
record all
works "for all" "$for_all"
exits "for all, again" 0 "$setup /S /AllUsers"
same_state "for all, again" all
exits "again, without an option for users" 0 "$setup /S"
same_state "again, without an option for users" all

for file in 'x86\Plotsmith.dll' Plotsmith.chm; do
  hold "$for_all\\$file"
  exits "while $file is in use" 2 "$setup /S /AllUsers"
  exits "removal while $file is in use" 2 "\"$for_all\\Uninstall.exe\" /S _?=$for_all"
  release
  same_state "while $file is in use" all
done

exits "for one user as well" 0 "$setup /S /CurrentUser"
uninstall "no longer for one user" "$for_user"
same_state "no longer for one user" all
echo mine >"$(unix_path "$for_all")/mine.txt"
uninstall "removed" "$for_all"
[ "$(cat "$(unix_path "$for_all")/mine.txt")" = mine ] && passes || fails "it is gone" "a file that was put beside"
rm -r "$(unix_path "$for_all")"
same_state "removed" before

exits "for one user" 0 "$setup /S"
all_is_there "for one user" user "$for_user" "$menu_for_user"
record user
exits "for one user, again" 0 "$setup /S /CurrentUser"
same_state "for one user, again" user
exits "for all as well" 0 "$setup /S /AllUsers"
uninstall "no longer for all" "$for_all"
same_state "no longer for all" user
uninstall "removed for one user" "$for_user"
same_state "removed for one user" before

for mode in all user; do
  case $mode in
    all) option=/AllUsers folder=$for_all ;;
    user) option=/CurrentUser folder=$for_user ;;
  esac
  exits "an older version, $mode" 0 "$older /S $option"
  [ -f "$(unix_path "$folder")/macros/old.bas" ] && passes || fails "its files are missing" "an older version, $mode"
  exits "upgrade, $mode" 0 "$setup /S $option"
  same_state "upgrade, $mode" $mode
  uninstall "removed after the upgrade, $mode" "$folder"
  same_state "removed after the upgrade, $mode" before
done

exits "an older version, elsewhere" 0 "$older /S /AllUsers /D=C:\Older charts"
exits "upgrade, moved" 0 "$setup /S /AllUsers /D=C:\Brindle charts"
all_is_there "upgrade, moved" system 'C:\Brindle charts' "$menu_for_all"
works "upgrade, moved" 'C:\Brindle charts'
# The uninstaller must not remove a component that was registered from elsewhere meanwhile.
register "$windows/Plotsmith.dll"
uninstall "removed, registered from elsewhere" 'C:\Brindle charts'
made=$(create)
[ "$made" = object ] && passes || fails "it says \"$made\"" "registered from elsewhere"
finish
