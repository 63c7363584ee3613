#!/usr/bin/env python3
"""Breaks the code by one line at a time and sees whether a test notices.

    scripts/mutate.py src/readback --count 50 --seed 1 --filter '*ReadBack*:*Refresh*'

For each fault the script changes one line of the room, builds the tests in build-mutants and runs those that the
filter names. A fault that no test notices survives and is printed with its place. The choice of faults is the same for
the same seed. The sources are put back after each fault, also when the script is interrupted; it wants a clean room.
"""

import argparse
import pathlib
import random
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build-mutants"
TESTS = BUILD / "tests" / "plotsmith_tests"

SWAPS = [
    (r"(?<![=!<>])==(?!=)", "!="),
    (r"!=", "=="),
    (r"(?<![<\-=>])<(?![<=])(?= )", "<="),
    (r"(?<= )<=(?= )", "<"),
    (r"(?<= )>=(?= )", ">"),
    (r"(?<= )>(?= )", ">="),
    (r"&&", "||"),
    (r"\|\|", "&&"),
    (r"(?<= )\+(?= )", "-"),
    (r"(?<= )-(?= )", "+"),
    (r"\+\+(?=\w)", "--"),
    (r"\btrue\b", "false"),
    (r"\bfalse\b", "true"),
    (r"(?<=\()!(?=\w)", ""),
    (r"(?<![\w.\"])(\d+)(?![\w.\"])", lambda m: str(int(m.group(1)) + 1)),
    (r'"([A-Za-z][^"\\%]*)"', lambda m: f'"{m.group(1)}_"'),
    (r"\bbreak;", ";"),
    (r"\bcontinue;", ";"),
]
SKIPPED = re.compile(r"^\s*(//|///|#|using |namespace |\}|\{|case .*:$|template|static_assert|$)")


def faults_of(path):
    """All faults of a file: line number from 0, and the line with the fault."""
    faults = []
    for number, line in enumerate(path.read_text().splitlines()):
        if SKIPPED.match(line):
            continue
        code = line.split(" //")[0]
        for pattern, replacement in SWAPS:
            for match in re.finditer(pattern, code):
                new = replacement(match) if callable(replacement) else replacement
                faults.append((number, line[: match.start()] + new + line[match.end() :]))
        # a statement of its own that is a call can be left out
        if re.match(r"^\s+[\w.>\-:]+(\(.*\))?(->\w+\(.*\))?;$", code) and "(" in code and "return" not in code:
            faults.append((number, re.match(r"^\s*", line).group(0) + ";"))
    return faults


def run(command, limit):
    """The exit code, or None if the command took longer than the limit."""
    try:
        return subprocess.run(command, cwd=ROOT, timeout=limit, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode
    except subprocess.TimeoutExpired:
        return None


def build():
    return run(["ninja", "-C", str(BUILD), "plotsmith_tests"], 900) == 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("room", nargs="+", help="folders or files of the sources")
    parser.add_argument("--count", type=int, default=50, help="how many faults (50)")
    parser.add_argument("--seed", type=int, default=1, help="which faults (1)")
    parser.add_argument("--filter", default="*", help="the tests to run, as --gtest_filter takes them (all)")
    options = parser.parse_args()

    files = []
    for room in options.room:
        path = ROOT / room
        files += sorted(path.rglob("*.cpp")) if path.is_dir() else [path]
    if subprocess.run(["git", "status", "--porcelain", "--", *options.room], cwd=ROOT, capture_output=True, text=True).stdout:
        sys.exit("mutate: the room has changes that aren't committed; commit them first.")
    faults = [(path, *fault) for path in files for fault in faults_of(path)]
    random.Random(options.seed).shuffle(faults)

    setup = ["cmake", "-S", str(ROOT), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O0",
             "-DPLOTSMITH_BENCH=OFF"]
    if run(setup, 300) != 0 or not build():
        sys.exit("mutate: the code doesn't build.")
    command = [str(TESTS), "--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={options.filter}"]
    start = time.time()
    if run(command, 3600) != 0:
        sys.exit("mutate: the tests fail without a fault.")
    limit = 10 * (time.time() - start) + 10

    killed, survivors, unbuilt = 0, [], 0
    for path, number, line in faults:
        if killed + len(survivors) == options.count:
            break
        source = path.read_text()
        lines = source.splitlines(keepends=True)
        before = lines[number].rstrip("\n")
        lines[number] = line + "\n"
        try:
            path.write_text("".join(lines))
            if not build():
                unbuilt += 1
                continue
            if run(command, limit) == 0:
                survivors.append(f"{path.relative_to(ROOT)}:{number + 1}\n  - {before.strip()}\n  + {line.strip()}")
                print("survived", survivors[-1], flush=True)
            else:
                killed += 1
        finally:
            path.write_text(source)
    tried = killed + len(survivors)
    print(f"{killed} of {tried} faults were noticed ({unbuilt} more didn't compile).")
    sys.exit(1 if survivors else 0)


if __name__ == "__main__":
    main()
