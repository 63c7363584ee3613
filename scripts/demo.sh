#!/bin/sh
# Refreshes the example workbooks, makes the charts of one from plain tables, and draws them. If Qt is installed, it
# also takes pictures of the wizard's pages.
set -eu
cd "$(dirname "$0")/.."
mkdir -p demo

# Lists the charts of a workbook in demo/, and draws its sheet Charts: NAME.
show() {
  build/plotsmith charts "demo/$1.xlsx" | sed 's/^/    /'
  build/plotsmith render "demo/$1.xlsx" --sheet Charts --one-page -o "demo/$1.png"
  echo "demo/$1.png: a picture of its sheet Charts"
}

for book in examples/*.xlsx; do
  name=$(basename "$book" .xlsx)
  build/plotsmith refresh "$book" -o "demo/$name.xlsx"
  echo "demo/$name.xlsx: refreshed; it has these charts:"
  show "$name"
done

# A workbook with plain tables gets a chart of each type, each on its own sheet.
book=demo/orders.xlsx
cp examples/data/orders.xlsx "$book"
new() {
  build/plotsmith new "$book" --table Data1 --type "$@"
}
new column --title "Amount by region" --series Product --set stacked --new-sheet Charts
new bar --title "Costs against amounts" --series-columns Amount Cost --new-sheet Bars
new area --title "Shares of the products" --categories Quarter --series Product --set stacked 100% --new-sheet Areas
new pie --title "Where the amounts come from" --categories Product --labels percentages --set exploded --new-sheet Pies
new bubble --title "Products" --categories Product --values Amount --x-values Cost --sizes Units --series Product \
  --new-sheet Bubbles
new "strategic bucket" --title "Amounts and targets" --categories Product --series Product --bucket-table VEX_SB_Targets \
  --labels names --new-sheet Buckets
echo "$book: made from two plain tables; it has these charts:"
show orders

if grep -q '^Qt6Widgets_DIR:PATH=/' build/CMakeCache.txt; then
  cmake --build build --target plotsmith-wizard plotsmith_wizard_shots
  scripts/wizard-shots.sh build demo/wizard
  echo "demo/wizard: the pages of the wizard, light and dark"
  echo "build/plotsmith wizard demo/orders.xlsx opens the wizard on that workbook"
else
  echo "(install Qt 6 Widgets for the wizard's window and pictures of its pages)"
fi
