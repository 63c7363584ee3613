#!/bin/sh
# Builds the command for Windows and the component, that of 32 bits too, and runs all tests under Wine:
# tests/windows/run-*.sh. Names of tests, such as "server", run these alone.
# Usage: scripts/check-windows.sh [NAME]...
set -eu
cd "$(dirname "$0")/.."
passed=0
failed=0

# Says what comes next, and how long the step before took; without a text only that.
step() {
  now=$(date +%s)
  [ -z "${began:-}" ] || echo "    $((now - began)) s"
  began=$now
  [ -z "${1:-}" ] || echo "$1"
}

# Runs a script of tests, and counts what its last line says.
run_tests() {
  output=$("$1" 2>&1) || true
  last=$(printf '%s\n' "$output" | tail -n 1)
  printf '%s\n' "$output"
  case $last in
    *" passed, "*" failed")
      passed=$((passed + ${last%% *}))
      last=${last% failed}
      failed=$((failed + ${last##* }))
      ;;
    *)
      failed=$((failed + 1))
      echo "FAILED: $1 ended before its end"
      ;;
  esac
}

step "Libraries:"
scripts/install-dependencies.sh wine wine64 libwine-dev
scripts/windows-libraries.sh x64 x86
step "Building for Linux:"
cmake --preset release >/dev/null
cmake --build build --target plotsmith
step "Building for Windows, 64 bits:"
cmake --preset windows-x64 >/dev/null
cmake --build build-windows-x64 --target plotsmith Plotsmith tests/windows/all
step "Building for Windows, 32 bits:"
cmake --preset windows-x86 >/dev/null
cmake --build build-windows-x86 --target plotsmith Plotsmith
step "Installer:"
scripts/installer.sh

[ $# -gt 0 ] || set -- $(ls tests/windows | sed -n 's/^run-\(.*\)\.sh$/\1/p')
for name; do
  step "Tests: $name"
  run_tests "tests/windows/run-$name.sh"
done
step ""
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
