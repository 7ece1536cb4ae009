#!/usr/bin/env bash
# Builds the fuzz targets and runs each for some seconds on the example games.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}

mkdir -p build
cmake --preset fuzz >build/fuzz-configure.log 2>&1 || { cat build/fuzz-configure.log; exit 1; }
for target in fuzz_map fuzz_report fuzz_companions; do
  cmake --build --preset fuzz --target "$target" >build/fuzz-build.log 2>&1 ||
    { cat build/fuzz-build.log; exit 1; }
  mkdir -p "build/fuzz/corpus/$target"
  "build/fuzz/fuzz/$target" -seed=1 -max_total_time="$seconds" -max_len=4096 -rss_limit_mb=2048 \
    -artifact_prefix=build/fuzz/ "build/fuzz/corpus/$target" examples >build/fuzz/"$target".log 2>&1 ||
    { tail -n 40 build/fuzz/"$target".log; exit 1; }
  tail -n 1 build/fuzz/"$target".log
done
