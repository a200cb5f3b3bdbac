#!/usr/bin/python3
"""Programs of others talk to the virtual phone as to any modem: what they read of it and what they send through it must
arrive as it was given.

    Clients.py gammu|smsd CORVANE-PHONE"""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
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


SMSD_CONFIGURATION = """devices = GSM1
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

[GSM1]
device = {1}
init = AT+CNMI=2,1,0,0,0
incoming = no
baudrate = 115200
"""


def stop(child):
    """By its own id first; what it started is in a group of its own."""
    child.terminate()
    try:
        child.wait(PATIENCE / 4)
    except subprocess.TimeoutExpired:
        os.killpg(child.pid, signal.SIGKILL)
        child.wait()


def smsd(phone, folder):
    program = program_of("smsd", "smstools")
    for name in ("outgoing", "checked", "incoming", "sent", "failed"):
        (folder / name).mkdir()
    (folder / "smsd.conf").write_text(SMSD_CONFIGURATION.format(folder, phone.device), encoding="utf-8")
    spool = ((SHORT, 1, "UTF-8", SHORT.encode()), (UNICODE, 1, "UCS2", UNICODE.encode("utf-16-be")),
             (LONG, 3, "UTF-8", LONG.encode()))
    for place, (_, _, alphabet, body) in enumerate(spool):
        header = f"To: {NUMBER[1:]}\nAlphabet: {alphabet}\n\n"
        (folder / "outgoing" / str(place)).write_bytes(header.encode() + body)
    child = subprocess.Popen([program, "-t", "-c", folder / "smsd.conf"], stdin=subprocess.DEVNULL,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        arrived = sorted((phone.message() for _ in spool), key=lambda message: message["text"])
    except Trouble as trouble:
        raise Trouble(f"{trouble}; smsd wrote:\n{(folder / 'log').read_text(errors='replace')}") from None
    finally:
        stop(child)
    expected = sorted((text, parts, NUMBER) for text, parts, _, _ in spool)
    expect("messages", expected, [(message["text"], message["parts"], message["number"]) for message in arrived])


def main():
    client, program = sys.argv[1:]
    try:
        with tempfile.TemporaryDirectory(prefix="corvane-") as folder:
            phone = Phone(program)
            try:
                {"gammu": gammu, "smsd": smsd}[client](phone, Path(folder))
            finally:
                phone.end()
            if not phone.told.empty():
                raise Trouble(f"a message too many: {phone.told.get()}")
    except (Trouble, OSError, subprocess.SubprocessError) as trouble:
        sys.exit(f"{client}: {trouble}")


main()
