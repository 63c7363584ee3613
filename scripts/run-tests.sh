#!/bin/sh
# Runs test programs, each split into one part per processor, and prints how many tests passed. One process per test, as
# ctest starts them, takes longer than most tests, above all under the sanitizers. A part that has not ended within half an
# hour is stopped.
# Usage: scripts/run-tests.sh PROGRAM...
set -eu
parts=$(nproc)
logs=$(mktemp -d)
trap 'rm -rf "$logs"' EXIT
passed=0
failed=0
for program; do
  for part in $(seq 0 $((parts - 1))); do
    (
      code=0
      GTEST_TOTAL_SHARDS=$parts GTEST_SHARD_INDEX=$part timeout 1800 "$program" --gtest_brief=1 >"$logs/$part" 2>&1 || code=$?
      echo "$code" >"$logs/$part.code"
    ) &
  done
  wait
  for part in $(seq 0 $((parts - 1))); do
    count=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}\.$/\1/p' "$logs/$part")
    wrong=$(grep -c '^\[  FAILED  \] ' "$logs/$part" || true)
    code=$(cat "$logs/$part.code")
    # without failures, only the lines with the counts are printed
    [ "$code" -eq 0 ] || cat "$logs/$part"
    [ "$code" -eq 0 ] || [ "$wrong" -gt 0 ] || {
      echo "FAILED: $program stopped before its last test"
      wrong=1
    }
    passed=$((passed + ${count:-0}))
    failed=$((failed + wrong))
  done
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
