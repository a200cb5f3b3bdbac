"""Runs the tests with one fault switched on, until one of them notices."""

import itertools
import os
import re
import shutil
import signal
import subprocess
import threading

import Faults
import Tree

SECONDS = 300  # for a program or a test: longer than any takes, and what takes longer has noticed
LEFT_OUT = ["format", "mutants", "fuzz/.*", "accessibility/.*", "layers/.*", ".*_NOT_BUILT"]
MOST_UNSTEADY = 5

# Rooms without a test program of their own: who uses them.
USERS = {"texts": ["windows/stores", "windows/list", "windows/exclusion", "windows/main"], "app": ["gui"]}


def programs_for(room, rooms):
    return [program for program in USERS.get(room, [room]) if program in rooms]


class Trials:
    def __init__(self, build, rooms, logs):
        self.build, self.rooms, self.logs = build, rooms, logs
        shutil.rmtree(logs, ignore_errors=True)
        self.sound = {}  # whether a test alone passes without a fault
        self.lock = threading.Lock()
        self.runs = itertools.count(1)
        logs.mkdir(parents=True, exist_ok=True)

    def run(self, fault, log_name, command):
        """Whether the command succeeded, and what it said."""
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", GTEST_COLOR="no")
        environment[Faults.VARIABLE] = str(fault)
        log = self.logs / f"{fault}-{next(self.runs)}-{log_name}.txt"
        with open(log, "wb") as said:
            process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=said, stderr=subprocess.STDOUT,
                                       env=environment, cwd=self.build, start_new_session=True)
            try:
                succeeded = process.wait(SECONDS if "ctest" not in command[0] else None) == 0
            except subprocess.TimeoutExpired:
                succeeded = False
            finally:
                kill_group(process)
        return succeeded, log.read_text(encoding="utf-8", errors="replace")

    # ---- a room's own program

    def run_program(self, fault, room, test_filter="*"):
        command = [str(self.build / Tree.program_of(room)), "--gtest_fail_fast", f"--gtest_filter={test_filter}"]
        succeeded, said = self.run(fault, Tree.program_of(room), command)
        return None if succeeded else first_failure(said)

    def caught_by_program(self, fault, room):
        """The test that notices the fault, alone too; none that fails only now and then."""
        unsteady = []
        while len(unsteady) < MOST_UNSTEADY:
            test = self.run_program(fault, room, "*" + ("-" + ":".join(unsteady) if unsteady else ""))
            if not test:
                return None
            alone = lambda number, name=test: self.run_program(number, room, name) is None
            if test == "(its start)" or self.notices(fault, f"{room}/{test}", alone):
                return f"{room}/{test}"
            unsteady.append(test)
        return None

    # ---- everything else, as ctest has it

    def run_ctest(self, fault, *arguments):
        command = ["ctest", "--test-dir", str(self.build), "--timeout", str(SECONDS), "--output-on-failure", *arguments]
        succeeded, said = self.run(fault, "ctest", command)
        if succeeded:
            return None
        failed = re.search(r"The following tests FAILED:\s*\d+ - (\S+)", said)
        return failed.group(1) if failed else "(ctest itself)"

    def caught_by_others(self, fault, own_rooms):
        left_out = LEFT_OUT + [f"{room}/.*" for room in own_rooms]
        unsteady = []
        while len(unsteady) < MOST_UNSTEADY:
            excluded = "|".join(left_out + [re.escape(test) for test in unsteady])
            test = self.run_ctest(fault, "-LE", "^long$", "-E", f"^({excluded})$", "--stop-on-failure")
            if not test:
                return None
            alone = lambda number, name=test: self.run_ctest(number, "-R", f"^{re.escape(name)}$") is None
            if self.notices(fault, test, alone):
                return test
            unsteady.append(test)
        return None

    # ---- in common

    def notices(self, fault, test, passes_alone):
        if passes_alone(fault):
            return False
        if fault == 0:
            return True
        with self.lock:
            is_known = test in self.sound
        if not is_known:
            sound = passes_alone(0)
            with self.lock:
                self.sound[test] = sound
        return self.sound[test]

    def catcher_of(self, fault):
        """The first test that notices the fault; none when all tests pass."""
        own_rooms = programs_for(fault.room, self.rooms)
        for room in own_rooms:
            test = self.caught_by_program(fault.number, room)
            if test:
                return test
        return self.caught_by_others(fault.number, own_rooms)

    def prepare(self):
        """Lets ctest ask every program for its tests now, and not two at a time later."""
        self.run(0, "ctest-list", ["ctest", "--test-dir", str(self.build), "-N"])


def kill_group(process):
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()


def first_failure(said):
    """The first test that failed, or the one that was running when the program ended."""
    running = "(its start)"
    for line in said.splitlines():
        begun = re.match(r"\[ RUN      \] (\S+)", line)
        if begun:
            running = begun.group(1)
        failed = re.match(r"\[  FAILED  \] (\w\S*\.\S+?),?(?: |$)", line)
        if failed:
            return failed.group(1)
    return running
