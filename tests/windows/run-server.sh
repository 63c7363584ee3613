#!/bin/sh
# Tests the component with COM clients in Wine's script hosts: arguments, guards, hostile hosts, lifetime.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh

new_prefix
register "$windows/Plotsmith.dll" "$windows/PlotsmithTestHost.dll" "$windows/PlotsmithTestBoxes.dll"

# A workbook with a chart of each of several families.
families=$work/families.xlsx
cp examples/data/orders.xlsx "$families"
add_chart() {
  build/plotsmith new "$families" --table Data1 --type "$@" >/dev/null 2>&1 || fails "exit code $?" "new $1"
}
add_chart column --title "Amount by region" --series Product --set stacked --new-sheet Charts
column=$work/column.xlsx  # only the first of them
cp "$families" "$column"
add_chart pie --title "Where they come from" --categories Product --labels percentages --new-sheet Pies
add_chart bubble --title "Products" --categories Product --values Amount --x-values Cost --sizes Units --series Product \
  --new-sheet Bubbles
add_chart "strategic bucket" --title "Amounts and targets" --categories Product --series Product \
  --bucket-table VEX_SB_Targets --new-sheet Buckets

# Usage: tests/windows/run-server.sh [SCRIPT]...
for script in ${*:-tests/windows/server/*.js}; do
  script_checks "$script" "$(windows_path "$work")" "$(windows_path "$root/examples")" \
    "$(windows_path "$families")" "$(windows_path "$column")" "${PLOTSMITH_RUNS:-1000}"
done
finish
