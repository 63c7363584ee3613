#!/bin/sh
# Checks the DLLs of 64 and of 32 bits: exports, imports, size and version information.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh

expected_exports="DllCanUnloadNow
DllGetClassObject
DllInstall
DllRegisterServer
DllUnregisterServer"
system="ADVAPI32.dll
GDI32.dll
KERNEL32.dll
OLEAUT32.dll
USER32.dll
msvcrt.dll
ole32.dll"
version=$(sed -n 's/^project(plotsmith VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)

# Prints the version information of a DLL, each name followed by its text on the next line: DLL.
version_texts() {
  objcopy -O binary --only-section=.rsrc "$1" /dev/stdout | iconv -f UTF-16LE -t UTF-8 -c | tr '\0' '\n' | grep -v '^$' |
    grep -A 1 -E '(FileVersion|OriginalFilename|ProductName|ProductVersion)$' | grep -v -x -e -- |
    sed -E 's/.*(FileVersion|OriginalFilename|ProductName|ProductVersion)$/\1/'
}

# Prints the names of the operations in the type library of a DLL: DLL.
operations() {
  objcopy -O binary --only-section=.rsrc "$1" /dev/stdout | strings |
    grep -oE 'RunPlotsmith|RefreshPlotsmithData|RefreshChartsForTable|UpdateChartColumnNamesForTable'
}

# Checks the DLL of a preset: PRESET FORMAT.
look_at() {
  library=$root/build-$1/Plotsmith.dll
  objdump -p "$library" | sed -n 's/^\t\[ *[0-9]*\] \(Dll.*\)$/\1/p' >"$work/exports"
  same_file "$1: exports" "$work/exports" "$work/expected-exports"
  objdump -p "$library" | sed -n 's/^\tDLL Name: //p' | LC_ALL=C sort >"$work/imports"
  same_file "$1: libraries that it needs" "$work/imports" "$work/expected-imports"
  objdump -f "$library" | grep -q "file format $2\$" && passes || fails "its format isn't $2" "$1"
  size=$(stat -c %s "$library")
  [ "$size" -lt 3000000 ] && passes || fails "it has $size bytes" "$1"
  version_texts "$library" >"$work/version"
  same_file "$1: version" "$work/version" "$work/expected-version"
  operations "$library" >"$work/operations"
  same_file "$1: type library" "$work/operations" "$work/expected-operations"
}

printf '%s\n' "$expected_exports" >"$work/expected-exports"
printf '%s\n' "$system" >"$work/expected-imports"
printf '%s\n' FileVersion "$version" OriginalFilename Plotsmith.dll ProductName "Brindle Plotsmith" ProductVersion \
  "$version" >"$work/expected-version"
printf '%s\n' RunPlotsmith RefreshPlotsmithData RefreshChartsForTable UpdateChartColumnNamesForTable \
  >"$work/expected-operations"
look_at windows-x64 pei-x86-64
look_at windows-x86 pei-i386
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
