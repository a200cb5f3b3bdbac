#!/usr/bin/env python3
"""Makes sixty small mistakes in a copy of the program, one at a time, and tells which of them the tests notice."""

import argparse
import concurrent.futures
import pathlib
import subprocess
import sys

import Coverage
import Faults
import Tree
import Trial

AT_A_TIME = 2


def options():
    parser = argparse.ArgumentParser(prog="scripts/mutants", description=__doc__, epilog="CORVANE_CMAKE_ARGUMENTS "
                                     "in the environment is handed to cmake.")
    parser.add_argument("--only", metavar="N,...", help="these faults alone")
    parser.add_argument("--list", action="store_true", help="show the faults and check that they fit the sources")
    parser.add_argument("--build-only", action="store_true", help="build, and run nothing")
    parser.add_argument("--no-build", action="store_true", help="run what was built before")
    parser.add_argument("--coverage", action="store_true", help="measure what lines the tests reach, without a fault")
    parser.add_argument("--jobs", default="2", help="for the build and the measurement (2)")
    return parser.parse_args()


def say(text):
    print(text, flush=True)


def chosen(faults, only):
    if not only:
        return faults
    numbers = {int(number) for number in only.split(",")}
    return [fault for fault in faults if fault.number in numbers]


def show(faults, read):
    Faults.seeded(faults, read)
    for fault in faults:
        say(f"{fault.number:3} {fault.room:17} {fault.harm}")


def rooms_that_fail(trials, faults):
    """Runs the programs of the faults' rooms without a fault."""
    rooms = sorted({room for fault in faults for room in Trial.programs_for(fault.room, trials.rooms)})
    with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
        failures = list(pool.map(lambda room: (room, trials.caught_by_program(0, room)), rooms))
    for room, test in failures:
        say(f"{0:3} {room:17} {'passes' if not test else 'FAILS: ' + test}")
    return [room for room, test in failures if test]


def row_of(fault, test):
    return f"{fault.number:3} {fault.room:17} {test or 'NOT CAUGHT: ' + fault.harm}"


def try_out(trials, faults):
    """The rows of the result, in order."""

    def tried(fault):
        row = row_of(fault, trials.catcher_of(fault))
        say(row)
        return row

    with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
        return list(pool.map(tried, faults))


def main():
    asked = options()
    root = pathlib.Path(__file__).resolve().parents[2]
    home = root / "build/mutants"
    tree = home / "tree"
    faults = Faults.read_faults(root / "tests/mutants/faults")
    picked = chosen(faults, asked.only)
    if asked.list:
        show(picked, lambda file: (root / file).read_text(encoding="utf-8"))
        return 0
    if asked.coverage:
        return Coverage.measure(root, home, asked.jobs, build=not asked.no_build, run=not asked.build_only)
    if not asked.no_build:
        Tree.copy_sources(root, tree, faults)
        Tree.build(tree, tree / "build/release", asked.jobs)
    if asked.build_only:
        return 0
    trials = Trial.Trials(tree / "build/release", Tree.test_rooms(tree), home / "logs")
    trials.prepare()
    if rooms_that_fail(trials, picked):
        return 1
    rows = try_out(trials, picked)
    missed = sum("NOT CAUGHT" in row for row in rows)
    rows.append(f"{len(rows) - missed} of {len(rows)} faults were caught")
    say(rows[-1])
    (home / "result.txt").write_text("\n".join(rows) + "\n", encoding="utf-8")
    return 1 if missed else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except Faults.Mistake as mistake:
        sys.exit(f"mutants: {mistake}")
    except subprocess.CalledProcessError as failure:
        sys.exit(f"mutants: {failure.cmd[0]} failed")
