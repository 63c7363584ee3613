#!/bin/sh
# Builds the 64-bit and 32-bit components, the command and the help, and makes build/PlotsmithSetup.exe from them, the
# installer for Windows. packaging/windows/installer.nsi describes its options.
set -eu
cd "$(dirname "$0")/.."
stage=$PWD/build/installer
files=$stage/files  # all files that are installed

scripts/install-dependencies.sh nsis fp-utils cmark-gfm libwine-dev $(cat scripts/windows-packages.txt)
scripts/windows-libraries.sh x64 x86
cmake --preset windows-x64 >/dev/null
cmake --build build-windows-x64 --target Plotsmith plotsmith
cmake --preset windows-x86 >/dev/null
cmake --build build-windows-x86 --target Plotsmith

# Copies texts with the line ends of Windows: FOLDER FILE... VBA can't import a class whose lines end without a carriage
# return.
copy_texts() {
  folder=$1
  shift
  mkdir -p "$folder"
  for file; do sed 's/\r*$/\r/' "$file" >"$folder/$(basename "$file")"; done
}

# Prints the licence terms of the libraries in the programs.
terms() {
  sed '/^The programs contain/,$d' packaging/copyright.in
  echo "The programs contain code of these libraries, whose terms follow."
  for name in pugixml expat utf8proc libzip libisal; do
    printf '\n--- %s ---\n' "$name"
    cat "build/windows-libraries/source/$name/debian/copyright"
  done
  for package in libz-mingw-w64-dev libcli11-dev nlohmann-json3-dev mingw-w64-common gcc-mingw-w64-base; do
    printf '\n--- %s ---\n' "$package"
    cat "/usr/share/doc/$package/copyright"
  done
}

rm -rf "$stage"
mkdir -p "$files/x64" "$files/x86"
cp build-windows-x64/Plotsmith.dll "$files/x64"
cp build-windows-x86/Plotsmith.dll "$files/x86"
x86_64-w64-mingw32-strip -o "$files/plotsmith.exe" build-windows-x64/plotsmith.exe
scripts/help-chm.sh "$files/Plotsmith.chm"
scripts/html-pages.py "$files" excel.md file-formats.md
copy_texts "$files/example" examples/excel/*
cp examples/*.xlsx examples/data/orders.xlsx "$files/example"
terms >"$stage/terms.txt"
copy_texts "$files" "$stage/terms.txt"
packaging/windows/make-setup.sh "$files" build/PlotsmithSetup.exe
ls -l build/PlotsmithSetup.exe
