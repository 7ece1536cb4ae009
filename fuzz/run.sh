#!/usr/bin/env bash
# Builds the fuzz targets and runs each for some seconds (60 unless told otherwise), beginning with
# the example games, a few tiny ones, the inputs in fuzz/corpus and what earlier runs have kept.
# "fuzz/run.sh same" is short and tries the same inputs each time, so that its result depends on the
# sources alone.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
targets="fuzz_map fuzz_report fuzz_items fuzz_companions fuzz_history fuzz_query fuzz_load"
seeds=build/fuzz/seeds
searches='owner:none near<=150 (terra>0 or unknown(hab))
not hab(Vantari)>=50% and near(Old Harrow, 1.5k) or owner:"Veldt Kin" "base" base:dock mine
changed unexplored gate pop!=-5'
game=build/fuzz/seeds/game

mkdir -p build/fuzz
cmake --preset fuzz >build/fuzz-configure.log 2>&1 || { cat build/fuzz-configure.log; exit 1; }
# shellcheck disable=SC2086 # one word for each target
cmake --build --preset fuzz --target quorvane-make-game $targets >build/fuzz-build.log 2>&1 ||
  { cat build/fuzz-build.log; exit 1; }

# The files that the targets write stay in memory where that is possible, under a name that is
# always the same.
memory=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$memory"' EXIT
export TMPDIR=build/fuzz/files
ln -sfn "$memory" "$TMPDIR"

# How many inputs "same" tries: some six seconds of each target.
number_of_runs() {
  case $1 in
    fuzz_map) echo 60000 ;;
    fuzz_companions | fuzz_query) echo 20000 ;;
    fuzz_load | fuzz_history) echo 2000 ;;
    *) echo 6000 ;;
  esac
}

# One part of a folder's files for the load target; a file that is not there leaves its part empty.
part() {
  cat "$1" 2>/dev/null || true
  echo "----"
}

# Copies what a tiny game consists of to where the targets look for their first inputs.
add_seeds() {
  build/fuzz/tools/quorvane-make-game --seed "$1" --size 400 --planets 12 --players "$2" \
    --style "$3" --companions --out "$game" --name g >/dev/null
  cp "$game/g.map" "$seeds/fuzz_map/$1"
  find "$game" -iname 'g.p*' -exec sh -c 'cp "$1" "$2$(basename "$1")"' - {} "$seeds/fuzz_report/$1" \;
  kind=0
  for extension in YRS QVR QVC QVL QVD; do
    if [ -f "$game/g.$extension" ]; then
      cp "$game/g.$extension" "$seeds/fuzz_items/$1$extension"
      { printf %s "$kind" && cat "$game/g.$extension"; } >"$seeds/fuzz_companions/$1$extension"
    fi
    kind=$((kind + 1))
  done
  for extension in map p1 p2 p16 pla QVC QVL QVD YRS; do
    part "$game/g.$extension"
  done >"$seeds/fuzz_load/$1"
  rm -r "$game"
}

rm -rf "$seeds"
for target in $targets; do mkdir -p "$seeds/$target" "build/fuzz/corpus/$target"; done
add_seeds 1 3 new
add_seeds 2 2 old
add_seeds 3 12 new
printf '%s\n' "$searches" | split -l 1 - "$seeds/fuzz_query/search-"

# The fuzzer learns from what is compared, addresses included; they differ from run to run unless the
# system is asked for the same ones, which not every container allows.
fixed_addresses=
if [ "$seconds" = same ] && setarch -R true 2>/dev/null; then fixed_addresses="setarch -R"; fi

for target in $targets; do
  folders=("$seeds/$target" examples)
  [ -d "fuzz/corpus/$target" ] && folders+=("fuzz/corpus/$target")
  if [ "$seconds" = same ]; then
    # One by one, because folders list their files in an order of their own.
    inputs=$(find "${folders[@]}" -type f | LC_ALL=C sort | paste -s -d ,)
    how=("-runs=$(number_of_runs "$target")" "-seed_inputs=$inputs")
  else
    how=("-max_total_time=$seconds" "build/fuzz/corpus/$target" "${folders[@]}")
  fi
  # shellcheck disable=SC2086 # no word or several
  $fixed_addresses "build/fuzz/fuzz/$target" -seed=1 -max_len=8192 -rss_limit_mb=2048 -timeout=20 \
    -artifact_prefix="build/fuzz/$target-" "${how[@]}" >"build/fuzz/$target.log" 2>&1 ||
    { tail -n 40 "build/fuzz/$target.log"; exit 1; }
  printf '%s: ' "$target"
  tail -n 1 "build/fuzz/$target.log"
done
