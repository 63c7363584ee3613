#!/bin/sh
# Tests the results of the port, directly and through COM, and the conversions between the language and Automation.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh
new_prefix
code=0
wine "$windows/plotsmith_windows_tests.exe" --gtest_brief=1 >"$work/said.txt" 2>&1 || code=$?
tr -d '\r' <"$work/said.txt" | sed -n 's/^\[  PASSED  \] \([0-9]*\) test.*/\1/p' >"$work/passed.txt"
passed=$(cat "$work/passed.txt")
if [ "$code" -ne 0 ] || [ -z "$passed" ]; then
  passed=${passed:-0}
  fails "exit code $code: $(tail -n 40 "$work/said.txt")" "the port's contract"
fi
finish
