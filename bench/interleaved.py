#!/usr/bin/env python3
"""Times commands on one tree run by run: every round runs each command once, in turn, so a
machine whose speed drifts over minutes slows them all alike. Prints each command's median wall
time and its ratio to the first command's. For differences of a few percent, which blocks of runs
per command (hyperfine) cannot resolve on a machine that drifts.

    bench/interleaved.py TREE ROUNDS NAME=COMMAND...
    flock /tmp/mopwell-build.lock bench/interleaved.py /tmp/mopwell-bench-200000-1000-1 40 \\
        floor=build/bench/walk-floor "mopwell=build/tools/mopwell-scan diskmap" "du=du -s"

Each command is split on spaces and given TREE as its last argument; output is discarded.
"""
import shlex
import statistics
import subprocess
import sys
import time


def main():
    if len(sys.argv) < 4 or not sys.argv[2].isdigit() or any("=" not in a for a in sys.argv[3:]):
        sys.exit(__doc__)
    tree, rounds = sys.argv[1], int(sys.argv[2])
    commands = dict(argument.split("=", 1) for argument in sys.argv[3:])
    times = {name: [] for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            start = time.perf_counter()
            subprocess.run(shlex.split(command) + [tree], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            times[name].append(time.perf_counter() - start)
    first = statistics.median(next(iter(times.values())))
    for name, runs in times.items():
        median = statistics.median(runs)
        print(f"{name:12s} median {median * 1000:7.1f} ms   x {median / first:.3f}")


main()
