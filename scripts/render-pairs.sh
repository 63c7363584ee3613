#!/bin/sh
# Makes a page that shows Plotsmith's drawings of charts beside LibreOffice's in the same size, and measures the
# distances between their parts.
# Usage: scripts/render-pairs.sh FOLDER [BOOK...]
# Without workbooks it uses the gallery, the examples and the corpus. The page is FOLDER/index.html. If the folder
# exists already, only Plotsmith's drawings are made again.
set -eu
[ $# -ge 1 ] || { sed -n '2,5s/^# //p' "$0" >&2; exit 2; }
mkdir -p "$1"
folder=$(cd "$1" && pwd)
shift
for needed in soffice pdftoppm pdftotext pdftocairo python3; do
  command -v "$needed" >/dev/null ||
    { echo "render-pairs.sh needs $needed (Debian: libreoffice-calc, poppler-utils, python3)" >&2; exit 2; }
done
here=$(cd "$(dirname "$0")/.." && pwd)
cd "$here"
cmake --preset release >/dev/null
cmake --build build --target draw_charts make_gallery >/dev/null
if [ $# -eq 0 ]; then
  mkdir -p "$folder/made"
  [ -f "$folder/made/gallery.xlsx" ] || build/examples/make_gallery "$folder/made" >/dev/null 2>&1
  set -- "$folder/made/gallery.xlsx" examples/*.xlsx
  for book in ../shared/corpus/charts/*.xls* ../shared/corpus/charts/*.xlt*; do
    [ -f "$book" ] && set -- "$@" "$book"
  done
fi
for book in "$@"; do
  name=$(basename "$book")
  name=${name%.*}
  out=$folder/$name
  mkdir -p "$out"
  build/bench/draw_charts "$book" "$out" || continue
  [ -s "$out/charts.tsv" ] || { rm -rf "$out"; continue; }
  # LibreOffice's pictures are kept if they are newer than the workbook
  [ ! "$out/pairs.pdf" -nt "$book" ] || continue
  scripts/chart-pages.py "$book" "$out/charts.tsv" "$out/pairs.xlsx"
  scripts/print.sh "$out/pairs.xlsx" "$out" || continue
  # a page may be larger than its chart, because sheets end with a whole cell
  while IFS='	' read -r number _ width height _; do
    size=$(awk -v w="$width" -v h="$height" 'BEGIN { printf "-W %d -H %d", w * 2 + 1, h * 2 + 1 }')
    # shellcheck disable=SC2086
    pdftoppm -png -r 144 -x 0 -y 0 $size -f "$number" -l "$number" -singlefile "$out/pairs.pdf" "$out/$number-libreoffice"
  done <"$out/charts.tsv"
done
python3 scripts/compare-drawings.py "$folder"
