"""How many lines of each room the tests reach."""

import collections
import concurrent.futures
import json
import os
import subprocess

import Tree
import Trial

FLAGS = "-O1 --coverage -fprofile-update=prefer-atomic"


def measure(root, home, jobs, build, run):
    folder = home / "coverage"
    if build:
        Tree.build(root, folder, jobs, "-DCMAKE_BUILD_TYPE=Debug", f"-DCMAKE_CXX_FLAGS={FLAGS}")
    if not run:
        return 0
    for counted in folder.rglob("*.gcda"):
        counted.unlink()
    left_out = "|".join(Trial.LEFT_OUT)
    with open(home / "coverage-tests.txt", "wb") as said:
        tests = subprocess.run(["ctest", "--test-dir", str(folder), "-j", jobs, "--timeout", str(Trial.SECONDS), "-LE",
                                "^long$", "-E", f"^({left_out})$", "--output-on-failure"],
                               env=dict(os.environ, QT_QPA_PLATFORM="offscreen"), stdout=said, stderr=said, check=False)
    rows = table(root, merged(root, folder, int(jobs)))
    if tests.returncode != 0:
        rows.append(f"some tests failed: {home / 'coverage-tests.txt'}")
    (home / "coverage.txt").write_text("\n".join(rows) + "\n", encoding="utf-8")
    print("\n".join(rows))
    return 0


def lines_of(note):
    """What gcov tells of one object: the count of each line of each file that is part of it."""
    said = subprocess.run(["gcov", "--json-format", "--stdout", str(note)], cwd=note.parent, capture_output=True,
                          check=False).stdout
    for line in said.splitlines():
        told = json.loads(line)
        folder = told["current_working_directory"]
        for file in told["files"]:
            path = os.path.normpath(os.path.join(folder, file["file"]))
            for each in file["lines"]:
                yield path, each["line_number"], each["count"]


def merged(root, folder, jobs):
    """For each file of the program the lines that are code, each with how often it ran in all objects together."""
    counts = collections.defaultdict(collections.Counter)
    own = [str(root / "src") + os.sep, str(root / "phone") + os.sep]
    notes = [note for part in ("src", "phone", "tests") for note in (folder / part).rglob("*.gcno")]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for found in pool.map(lambda note: list(lines_of(note)), notes):
            for path, line, count in found:
                if any(path.startswith(begin) for begin in own):
                    counts[os.path.relpath(path, root)][line] += count
    return counts


def room_of(file):
    parts = os.path.dirname(file).split(os.sep)
    return "phone/" if parts[0] == "phone" else "/".join(parts[1:])


def table(root, counts):
    code, reached = collections.Counter(), collections.Counter()
    for file, lines in counts.items():
        for room in (room_of(file), "all"):
            code[room] += len(lines)
            reached[room] += sum(count > 0 for count in lines.values())
    rows = [f"{'room':18} {'lines':>6} {'reached':>8} {'%':>6}"]
    for room in sorted(code, key=lambda name: (name == "all", name)):
        rows.append(f"{room:18} {code[room]:6} {reached[room]:8} {100 * reached[room] / code[room]:6.2f}")
    return rows
