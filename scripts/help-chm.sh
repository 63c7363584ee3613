#!/bin/sh
# Makes a CHM file for Windows from docs/help, with chmcmd of Debian's package fp-utils.
# Usage: scripts/help-chm.sh Plotsmith.chm
#
# chmcmd writes the full path of each numbered topic into the file, but HtmlHelp expects the path inside the file. Both
# are the same if the project is in the root folder, so chmcmd runs in its own root.
set -eu

[ $# -eq 1 ] || { echo "Usage: scripts/help-chm.sh FILE.chm" >&2; exit 2; }
for tool in chmcmd chmls; do
  command -v $tool >/dev/null || { echo "help-chm.sh: $tool is missing (package fp-utils)" >&2; exit 1; }
done
root="$(mktemp -d)"
trap 'rm -rf "$root"' EXIT

"$(dirname "$0")/help-project.py" "$root"
compiler="$(command -v chmcmd)"
libraries="$(ldd "$compiler" | grep -o '/[^ ]*')"
# It loads libpthread itself, from the folder of libc.
libc="$(echo "$libraries" | grep '/libc\.so')"
for file in $libraries "$(dirname "$libc")/libpthread.so.0"; do
  mkdir -p "$root$(dirname "$file")"
  cp -L "$file" "$root$file"
done
cp -L "$compiler" "$root/chmcmd"
change_root="chroot"
[ "$(id -u)" -eq 0 ] || change_root="unshare --map-root-user chroot"
$change_root "$root" /chmcmd Plotsmith.hhp >"$root/log" 2>&1 || { cat "$root/log" >&2; exit 1; }

chmls extract "$root/Plotsmith.chm" "/#STRINGS" "$root/strings" >/dev/null 2>&1
if ! grep -aqF "/help/topic1-" "$root/strings" || grep -aqF "$root" "$root/strings"; then
  echo "help-chm.sh: the topic numbers in the CHM file don't refer to its topics" >&2
  exit 1
fi
cp "$root/Plotsmith.chm" "$1"
