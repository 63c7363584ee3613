#!/bin/sh
# Runs each fuzzer for a while, from seeds taken from the examples and from whatever other workbooks are at hand.
# Usage: scripts/fuzz.sh [SECONDS-EACH [TARGET...]]
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}
[ $# -gt 0 ] && shift
targets=${*:-$(ls fuzz/findings)}

scripts/install-dependencies.sh clang libclang-rt-14-dev
cmake --preset fuzz >/dev/null
cmake --build build-fuzz
seeds=build-fuzz/seeds
rm -rf "$seeds"
build-fuzz/fuzz/make_seeds "$seeds" examples/*.xlsx $(ls ../shared/corpus/*/*.xls* 2>/dev/null || true)
status=0
for target in $targets; do
  [ -d "$seeds/$target" ] || { echo "fuzz.sh: there are no seeds for $target" >&2; exit 2; }
  mkdir -p "build-fuzz/corpus/$target" "build-fuzz/findings/$target"
  echo "== $target"
  PLOTSMITH_FUZZ_TARGET=$target build-fuzz/fuzz/fuzzer -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -print_final_stats=1 -verbosity=0 \
    -artifact_prefix="build-fuzz/findings/$target/" "build-fuzz/corpus/$target" "$seeds/$target" "fuzz/findings/$target" \
    2>build-fuzz/"$target".log || { status=1; tail -n 40 build-fuzz/"$target".log; }
  grep -E 'number_of_executed_units|peak_rss_mb' build-fuzz/"$target".log | sed 's/^stat:://' || true
done
exit $status
