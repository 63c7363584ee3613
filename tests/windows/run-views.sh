#!/bin/sh
# Tests the dialogs: runs the scripts of the tests for pages with window messages, and complete runs of the wizard
# inside a script host, whose pages and files must be the same as those of the command.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh
orders=examples/data/orders.xlsx

new_prefix
keep_server
register "$windows/Plotsmith.dll" "$windows/PlotsmithTestHost.dll" "$windows/PlotsmithTestBoxes.dll"

timeout 1800 wine "$windows/plotsmith_view_tests.exe" >"$work/tests.txt" 2>/dev/null || fails "exit code $?" "the dialogs"
passed=$((passed + $(grep -c '^\[       OK \]' "$work/tests.txt" || true)))
grep -E '^\[  FAILED  \]|Failure|Which is' "$work/tests.txt" || true

script_checks tests/windows/monkey.js "$(windows_path $orders)" "$(windows_path "$work")"

# Makes a chart of a type, from the first page to the last, and compares each page before its button is pressed: TYPE
# OPTION...
same_run() {
  type=$1
  build/plotsmith new $orders --table Data1 --type "$@" --print-script | sed 's/^press /show\n&/' >"$work/script.txt"
  build/plotsmith wizard $orders --script "$work/script.txt" -o "$work/linux.xlsx" >"$work/linux.txt" 2>/dev/null ||
    fails "exit code $?" "the command's own $type"
  rm -f "$work/windows.xlsx"
  timeout 120 wine "$cscript" //nologo "$(windows_path tests/windows/wizard.js)" "$(windows_path $orders)" \
    "$(windows_path "$work/script.txt")" "$(windows_path "$work")\\windows.xlsx" 2>/dev/null | tr -d '\r' >"$work/printed.txt"
  sed 1d "$work/printed.txt" | sed '$d' >"$work/windows.txt"
  if [ -n "$(head -n 1 "$work/printed.txt")" ]; then
    fails "$(head -n 1 "$work/printed.txt")" "$type"
  elif ! difference=$(cmp "$work/linux.xlsx" "$work/windows.xlsx" 2>&1); then
    fails "$difference" "$type: file"
  else
    same_file "$type: pages" "$work/windows.txt" "$work/linux.txt"
  fi
}

same_run column --title "Amount by region" --series Product --set stacked --new-sheet Charts
same_run bar --title "Costs against amounts" --series-columns Amount Cost --new-sheet Bars
same_run area --title "Shares" --categories Quarter --series Product --set stacked 100% --new-sheet Areas
same_run pie --title "Where they come from" --categories Product --labels percentages --set exploded --new-sheet Pies
same_run bubble --title "Products" --categories Product --values Amount --x-values Cost --sizes Units --series Product \
  --comment "Bubbles" --new-sheet Bubbles
same_run "strategic bucket" --title "Amounts and targets" --categories Product --series Product \
  --bucket-table VEX_SB_Targets --labels names --new-sheet Buckets
finish
