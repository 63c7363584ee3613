#!/bin/sh
# Makes docs/gallery.md and the pictures in docs/images anew, through LibreOffice.
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
mkdir -p "$out" "$images/gallery"

# Takes the top left corner of a page: PDF PAGE DPI WIDTH HEIGHT PICTURE, in pixels.
take() {
  pdftoppm -png -r "$3" -x 0 -y 0 -W "$4" -H "$5" -f "$2" -l "$2" -singlefile "$out/$1.pdf" "$images/$6"
}

# A chart whose table is gone is part of the gallery; the refresh says so.
build/examples/make_gallery "$out" >"$out/pages"
scripts/print.sh "$out/gallery.xlsx" "$out"
while read -r page dpi name; do
  take gallery "$page" "$dpi" 308 202 "gallery/$name"
done <"$out/pages"
cp "$out/gallery.md" docs/gallery.md

# What the README shows: its first chart, and the sheets Charts of two examples.
cp examples/data/orders.xlsx "$out/orders.xlsx"
build/plotsmith new "$out/orders.xlsx" --table Data1 --type column --title "Amount by region" --series Product --set stacked \
  --new-sheet Charts
scripts/print.sh "$out/orders.xlsx" "$out"
take orders 4 60 390 320 orders
for book in bicycle-sales investments; do
  build/plotsmith refresh "examples/$book.xlsx" -o "$out/$book.xlsx"
  scripts/print.sh "$out/$book.xlsx" "$out"
done
take bicycle-sales 2 60 666 480 bicycle-sales
take investments 2 60 832 396 investments
du -ch "$images"/*.png "$images"/gallery/*.png | tail -n 1
