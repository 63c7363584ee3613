#!/bin/sh
# Runs each fuzzer for a while. The seeds are made from the workbooks of the examples and the corpus.
# Usage: scripts/fuzz.sh [SECONDS-EACH [TARGET...]]
# Each run of a target adds a line to build-fuzz/runs.tsv: target, seconds, executed inputs, covered edges.
# FUZZ_SEED=N repeats the same choices on every run; without it, each run makes other choices.
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
found=
for target in $targets; do
  [ -d "$seeds/$target" ] || { echo "fuzz.sh: there are no seeds for $target" >&2; exit 2; }
  artifacts=build-fuzz/findings/$target
  log=build-fuzz/$target.log
  mkdir -p "build-fuzz/corpus/$target" "$artifacts"
  echo "== $target"
  PLOTSMITH_FUZZ_TARGET=$target build-fuzz/fuzz/fuzzer -max_total_time="$seconds" -seed="${FUZZ_SEED:-0}" -timeout=20 \
    -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$artifacts/" \
    "build-fuzz/corpus/$target" "$seeds/$target" "fuzz/findings/$target" 2>"$log" || found="$found $target"
  executed=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  edges=$(grep -oE 'cov: [0-9]+' "$log" | tail -n 1 | cut -d ' ' -f 2)
  printf '%s\t%s\t%s\t%s\n' "$target" "$seconds" "${executed:-0}" "${edges:-0}" >>build-fuzz/runs.tsv
  echo "executed inputs: ${executed:-0}, covered edges: ${edges:-0}"
done
# findings are printed last, so that they are noticed, with the input that causes them
for target in $found; do
  log=build-fuzz/$target.log
  echo "== found in $target"
  input=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
  if [ -f "$input" ]; then
    echo "$input"
    packed=$(gzip -9 -c "$input" | base64 -w 0)
    [ ${#packed} -gt 4000 ] || echo "gzip, base64: $packed"
  fi
  grep -E 'runtime error|ERROR:|#[0-9]+ .* in plotsmith|SUMMARY:' "$log" | cut -c1-200 | head -n 12
done
[ -z "$found" ]
