#!/usr/bin/env python3
"""Runs the benchmarks that scripts/bench has built, prints their table and writes it down.

Every figure stands beside one taken in the same run: the two are measured in turn, several times each, and compared by
their medians. Nothing here passes or fails: the table says what was reached and what was not.
"""

import argparse
import collections
import csv
import datetime
import json
import os
import pathlib
import platform
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time

try:
    import openpyxl
except ImportError:
    openpyxl = None  # its rows are left out

SIZES = [1_000, 10_000, 100_000, 1_000_000]
MOST = SIZES[-1]
TOLERANCE = 1.3  # of straight-line growth
REMARKS = "<!-- What follows is written by hand and kept by scripts/bench. -->"

Row = collections.namedtuple("Row", "work beside measured mark reached")


def progress(text):
    print("   " + text, file=sys.stderr, flush=True)


def seconds(value):
    for unit, factor in (("s", 1), ("ms", 1e3), ("µs", 1e6)):
        if value * factor >= 1:
            return f"{value * factor:.3g} {unit}"
    return f"{value * 1e9:.3g} ns"


class Phone:
    """corvane-phone as a child that takes a while for each message, and when it got them."""

    def __init__(self, program, result_after):
        self.child = subprocess.Popen([program, "--until-stdin-closes", "--result-after", "1-", str(result_after)],
                                      env=dict(os.environ, CORVANE_PACE="1"), stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.device = self.child.stdout.readline().decode().strip()
        self.arrivals = []
        self.reader = threading.Thread(target=self.listen)
        self.reader.start()

    def listen(self):
        for line in self.child.stdout:
            if b'"event":"message"' in line:
                self.arrivals.append(time.perf_counter())

    def end(self):
        """Seconds from one message to the next."""
        self.child.stdin.close()
        self.child.wait()
        self.reader.join()
        return (self.arrivals[-1] - self.arrivals[0]) / (len(self.arrivals) - 1)


class Bench:
    def __init__(self, build, work, runs):
        self.build, self.work, self.runs = build, work, runs
        self.rows = []
        self.gaps = {}

    # ---- running

    def environment(self, data_home):
        return dict(os.environ, XDG_DATA_HOME=str(data_home), QT_QPA_PLATFORM="offscreen", LC_ALL="C")

    def program(self, name, *arguments, data_home=None):
        """Runs one of the benchmark programs and returns the JSON object that it printed."""
        command = [self.build / name, *map(str, arguments)]
        done = subprocess.run(command, env=self.environment(data_home or self.work), stdout=subprocess.PIPE, check=True,
                              stderr=subprocess.DEVNULL)
        return json.loads(done.stdout)

    def wall(self, command, data_home=None):
        """Seconds from a program's start to its end."""
        environment = self.environment(data_home or self.work)
        nowhere = [(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0), (os.POSIX_SPAWN_OPEN, 2, "/dev/null", os.O_WRONLY, 0)]
        begin = time.perf_counter()
        process = os.posix_spawnp(str(command[0]), list(map(str, command)), environment, file_actions=nowhere)
        _, status = os.waitpid(process, 0)
        passed = time.perf_counter() - begin
        if status != 0:
            raise SystemExit(f"{command[0]} failed")
        return passed

    def in_turn(self, *measurements):
        """Each measurement once, one after the other, as often as there are runs: the lists of their results."""
        results = [[measurement() for measurement in measurements] for _ in range(self.runs)]
        return [list(column) for column in zip(*results)]

    def window(self, measurement, *arguments, store=None):
        """bench-window in a data folder of its own, with a store of sent items in it if one is given."""
        with tempfile.TemporaryDirectory(dir=self.work) as home:
            if store:
                folder = pathlib.Path(home, "corvane/Resources/CORVANE_DATA")
                folder.mkdir(parents=True)
                (folder / "SentItem.ZOVA").write_bytes(store.read_bytes())
            return self.program("bench-window", measurement, *arguments, data_home=home)

    def data(self, kind, count):
        path = self.work / f"{kind}-{count}.txt"
        if not path.exists():
            more = [self.work / f"excluded-{count}.txt"] if kind == "numbers" else []
            subprocess.run([self.build / "bench-data", kind, str(count), path, *more], check=True)
        return path

    # ---- putting down

    def row(self, work, beside, measured, mark, reached):
        word = {True: "yes", False: "**no**", None: "-"}[reached]
        self.rows.append(Row(work, beside, measured, mark, word))
        progress(f"{work}: {measured} (beside {beside}; mark {mark}: {word})")

    def gap(self, work, results, key):
        self.gaps[work] = statistics.median(result[key] for result in results)

    # ---- the rows

    def encode(self):
        done = subprocess.run([self.build / "bench-encode", f"--benchmark_repetitions={self.runs}",
                               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.2",
                               "--benchmark_format=json"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
        times = {}
        for result in json.loads(done.stdout)["benchmarks"]:
            if result.get("aggregate_name") == "median":
                times[result["run_name"].split("/repeats")[0]] = result["cpu_time"] * 1e-9
        for work, ours, peer, mark in (
                ("encode 160 characters of the 7-bit alphabet", "Corvane_Single/seven_bit", "Peer_Single/seven_bit", 40),
                ("encode 70 characters of UCS2", "Corvane_Single/ucs2", "Peer_Single/ucs2", 45),
                ("encode 1600 characters into parts, 7-bit", "Corvane_Parts/seven_bit", "Peer_Parts/seven_bit", 40),
                ("encode 1600 characters into parts, UCS2", "Corvane_Parts/ucs2", "Peer_Parts/ucs2", 40)):
            ours, peer = (next(t for name, t in times.items() if name.startswith(wanted)) for wanted in (ours, peer))
            self.row(work, f"libgammu, {seconds(peer)}", f"{seconds(ours)}, {peer / ours:.1f} times its rate",
                     f"{mark} times", peer / ours >= mark)

    def imports(self):
        path = self.data("numbers", MOST)
        excluded = self.work / f"excluded-{MOST}.txt"
        sorted_, tight, ours = self.in_turn(
            lambda: self.wall(["sort", "-u", path]),
            lambda: self.program("bench-tight", path, excluded),
            lambda: self.window("import", path, excluded))
        counts = {result["count"] for result in tight + ours}
        if len(counts) != 1:
            raise SystemExit(f"the import and its peer do not agree: {counts}")
        sorting = statistics.median(sorted_)
        peer = statistics.median(result["seconds"] for result in tight)
        own = statistics.median(result["import seconds"] for result in ours)
        self.row("import 1,000,000 numbers", f"`sort -u`, {seconds(sorting)}",
                 f"{seconds(own)}, {own / sorting:.2f} times its time", "faster", own < sorting)
        self.row("import 1,000,000 numbers", f"one flat hash table, {seconds(peer)}",
                 f"{seconds(own)}, {own / peer:.1f} times its time", "at most 4 times", own <= 4 * peer)
        self.gap("import", ours, "import whole gap")
        self.gap("clear of the imported", ours, "clear gap")

    def memory(self):
        path = self.data("distinct", MOST)
        results, = self.in_turn(lambda: self.window("memory", path))
        each = statistics.median(result["bytes each"] for result in results)
        most = statistics.median(result["bytes each at most"] for result in results)
        self.row("memory of 1,000,000 recipients with one message", "-",
                 f"{each:.0f} bytes each ({most:.0f} while they are imported)", "120 bytes each", each <= 120)

    def load(self):
        path = self.data("sent", MOST)
        size = path.stat().st_size
        lines, ours, written = self.in_turn(
            lambda: self.program("bench-lines", path),
            lambda: self.window("load", MOST, store=path),
            lambda: self.write_plainly(path))
        peer = statistics.median(result["seconds"] for result in lines)
        own = statistics.median(result["load seconds"] for result in ours)
        held = statistics.median(result["load kilobytes"] for result in ours) * 1024
        most = statistics.median(result["load kilobytes at most"] for result in ours) * 1024
        self.row("load 1,000,000 sent items of 100 bytes", f"views at the line ends, {seconds(peer)}",
                 f"{seconds(own)}, {own / peer:.1f} times its time", "at most 8 times", own <= 8 * peer)
        self.row("memory of the loaded items", f"the file, {size / 1e6:.0f} MB",
                 f"{held / size:.1f} times the file ({most / size:.1f} at most while loading)", "at most 2.5 times",
                 held <= 2.5 * size)
        rewrite = statistics.median(result["rewrite seconds"] for result in ours)
        plain = statistics.median(written)
        self.row("rewrite them on close", f"writing and syncing the same bytes, {seconds(plain)}",
                 f"{seconds(rewrite)}, {rewrite / plain:.1f} times its time", "-", None)
        self.gap("load", ours, "load gap")
        self.gap("rewrite", ours, "rewrite gap")

    def write_plainly(self, path):
        content = path.read_bytes()
        begin = time.perf_counter()
        with open(self.work / "plain", "wb") as file:
            file.write(content)
            file.flush()
            os.fsync(file.fileno())
        return time.perf_counter() - begin

    def csv_list(self, path):
        """What Python's own reader of tables needs for the texts of bench-table."""
        begin, processor_begin = time.perf_counter(), time.process_time()
        count = characters = 0
        with open(path, newline="", encoding="utf-8-sig") as file:
            rows = csv.reader(file)
            next(rows)
            for row in rows:
                count += 1
                characters += len(f"Dear {row[1]}, your appointment in {row[2]} is on Monday at 10:15.")
        return {"seconds": time.perf_counter() - begin, "processor seconds": time.process_time() - processor_begin,
                "count": count, "characters": characters}

    def xlsx_list(self, path):
        """The same for a spreadsheet."""
        begin, processor_begin = time.perf_counter(), time.process_time()
        count = characters = 0
        rows = openpyxl.load_workbook(path, read_only=True).active.iter_rows(min_row=2, values_only=True)
        for row in rows:
            count += 1
            characters += len(f"Dear {row[1]}, your appointment in {row[2]} is on Monday at 10:15.")
        return {"seconds": time.perf_counter() - begin, "processor seconds": time.process_time() - processor_begin,
                "count": count, "characters": characters}

    def spreadsheet(self, rows):
        path = self.work / f"table-{rows}.xlsx"
        if not path.exists():
            book = openpyxl.Workbook(write_only=True)
            sheet = book.create_sheet()
            with open(self.data("table", rows), newline="", encoding="utf-8") as file:
                for row in csv.reader(file):
                    sheet.append(row)
            book.save(path)
        return path

    def tables(self):
        """From files of contacts to lists whose texts are filled, and the plan of a job."""
        def beside(work, path, peer, peer_name, mark, most_bytes):
            theirs, ours = self.in_turn(lambda: peer(path), lambda: self.program("bench-table", "list", path))
            if len({(result["count"], result["characters"]) for result in theirs + ours}) != 1:
                raise SystemExit(f"the texts and those of {peer_name} are not the same")
            middle = lambda results, key: statistics.median(result[key] for result in results)
            own, other, each = middle(ours, "seconds"), middle(theirs, "seconds"), middle(ours, "bytes each")
            rate = middle(theirs, "processor seconds") / middle(ours, "processor seconds")
            self.row(work, f"{peer_name}, {seconds(other)}",
                     f"{seconds(own)}, {other / own:.1f} times its rate, {rate:.1f} times by processor time",
                     f"{mark} times", rate >= mark)
            self.row("memory of that list with its fields", "-", f"{each:.0f} bytes each",
                     f"{most_bytes} bytes each", each <= most_bytes)

        beside("CSV of 1,000,000 rows of 5 columns to a list and its texts, two placeholders each", self.data("table", MOST),
               self.csv_list, "Python's csv and the same texts", 4, 200)
        if openpyxl:
            beside("XLSX of 100,000 rows of 5 columns to a list and its texts", self.spreadsheet(100_000), self.xlsx_list,
                   "openpyxl, read-only, and the same texts", 8, 200)
        numbers, excluded = self.data("numbers", MOST), self.work / f"excluded-{MOST}.txt"
        imports, plans = self.in_turn(
            lambda: self.program("bench-table", "import", numbers, excluded),
            lambda: self.program("bench-table", "plan", self.data("table", MOST), excluded))
        if len({result["count"] for result in imports + plans}) != 1:
            raise SystemExit("the plan and the import do not agree")
        median = lambda results, key: statistics.median(result[key] for result in results)
        own, peer = median(plans, "seconds"), median(imports, "seconds")
        by_processor = median(plans, "processor seconds") / median(imports, "processor seconds")
        self.row("plan of 1,000,000 rows: verdicts, parts and sums", f"the import of the same numbers, {seconds(peer)}",
                 f"{seconds(own)}, {own / peer:.2f} times its time, {by_processor:.2f} times by processor time",
                 "at most 3 times", own <= 3 * peer)

    def table(self):
        few, many = self.in_turn(lambda: self.window("table", self.data("distinct", 1_000)),
                                 lambda: self.window("table", self.data("distinct", MOST)))
        middle = lambda results, key: statistics.median(result[key] for result in results)
        for step, mark in (("scroll", 0.2), ("select all", 0.2), ("clear half", 1), ("clear all", 1), ("fill all", 1)):
            small, large = middle(few, step + " seconds"), middle(many, step + " seconds")
            if step == "scroll":  # twenty-one steps in one
                small, large = small / 21, large / 21
            self.row(f"{step}, 1,000,000 rows", f"1,000 rows, {seconds(small)}", seconds(large),
                     f"at most {seconds(mark)}", large <= mark)
            self.gap(step, many, step + " gap")
        for step in ("edit message", "edit number"):
            small, large = middle(few, step + " seconds"), middle(many, step + " seconds")
            self.row(f"{step} of one row of 1,000,000", f"of 1,000 rows, {seconds(small)}",
                     f"{seconds(large)}, {large / small:.1f} times", "the same (up to 1.3 times)", large <= 1.3 * small)
            self.gap(step, many, step + " gap")

    def typing(self):
        results = [self.window("typing") for _ in range(self.runs)]
        middle = lambda key: statistics.median(result[key] for result in results)
        alone = middle("key alone")
        for manner in ("described", "confirmed"):
            own = middle("key " + manner)
            self.row(f"a key in a {manner} message of 1,590 characters, previewed", f"a text area alone, {seconds(alone)}",
                     f"{seconds(own)}, {seconds(own - alone)} more", "at most 2 ms more", own - alone <= 0.002)

    def start(self):
        store = self.data("sent", MOST)
        with tempfile.TemporaryDirectory(dir=self.work) as empty, tempfile.TemporaryDirectory(dir=self.work) as full:
            folder = pathlib.Path(full, "corvane/Resources/CORVANE_DATA")
            (folder / "Exclusion").mkdir(parents=True)
            for name in ("SentItem.ZOVA", "Templates.ZOVA"):
                (folder / name).write_bytes(store.read_bytes())
            for name in ("AppExclusion.ZOVA", "Exclusion/ExListIndex.ZOVA"):
                (folder / name).write_text("Measured\n")
            (folder / "Exclusion/Measured.ZOVA").write_bytes(self.data("distinct", MOST).read_bytes())
            peer = [self.build / "bench-smallest"]
            ours = [self.build / "bench-window", "start"]
            for command, home in ((peer, empty), (ours, empty), (ours, full)):
                self.wall(command, home)  # everything is read from the disk once
            times = [[], [], []]
            for _ in range(max(self.runs, 15)):
                for kept, (command, home) in zip(times, ((peer, empty), (ours, empty), (ours, full))):
                    kept.append(self.wall(command, home))
        smallest, without, with_data = map(statistics.median, times)
        self.row("start to the first painted window, no data", f"the smallest Qt program, {seconds(smallest)}",
                 f"{seconds(without)}, {without / smallest:.2f} times", "at most 1.4 times", without <= 1.4 * smallest)
        self.row("the same with full data", f"without data, {seconds(without)}",
                 f"{seconds(with_data)}, {with_data / without:.2f} times", "the same (up to 1.05 times)",
                 with_data <= 1.05 * without)

    def job(self, messages):
        send = lambda recipients: self.window("job", self.build / "corvane-phone", self.data("distinct", recipients), 250,
                                              messages)
        if messages <= 1_000:
            results = self.in_turn(lambda: send(1_000), lambda: send(10_000))
        else:
            results = [[], [send(10_000)]]
        middle = lambda key, size=1: statistics.median(result[key] for result in results[size])
        waits, each = middle("described seconds each"), middle("job seconds each")
        self.row(f"a job of 10,000 recipients, {messages:,} of them sent", f"the waits' sum, {seconds(waits)} each",
                 f"{seconds(each)} each, {(each / waits - 1) * 100:.2f} % more", "at most 1 % more", each <= 1.01 * waits)
        first, last = middle("job seconds each at first"), middle("job seconds each at last")
        if results[0]:
            short = middle("job seconds each", 0)
            self.row("the same, flat in the list's length", f"a list of 1,000, {seconds(short)} each",
                     f"{seconds(each)} each, {each / short:.3f} times", "the same (up to 1.01 times)", each <= 1.01 * short)
        self.row("the same, its last tenth", f"its first tenth, {seconds(first)} each",
                 f"{seconds(last)} each, {last / first:.3f} times", "the same (up to 1.01 times)", last <= 1.01 * first)
        more = middle("job kilobytes more")
        self.row("memory that it takes more at its end", "-", f"{more:.0f} kB", "flat (up to 1 MB)", more <= 1024)
        self.gap("job", results[1], "job gap")

    def through_a_phone(self, result_after, messages, command):
        """Seconds from one message to the next, sent by what command makes of the device, a folder and the numbers."""
        phone = Phone(self.build / "corvane-phone", result_after)
        numbers = [f"+4477009{index:05}" for index in range(messages)]
        with tempfile.TemporaryDirectory(dir=self.work) as folder:
            try:
                environment = dict(self.environment(folder), CORVANE_PACE="1", LC_ALL="C.UTF-8")
                subprocess.run(command(phone.device, pathlib.Path(folder), numbers), env=environment, check=True,
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            finally:
                each = phone.end()
        if len(phone.arrivals) != messages:
            raise SystemExit(f"of {messages} messages {len(phone.arrivals)} came to the phone")
        return each

    def send(self):
        """Confirmed sending, beside the device's own time and beside gammu, on one connection for all messages: the
        quickest way that its command line has."""
        text = "Choir practice moves to Thursday, 7 pm."

        def ours(device, folder, numbers):
            (folder / "numbers").write_text("\n".join(numbers) + "\n")
            return [self.build / "corvane-send", "--device", device, "--numbers", folder / "numbers", "--message", text]

        def theirs(device, folder, numbers):
            (folder / "configuration").write_text(f"[gammu]\ndevice = {device}\nconnection = at\n")
            (folder / "batch").write_text("".join(f'sendsms TEXT {number} -text "{text}"\n' for number in numbers))
            return ["gammu", "-c", folder / "configuration", "batch", folder / "batch"]

        has_peer = shutil.which("gammu") is not None
        for result_after, messages, messages_of_peer in ((0.01, 100, 5), (0.3, 20, 5), (3, 4, 4)):
            own = lambda: self.through_a_phone(result_after, messages, ours)
            peer = lambda: self.through_a_phone(result_after, messages_of_peer, theirs)
            results = self.in_turn(own, peer) if has_peer else self.in_turn(own)
            each = statistics.median(results[0])
            more = each - result_after
            self.row(f"confirmed sending, each message judged, results after {seconds(result_after)}",
                     f"the device's own time, {seconds(result_after)} each",
                     f"{seconds(each)} each, {each / result_after:.3f} times, {more * 1e3:.1f} ms more",
                     "at most 1 % and 20 ms more", each <= 1.01 * result_after + 0.02)
            if has_peer:
                other = statistics.median(results[1])
                self.row("the same, messages a minute", f"`gammu batch` of `sendsms`, {60 / other:.1f}",
                         f"{60 / each:.1f}, {other / each:.2f} times as many", "at least as many", each <= other)

    def rest(self, length):
        for work, command in (("idle", ["idle", length]),
                              ("pausing for an hour", ["pause", self.build / "corvane-phone", self.data("distinct", 1_000),
                                                       length])):
            results, = self.in_turn(lambda: self.window(*command))
            percent = statistics.median(result["percent of a core"] for result in results)
            wakes = statistics.median(result["wake-ups a second"] for result in results)
            self.row(f"{work}, {length} seconds of it", "-", f"{percent:.2f} % of a core, {wakes:.1f} wake-ups a second",
                     "under 0.2 %, and no more than shows on screen (up to 5 a second)", percent < 0.2 and wakes <= 5)

    def growth(self):
        costs = {work: [] for work in ("import", "load", "duplicate check", "clear")}
        for size in SIZES:
            numbers, excluded = self.data("numbers", size), self.work / f"excluded-{size}.txt"
            imports, loads = self.in_turn(lambda: self.window("import", numbers, excluded),
                                          lambda: self.window("load", size, store=self.data("sent", size)))
            for work, results, key in (("import", imports, "import seconds"), ("load", loads, "load seconds"),
                                       ("duplicate check", imports, "duplicates seconds"),
                                       ("clear", imports, "clear seconds")):
                costs[work].append(statistics.median(result[key] for result in results))
        for work, times in costs.items():
            worst = max(later / earlier / 10 for earlier, later in zip(times, times[1:]))
            self.row(f"growth of {work}, 1,000 to 1,000,000", "a straight line",
                     f"{', '.join(map(seconds, times))}: {worst:.2f} times from one to the next", "within 1.3 times",
                     worst <= TOLERANCE)
        return costs

    def heartbeat(self):
        longest = max(self.gaps, key=self.gaps.get)
        self.row("the interface thread during all of these", "-",
                 f"away for {self.gaps[longest]:.0f} ms at most ({longest})", "never more than 50 ms",
                 self.gaps[longest] <= 50)


# ---- the plot

def plot(costs):
    """Cost over size, both logarithmic, with a straight line through each series' largest size."""
    import math
    width, height, left, right, top, bottom = 760, 470, 80, 190, 30, 60
    values = [value for times in costs.values() for value in times]
    low, high = math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))
    first, last = math.log10(SIZES[0]), math.log10(SIZES[-1])
    x = lambda size: left + (math.log10(size) - first) / (last - first) * (width - left - right)
    y = lambda value: top + (high - math.log10(value)) / (high - low) * (height - top - bottom)
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" font-family="sans-serif" '
             'font-size="13">', f'<rect width="{width}" height="{height}" fill="white"/>',
             '<title>How cost grows with the number of rows</title>']
    for power in range(low, high + 1):
        at = y(10 ** power)
        parts.append(f'<line x1="{left}" y1="{at:.1f}" x2="{width - right}" y2="{at:.1f}" stroke="#ddd"/>')
        parts.append(f'<text x="{left - 8}" y="{at + 4:.1f}" text-anchor="end">{seconds(10 ** power)}</text>')
    for size in SIZES:
        parts.append(f'<line x1="{x(size):.1f}" y1="{top}" x2="{x(size):.1f}" y2="{height - bottom}" stroke="#ddd"/>')
        parts.append(f'<text x="{x(size):.1f}" y="{height - bottom + 20}" text-anchor="middle">{size:,}</text>')
    parts.append(f'<text x="{(left + width - right) / 2}" y="{height - 14}" text-anchor="middle">rows</text>')
    ends = []
    for (work, times), colour in zip(costs.items(), ("#1b6ca8", "#c0392b", "#2e8b57", "#8e5ea2")):
        points = " ".join(f"{x(size):.1f},{y(value):.1f}" for size, value in zip(SIZES, times))
        straight = " ".join(f"{x(size):.1f},{y(max(times[-1] * size / SIZES[-1], 10 ** low)):.1f}" for size in SIZES)
        parts.append(f'<polyline points="{straight}" fill="none" stroke="{colour}" stroke-dasharray="3 5" opacity="0.6"/>')
        parts.append(f'<polyline points="{points}" fill="none" stroke="{colour}" stroke-width="2"/>')
        for size, value in zip(SIZES, times):
            parts.append(f'<circle cx="{x(size):.1f}" cy="{y(value):.1f}" r="4" fill="{colour}"/>')
        ends.append((y(times[-1]), work, times[-1], colour))
    at = -100.0
    for place, work, value, colour in sorted(ends):
        at = max(place, at + 17)
        parts.append(f'<text x="{width - right + 12}" y="{at + 4:.1f}" fill="{colour}">{work}, {seconds(value)}</text>')
    parts.append(f'<text x="{width - right + 12}" y="{height - bottom}" fill="#666">dashed: straight line</text>')
    return "\n".join(parts + ["</svg>"]) + "\n"


# ---- the report

def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return platform.machine()


def report(rows, runs, command, remarks):
    cells = [["work", "beside", "measured", "mark", "reached"], ["---"] * 5, *map(list, rows)]
    table = "\n".join("| " + " | ".join(row) + " |" for row in cells)
    return f"""# How fast, and how much of it

Written by `{command}`, which measures everything anew on the machine that it runs on. Each figure is the median of {runs} runs
and stands beside something measured in the same run; nothing of this is part of the tests.

- Machine: {processor()}, {os.cpu_count()} cores, Linux {platform.release()}
- Date: {datetime.date.today().isoformat()}
- Built as the program is shipped: optimised (`-O2`), with debug information
- Windows are the real ones, on the toolkit's offscreen platform

{table}

![How cost grows with the number of rows](growth.svg)

{REMARKS}

{remarks}"""


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--docs", type=pathlib.Path, required=True)
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--long", action="store_true", help="send all messages of the job of 10,000")
    parser.add_argument("--only", nargs="*", help="measure these rows and write nothing")
    arguments = parser.parse_args()

    with tempfile.TemporaryDirectory(prefix="corvane-bench-") as work:
        bench = Bench(arguments.build.resolve(), pathlib.Path(work), arguments.runs)
        steps = {"encode": bench.encode, "import": bench.imports, "memory": bench.memory, "load": bench.load,
                 "tables": bench.tables, "table": bench.table, "typing": bench.typing, "start": bench.start,
                 "growth": bench.growth,
                 "job": lambda: bench.job(10_000 if arguments.long else 200), "send": bench.send, "rest": lambda: bench.rest(10)}
        costs = None
        for name, step in steps.items():
            if not arguments.only or name in arguments.only:
                result = step()
                costs = result if name == "growth" else costs
        if bench.gaps:
            bench.heartbeat()
    if arguments.only:
        return
    page = arguments.docs / "PERFORMANCE.md"
    kept = page.read_text().split(REMARKS, 1)[1].lstrip("\n") if page.exists() and REMARKS in page.read_text() else ""
    command = "scripts/bench" + (" --long" if arguments.long else "")
    page.write_text(report(bench.rows, arguments.runs, command, kept))
    (arguments.docs / "growth.svg").write_text(plot(costs))
    print(page.read_text().split("\n\n")[3])


if __name__ == "__main__":
    main()
