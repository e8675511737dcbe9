#!/usr/bin/env bash
# The project cleanup's scan against the shell floor for the same answer, on one deterministic tree
# of code projects with a warm cache: `find` by name, pruning every match, then `du -s` of each
# match, against the window's model finding and measuring every build folder. Checks first that
# both list the same folders (the floor's decoys aside), then prints the wall-time ratio and how
# soon the window had its first row.
#
#   bench/projects.sh [PROJECTS [SEED]]     defaults: 300 1
#   BUILD=build-other bench/projects.sh     builds and runs from another build folder
#   KEEP=1 bench/projects.sh                leaves the tree in place for the next run
set -euo pipefail
cd "$(dirname "$0")/.."
. bench/peers.sh
install_peers hyperfine

projects=${1:-300} seed=${2:-1}
build=${BUILD:-build}
cmake -S . -B "$build" -G Ninja >/dev/null
cmake --build "$build" --target make-projects project-window-driver >/dev/null
# The tree stands in a home folder of its own: build folders outside the home are never offered.
base="${TMPDIR:-/tmp}/mopwell-projects-$projects-$seed"
tree="$base/home/code"
[ -d "$tree" ] || { "$build/bench/make-projects" "$tree.part" "$projects" "$seed" >/dev/null && mv "$tree.part" "$tree"; }
work=$(mktemp -d)
trap 'rm -rf "$work"; [ -n "${KEEP:-}" ] || rm -rf "$base"' EXIT

# Every name a kind of build folder goes by; hidden folders that aren't one of them are passed
# by, as the scan passes them; the ignored projects are pruned; matches are never entered.
names=(node_modules .next .nuxt .output .svelte-kit .turbo .parcel-cache dist target build .gradle
       cmake-build-debug cmake-build-release .build Pods .dart_tool .venv venv __pycache__ .pytest_cache
       .mypy_cache .ruff_cache .tox vendor bin obj _build deps dist-newstyle)
match=()
for name in "${names[@]}"; do match+=(-o -name "$name"); done
cat >"$work/floor" <<SCRIPT
find "$tree" -mindepth 1 -maxdepth 9 -path "$tree/ignored" -prune -o \
  -type d \( ${match[@]:1} \) -prune -print0 -o -name '.*' -prune -o -true | xargs -0 -r du -s
SCRIPT
settings="HOME=$base/home XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache"
driver="env $settings $build/bench/project-window-driver $tree --ignore $tree/ignored"

# The same answer: the floor's matches, less the decoys it can't tell apart, are the folders the
# window lists.
bash "$work/floor" | cut -f2 | grep -v "^$tree/notes/" | sort >"$work/floor.txt"
$driver 2>"$work/driver.err" | sort >"$work/ours.txt"
if ! diff -q "$work/floor.txt" "$work/ours.txt" >/dev/null; then
  echo "the scan and the floor list different folders:" >&2
  diff "$work/floor.txt" "$work/ours.txt" | head -20 >&2
  exit 1
fi
files=$(find "$tree" | wc -l)
echo "tree: $tree, $projects projects, $(wc -l <"$work/ours.txt") build folders, $files items"

hyperfine --style basic --warmup 2 --runs 10 --export-csv "$work/times.csv" \
  -n floor "bash $work/floor >/dev/null" \
  -n "project cleanup model" "$driver >/dev/null 2>&1" >/dev/null
echo "wall time to the last folder found and measured, warm cache:"
print_ratios "$work/times.csv" floor

echo "inside the window's model, five runs:"
for _ in 1 2 3 4 5; do
  $driver 2>&1 >/dev/null | sed 's/^/  /'
done
