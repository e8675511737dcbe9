#!/usr/bin/env bash
# The disk map's walk against du -s, ncdu and gdu, and the floor (the minimal walk making the same
# system calls), on one deterministic tree with a warm cache: wall time with hyperfine, then the
# peak memory each tool adds over its own start-up on an empty folder, per item of the tree.
#
#   bench/diskmap.sh [FILES [FOLDERS [SEED]]]     defaults: 200000 20000 1
#   BUILD=build-other bench/diskmap.sh            builds and runs from another build folder
set -euo pipefail
cd "$(dirname "$0")/.."
. bench/peers.sh
install_peers hyperfine ncdu gdu time

files=${1:-200000} folders=${2:-20000} seed=${3:-1}
build=${BUILD:-build}
cmake -S . -B "$build" -G Ninja >/dev/null
cmake --build "$build" --target mopwell-scan make-tree walk-floor >/dev/null
tree="${TMPDIR:-/tmp}/mopwell-bench-$files-$folders-$seed"
[ -d "$tree" ] || "$build/bench/make-tree" "$tree" "$files" "$folders" "$seed"
# On a Linux desktop the disk map walks hidden entries as the peers do, so every tool does the
# same work on the tree as it is.
empty=$(mktemp -d)
csv=$(mktemp)
trap 'rm -rf "$empty" "$csv"' EXIT

items=$(find "$tree" -mindepth 1 | wc -l)
echo "tree: $tree, $items items"
echo "mopwell-scan: $("$build/tools/mopwell-scan" diskmap "$tree")"

declare -A commands=(
  [floor]="$build/bench/walk-floor"
  ["du -s"]="du -s"
  ["ncdu -o /dev/null"]="ncdu -o /dev/null"
  ["gdu -n -p"]="gdu -n -p"
  ["mopwell-scan diskmap"]="$build/tools/mopwell-scan diskmap"
)
order=(floor "du -s" "ncdu -o /dev/null" "gdu -n -p" "mopwell-scan diskmap")

args=()
for name in "${order[@]}"; do
  args+=(-n "$name" "${commands[$name]} $tree >/dev/null 2>&1")
done
hyperfine --style basic --warmup 3 --runs 15 --export-csv "$csv" "${args[@]}" >/dev/null
echo "wall time, warm cache ($files files, $folders folders):"
print_ratios "$csv" floor

peak_kb() {  # the highest resident set of one run, in KB
  /usr/bin/time -v $1 "$2" 2>&1 >/dev/null | awk -F': ' '/Maximum resident set size/ { print $2 }'
}
echo "peak memory over an empty folder's, per item:"
declare -A perItem
for name in "${order[@]}"; do
  [ "$name" = floor ] && continue
  best=""
  for _ in 1 2 3; do  # the least of three runs, as a parallel walker's peak varies
    kb=$(peak_kb "${commands[$name]}" "$tree")
    [ -z "$best" ] || [ "$kb" -lt "$best" ] && best=$kb
  done
  base=$(peak_kb "${commands[$name]}" "$empty")
  perItem[$name]=$(awk -v p="$best" -v b="$base" -v n="$items" 'BEGIN { printf "%.1f", (p - b) * 1024 / n }')
  printf "  %-24s peak %7d KB, empty %6d KB, %7s bytes per item\n" "$name" "$best" "$base" "${perItem[$name]}"
done
for name in "du -s" "ncdu -o /dev/null" "mopwell-scan diskmap"; do
  awk -v a="${perItem[$name]}" -v g="${perItem["gdu -n -p"]}" -v n="$name" \
    'BEGIN { printf "  %-24s %.2f x gdu -n -p\n", n, a / g }'
done
