#!/usr/bin/python3
"""Programs of others talk to the virtual phone as to any modem: what they read of it and what they send through it must
arrive as it was given.

    Clients.py gammu|smsd CORVANE-PHONE
    Clients.py hand_over|hand_over_to_two CORVANE-PHONE CORVANE-SEND

The last two are smsd again, which sends what corvane-send has handed over to it, with one phone and with two."""

import csv
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path
from queue import Empty, Queue

PATIENCE = 100  # seconds for one step; each takes a few on an idle machine
NUMBER = "+15550001234"
SHORT = "Price: 5 € [net] {a} ~ ^ \\ |"
LONG = ("abcdefghi " * 40)[:399] + "z"  # 400 characters, three parts
UNICODE = "Привет, мир 😀 ещё"


class Trouble(Exception):
    pass


def expect(what, expected, found):
    if expected != found:
        raise Trouble(f"{what}: expected {expected!r}, found {found!r}")


class Phone:
    """corvane-phone as a child, and what it tells."""

    def __init__(self, program):
        self.program = program
        self.child = subprocess.Popen([program, "--until-stdin-closes"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.device = self.child.stdout.readline().decode().strip()
        self.told = Queue()
        threading.Thread(target=self.listen, daemon=True).start()

    def listen(self):
        for line in self.child.stdout:
            event = json.loads(line)
            if event["event"] == "message":
                self.told.put(event)

    def message(self):
        try:
            return self.told.get(timeout=PATIENCE)
        except Empty:
            raise Trouble(f"no message came within {PATIENCE} seconds") from None

    def end(self):
        self.child.stdin.close()
        self.child.wait(PATIENCE)


def expect_message(phone, text, parts):
    message = phone.message()
    expect("number", NUMBER, message["number"])
    expect("text", text, message["text"])
    expect("parts", parts, message["parts"])


def program_of(name, package):
    found = shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin:/usr/bin")
    if not found:
        raise Trouble(f"{name} is not installed; Debian's package is '{package}', and scripts/test installs it")
    return found


def gammu(phone, folder):
    program = program_of("gammu", "gammu")
    configuration = folder / "gammurc"
    configuration.write_text(f"[gammu]\ndevice = {phone.device}\nconnection = at\n", encoding="utf-8")

    def run(*arguments):
        done = subprocess.run([program, "-c", configuration, *arguments], stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=PATIENCE, check=False,
                              env={**os.environ, "LC_ALL": "C.UTF-8"})
        said = done.stdout.decode(errors="replace")
        if done.returncode != 0:
            raise Trouble(f"gammu {arguments[0]} ended with {done.returncode} and said: {said}")
        return dict(line.split(" : ", 1) for line in (" ".join(line.split()) for line in said.splitlines())
                    if " : " in line)

    identity = run("identify")
    for field, value in {"Manufacturer": "Corvane", "Model": "unknown (Virtual Phone)", "Firmware": "1.0",
                         "IMEI": "490154203237518", "SIM IMSI": "001010123456789"}.items():
        expect(field, value, identity.get(field))
    network = run("networkinfo")
    expect("Network state", "home network", network.get("Network state"))
    expect("Name in phone", '"Corvane Test"', network.get("Name in phone"))
    expect("GPRS", "attached", network.get("GPRS"))
    for text, parts, options in ((SHORT, 1, ()), (LONG, 3, ("-len", "400")), (UNICODE, 1, ("-unicode", "-len", "70"))):
        run("sendsms", "TEXT", NUMBER, *options, "-text", text)
        expect_message(phone, text, parts)


SMSD_CONFIGURATION = """devices = {1}
outgoing = {0}/outgoing
checked = {0}/checked
incoming = {0}/incoming
sent = {0}/sent
failed = {0}/failed
infofile = {0}/working
pidfile = {0}/pid
logfile = {0}/log
loglevel = 7
delaytime = 1
errorsleeptime = 1
autosplit = 3
"""
SMSD_DEVICE = """
[{0}]
device = {1}
init = AT+CNMI=2,1,0,0,0
incoming = no
baudrate = 115200
"""


def messages_of(phones, count):
    """As many messages, in the order of their texts, each with the place of the phone that shows it."""
    messages = []
    end = time.monotonic() + PATIENCE
    while len(messages) < count:
        for place, phone in enumerate(phones):
            while not phone.told.empty():
                messages.append({**phone.told.get(), "phone": place})
        if time.monotonic() > end:
            raise Trouble(f"{len(messages)} of {count} messages came within {PATIENCE} seconds")
        time.sleep(0.05)
    return sorted(messages, key=lambda message: message["text"])


def stop(child):
    """By its own id first; what it started is in a group of its own."""
    child.terminate()
    try:
        child.wait(PATIENCE / 4)
    except subprocess.TimeoutExpired:
        os.killpg(child.pid, signal.SIGKILL)
        child.wait()


def run_smsd(phones, folder, files):
    """The messages that smsd sends with these phones, in the order of their texts; files are name and bytes of each in
    its spool."""
    program = program_of("smsd", "smstools")
    for name in ("outgoing", "checked", "incoming", "sent", "failed"):
        (folder / name).mkdir()
    devices = {f"GSM{place + 1}": phone.device for place, phone in enumerate(phones)}
    (folder / "smsd.conf").write_text(SMSD_CONFIGURATION.format(folder, ", ".join(devices)) +
                                      "".join(SMSD_DEVICE.format(*device) for device in devices.items()),
                                      encoding="utf-8")
    for name, content in files:
        (folder / "outgoing" / name).write_bytes(content)
    child = subprocess.Popen([program, "-t", "-c", folder / "smsd.conf"], stdin=subprocess.DEVNULL,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        return messages_of(phones, len(files))
    except Trouble as trouble:
        raise Trouble(f"{trouble}; smsd wrote:\n{(folder / 'log').read_text(errors='replace')}") from None
    finally:
        stop(child)


def smsd(phone, folder):
    spool = ((SHORT, 1, "UTF-8", SHORT.encode()), (UNICODE, 1, "UCS2", UNICODE.encode("utf-16-be")),
             (LONG, 3, "UTF-8", LONG.encode()))
    arrived = run_smsd([phone], folder, [(str(place), f"To: {NUMBER[1:]}\nAlphabet: {alphabet}\n\n".encode() + body)
                                         for place, (_, _, alphabet, body) in enumerate(spool)])
    expected = sorted((text, parts, NUMBER) for text, parts, _, _ in spool)
    expect("messages", expected, [(message["text"], message["parts"], message["number"]) for message in arrived])


def hand_over(phone, folder, corvane_send):
    # What is handed over, and what the handset shows: number, parts, message class.
    handed = (("short", NUMBER, SHORT, (), NUMBER, 1, None),
              ("latin", NUMBER, "Grüße: 5 £ für Ñandú, Øre\nund mehr", (), NUMBER, 1, None),
              ("long", NUMBER, LONG, (), NUMBER, 3, None),
              ("brackets", NUMBER, "{€}[~]" * 40, (), NUMBER, 4, None),
              ("unicode", NUMBER, UNICODE, (), NUMBER, 1, None),
              ("long-unicode", NUMBER, UNICODE * 6, (), NUMBER, 2, None),
              ("national", "015550001234", "Hello", (), "015550001234", 1, None),
              ("greek", NUMBER, "Ω and Δ: 5 € @ 3 % _ §", (), NUMBER, 1, None),
              ("blank-lines", NUMBER, "\n To: a line\r\n\nbelow it", (), NUMBER, 1, None),
              ("flash", NUMBER, "Now: 5 €", ("--flash",), NUMBER, 1, 0),
              ("flash-unicode", NUMBER, "Сейчас 😀", ("--flash",), NUMBER, 1, 0),
              ("report", NUMBER, "Report, please", ("--reports", "--service-centre", "+15550009999"), NUMBER, 1, None))
    files = []
    for name, number, text, options, *_ in handed:
        subprocess.run([corvane_send, "--to", number, "--message", text, *options, "--hand-over", folder / name],
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, timeout=PATIENCE, check=True,
                       env={**os.environ, "XDG_DATA_HOME": str(folder)})
        spool = list((folder / name / "spool").iterdir())
        expect(f"files for {name}", 1, len(spool))
        files.append((name, spool[0].read_bytes()))
    arrived = run_smsd([phone], folder, files)
    expected = sorted((text, shown_number, parts, shown_class)
                      for _, _, text, _, shown_number, parts, shown_class in handed)
    expect("messages", expected, [(message["text"], message["number"], message["parts"], message["class"])
                                  for message in arrived])


def hand_over_to_two(phone, folder, corvane_send):
    """Each of forty people gets a text of their own, from one of the two phones and once."""
    people = [(f"+1555000{place:04}", f"{'Zoë' if place % 3 else 'Аня'} {place}") for place in range(40)]
    table = folder / "people.csv"
    with table.open("w", encoding="utf-8", newline="") as file:
        csv.writer(file).writerows([("Phone", "Name"), *people])
    handed = folder / "handed"
    subprocess.run([corvane_send, "--table", table, "--message", "Dear {{Name}}, 5 € " + "a" * 130, "--hand-over", handed],
                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, timeout=PATIENCE, check=True,
                   env={**os.environ, "XDG_DATA_HOME": str(folder)})
    with (handed / "list.csv").open(encoding="utf-8-sig", newline="") as file:
        listed = [(row["number"], row["text"], int(row["parts"])) for row in csv.DictReader(file)]
    expect("numbers and texts in the list", [(number, f"Dear {name}, 5 € " + "a" * 130) for number, name in people],
           [(number, text) for number, text, _ in listed])
    other = Phone(phone.program)
    try:
        arrived = run_smsd([phone, other], folder, [(path.name, path.read_bytes())
                                                    for path in (handed / "spool").iterdir()])
        if not other.told.empty():
            raise Trouble(f"a message too many: {other.told.get()}")
    finally:
        other.end()
    expect("messages", sorted(listed), sorted((message["number"], message["text"], message["parts"])
                                              for message in arrived))
    if len({message["phone"] for message in arrived}) != 2:
        raise Trouble("one of the phones sent nothing")


def main():
    client, program, *others = sys.argv[1:]
    try:
        with tempfile.TemporaryDirectory(prefix="corvane-") as folder:
            phone = Phone(program)
            try:
                {"gammu": gammu, "smsd": smsd, "hand_over": hand_over,
                 "hand_over_to_two": hand_over_to_two}[client](phone, Path(folder), *others)
            finally:
                phone.end()
            if not phone.told.empty():
                raise Trouble(f"a message too many: {phone.told.get()}")
    except (Trouble, OSError, subprocess.SubprocessError) as trouble:
        sys.exit(f"{client}: {trouble}")


main()
