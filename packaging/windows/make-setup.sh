#!/bin/sh
# Makes an installer for Windows from all files of a folder, with NSIS. scripts/installer.sh fills the folder.
# Usage: packaging/windows/make-setup.sh FOLDER SETUP.exe [VERSION]
# The default is the project's version; tests of an upgrade give another one.
set -eu

case $# in
  2 | 3) ;;
  *) echo "Usage: packaging/windows/make-setup.sh FOLDER SETUP.exe [VERSION]" >&2; exit 2 ;;
esac
files=$(realpath "$1")
setup=$(realpath "$2")
cd "$(dirname "$0")/../.."
facts=build-windows-x64/src/windows/generated/Plotsmith.rc  # resources of Plotsmith.dll
[ -f "$facts" ] || { echo "make-setup.sh: $facts isn't there; scripts/installer.sh builds it" >&2; exit 1; }
lists=$(mktemp)
trap 'rm -f "$lists"' EXIT

# Prints a value of the DLL's version resource: NAME.
fact() { sed -n "s/.*VALUE \"$1\", \"\(.*\)\"/\1/p" "$facts"; }

# Prints what installer.nsi has to do with each file.
list_files() {
  echo '!macro DeleteFiles'
  find . -mindepth 1 -depth -type f -printf '  Delete "$INSTDIR/%P"\n' -o -printf '  RMDir "$INSTDIR/%P"\n'
  echo '!macroend'
  echo '!macro WaitForFiles FOLDER'
  find . '(' -name '*.dll' -o -name '*.exe' -o -name '*.chm' ')' -printf '  !insertmacro WaitForFile "${FOLDER}" "%P"\n'
  echo '!macroend'
}

(cd "$files" && list_files) | sed 's|/|\\|g' >"$lists"
makensis -V2 -WX -NOCD -DPRODUCT="$(fact ProductName)" -DPUBLISHER="$(fact CompanyName)" \
  -DVERSION="${3:-$(fact ProductVersion)}" -DSIZE="$(du -sk "$files" | cut -f 1)" -DFILES="$files" -DLISTS="$lists" \
  -DSETUP="$setup" packaging/windows/installer.nsi
