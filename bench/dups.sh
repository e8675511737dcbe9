#!/usr/bin/env bash
# The duplicate scan against jdupes, rmlint, fdupes and rdfind on one deterministic tree of about
# 4 GB (bench/make-dups-tree.cpp), warm cache, in one run:
#   1. every tool's groups of copies, compared (hard links aside, where the tools' defaults differ);
#   2. mopwell-scan's JSON with and without its reading shortcuts, which must be identical;
#   3. wall time with hyperfine, as ratios to each peer;
#   4. the hashing stage against the bytes it hashed at the single-core OpenSSL SHA-256 rate.
# The tree is made under $TMPDIR (or /tmp) and removed at the end unless KEEP_TREE=1.
#
#   flock /tmp/mopwell-build.lock bench/dups.sh [SMALL_FILES [SEED]]   defaults: 100000 1
#   BUILD=build-other bench/dups.sh                                  another build folder
set -euo pipefail
cd "$(dirname "$0")/.."
. bench/peers.sh
install_peers hyperfine jdupes rmlint fdupes rdfind openssl python3

small=${1:-100000} seed=${2:-1}
build=${BUILD:-build}
cmake -S . -B "$build" -G Ninja >/dev/null
cmake --build "$build" --target mopwell-scan make-dups-tree >/dev/null
scan="$build/tools/mopwell-scan"
tree="${TMPDIR:-/tmp}/mopwell-dups-$small-$seed"
work=$(mktemp -d)
cleanup() {
  rm -rf "$work"
  [ "${KEEP_TREE:-0}" = 1 ] || rm -rf "$tree"
}
trap cleanup EXIT
[ -d "$tree" ] || "$build/bench/make-dups-tree" "$tree" "$small" "$seed"
# Written back first: until then a file's allocated size can still change under the tools.
sync
echo "tree: $tree, $(find "$tree" -type f | wc -l) files, $(du -sh "$tree" | cut -f1)"
# Warm: every byte in the page cache before anything is timed.
find "$tree" -type f -print0 | xargs -0 cat >/dev/null

# 1. The same groups from every tool. The finder leaves files under 1,000,000 bytes out; the
# tree has no copies that small. It also gathers files by the bytes they take on disk, not by
# their length, and two copies of one file can take different room (a file system may give one
# of them an extra block for its extent map): such copies are never compared. So each peer's
# groups are also split by allocated size before they are compared with the finder's.
"$scan" dups "$tree" --json >"$work/mopwell.json"
jdupes -q -r "$tree" >"$work/jdupes.txt"
fdupes -q -r "$tree" >"$work/fdupes.txt"
( cd "$work" && rmlint -T df -o fdupes:"$work/rmlint.txt" "$tree" >/dev/null )
rdfind -dryrun true -outputname "$work/rdfind.txt" "$tree" >/dev/null
python3 - "$work" "$tree" <<'PY'
import json, os, sys, collections
work, tree = sys.argv[1], sys.argv[2]
def blank_separated(name):
    groups, current = [], []
    for line in open(f"{work}/{name}", encoding="utf-8", errors="surrogateescape"):
        line = line.rstrip("\n")
        if line.startswith("#"):
            continue
        if line:
            current.append(line)
        elif current:
            groups.append(current); current = []
    if current:
        groups.append(current)
    return groups
def rdfind():
    ids = collections.defaultdict(list)
    for line in open(f"{work}/rdfind.txt", encoding="utf-8", errors="surrogateescape"):
        if line.startswith("#"):
            continue
        fields = line.rstrip("\n").split(" ", 7)
        ids[fields[1].lstrip("-")].append(fields[7])
    return list(ids.values())
found = {
    "mopwell-scan": [g["paths"] for g in json.load(open(f"{work}/mopwell.json"))["duplicates"]],
    "jdupes": blank_separated("jdupes.txt"),
    "fdupes": blank_separated("fdupes.txt"),
    "rmlint": blank_separated("rmlint.txt"),
    "rdfind": rdfind(),
}
def normal(groups):  # hard links aside
    return {frozenset(g) for g in groups if not any("/linked/" in p for p in g)}
def by_allocation(groups):  # the finder's buckets: equal allocated sizes only
    split = set()
    for group in groups:
        parts = collections.defaultdict(list)
        for path in group:
            parts[os.lstat(path).st_blocks * 512].append(path)
        split |= {frozenset(part) for part in parts.values() if len(part) > 1}
    return split
ours = normal(found["mopwell-scan"])
print(f"groups of copies: mopwell-scan {len(ours)} ({sum(len(g) for g in ours)} files); "
      f"hard-linked pair grouped by mopwell-scan: {any('/linked/' in p for g in found['mopwell-scan'] for p in g)}")
ok = True
for tool, groups in found.items():
    theirs = normal(groups)
    split = by_allocation(theirs)
    apart = sum(len(g) for g in theirs) - sum(len(g) for g in split)
    ok &= split == ours
    print(f"  {tool:14s} {len(theirs):3d} groups, {sum(len(g) for g in theirs):3d} files; "
          f"{'same sets as' if theirs == ours else 'other sets than'} mopwell-scan; split by allocated size: "
          f"{len(split):3d} groups, {'the same' if split == ours else 'DIFFERENT'} "
          f"({apart} copies taking other room than their twins)")
sys.exit(0 if ok else 1)
PY

# 2. The reading shortcuts (ends compared first, several hashing threads) change nothing.
"$scan" dups "$tree" --json --reference >"$work/reference.json"
if cmp -s "$work/mopwell.json" "$work/reference.json"; then
  echo "JSON with and without the shortcuts: identical ($(wc -c <"$work/mopwell.json") bytes)"
else
  echo "JSON with and without the shortcuts: DIFFERENT"; diff "$work/mopwell.json" "$work/reference.json" | head; exit 1
fi

# 3. Wall time.
csv="$work/times.csv"
hyperfine --style basic --warmup 1 --runs "${RUNS:-5}" --export-csv "$csv" \
  -n "mopwell-scan dups" "$scan dups $tree --json >/dev/null" \
  -n "mopwell-scan dups --reference" "$scan dups $tree --json --reference >/dev/null" \
  -n "jdupes -r" "jdupes -q -r $tree >/dev/null" \
  -n "rmlint -T df" "cd $work && rmlint -T df -o fdupes:/dev/null $tree >/dev/null" \
  -n "fdupes -r" "fdupes -q -r $tree >/dev/null" \
  -n "rdfind -dryrun true" "rdfind -dryrun true -outputname /dev/null $tree >/dev/null" >/dev/null
echo "wall time, warm cache:"
awk -F, 'NR > 1 { name[NR] = $1; mean[NR] = $2; sd[NR] = $3 }
  END {
    ours = mean[2]
    for (i = 2; i <= NR; i++) printf "  %-32s %8.0f ms ± %4.0f   mopwell-scan dups = %.2f x this\n", name[i], mean[i] * 1000, sd[i] * 1000, ours / mean[i]
  }' "$csv"

# 4. The hashing stage against one core of OpenSSL SHA-256 on 1 MiB blocks.
rate=$(openssl speed -evp sha256 -bytes 1048576 -seconds 3 2>/dev/null | awk '/^sha256/ { sub("k", "", $2); print $2 * 1000 }')
stage() {  # the best of three: hashing seconds and bytes hashed
  for _ in 1 2 3; do "$scan" dups "$tree" "$@" 2>&1 >/dev/null | tail -1; done |
    awk -F'\t' '{ split($3, h, " "); split($4, b, " "); if (best == "" || h[2] < best) { best = h[2]; bytes = b[4] } }
                END { print best, bytes }'
}
echo "hashing stage, single-core OpenSSL SHA-256 at $(awk -v r="$rate" 'BEGIN { printf "%.0f MB/s", r / 1e6 }'):"
for mode in "" "--reference"; do
  read -r seconds bytes < <(stage --stats $mode)
  awk -v s="$seconds" -v b="$bytes" -v r="$rate" -v m="mopwell-scan dups${mode:+ $mode}" \
    'BEGIN { floor = b / r; printf "  %-32s %6.3f s for %.2f GB; at one core %.3f s: %.2f x\n", m, s, b / 1e9, floor, s / floor }'
done
