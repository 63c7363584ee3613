#!/bin/sh
# Removes the files that the last installation has listed. DESTDIR must be the same as for that installation.
# Usage: scripts/uninstall.sh [LIST]
set -eu
cd "$(dirname "$0")/.."
list=${1:-build/install_manifest.txt}
if [ ! -f "$list" ]; then
  echo "There is no list of installed files in $list." >&2
  exit 1
fi
root=${DESTDIR:-}
while IFS= read -r file || [ -n "$file" ]; do
  rm -f -- "$root$file"
done <"$list"
# Only the folders of the pages and of the library contain nothing but Plotsmith's files.
sed -n -e 's|^\(.*/doc/plotsmith\)/.*|\1|p' -e 's|^\(.*/lib/plotsmith\)/.*|\1|p' "$list" | sort -u | while IFS= read -r folder; do
  if [ -d "$root$folder" ]; then find "$root$folder" -depth -type d -empty -delete; fi
done
