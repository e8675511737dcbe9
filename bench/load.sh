#!/usr/bin/env bash
# Load, as a user would feel it, in a temporary home (never the real one):
#   1. clean-all of FILES small files (default 100,000) in a custom folder: the longest
#      main-thread stall while the clean runs;
#   2. a disk-map scan of ITEMS items (default 1,000,000) in the disk-map window: the longest
#      main-thread stall, and the memory after the window closes against the memory before;
#   3. the idle application: processor time over a minute, after its first scan has settled.
# Goals: stalls under 100 ms, memory back within 10 %, idle under 0.5 % of one core.
#
#   bench/load.sh [FILES [ITEMS]]
#   BUILD=build-other bench/load.sh
set -euo pipefail
cd "$(dirname "$0")/.."

files=${1:-100000} items=${2:-1000000}
build=${BUILD:-build}
flock /tmp/mopwell-build.lock cmake --build "$build" --target load-driver make-tree mopwell >/dev/null

work=$(mktemp -d "${TMPDIR:-/tmp}/mopwell-load.XXXXXX")
app=""
cleanup() {
  [ -n "$app" ] && kill "$app" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT
mkdir -p "$work"/{home,config,data,cache,runtime}
chmod 700 "$work/runtime"
export HOME="$work/home" XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" XDG_CACHE_HOME="$work/cache"
export XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software

echo "== clean-all of $files small files"
"$build/bench/make-tree" "$HOME/load-cache" "$files" $((files / 50)) 13 >/dev/null
"$build/bench/load-driver" clean "$HOME/load-cache"

echo "== disk map of $items items"
# Made once and kept, like the other benchmarks' trees: only read from here on.
folders=$((items / 10))
tree="${TMPDIR:-/tmp}/mopwell-load-tree-$items"
[ -d "$tree" ] || { "$build/bench/make-tree" "$tree.part" $((items - folders)) "$folders" 14 >/dev/null && mv "$tree.part" "$tree"; }
echo "tree: $(find "$tree" -mindepth 1 | wc -l) items"
"$build/bench/load-driver" diskmap "$tree"

echo "== idle application"
# A returning user: the welcome, which animates while it is shown, is behind them.
mkdir -p "$XDG_CONFIG_HOME/mopwell"
cat >"$XDG_CONFIG_HOME/mopwell/defaults.plist" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>hasCompletedOnboarding</key><true/></dict></plist>
PLIST
"$build/src/mopwell" >/dev/null 2>&1 &
app=$!
sleep 20  # start-up and the first scan of every target
ticks=$(getconf CLK_TCK)
cpu() { awk '{ print $14 + $15 }' "/proc/$app/stat"; }
before=$(cpu)
sleep 60
after=$(cpu)
awk -v d=$((after - before)) -v hz="$ticks" 'BEGIN { printf "idle: %.2f s of processor time in 60 s = %.3f %% of one core\n", d / hz, 100 * d / hz / 60 }'
