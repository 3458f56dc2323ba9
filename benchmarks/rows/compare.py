#!/usr/bin/env python3
"""Runs task.json by oprun, and the same job by a plain Python script, on the same rows.

    benchmarks/rows/compare.py [--oprun FILE] [--rows COUNT] [--rounds COUNT]

Both read and write JSON lines. The results are compared first; then the two take turns, and the
fastest round of each counts. Afterwards oprun runs on 10,000 and on 1,000,000 rows, and the most
memory it held is shown side by side.
"""

import argparse
import json
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent


def make_rows(folder, count):
    path = folder / f"rows-{count}.jsonl"
    with open(path, "wb") as out:
        subprocess.run([sys.executable, HERE / "make_rows.py", str(count)], stdout=out, check=True)
    return path


def run(command, rows, out):
    """Runs the command on the rows; gives the seconds."""
    with open(rows, "rb") as source, open(out, "wb") as sink:
        start = time.perf_counter()
        status = subprocess.call(
            [str(part) for part in command], stdin=source, stdout=sink, stderr=subprocess.DEVNULL
        )
        seconds = time.perf_counter() - start
    if status != 0:
        sys.exit(f"{command[0]} ended with status {status}")
    return seconds


def most_memory(command, rows):
    """The most memory the command holds on the rows, in MiB, looked at every millisecond."""
    most = 0
    with open(rows, "rb") as source:
        process = subprocess.Popen(
            [str(part) for part in command],
            stdin=source, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )
        while process.poll() is None:
            status = Path(f"/proc/{process.pid}/status").read_text(encoding="utf-8")
            found = re.search(r"VmHWM:\s+(\d+)", status)
            most = max(most, int(found.group(1)) if found else 0)
            time.sleep(0.001)
    return most / 1024


def check_same(left, right):
    with open(left, encoding="utf-8") as a, open(right, encoding="utf-8") as b:
        for number, (one, other) in enumerate(zip(a, b, strict=True), 1):
            if json.loads(one) != json.loads(other):
                sys.exit(f"line {number} differs:\n{one}{other}")


def without_steps(folder):
    task = json.loads((HERE / "task.json").read_text(encoding="utf-8"))
    task["steps"] = []
    path = folder / "no-steps.json"
    path.write_text(json.dumps(task), encoding="utf-8")
    return path


def compare_speed(folder, commands, rows, rounds):
    fastest = {}
    for _ in range(rounds):
        for name, command in commands.items():
            seconds = run(command, rows, folder / "timed.jsonl")
            fastest[name] = min(seconds, fastest.get(name, seconds))
    return fastest


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--oprun", default=HERE.parent.parent / "build/release/bin/oprun")
    parser.add_argument("--rows", type=int, default=200_000)
    parser.add_argument("--rounds", type=int, default=5)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        task = HERE / "task.json"
        rows = make_rows(folder, options.rows)
        plain = [sys.executable, HERE / "plain.py"]
        one = [options.oprun, "run", task, "--each", "-"]
        run(plain, rows, folder / "plain.jsonl")
        run(one, rows, folder / "oprun.jsonl")
        check_same(folder / "plain.jsonl", folder / "oprun.jsonl")
        print(f"{options.rows} rows: both give the same; the fastest of {options.rounds} rounds")

        commands = {
            "plain Python script": plain,
            "oprun, one job": one,
            "oprun, two jobs": [*one, "--jobs", "2"],
            "oprun, one job, one variable out": [*one, "--print", "result"],
            "oprun, no steps": [options.oprun, "run", without_steps(folder), "--each", "-"],
            "oprun, no steps, one variable out":
                [options.oprun, "run", without_steps(folder), "--each", "-", "--print", "result"],
        }
        fastest = compare_speed(folder, commands, rows, options.rounds)
        base = fastest["plain Python script"]
        for title, seconds in fastest.items():
            each = seconds / options.rows * 1e6
            print(f"  {title:<34} {seconds:6.2f} s  {each:6.2f} us a row  {seconds / base:5.2f}")

        print("memory at most")
        for count in (10_000, 1_000_000):
            many = make_rows(folder, count)
            for jobs in ("1", "2"):
                most = most_memory([*one, "--jobs", jobs], many)
                print(f"  {count:>9} rows, {jobs} job(s) {most:8.1f} MiB")


main()
