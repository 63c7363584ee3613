# What the scripts that run tests under Wine share; each begins with `. tests/windows/lib.sh` at the root of the
# repository, and ends with `finish`.
set -eu
root=$PWD
work=$root/build/check-windows/$(basename "$0" .sh)
windows=$root/build-windows-x64

# A prefix of our own, without the parts that Wine would fetch; quiet.
export WINEPREFIX="${WINEPREFIX:-$root/build/wine}" WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
export LC_ALL=C.UTF-8
passed=0
failed=0

rm -rf "$work"
mkdir -p "$work"

passes() { passed=$((passed + 1)); }
# What is wrong comes first, then the name: REASON CASE.
fails() {
  failed=$((failed + 1))
  echo "FAILED: $2: $1"
}

# A file has these contents: CASE FILE EXPECTED-FILE.
same_file() {
  if difference=$(diff "$3" "$2"); then
    passes
  else
    fails "$difference" "$1"
  fi
}

# Makes a new prefix for what must find nothing there, with a driver that has windows and no screen: FOLDER.
new_prefix() {
  export WINEPREFIX="$1"
  rm -rf "$WINEPREFIX"
  mkdir -p "$(dirname "$WINEPREFIX")"
  wineboot --init >/dev/null 2>&1
  wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1
  wineserver -w
}

# The path of a file as Windows has it: FILE.
windows_path() { winepath -w "$1" 2>/dev/null; }

# Registers DLLs for the user, or for all by DllRegisterServer alone: DLL...
register() {
  for library; do
    wine regsvr32 /s "$(windows_path "$library")" >/dev/null 2>&1
  done
}

# Runs a script and prints what it says, without the carriage returns: SCRIPT ARGUMENT...
run_script() {
  wine cscript //nologo "$@" 2>/dev/null | tr -d '\r'
}

# Runs a script that checks by itself, with what tests/windows/check.js has: SCRIPT ARGUMENT...
script_checks() {
  name=$(basename "$1" .js)
  {
    cat tests/windows/check.js
    echo 'try {'
    cat "$1"
    echo '} catch (error) { WScript.Echo("0x" + (error.number >>> 0).toString(16) + " " + error.message); }'
  } >"$work/$name.js"
  shift
  output=$(timeout 300 wine cscript //nologo "$(windows_path "$work/$name.js")" "$@" 2>/dev/null | tr -d '\r') || true
  last=$(echo "$output" | tail -n 1)
  case $last in
    *" passed, "*" failed")
      echo "$output" | sed '$d'
      passed=$((passed + ${last%% *}))
      failed=$((failed + $(echo "$last" | cut -d ' ' -f 3)))
      ;;
    *) fails "it ended before its end, after these lines:
$output" "$name.js" ;;
  esac
}

finish() {
  wineserver -w
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
