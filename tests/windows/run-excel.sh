#!/bin/sh
# Runs every operation on workbooks in the test's Excel, and on the embedded host with the command for Linux. The
# journals must be the same line by line, and the saved files byte by byte.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh
corpus=$root/../shared/corpus

new_prefix
keep_server
register "$windows/Plotsmith.dll" "$windows/PlotsmithTestHost.dll" "$windows/PlotsmithTestBoxes.dll"
mkdir "$work/linux" "$work/windows" "$work/books"
cp examples/*.xlsx "$work/books"

# Compares the component's messages in the command with the texts of message boxes, which write a line end as "\r\n".
messages_differ() {
  grep -v '^plotsmith: ' "$work/said.txt" | tr -d '\r' >"$work/said-by-component.txt" || true
  sed -e 1,2d -e '/^$/d' -e 's/ \[OK\]\( of Please Wait\)*:/:/' -e 's/\\r\\n/\n/g' "$work/printed.txt" | diff "$work/said-by-component.txt" -
}

# Runs the script of one operation, with the variables of `same`.
operate() {
  run_script "$(windows_path "tests/windows/$script")" "$operation" "$(windows_path "$book")" \
    "$(windows_path "$work/windows")\\book.xlsx" "$(windows_path "$work/windows")\\journal.txt" "$table" "$old" "$new" \
    >"$work/printed.txt"
}

# Compares one operation on both hosts: CASE OPERATION SCRIPT BOOK [TABLE [OLD NEW]]
same() {
  case=$1 operation=$2 script=$3 book=$4 table=${5:-}
  case $operation in
    refresh) set -- refresh "$book" ;;
    table) set -- refresh "$book" --table "$table" ;;
    rename) set -- rename-columns "$book" "$6=$7" --table "$table" ;;
  esac
  rm -f "$work/linux"/* "$work/windows"/*
  code=0
  build/plotsmith "$@" -o "$work/linux/book.xlsx" --drop-broken --journal >"$work/linux/journal.txt" \
    2>"$work/said.txt" || code=$?
  if [ "$code" -gt 1 ]; then
    fails "the command exits with $code: $(head -n 1 "$work/said.txt")" "$case"
    return 0
  fi
  old=${6:-} new=${7:-}
  [ "$operation" != rename ] || old=${3%=*} new=${3#*=}
  operate
  # In one of several hundred runs, Wine ends before it has started the script.
  grep -q '^started$' "$work/printed.txt" || operate
  if [ ! -f "$work/windows/journal.txt" ]; then
    fails "printed: $(head -n 3 "$work/printed.txt") Wine: $(tail -n 3 "$work/wine.txt")" "$case: no journal"
  elif ! difference=$(diff "$work/linux/journal.txt" "$work/windows/journal.txt" 2>&1); then
    fails "$(echo "$difference" | head -n 10)" "$case: journal"
  elif ! difference=$(cmp "$work/linux/book.xlsx" "$work/windows/book.xlsx" 2>&1); then
    fails "$difference" "$case: file"
  elif ! grep -q '^calls [0-9]*, unsure 0$' "$work/printed.txt"; then
    fails "$(sed -n 2p "$work/printed.txt")" "$case: kinds of calls"
  elif ! difference=$(messages_differ); then
    fails "$difference" "$case: messages"
  else
    passes
  fi
}

# Make a chart of each type from a table.
type_of_chart() {
  build/plotsmith new examples/data/orders.xlsx --table Data1 --type "$@" -o "$work/books/$1.xlsx" 2>/dev/null ||
    fails "exit code $?" "new $1"
}
type_of_chart column --title "Amount by region" --series Product --set stacked --new-sheet Charts
type_of_chart bar --title "Costs against amounts" --series-columns Amount Cost --new-sheet Bars
type_of_chart area --title "Umsätze 東京" --categories Quarter --series Product --set stacked 100% --new-sheet Areas
type_of_chart pie --title "Where they come from" --categories Product --labels percentages --set exploded --new-sheet Pies
type_of_chart bubble --title "Products" --categories Product --values Amount --x-values Cost --sizes Units \
  --series Product --new-sheet Bubbles
type_of_chart "strategic bucket" --title "Amounts and targets" --categories Product --series Product \
  --bucket-table VEX_SB_Targets --labels names --new-sheet Buckets

# This chart can't be drawn any more, because the user has deleted headings.
run_script "$(windows_path tests/windows/rename-heading.js)" "$(windows_path "$work/books/column.xlsx")" \
  "$(windows_path "$work/books")\\renamed.xlsx" Data1 1 2 >"$work/printed.txt"
[ "$(cat "$work/printed.txt")" = '$B$1 Something else' ] || fails "$(cat "$work/printed.txt")" "a cell of a script"

for book in "$work"/books/*.xlsx; do
  name=$(basename "$book")
  same "refresh $name" refresh operate.js "$book"
  build/plotsmith tables "$book" --json 2>/dev/null | sed -n 's/^ *"id": "\([^"]*\)".*/\1/p' >"$work/tables.txt"
  while read -r table; do
    same "refresh $name, table $table" table operate.js "$book" "$table"
    same "rename in $name, table $table" rename operate.vbs "$book" "$table" Product Article
  done <"$work/tables.txt"
done
# 11 workbooks, each refreshed, and 19 tables in them, each refreshed and with a column renamed
[ $((passed + failed)) -ge 49 ] || fails "there are only $((passed + failed)) cases" "the workbooks"
if [ -d "$corpus" ]; then
  least=$((passed + failed + 60))
  for book in "$corpus"/charts/*.xls[xm]; do same "refresh $(basename "$book")" refresh operate.js "$book"; done
  [ $((passed + failed)) -ge "$least" ] || fails "there are fewer than 60 workbooks" "the corpus"
else
  echo "The workbooks of ../shared/corpus aren't there, so they are left out."
fi
finish
