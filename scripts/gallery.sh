#!/bin/sh
# Makes docs/gallery.md and the pictures in docs/images again: Plotsmith's with `plotsmith render`, and LibreOffice's
# beside them.
set -eu
cd "$(dirname "$0")/.."
for needed in soffice pdftoppm; do
  command -v "$needed" >/dev/null || { echo "gallery.sh needs $needed (Debian: libreoffice-calc, poppler-utils)" >&2; exit 2; }
done
scripts/install-dependencies.sh
cmake --preset release >/dev/null
cmake --build build --target plotsmith make_gallery
out=build/gallery
images=docs/images
rm -rf "$out" "$images/gallery"
mkdir -p "$out" "$images/gallery/libreoffice"

# One chart of the gallery has no table any more, and the refresh reports that.
build/examples/make_gallery "$out" >"$out/pages"
scripts/print.sh "$out/gallery.xlsx" "$out"
while read -r page dpi name what; do
  if [ "$what" = chart ]; then
    build/plotsmith render "$out/gallery.xlsx" "$name!Chart 1" -o "$images/gallery/$name.svg"
  else
    build/plotsmith render "$out/gallery.xlsx" --sheet "$name" --one-page -o "$images/gallery/$name.svg"
  fi
  # the upper left corner of the page
  pdftoppm -png -r "$dpi" -x 0 -y 0 -W 308 -H 202 -f "$page" -l "$page" -singlefile "$out/gallery.pdf" \
    "$images/gallery/libreoffice/$name"
done <"$out/pages"
cp "$out/gallery.md" docs/gallery.md

# Pictures of the README: a new chart, and the sheet Charts of two examples.
cp examples/data/orders.xlsx "$out/orders.xlsx"
build/plotsmith new "$out/orders.xlsx" --table Data1 --type column --title "Amount by region" --series Product --set stacked \
  --new-sheet Charts
build/plotsmith render "$out/orders.xlsx" "Amount by region" -o "$images/orders.svg"
for book in bicycle-sales investments; do
  build/plotsmith refresh "examples/$book.xlsx" -o "$out/$book.xlsx"
  build/plotsmith render "$out/$book.xlsx" --sheet Charts --one-page --scale 0.8 -o "$images/$book.svg"
done
du -ch "$images"/*.svg "$images"/gallery/*.svg | tail -n 1
