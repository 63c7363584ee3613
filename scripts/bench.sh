#!/bin/sh
# Measures the large refresh against unzip, the growth of whole runs, pictures against LibreOffice's, and single parts.
# All results are ratios within this run.
# Usage: scripts/bench.sh [PAIRS]
set -eu
cd "$(dirname "$0")/.."
pairs=${1:-9}

scripts/install-dependencies.sh unzip
cmake --preset release >/dev/null
cmake --build build --target plotsmith make_book measure plotsmith_bench
command=build/plotsmith
bench=build/bench
books=$bench/books
out=$bench/out.xlsx

# The workbooks are kept until the program that makes them changes.
mkdir -p "$books"
if [ ! -f "$books/made" ] || [ "$bench/make_book" -nt "$books/made" ]; then
  rm -f "$books"/*
  echo "Making the workbooks ..."
fi
make_book() {
  [ -f "$books/$2" ] || "$bench/make_book" "$1" "$books/$2" $3
}
make_book data big.xlsx "1000000 1"
for n in 100 200 400; do make_book data "charts-$n.xlsx" "10000 $n"; done
for n in 100 1000; do make_book data "many-charts-$n.xlsx" "1000 $n"; done
for n in 2500 5000 10000; do make_book names "names-$n.xlsx" "$n"; done
touch "$books/made"
# The same charts again: as a user searches them, and with twice the categories.
for n in 100 200 400; do
  $command refresh "$books/charts-$n.xlsx" -o "$books/again-$n.xlsx"
  cp "$books/again-$n.xlsx" "$books/grown-$n.xlsx"
  "$bench/make_book" regions "$books/grown-$n.xlsx" 10000 24
done

echo "== One million rows by eight columns, one chart: open to saved file"
"$bench/measure" pairs $command "$books/big.xlsx" "$out" "$pairs"
echo "== Growth: processor time and peak memory as multiples of the smallest book's; each: per unit of the count"
grow() {
  what=$1 kind=$2
  shift 2
  books_of=
  for n in "$@"; do books_of="$books_of $n=$books/$kind-$n.xlsx"; done
  # shellcheck disable=SC2086  # a list of words
  "$bench/measure" growth $command "$out" "$what" $books_of
}
grow "charts over one table of 10,000 rows, drawn for the first time" charts 100 200 400
grow "the same charts, drawn again" again 100 200 400
grow "the same charts, with twice the categories" grown 100 200 400
grow "charts over one table of 1,000 rows, drawn for the first time" many-charts 100 1000
grow "defined names, every tenth a table; one chart" names 2500 5000 10000
echo "== 1000 small workbooks in one call"
if [ ! -d "$books/many" ]; then
  "$bench/make_book" data "$books/small.xlsx" 20 1
  mkdir "$books/many"
  for n in $(seq 1000); do cp "$books/small.xlsx" "$books/many/$n.xlsx"; done
fi
# shellcheck disable=SC2016  # the inner shell expands the variables
"$bench/measure" faster "one call beside a call for each workbook, times as fast" 5 \
  $command refresh "$books"/many/*.xlsx -- \
  sh -c 'command=$1; shift; for book; do "$command" refresh "$book"; done' loop $command "$books"/many/*.xlsx
echo "== The wizard over a table of 100,000 rows by 200 columns"
[ -f "$books/wide.xlsx" ] || "$bench/make_book" wide "$books/wide.xlsx" 100000 200
new="$command new $books/wide.xlsx --table Data1 --type column --new-sheet Charts --series-columns"
$new "Number 3" -o "$books/wide-made.xlsx"
# shellcheck disable=SC2086  # lists of words
{
  "$bench/measure" beside "processor time of new / refresh of the same chart" 5 $new "Number 3" -o "$out" -- \
    $command refresh "$books/wide-made.xlsx" -o "$out"
  "$bench/measure" beside "processor time of new --print-script / tables" 5 $new "Number 3" --print-script -- \
    $command tables "$books/wide.xlsx"
}
echo "== Pictures of charts over a table of 100 rows"
for n in 1 50 200; do
  [ -f "$books/drawn-$n.xlsx" ] || { "$bench/make_book" data "$books/drawn-$n.xlsx" 100 "$n" && $command refresh "$books/drawn-$n.xlsx"; }
done
pictures=$bench/pictures
"$bench/measure" beside "processor time of 200 charts as PNG / of one" 5 \
  $command render "$books/drawn-200.xlsx" -o "$pictures/" --format png -- \
  $command render "$books/drawn-1.xlsx" -o "$pictures/" --format png
if command -v soffice >/dev/null; then
  for n in 1 50; do
    for format in svg png pdf; do
      # one PDF for all charts, or one file for each chart
      if [ $format = pdf ]; then to=$bench/drawn-$n.pdf; else to=$pictures/; fi
      "$bench/measure" faster "$n charts as $format beside LibreOffice's PDF, times as fast" 5 \
        $command render "$books/drawn-$n.xlsx" --format $format -o "$to" -- \
        scripts/print.sh "$books/drawn-$n.xlsx" "$pictures"
    done
  done
else
  echo "(LibreOffice isn't installed, so the comparison with it is left out)"
fi
echo "== The parts"
"$bench/plotsmith_bench" --benchmark_min_time=0.2 2>/dev/null
