#!/bin/sh
# Refreshes the example workbooks and, where LibreOffice is there, makes a picture of their charts.
set -eu
cd "$(dirname "$0")/.."
mkdir -p demo
for book in examples/*.xlsx; do
  name=$(basename "$book" .xlsx)
  build/plotsmith refresh "$book" -o "demo/$name.xlsx"
  echo "demo/$name.xlsx: refreshed; these are its charts:"
  build/plotsmith charts "demo/$name.xlsx" | sed 's/^/    /'
  if command -v soffice >/dev/null && command -v pdftoppm >/dev/null; then
    scripts/print.sh "demo/$name.xlsx" demo
    pdftoppm -png -r 96 -f 2 -l 2 -singlefile "demo/$name.pdf" "demo/$name"
    rm "demo/$name.pdf"
    echo "demo/$name.png: a picture of its sheet Charts"
  else
    echo "    (LibreOffice and pdftoppm would make a picture of it)"
  fi
done
