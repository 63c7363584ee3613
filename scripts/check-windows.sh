#!/bin/sh
# Builds the command and the component for Windows, including the 32-bit component, and runs all tests under Wine:
# tests/windows/run-*.sh. Given names of tests such as "server", it runs only these.
# Usage: scripts/check-windows.sh [NAME]...
set -eu
cd "$(dirname "$0")/.."
passed=0
failed=0

# Prints the next step and how long the previous one took; without a text only the latter.
step() {
  now=$(date +%s)
  [ -z "${began:-}" ] || echo "    $((now - began)) s"
  began=$now
  [ -z "${1:-}" ] || echo "$1"
}

# Runs a test script, and adds the counts in its last line to the totals.
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
      echo "FAILED: $1 stopped before its last line"
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
