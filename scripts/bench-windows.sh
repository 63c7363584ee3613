#!/bin/sh
# Counts the calls to Excel's members that a refresh of one chart makes, over tables of several lengths, and compares
# the numbers with those of a run that reads cell by cell. Both run under Wine.
set -eu
cd "$(dirname "$0")/.."
scripts/install-dependencies.sh wine wine64
scripts/windows-libraries.sh x64
cmake --preset release >/dev/null
cmake --build build --target make_book
cmake --preset windows-x64 >/dev/null
cmake --build build-windows-x64 --target plotsmith_windows_bench

export WINEPREFIX="$PWD/build/wine" WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
folder=build/bench/windows
mkdir -p "$folder"
for rows in 100 1000 10000; do build/bench/make_book data "$folder/$rows-rows.xlsx" "$rows" 1; done
wineboot --init >/dev/null 2>&1
cd "$folder"
wine ../../../build-windows-x64/plotsmith_windows_bench.exe 100-rows.xlsx 1000-rows.xlsx 10000-rows.xlsx | tr -d '\r'
wineserver -w
