#!/usr/bin/env bash
# Size walk against du -s and the floor (the minimal walk making the same system calls), on one
# deterministic tree with a warm cache. Checks that the byte totals agree, then prints ratios.
#
#   bench/size.sh [FILES [FOLDERS [SEED]]]     defaults: 200000 20000 1
set -euo pipefail
cd "$(dirname "$0")/.."
. bench/peers.sh
scripts/bootstrap
install_peers hyperfine

files=${1:-200000} folders=${2:-20000} seed=${3:-1}
cmake -S . -B build -G Ninja >/dev/null
cmake --build build --target mopwell-scan make-tree walk-floor >/dev/null
tree="${TMPDIR:-/tmp}/mopwell-bench-$files-$folders-$seed"
[ -d "$tree" ] || build/bench/make-tree "$tree" "$files" "$folders" "$seed"

ours=$(build/tools/mopwell-scan size "$tree")
floor=$(build/bench/walk-floor "$tree")
echo "byte total: mopwell-scan $ours, floor $floor"
[ "$ours" = "$floor" ] || { echo "totals differ" >&2; exit 1; }

csv=$(mktemp)
hyperfine --style basic --warmup 3 --runs 15 --export-csv "$csv" \
  -n floor "build/bench/walk-floor $tree" \
  -n "du -s" "du -s $tree" \
  -n mopwell-scan "build/tools/mopwell-scan size $tree" >/dev/null
echo "wall time, warm cache ($files files, $folders folders):"
print_ratios "$csv" "du -s"
print_ratios "$csv" floor
rm -f "$csv"
