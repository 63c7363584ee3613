#!/bin/sh
# Runs test programs. Prints why tests were skipped, and how many passed. Each program is split into parts, and as many
# parts run at the same time as there are processors. ctest would start a process for each test, which takes longer than
# most tests, especially under the sanitizers. A part that has not ended within half an hour is stopped.
# Usage: scripts/run-tests.sh PROGRAM...
set -eu
processors=$(nproc)
parts=$((processors * 3))
logs=$(mktemp -d)
trap 'rm -rf "$logs"' EXIT

# the names of the logs are the numbers of the program and of the part
number=0
for program; do
  for part in $(seq 0 $((parts - 1))); do
    printf '%s\n%s\n%s\n' "$program" "$part" "$logs/$number-$part"
  done
  number=$((number + 1))
done >"$logs/list"
# shellcheck disable=SC2016  # the inner shell expands the variables
GTEST_TOTAL_SHARDS=$parts xargs -d '\n' -P "$processors" -n 3 sh -c '
  code=0
  GTEST_SHARD_INDEX=$2 timeout 1800 "$1" --gtest_brief=1 >"$3" 2>&1 || code=$?
  echo "$code" >"$3.code"' part <"$logs/list"

passed=0
failed=0
while read -r program && read -r part && read -r log; do
  count=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}\.$/\1/p' "$log")
  wrong=$(grep -c '^\[  FAILED  \] ' "$log" || true)
  code=$(cat "$log.code")
  # without failures, only the lines with the counts are printed
  [ "$code" -eq 0 ] || cat "$log"
  [ "$code" -eq 0 ] || [ "$wrong" -gt 0 ] || {
    echo "FAILED: part $part of $program stopped before its last test"
    wrong=1
  }
  passed=$((passed + ${count:-0}))
  failed=$((failed + wrong))
  sed -n '/: Skipped$/ {n; s/^/skipped: /p}' "$log"
done <"$logs/list"
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
