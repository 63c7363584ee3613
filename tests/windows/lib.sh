# Common functions of the scripts that run tests under Wine. Each script begins with `. tests/windows/lib.sh` at the
# root of the repository, and ends with `finish`.
set -eu
root=$PWD
work=$root/build/check-windows/$(basename "$0" .sh)

# The folder of the DLLs and programs. The default is 64 bits; PLOTSMITH_WINDOWS selects others.
windows=${PLOTSMITH_WINDOWS:-$root/build-windows-x64}

# Use our own Wine prefixes, without the parts that Wine would download, and without debug output.
export WINEPREFIX="$root/build/wine-new" WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
export LC_ALL=C.UTF-8

# Use one core for the programs and for Wine's server. They wait for each other in turn, so a second core doesn't help,
# but waking it up can take most of the time: on two idle cores the dialogs' tests took five times as long.
taskset -cp "$(taskset -cp $$ | sed 's/.*: //; s/[-,].*//')" $$ >/dev/null 2>&1 || true

# The full path of the script host. Wine would start a bare name through one more program.
cscript='C:\windows\system32\cscript.exe'

passed=0
failed=0

rm -rf "$work"
mkdir -p "$work"

passes() { passed=$((passed + 1)); }
# Reports a failure: REASON CASE.
fails() {
  failed=$((failed + 1))
  printf 'FAILED: %s: %s\n' "$2" "$1"
}

# Checks that a file has the expected contents: CASE FILE EXPECTED-FILE.
same_file() {
  if difference=$(diff "$3" "$2"); then
    passes
  else
    fails "$difference" "$1"
  fi
}

# Starts with a new prefix. Making one takes long, so it is copied from a prefix that is made once for each version of
# Wine. Its display driver has windows but no screen.
new_prefix() {
  template=$root/build/wine-template-$(basename "$windows")
  wine --version >/dev/null 2>&1 || { echo "Wine doesn't run here" >&2; exit 1; }
  if [ "$(cat "$template/version.txt" 2>/dev/null)" != "$(wine --version 2>/dev/null)" ]; then
    rm -rf "$template"
    (
      export WINEPREFIX="$template"
      wineboot --init >/dev/null 2>&1
      wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1
      wineserver -w
    )
    wine --version >"$template/version.txt" 2>/dev/null
  fi
  rm -rf "$WINEPREFIX"
  cp -a "$template" "$WINEPREFIX"
}

# Prints the Windows path of a file or folder, which needn't exist: FILE. Wine's drive Z is the whole file system.
windows_path() { realpath -ms "$1" | sed 's:/:\\:g; s/^/Z:/'; }

# Registers DLLs for all users: DLL...
register() {
  for library; do
    wine regsvr32 /s "$(windows_path "$library")" >/dev/null 2>&1
  done
}

# Prints the registry that Wine writes when the last program has ended, without times, with each value behind its key:
# FILE.
dump() {
  wineserver -w
  for root_key in system user; do
    awk -v root="$root_key" '
      /^#time=/ || /^"DriverDateData"/ { next }  # Wine writes the time of the start there
      /^\[/ { sub(/ [0-9]+$/, ""); key = $0; print root, key; next }
      key != "" && NF { print root, key, $0 }' "$WINEPREFIX/$root_key.reg"
  done | sed 's/\\\\/\\/g' | LC_ALL=C sort >"$1"
}

# Runs a script and prints its output without carriage returns: SCRIPT ARGUMENT...
# $work/wine.txt receives what Wine says, and its exit code unless it is 0.
run_script() {
  { wine "$cscript" //nologo "$@" 2>"$work/wine.txt" || echo "exit code $?" >>"$work/wine.txt"; } | tr -d '\r'
}

# Runs a script that makes its own checks, with tests/windows/check.js and the host add-in of the examples: SCRIPT
# ARGUMENT...
script_checks() {
  name=$(basename "$1" .js)
  {
    cat tests/windows/check.js examples/excel/plotsmith.js
    echo 'try {'
    cat "$1"
    echo '} catch (error) { WScript.Echo("0x" + (error.number >>> 0).toString(16) + " " + error.message); }'
  } >"$work/$name.js"
  shift
  output=$(timeout 900 wine "$cscript" //nologo "$(windows_path "$work/$name.js")" "$@" 2>/dev/null | tr -d '\r') || true
  last=$(printf '%s\n' "$output" | tail -n 1)
  case $last in
    *" passed, "*" failed")
      printf '%s\n' "$output" | sed '$d'
      passed=$((passed + ${last%% *}))
      failed=$((failed + $(echo "$last" | cut -d ' ' -f 3)))
      ;;
    *) fails "it ended before its end, after these lines:
$output" "$name.js" ;;
  esac
}

# Keeps Wine's server and its desktop alive between programs, for scripts that start many programs. A server that is
# ending can make the next program fail, and so can the desktop, which ends a second after its last program.
keep_server() {
  wineserver -p
  echo 'WScript.Sleep(3600000);' >"$work/sleep.js"
  wine "$cscript" //nologo "$(windows_path "$work/sleep.js")" >/dev/null 2>&1 &
}

finish() {
  wineserver -k || true
  wineserver -w
  rm -rf "$WINEPREFIX"
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
