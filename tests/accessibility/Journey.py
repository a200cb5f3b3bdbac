#!/usr/bin/python3
"""From an empty start to confirmed messages and their receipt, as somebody goes who sees nothing of it: what to do next
is known from what a screen reader is told, and it is done either by what assistive tools can do with a control, or by
the keys of a keyboard. What arrived is asked of the phone, a process of its own.

    Journey.py PROGRAM PHONE actions|keys"""

import json
import os
import subprocess
import sys
import threading

import pyatspi

import Session
from Reader import Announcements, Places, Trouble, Window, begin, find_window, until, what_is_open

MESSAGE = "See you on Friday"
SENT, REFUSED = "00447700900101", "00447700900102"
CONFIRM, REPORTS, KEEP = "Confirm each message", "Ask for delivery reports", "Keep the receipt"
WIZARD = "Mobile Phone Connection Wizard"
NOT_ALL_SENT = "\nNot every message was sent. The list says what became of each."
NO_NUMBER = "\nPlease enter a valid phone number."
EXIT = "\nDo you really want to exit from 'Corvane'?"
RECIPIENTS, MESSAGES = "Recipients", "Messages of the job"
IS_PRESSED = {pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX}


class By_Actions:
    """Somebody whose tools press buttons and write into fields for them; no key and no pointer moves."""

    def press(self, window, name):
        window.press(name)

    tick = press

    def write(self, window, field, text):
        window.write(field, text)

    def choose(self, window, table, row):
        window.select_row(table, row)

    def read_cells(self, window, table, row):
        return window.table(table)[1][row]


class By_Keys:
    """Somebody at the keyboard, who goes by what is said of each place; no pointer moves."""

    def __init__(self):
        self.places = Places()

    def press(self, window, name):
        """By the key that is told for it, or, where none is told, on the way by Tab."""
        window.await_keyboard()
        shortcut = window.shortcut(name)
        if shortcut:
            _type("key", shortcut)
        else:
            self._tab_to(window, name, IS_PRESSED)
            _type("key", "space")

    def tick(self, window, name):
        self._tab_to(window, name, IS_PRESSED)
        _type("key", "space")

    def write(self, window, field, text):
        self._tab_to(window, field, {pyatspi.ROLE_TEXT})
        _type("key", "ctrl+a")
        _type("type", text)
        until(f"'{text}' in the field '{field}'", lambda: window.text(field) == text)

    def choose(self, window, table, row):
        self._go_to_row(window, table, row)
        _type("key", "space")

    def read_cells(self, window, table, row):
        """From the first cell to the last, each as it is told when the keyboard comes to it."""
        self._go_to_row(window, table, row)
        cells = [window.cell(table, row, 0).name]
        for column in range(1, len(window.table(table)[0])):
            cells.append(self.places.after(lambda: _type("key", "Right"))[0])
            window.await_focus_on_cell(table, row, column)
        return cells

    def _go_to_row(self, window, table, row):
        self._tab_to(window, table, {pyatspi.ROLE_TABLE})
        _type("key", "ctrl+Home")
        for place in range(row + 1):
            window.await_focus_on_cell(table, place, 0)
            if place < row:
                _type("key", "Down")

    def _tab_to(self, window, name, roles):
        window.await_keyboard()
        if window.has_focus(name, roles):
            return
        for _ in range(80):
            told, role = self.places.after(lambda: _type("key", "Tab"))
            if told == name and role in roles:
                return
        raise Trouble(f"Tab does not lead to '{name}' in the window '{window.title}'")


def _type(*what):
    """As the X server's own keys do it; it goes where the keyboard is."""
    subprocess.run(["xdotool", *what], check=True)


class Phone:
    """It refuses one of the numbers, and reports that the other message was delivered. It takes its time, as a person
    does who listens."""

    def __init__(self, children, folder):
        self.path = folder + "/phone"
        self._messages = []
        process = children.start(sys.argv[2], "--link", self.path, "--report-after", "9", "--result-after", "1-", "3",
                                 "--refuse", "*102", "+CMS ERROR: 500", stdout=subprocess.PIPE, text=True)
        process.stdout.readline()  # its line is there
        threading.Thread(target=self._read, args=[process.stdout], daemon=True).start()

    def _read(self, lines):
        for line in lines:
            event = json.loads(line)
            if event["event"] == "message":
                self._messages.append((event["number"], event["text"]))

    def got(self):
        return list(self._messages)


class Journey:
    def __init__(self, person, phone):
        self.person = person
        self.phone = phone
        self.said = Announcements()
        self.main = Window("Corvane")

    def hear(self, *said):
        """In this order, since the journey began."""
        try:
            until("an announcement", lambda: not self.said.missing(said))
        except Trouble as trouble:
            missing = self.said.missing(said)
            raise Trouble(f"'{missing}' was not announced; announced were {self.said.names}") from trouble

    def answer(self, text, button):
        """Reads a box, and presses a button in it."""
        box = Window("Corvane", until(f"the box '{text}'", lambda: find_window("Corvane", text)))
        self.person.press(box, button)
        until(f"the box '{text}' to be closed", lambda: not find_window("Corvane", text))

    # The steps

    def choose_the_phone(self):
        self.main.the("No Mobile Phone Device is selected.", pyatspi.ROLE_LABEL)
        self.person.press(self.main, "Connection Wizard ...")
        self.person.press(Window("Connect your mobile phone"), "Continue")
        wizard = Window(WIZARD)
        paths = [row[1] for row in wizard.table("Devices found")[1]]
        self.person.choose(wizard, "Devices found", paths.index(self.phone.path))
        until("what the phone says of itself", lambda: wizard.text("IMEI") and
              not find_window("Corvane", "Please wait ..."))
        self.person.press(wizard, "Select this device")
        wizard.await_end()
        self.main.the("phone", pyatspi.ROLE_LABEL)
        self.main.the("Corvane Virtual Phone  ·  Corvane Test  ·  signal High (20)", pyatspi.ROLE_LABEL)

    def make_a_list(self):
        self.person.write(self.main, "Message", MESSAGE)
        self.main.the(f"{len(MESSAGE)} Characters", pyatspi.ROLE_LABEL)
        self.person.write(self.main, "Phone number", "12 ab")
        self.person.press(self.main, "Add")
        self.answer(NO_NUMBER, "OK")
        for count, number in enumerate((SENT, REFUSED), 1):
            self.person.write(self.main, "Phone number", number)
            self.person.press(self.main, "Add")
            self.hear(f"Total Numbers : {count}")

    def send(self):
        for box in (CONFIRM, REPORTS, KEEP):
            self.person.tick(self.main, box)
            until(f"'{box}' to be told as ticked", lambda: self.main.is_ticked(box))
        self.person.press(self.main, "Send")
        self.hear(f"1 / 2 Message, {SENT}", f"2 / 2 Message, {REFUSED}", "2 / 2 Message, Waiting for delivery reports.")
        self.answer(NOT_ALL_SENT, "OK")

    def read_the_outcomes(self):
        until("the outcomes", lambda: self.main.table(RECIPIENTS)[0] == ["Number", "Message", "Outcome"])
        told = [self.person.read_cells(self.main, RECIPIENTS, row) for row in (0, 1)]
        expected = [[SENT, MESSAGE, "sent"], [REFUSED, MESSAGE, "refused (500: unknown error)"]]
        return [] if told == expected else [f"of the list it tells {told} and not {expected}"]

    def read_the_receipt(self):
        self.person.press(self.main, "Receipt ...")
        receipt = Window("Receipt")
        sums = "Recipients: 2. Sent: 1. Refused: 1. Delivered: 1."
        receipt.the(sums, pyatspi.ROLE_LABEL)
        told = [self.person.read_cells(receipt, MESSAGES, row)[:-1] for row in (0, 1)]  # but not the times
        expected = [["1", SENT, MESSAGE, "sent", "", "1 / 1", "delivered"],
                    ["2", REFUSED, MESSAGE, "refused (500: unknown error)", "Unknown error", "0 / 1", ""]]
        self.person.press(receipt, "Close")
        receipt.await_end()
        return [] if told == expected else [f"of the receipt it tells {told} and not {expected}"]

    def leave(self, program):
        self.person.press(self.main, "Exit")
        self.person.press(Window("Corvane", until("the question", lambda: find_window("Corvane", EXIT))), "Yes")
        until("the program to end", lambda: program.poll() is not None)
        got, expected = self.phone.got(), [("+" + SENT.removeprefix("00"), MESSAGE)]
        complaints = [] if got == expected else [f"the phone got {got} and not {expected}"]
        return complaints + ([f"the program ended with {program.returncode}"] if program.returncode else [])


def visit(_data_folder, start, children):
    begin()
    children.start_window_manager()
    phone = Phone(children, os.environ["HOME"])
    person = By_Keys() if sys.argv[3] == "keys" else By_Actions()
    program = start("--device", phone.path)
    complaints = []
    try:
        journey = Journey(person, phone)
        for step in (journey.choose_the_phone, journey.make_a_list, journey.send, journey.read_the_outcomes,
                     journey.read_the_receipt, lambda: journey.leave(program)):
            complaints += step() or []
    except Trouble as trouble:
        complaints.append(f"{step.__name__.replace('_', ' ')}: {trouble}; open are {what_is_open()}")
    return complaints


Session.run(visit, "every message was sent and heard of")
