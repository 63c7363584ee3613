#!/bin/sh
# Draws the sample pictures in docs/images/wizard again: as SVG, and as PNG for the help, because viewers of CHM files
# show no SVG. The PNG files have two pixels per point, so that they are sharp on screens of high resolution.
# Usage: scripts/help-pictures.sh build/examples/make_pictures
set -eu

[ $# -eq 1 ] || { echo "Usage: scripts/help-pictures.sh MAKE_PICTURES" >&2; exit 2; }
command -v rsvg-convert >/dev/null || { echo "help-pictures.sh: rsvg-convert is missing (package librsvg2-bin)" >&2; exit 1; }
folder="$(dirname "$0")/../docs/images/wizard"

"$1" "$folder"
for picture in "$folder"/img*.svg; do
  rsvg-convert --dpi-x 144 --dpi-y 144 "$picture" --output "${picture%.svg}.png"
done
