#!/usr/bin/env bash
# The disk map's walk against du -s, ncdu and gdu, and the floor (bench/walk-floor.c: one listing
# per folder, one fstatat per entry, nothing else), on deterministic trees of several shapes:
#   - wall time with a warm cache (hyperfine);
#   - wall time with a cold one: the page, dentry and inode caches dropped before every run, then
#     the command run once on an empty folder so that loading its own code is not timed (as root
#     only: elsewhere this round is skipped, and said so);
#   - the peak memory each tool adds over its own start on an empty folder, per item of the tree.
#
#   bench/diskmap.sh [SHAPE...]           default: wide broad deep
#     wide    200,000 files in 20,000 folders: about 10 a folder, 20 to 30 levels deep
#     broad   200,000 files in 1,000 folders: about 200 a folder
#     deep    10,000 files along one path of 2,000 folders: about 5 a level
#     FILES:FOLDERS[:random|chain]        any other tree (bench/make-tree.cpp)
#   RUNS=15 COLD_RUNS=5 ROUNDS=5 COLD=0 BUILD=build-other bench/diskmap.sh ...
#   BASELINE=/tmp/mopwell-scan.old bench/diskmap.sh   also times an earlier build of mopwell-scan in
#                                       the same run, and checks that both print the same JSON
#
# "mopwell-scan no read-ahead" is the same walk with its helper threads kept from starting on an
# uncached tree (they never start on a cached one).
#
# Other work on the machine skews the figures: run it holding the build lock, so no build or test
# runs meanwhile, and run it more than once. To tell apart differences of a few percent, time the
# commands run by run instead: bench/interleaved.py.
#   flock /tmp/mopwell-build.lock bench/diskmap.sh
set -euo pipefail
cd "$(dirname "$0")/.."
. bench/peers.sh
install_peers hyperfine ncdu gdu time python3

build=${BUILD:-build}
runs=${RUNS:-15} coldRuns=${COLD_RUNS:-5} rounds_wanted=${ROUNDS:-5}
cmake -S . -B "$build" -G Ninja >/dev/null
cmake --build "$build" --target mopwell-scan make-tree walk-floor >/dev/null
shapes=("$@")
[ ${#shapes[@]} -gt 0 ] || shapes=(wide broad deep)

cold=${COLD:-1}
if [ "$cold" = 1 ] && [ "$(id -u)" -ne 0 ]; then
  echo "not root: the cold-cache round is skipped (it needs to write /proc/sys/vm/drop_caches)"
  cold=0
fi

empty=$(mktemp -d)
work=$(mktemp -d)
trap 'rm -rf "$empty" "$work"' EXIT

order=(floor "du -s" "ncdu -o /dev/null -x" "gdu -n -p" "mopwell-scan diskmap" "mopwell-scan no read-ahead")
declare -A commands=(
  [floor]="$build/bench/walk-floor"
  ["du -s"]="du -s"
  ["ncdu -o /dev/null -x"]="ncdu -o /dev/null -x"
  ["gdu -n -p"]="gdu -n -p"
  ["mopwell-scan diskmap"]="$build/tools/mopwell-scan diskmap"
  ["mopwell-scan no read-ahead"]="$build/tools/mopwell-scan diskmap --no-read-ahead"
)
if [ -n "${BASELINE:-}" ]; then
  order+=("baseline diskmap")
  commands["baseline diskmap"]="$BASELINE diskmap"
fi

# Prints the tree's folder for a shape, making the tree the first time.
tree_for() {
  local files folders kind
  case $1 in
    wide) files=200000 folders=20000 kind=random ;;
    broad) files=200000 folders=1000 kind=random ;;
    deep) files=10000 folders=2000 kind=chain ;;
    *:*) IFS=: read -r files folders kind <<<"$1"; kind=${kind:-random} ;;
    *) echo "unknown shape: $1" >&2; exit 2 ;;
  esac
  local tree="${TMPDIR:-/tmp}/mopwell-bench-$files-$folders-1"
  [ "$kind" = random ] || tree+="-$kind"
  if [ ! -d "$tree" ]; then
    "$build/bench/make-tree" "$tree.part" "$files" "$folders" 1 "$kind" >/dev/null
    mv "$tree.part" "$tree"
  fi
  echo "$tree"
}

# Times every command on the tree; with "cold", each run starts from dropped caches. The runs are
# made in ROUNDS rounds (default 5) that each time every command in turn, so that the machine's
# drift over the minutes a shape takes falls on every command alike rather than on whichever
# hyperfine timed last. Leaves the runs' figures, in hyperfine's CSV columns, in $work/$2.csv.
time_all() {
  local tree=$1 round=$2 args=() total=$runs warmup=(--warmup 1)
  for name in "${order[@]}"; do
    if [ "$round" = cold ]; then
      args+=(--prepare "sh -c 'sync; echo 3 > /proc/sys/vm/drop_caches; ${commands[$name]} $empty >/dev/null 2>&1'")
    fi
    args+=(-n "$name" "${commands[$name]} $tree")
  done
  if [ "$round" = cold ]; then
    total=$coldRuns warmup=()
  fi
  local rounds=$(( rounds_wanted < total ? rounds_wanted : total ))
  local per=$(( (total + rounds - 1) / rounds ))
  rm -f "$work/$round".*.json
  for r in $(seq "$rounds"); do
    hyperfine -N --style none "${warmup[@]}" --runs "$per" --export-json "$work/$round.$r.json" "${args[@]}" >/dev/null
  done
  python3 - "$work/$round".*.json >"$work/$round.csv" <<'PY'
import json, statistics, sys
times = {}
for path in sys.argv[1:]:
    for result in json.load(open(path))["results"]:
        times.setdefault(result["command"], []).append(result["times"])
print("command,mean,stddev,median,user,system,min,max")
for name, runs in times.items():
    t = [x for run in runs for x in run]
    print(f"{name},{statistics.mean(t)},{statistics.stdev(t) if len(t) > 1 else 0},"
          f"{statistics.median(t)},0,0,{min(t)},{max(t)}")
PY
}

# One line per command: median, mean ± standard deviation, range, and the median over the floor's.
print_times() {
  awk -F, '
    NR == 1 { next }
    { name[NR] = $1; mean[NR] = $2; sd[NR] = $3; median[NR] = $4; least[NR] = $7; most[NR] = $8
      if ($1 == "floor") base = $4 }
    END {
      printf "  %-22s %9s %20s %19s %9s\n", "", "median", "mean ± sd", "range", "x floor"
      for (i = 2; i <= NR; i++)
        printf "  %-22s %6.1f ms %10.1f ± %5.1f ms %7.1f … %7.1f ms %8.3f\n", name[i], median[i] * 1000,
               mean[i] * 1000, sd[i] * 1000, least[i] * 1000, most[i] * 1000, median[i] / base
    }' "$1"
}

# The ratio of a command's median to the floor's, from a CSV.
ratio() {
  awk -F, -v n="$2" 'NR > 1 { m[$1] = $4 } END { printf "%.3f", m[n] / m["floor"] }' "$1"
}

peak_kb() {  # the highest resident set of one run, in KB
  /usr/bin/time -v $1 "$2" 2>&1 >/dev/null | awk -F': ' '/Maximum resident set size/ { print $2 }'
}

# The median of five runs' peaks, in KB: one run's resident set varies by a few hundred KB even
# on an empty folder (a parallel walker's peak varies more), which on a small tree is a fifth of
# what is measured.
median_peak_kb() {
  for _ in 1 2 3 4 5; do peak_kb "$1" "$2"; done | sort -n | sed -n 3p
}

# Bytes per item each tool adds over its start on an empty folder.
print_memory() {
  local tree=$1 items=$2
  for name in "${order[@]}"; do
    [ "$name" = floor ] || [ "$name" = "mopwell-scan no read-ahead" ] && continue
    local peak base
    peak=$(median_peak_kb "${commands[$name]}" "$tree")
    base=$(median_peak_kb "${commands[$name]}" "$empty")
    perItem=$(awk -v p="$peak" -v b="$base" -v n="$items" 'BEGIN { printf "%.1f", (p - b) * 1024 / n }')
    printf "  %-22s peak %7d KB, empty %6d KB, %7s bytes per item\n" "$name" "$peak" "$base" "$perItem"
    if [ "$name" = "mopwell-scan diskmap" ]; then echo "$perItem" >"$work/memory"; fi
  done
}

summary=()
for shape in "${shapes[@]}"; do
  tree=$(tree_for "$shape")
  items=$(find "$tree" -mindepth 1 | wc -l)
  echo "== $shape: $tree, $items items"
  echo "  mopwell-scan: $("$build/tools/mopwell-scan" diskmap "$tree")"
  if [ -n "${BASELINE:-}" ]; then
    if cmp -s <("$build/tools/mopwell-scan" diskmap "$tree" --json) <("$BASELINE" diskmap "$tree" --json); then
      echo "  the baseline prints the same JSON, byte for byte"
    else
      echo "  THE BASELINE PRINTS DIFFERENT JSON"
    fi
  fi
  if [ "$cold" = 1 ]; then
    # Read-ahead starts only on a tree the cache doesn't hold: compare from cold caches.
    drop_caches() { sync; echo 3 >/proc/sys/vm/drop_caches; }
    drop_caches; "$build/tools/mopwell-scan" diskmap "$tree" --json >"$work/ahead.json"
    drop_caches; "$build/tools/mopwell-scan" diskmap "$tree" --json --no-read-ahead >"$work/plain.json"
    if cmp -s "$work/ahead.json" "$work/plain.json"; then
      echo "  from a cold cache, the same JSON with and without read-ahead, byte for byte"
    else
      echo "  FROM A COLD CACHE, READ-AHEAD CHANGES THE JSON"
    fi
  fi
  time_all "$tree" warm
  echo "wall time, warm cache ($runs runs each):"
  print_times "$work/warm.csv"
  line="$shape warm $(ratio "$work/warm.csv" "mopwell-scan diskmap") du $(ratio "$work/warm.csv" "du -s")"
  line+=" ncdu $(ratio "$work/warm.csv" "ncdu -o /dev/null -x") gdu $(ratio "$work/warm.csv" "gdu -n -p")"
  if [ "$cold" = 1 ]; then
    time_all "$tree" cold
    echo "wall time, cold cache ($coldRuns runs each, caches dropped before every run):"
    print_times "$work/cold.csv"
    line+=" | cold $(ratio "$work/cold.csv" "mopwell-scan diskmap") du $(ratio "$work/cold.csv" "du -s")"
    line+=" ncdu $(ratio "$work/cold.csv" "ncdu -o /dev/null -x") gdu $(ratio "$work/cold.csv" "gdu -n -p")"
  fi
  echo "peak memory over an empty folder's, per item:"
  print_memory "$tree" "$items"
  summary+=("$line | $(cat "$work/memory") B/item")
done

echo "== mopwell-scan diskmap, each over the floor (peers alike); goals: warm ≤ 1.05, cold ≤ 1.1,"
echo "   below du and ncdu in both, ≤ 80 bytes per item"
printf '  %s\n' "${summary[@]}"
