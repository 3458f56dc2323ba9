#!/usr/bin/env python3
"""Runs tasks of as many steps as variables by oprun.

    benchmarks/rows/long_tasks.py [--oprun FILE] [--steps COUNT] [--rounds COUNT]

Each step writes a variable of its own. Prints the processor time of a plain run and of a run with
--trace, the fastest round of each, and how many times as long the longest task takes as one of a quarter
of its length: 4 for work in proportion to the length, 16 for work in proportion to its square. Ends with
status 1 above 8.
"""

import argparse
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
PARTS = (4, 2, 1)
MOST_GROWTH = 8


def make_task(folder, count):
    variables = {f"v{i}": {"type": "string", "value": "x"} for i in range(count)}
    steps = [
        {"type": "text.append", "sourceText": f"$v{i}", "appendText": "y", "resultVar": f"v{i}"}
        for i in range(count)
    ]
    path = folder / f"task-{count}.json"
    path.write_text(json.dumps({"variables": variables, "steps": steps}), encoding="utf-8")
    return path


def seconds_of(command):
    """Runs the command, which has to print "xy" alone, and returns its processor time in seconds."""
    before = os.times()
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    after = os.times()
    if done.stdout != b"xy\n":
        sys.exit(f"{command[0]} printed {done.stdout!r}; expected b'xy\\n'")
    return (after.children_user - before.children_user
            + after.children_system - before.children_system)


def measure(oprun, task, rounds, more):
    command = [str(oprun), "run", str(task), "--print", "v0", *more]
    return min(seconds_of(command) for _ in range(rounds))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--oprun", default=HERE.parent.parent / "build/release/bin/oprun")
    parser.add_argument("--steps", type=int, default=80_000, help="steps of the longest task")
    parser.add_argument("--rounds", type=int, default=3)
    options = parser.parse_args()
    worst = 0.0
    with tempfile.TemporaryDirectory() as name:
        tasks = {options.steps // part: make_task(Path(name), options.steps // part)
                 for part in PARTS}
        for title, more in (("plain", []), ("--trace", ["--trace"])):
            figures = {count: measure(options.oprun, task, options.rounds, more)
                       for count, task in tasks.items()}
            for count, seconds in figures.items():
                print(f"  {count:>7} steps, {title:<8} {seconds:6.2f} s")
            growth = figures[options.steps] / figures[options.steps // PARTS[0]]
            print(f"  {PARTS[0]} times the steps, {title}: {growth:.1f} times as long")
            worst = max(worst, growth)
    if worst > MOST_GROWTH:
        sys.exit(f"{PARTS[0]} times the steps take {worst:.1f} times as long; "
                 f"expected {MOST_GROWTH} at most")


main()
