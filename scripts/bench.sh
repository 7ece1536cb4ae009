#!/usr/bin/env bash
# Builds and runs all benchmarks, one after the other on one core, and prints one table: the step
# and its size, its time, the time of the plain version of the same step, and how many times faster
# the program is. Takes some minutes; figures mean little while other programs run.
set -euo pipefail
cd "$(dirname "$0")/.."
benches="influence load borders redraw grid planets turn history"

mkdir -p build
cmake --preset release >build/bench-configure.log 2>&1 || { cat build/bench-configure.log; exit 1; }
for bench in $benches; do
  cmake --build --preset release --target "${bench}_bench" >build/bench-build.log 2>&1 ||
    { cat build/bench-build.log; exit 1; }
done

export QT_QPA_PLATFORM=offscreen
heading=1
for bench in $benches; do
  "build/release/bench/${bench}_bench" --benchmark_color=false >"build/$bench.log" 2>&1 ||
    { cat "build/$bench.log"; exit 1; }
  sed -n '/^quickest run/,$p' "build/$bench.log" | tail -n +$((heading == 1 ? 1 : 2))
  heading=0
done
