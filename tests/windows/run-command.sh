#!/bin/sh
# Runs the commands for Windows (under Wine) and for Linux. Their output, their exit codes and their files must be the
# same, byte by byte.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh

new_prefix
linux=$root/build/plotsmith
program=$windows/plotsmith.exe
mkdir -p "$work/linux" "$work/windows"

# Copies a file into the folder of each program: FROM TO.
give() {
  for folder in linux windows; do
    mkdir -p "$work/$folder/$(dirname "$2")"
    cp "$1" "$work/$folder/$2"
  done
}

# Runs a program in its folder, and stores its output and its exit code there: FOLDER PROGRAM ARGUMENT...
run_in() {
  (
    cd "$work/$1"
    shift
    code=0
    "$@" >out.txt 2>err.txt || code=$?
    echo "$code" >code.txt
  )
}

# Checks that both programs do the same with the same input: CASE ARGUMENT...
same() {
  case=$1
  shift
  run_in linux "$linux" "$@" <"$work/input.txt"
  run_in windows wine "$program" "$@" <"$work/input.txt"
  if difference=$(diff -rq "$work/linux" "$work/windows"); then
    passes
  else
    fails "$difference" "$case"
    diff "$work/linux/err.txt" "$work/windows/err.txt" || true
  fi
}

# Checks that the program for Windows refuses and doesn't change other files: CASE SENTENCE ARGUMENT...
refuses() {
  case=$1 sentence=$2
  shift 2
  rm -rf "$work/before"
  cp -a "$work/windows" "$work/before"
  run_in windows wine "$program" "$@" <"$work/input.txt"
  if [ "$(cat "$work/windows/code.txt")" != 3 ]; then
    fails "exit code $(cat "$work/windows/code.txt")" "$case"
  elif [ "$(cat "$work/windows/err.txt")" != "plotsmith: $sentence" ]; then
    fails "$(cat "$work/windows/err.txt")" "$case"
  elif ! difference=$(diff -rq -x out.txt -x err.txt -x code.txt "$work/before" "$work/windows"); then
    fails "$difference" "$case"
  else
    passes
  fi
}

# Checks that a program imports only from libraries of the system: PRESET FORMAT.
imports_only_the_system() {
  file=$root/build-$1/plotsmith.exe
  foreign=$(objdump -p "$file" | sed -n 's/.*DLL Name: //p' | grep -ivxE '(kernel32|advapi32|shell32|user32|msvcrt)\.dll') || true
  if [ -n "$foreign" ]; then
    fails "it imports $foreign" "$1"
  elif ! objdump -f "$file" | grep -q "file format $2\$"; then
    fails "its format isn't $2" "$1"
  else
    passes
  fi
}

imports_only_the_system windows-x64 pei-x86-64
imports_only_the_system windows-x86 pei-i386

: >"$work/input.txt"
for book in examples/*.xlsx; do
  name=$(basename "$book")
  give "$book" "$name"
  same "refresh $name" refresh "$name"
  same "refresh $name again, with its journal" refresh "$name" --journal
done
give examples/data/orders.xlsx orders.xlsx
new() { same "new $*" new orders.xlsx --table Data1 --type "$@"; }
new column --title "Amount by region" --series Product --set stacked --new-sheet Charts
new bar --title "Costs against amounts" --series-columns Amount Cost --new-sheet Bars
new area --title "Shares of the products" --categories Quarter --series Product --set stacked 100% --new-sheet Areas
new pie --title "Where the amounts come from" --categories Product --labels percentages --set exploded --new-sheet Pies
new bubble --title "Products" --categories Product --values Amount --x-values Cost --sizes Units --series Product \
  --new-sheet Bubbles
new "strategic bucket" --title "Amounts and targets" --categories Product --series Product --bucket-table VEX_SB_Targets \
  --labels names --new-sheet Buckets

for verb in tables charts check; do same "$verb --json" "$verb" orders.xlsx --json; done
same "several books into a folder" refresh orders.xlsx countries.xlsx -o .
give examples/data/orders.xlsx copies/orders.xlsx
same "several books" refresh orders.xlsx countries.xlsx --verbose
same "several books into a folder" refresh orders.xlsx countries.xlsx -o copies
same "the standard output" refresh orders.xlsx -o -
same "save" save countries.xlsx -o saved.xlsx
same "another kind of workbook" save countries.xlsx -o saved.xlsm
same "help" new --help
same "a missing file" refresh "fehlt: nichts.xlsx"
same "a folder" refresh copies
same "no such command" /refresh countries.xlsx
give examples/countries.xlsx "Übersicht Köln/Länder – 日本.xlsx"
same "a path with blanks and letters of several scripts" refresh "Übersicht Köln/Länder – 日本.xlsx"
same "such a path as the output" refresh countries.xlsx -o "Übersicht Köln/neu ü.xlsx"
same "such a title" new orders.xlsx --table Data1 --type pie --title "Umsätze „2024“ 東京" --new-sheet "Übersicht ä"
printf '0.00\t1.005\n#,##0 "€"\t1234.5\n' >"$work/input.txt"
same "the standard input, with unchanged line ends" format --tsv
: >"$work/input.txt"

give examples/electricity.xlsx read-only.xlsx
chmod a-w "$work/windows/read-only.xlsx"
refuses "a read-only file" \
  'can'"'"'t save "read-only.xlsx": can'"'"'t write read-only.xlsx: Permission denied; nothing was changed.' \
  refresh countries.xlsx -o read-only.xlsx
chmod u+w "$work/windows/read-only.xlsx"

# This command waits for a line, then appends to the workbook.
give examples/electricity.xlsx held.xlsx
mkfifo "$work/script"
(cd "$work/windows" && exec wine cmd /c 'set /p line=>>held.xlsx' <"$work/script" >/dev/null 2>&1) &
holder=$!
exec 9>"$work/script"
sleep 3
refuses "a file that another program has open" \
  'can'"'"'t save "held.xlsx": can'"'"'t write held.xlsx: another program has it open; nothing was changed.' \
  refresh countries.xlsx -o held.xlsx
echo >&9
exec 9>&-
wait "$holder" || true
give examples/electricity.xlsx held.xlsx
same "the same file when it is closed" refresh countries.xlsx -o held.xlsx

finish
