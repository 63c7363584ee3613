#!/bin/sh
# Runs each fuzzer for a while, from seeds taken from the examples and from whatever other workbooks are at hand.
# Usage: scripts/fuzz.sh [SECONDS-EACH [TARGET...]]
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}
[ $# -gt 0 ] && shift
targets=${*:-package workbook sheet shared-strings styles drawing chart chart-shapes definition formula number-format}

scripts/install-dependencies.sh clang libclang-rt-14-dev
cmake --preset fuzz >/dev/null
cmake --build build-fuzz
seeds=build-fuzz/seeds
[ -d "$seeds" ] || build-fuzz/fuzz/make_seeds "$seeds" examples/*.xlsx $(ls ../shared/corpus/*/*.xls* 2>/dev/null || true)
status=0
for target in $targets; do
  mkdir -p "build-fuzz/corpus/$target" "build-fuzz/findings/$target" "$seeds/$target"
  echo "== $target"
  build-fuzz/fuzz/fuzz-"$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -print_final_stats=1 -verbosity=0 \
    -artifact_prefix="build-fuzz/findings/$target/" "build-fuzz/corpus/$target" "$seeds/$target" \
    2>build-fuzz/"$target".log || { status=1; tail -n 40 build-fuzz/"$target".log; }
  grep -E 'number_of_executed_units|peak_rss_mb' build-fuzz/"$target".log | sed 's/^stat:://' || true
done
exit $status
