#!/usr/bin/python3
"""Opens every window of the program, with real contents, and complains about what a screen reader can not tell of it.

    Windows.py PROGRAM"""

import hashlib
import time
import zlib

import pyatspi

import Session
from Reader import Announcements, Trouble, Window, begin, complaints_about, find_window, press_key, until, what_is_open

F2 = 0xFFBF
MESSAGE = "Rehearsal on Friday. " * 5  # one SMS, but two in Unicode
NUMBERS = ["004479001", "004479002"]
LOADED = "numbers.txt"
PEOPLE = "people.csv"
NO_DEVICE = "No Mobile Phone Device is selected."
JOB = "20261121-091500-3f9a"
JOB_BEGAN = 1795252500  # seconds since 1970
JOB_NUMBERS = ["004479007", "004479008", "004479009"]
RECEIPT_SO_FAR = "Receipt of the job that has not ended ..."
RECEIPT = ["Row", "Number", "Message", "Outcome", "Reason", "Parts sent", "Delivery", "Time"]


def fill(data_folder):
    (data_folder / "SentItem.ZOVA").write_text("\a004479001\vSee you\a21/11/2026\v\n", encoding="utf-8")
    (data_folder / "Templates.ZOVA").write_text("See you on Friday\nUntil then\n", encoding="utf-8")
    (data_folder / "AppExclusion.ZOVA").write_text("Staff\n", encoding="utf-8")
    (data_folder / "Exclusion/ExListIndex.ZOVA").write_text("Admin\nStaff\n", encoding="utf-8")
    for name in ("Admin", "Staff"):
        (data_folder / "Exclusion" / (name + ".ZOVA")).write_text("12345\n67890\n", encoding="utf-8")
    (data_folder / LOADED).write_text("12345\nAnn\n55555\n", encoding="utf-8")
    (data_folder / PEOPLE).write_text("Name;Phone\nAnn;004479011\nBob;004479012\nEve;none\n", encoding="utf-8")


def local_time(pattern):
    return time.strftime(pattern, time.localtime(JOB_BEGAN))


def fill_with_a_job(folder):
    """One that broke off: the first was sent, the second may have been, the third was not tried."""
    folder.mkdir(mode=0o700)
    rows = "".join(f"R\t{row}\t{number}\tgsm\t-\t1\t-\t\tSee you\n" for row, number in enumerate(JOB_NUMBERS, 1))
    frozen = f"L1\t{JOB}\nO\t\t-\t0\t0\tauto\n{rows}Z\t3\t3\n".encode()
    moment = time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(JOB_BEGAN))
    lines = (f"J1 {JOB} {moment} - - 3 3 {hashlib.sha256(frozen).hexdigest()} keep:no", f"H 1 1 1 {moment}",
             f"S 1 1 17 {moment}", f"H 2 1 1 {moment}")
    (folder / (JOB + ".list")).write_bytes(frozen)
    (folder / (JOB + ".journal")).write_text(
        "".join(f"{line} {zlib.crc32(line.encode()):08x}\n" for line in lines), encoding="utf-8")


class Walk:
    def __init__(self, data_folder):
        self.complaints = []
        self.data_folder = data_folder
        self.main = Window("Corvane")

    def look(self, title, **expected):
        """Reads a window that is about to open, and returns it."""
        window = Window(title)
        self.complaints += complaints_about(window, **expected)
        return window

    def tab_through(self, window, controls):
        """Goes around the window by the keyboard alone; each control, a name and a role, must be on the way."""
        reached = window.tab_round()
        self.complaints += [f"window '{window.title}': Tab does not lead to '{name}', but to {reached}"
                            for name, role in controls if (name, role) not in reached]

    def dialog(self, button, title, leave_by, **expected):
        """Opens a dialog from the main window, reads it and leaves it."""
        self.main.press(button)
        self.look(title, **expected).leave_by(leave_by)

    def box(self, text, button):
        """Reads the box that is about to open, and answers it."""
        thing = until(f"the box '{text}'", lambda: find_window("Corvane", text))
        box = Window("Corvane", thing)
        self.complaints += complaints_about(box)
        box.press(button)
        until(f"the box '{text}' to be closed", lambda: not find_window("Corvane", text))


def read_what_has_not_ended(walk):
    main = walk.main
    day = local_time("%d %B %Y, %H:%M").lstrip("0")
    main.press("Confirm each message")
    boxes = ["Ask for delivery reports", "Keep the receipt", "Remember these choices"]
    for box in boxes:
        main.the(box, pyatspi.ROLE_CHECK_BOX)
    main.the("Later")
    walk.complaints += complaints_about(
        main, reads=[f"A job that began on {day} has not ended.",
                     "Recipients: 3. Sent: 1. May have been sent: 1. Not tried: 1. Refused: 0. Skipped: 0."])
    buttons = ["Send the remaining 1", "Rows that may have been sent ...", RECEIPT_SO_FAR, "Remove ...", "Later"]
    walk.tab_through(main, [(name, pyatspi.ROLE_PUSH_BUTTON) for name in buttons] +
                     [(box, pyatspi.ROLE_CHECK_BOX) for box in boxes])
    main.press("Confirm each message")
    until("the boxes to go", lambda: not main.has(boxes[0]))


def read_the_main_window(walk):
    main = walk.main
    walk.complaints += complaints_about(main, reads=["Total Numbers : 0", "0 Characters", NO_DEVICE])
    for number in NUMBERS:
        main.write("Phone number", number)
        main.press("Add")
        until("the number to be added", lambda: main.text("Phone number") == "")
    main.press("Delay: after")
    until("the pauses", lambda: main.text("Messages before each pause"))
    rows = [[number, ""] for number in NUMBERS]
    walk.complaints += complaints_about(
        main, reads=["Total Numbers : 2"], tables=[("Recipients", ["Number", "Message"], rows)],
        fields=[("Messages before each pause", "15"), ("Length of each pause", " 2  Minutes")])
    for name in ("Messages before each pause", "Length of each pause"):
        if not main.has(name, pyatspi.ROLE_COMBO_BOX):
            walk.complaints.append(f"window 'Corvane': no combo box is called '{name}' once it is filled")


def read_the_dialogs_of_the_list(walk):
    main = walk.main
    main.select_row("Recipients", 0)
    main.tab_to("Recipients", pyatspi.ROLE_TABLE)
    press_key(F2)
    editor = walk.look("Edit number and message", reads=["0 Characters"], fields=[("Phone number", NUMBERS[0])])
    editor.leave_by("Cancel")
    main.write("Message", MESSAGE)
    main.press("Send as Unicode")
    walk.look("Long message").leave_by("OK")
    walk.complaints += complaints_about(
        main, reads=[f"{len(MESSAGE)} Characters (Each Message will now consume 2 SMS)"])
    main.press("Clear All")
    walk.box("\nThis option will clear the entire list contents. Are you sure you want to continue clearing the entire "
             "list?", "No")
    walk.dialog("Import ...", "Import numbers", "Cancel")
    walk.dialog("Apply this\r\nmessage to\r\nlist items", "Fill message into list", "Cancel")
    walk.dialog("Edit the\nmessages of\nselected items", "Edit selected messages", "Cancel",
                reads=["Total Selected Numbers : 1", "0 Characters"],
                tables=[("Selected numbers", ["Number"], [[NUMBERS[0]]])])
    walk.dialog("Help", "Help", "OK")


def read_the_windows_of_the_job(walk):
    main = walk.main
    began = local_time("%Y-%m-%d %H:%M:%S")
    main.press("Rows that may have been sent ...")
    rows = [[JOB_NUMBERS[1], "See you", "The program ended before the result.", began, "Leave as it is"]]
    headings = ["Number", "Message", "Reason", "Time", "What to do"]
    sheet = walk.look("Rows that may have been sent", tables=[("Rows that may have been sent", headings, rows)])
    walk.tab_through(sheet, [("Rows that may have been sent", pyatspi.ROLE_TABLE)] + [
        (name, pyatspi.ROLE_PUSH_BUTTON) for name in ("Leave", "Send again", "Count as sent", "Leave all",
                                                      "Send all again", "Count all as sent", "OK", "Cancel")])
    sheet.leave_by("Cancel")
    main.press(RECEIPT_SO_FAR)
    receipt = Window("Receipt")
    until("the messages of the job", lambda: receipt.table("Messages of the job")[1])
    rows = [["1", JOB_NUMBERS[0], "See you", "sent", "", "1 / 1", "", began],
            ["2", JOB_NUMBERS[1], "See you", "may have been sent", "The program ended before the result.", "0 / 1",
             "", began],
            ["3", JOB_NUMBERS[2], "See you", "not tried", "", "0 / 1", "", ""]]
    walk.look("Receipt", tables=[("Messages of the job", RECEIPT, rows)])
    walk.tab_through(receipt, [("Job", pyatspi.ROLE_COMBO_BOX), ("Remove ...", pyatspi.ROLE_PUSH_BUTTON),
                               ("Messages to show", pyatspi.ROLE_COMBO_BOX),
                               ("Messages of the job", pyatspi.ROLE_TABLE),
                               ("Export", pyatspi.ROLE_PUSH_BUTTON), ("Close", pyatspi.ROLE_PUSH_BUTTON)])
    receipt.press("Remove ...")
    receipt.the("Remove for good")
    walk.look("Receipt")
    receipt.press("Keep it")
    receipt.leave_by("Close")
    main.press("Later")
    until("the job to be let go", lambda: not main.has("Later"))


def read_the_stores(walk):
    walk.main.press("Sent Items ...")
    sent = walk.look("Sent Items", reads=["Total Items : 1"],
                     tables=[("Sent messages", ["Number", "Message", "Date", "Status"],
                              [["004479001", "See you", "21/11/2026", ""]])])
    sent.select_row("Sent messages", 0)
    until("the message in full", lambda: "See you" in sent.text("Selected message"))
    sent.press("Export ...")
    walk.look("Export").leave_by("Cancel")
    sent.leave_by("Close")
    walk.main.press("Templates ...")
    rows = [["See you on Friday"], ["Until then"]]
    templates = walk.look("Templates", reads=["Total Items : 2"], tables=[("Message templates", ["Template"], rows)])
    templates.select_row("Message templates", 0)
    templates.press("Edit ...")
    walk.look("Update Templates", reads=["17 Characters"],
              fields=[("Message of the template", "See you on Friday")]).leave_by("Cancel")
    templates.leave_by("Close")


def read_the_exclusions(walk):
    walk.main.press("Exclusion Lists ...")
    title = "Exclusion List Wizard"
    tables = [("Available exclusion lists", ["Available exclusion lists"], [["Admin"], ["Staff"]]),
              ("Lists to exclude when sending SMS", ["Exclude when sending SMS"], [["Staff"]])]
    wizard = Window(title)
    until("the lists", lambda: wizard.table("Available exclusion lists")[1])
    walk.look(title, tables=tables)
    wizard.press("Add New ...")
    wizard.the("Exclusion list name", pyatspi.ROLE_TEXT)
    walk.look(title)
    wizard.press("Back")
    wizard.select_row("Available exclusion lists", 0)
    wizard.press("Update ...")
    wizard.the("Numbers of the list", pyatspi.ROLE_TABLE)
    walk.look(title, reads=["Currently using exclusion list : Admin", "Total Numbers : 2"],
              tables=[("Numbers of the list", ["Excluded number"], [["12345"], ["67890"]])])
    wizard.select_row("Numbers of the list", 0)
    wizard.press("Update ...")
    walk.look("Edit number", fields=[("Phone number", "12345")]).leave_by("Cancel")
    load_a_file(walk, wizard)
    wizard.leave_by("Cancel")


def load_a_file(walk, wizard):
    announcements = Announcements()
    wizard.write("File of numbers", str(walk.data_folder / LOADED))
    wizard.press("Load")
    said = "1 added, 2 lines not used."
    until(f"'{said}' to be announced", lambda: said in announcements.names)
    wizard.the(said, pyatspi.ROLE_STATUS_BAR)
    walk.complaints += complaints_about(wizard)
    wizard.press("Show ...")
    title = "Lines that were not used"
    rows = [["1", "12345", "Already in the list"], ["2", "Ann", "No phone number"]]
    walk.look(title, reads=["Lines not used: 2. No phone number: 1. Already in the list: 1."],
              tables=[(title, ["Line", "As it stood there", "Why it was not used"], rows)]).leave_by("Close")
    wizard.press("Dismiss")


def choose_the_phone(walk):
    walk.main.press("Connection Wizard ...")
    walk.look("Connect your mobile phone").press("Continue")
    title = "Mobile Phone Connection Wizard"
    wizard = Window(title)
    rows = wizard.table("Devices found")[1]
    phone = next(row for row in rows if "demo-phone" in row[1])  # beside what this machine may have
    name, path = phone[:2]
    wizard.select_row("Devices found", rows.index(phone))
    until("the device's own number", lambda: wizard.text("IMEI"))
    walk.look(title, tables=[("Devices found", ["Port", "Device path", "Device", "State"], rows)],
              fields=[("Port", name), ("Device path", path)])
    until("the end of the probe", lambda: not find_window("Corvane", "Please wait ..."))
    wizard.press("Select this device")
    wizard.await_end()
    walk.complaints += complaints_about(walk.main, reads=[name])


def send(walk):
    main = walk.main
    main.press("Delay: after")  # off, and on again with another batch
    until("no pauses", lambda: not main.text("Messages before each pause"))
    main.press("Delay: after")
    until("the pauses", lambda: main.text("Messages before each pause"))
    main.write("Messages before each pause", "1")
    main.write("Length of each pause", "10 Seconds")
    announcements = Announcements()
    main.press("Send")
    question = walk.look("Before sending")
    question.press("Send as it stands")
    preparing = "Initializing mobile phone device to send sms ..."
    until(preparing, lambda: find_window("Sending messages", preparing))
    first, second = [f"{place} / 2 Message, {number}" for place, number in enumerate(NUMBERS, 1)]
    until(first, lambda: find_window("Sending messages", first))
    sending = walk.look("Sending messages", reads=["2", first, NUMBERS[0]])
    if any(thing.name == "Working" and "Value" in pyatspi.listInterfaces(thing) for thing, _ in sending.all()):
        walk.complaints.append("window 'Sending messages': the bar 'Working' tells percentages that mean nothing")
    pausing = "1 / 2 Message, Pausing the process for 10 Seconds."
    until(second, lambda: find_window("Sending messages", second))
    walk.box("\nMessage Sending Process Completed.", "OK")
    sending.await_end()
    missing = announcements.missing([preparing, first, pausing, second])
    if missing:
        walk.complaints.append(f"'{missing}' was not announced; announced were {announcements.names}")


def add_contacts(walk):
    """A table with a row that cannot be used, by the two pages of its sheet."""
    main = walk.main
    main.press("Contacts ...")
    panel = Window("Open")
    panel.write("File name:", str(walk.data_folder / PEOPLE))
    panel.press("Open")
    sheet = Window("Import contacts")
    until("the first rows", lambda: sheet.table("The first rows")[1])
    walk.look("Import contacts", reads=[PEOPLE + ": 3 rows in 2 columns."],
              tables=[("The first rows", ["Name", "Phone (number)"],
                       [["Ann", "004479011"], ["Bob", "004479012"], ["Eve", "none"]])])
    choices = ("Column of the numbers", "Country of national numbers", "Encoding", "Delimiter")
    walk.tab_through(sheet, [(name, pyatspi.ROLE_COMBO_BOX) for name in choices] +
                     [("First row has the names", pyatspi.ROLE_CHECK_BOX), ("The first rows", pyatspi.ROLE_TABLE)] +
                     [(name, pyatspi.ROLE_PUSH_BUTTON) for name in ("Another file ...", "Continue", "Cancel")])
    sheet.press("Continue")
    until("the rows", lambda: sheet.has("Rows as they will be sent") and
          len(sheet.table("Rows as they will be sent")[1]) == 3)
    walk.look("Import contacts")
    walk.tab_through(sheet, [("Rows to show", pyatspi.ROLE_COMBO_BOX),
                             ("Rows as they will be sent", pyatspi.ROLE_TABLE)] +
                     [(name, pyatspi.ROLE_PUSH_BUTTON) for name in ("Longest", "Back", "Add to list", "Cancel")])
    sheet.leave_by("Add to list")
    main.the("Dismiss", pyatspi.ROLE_PUSH_BUTTON)
    walk.complaints += complaints_about(main, reads=["Fields: Name, Phone"])
    for name in ("Show ...", "Dismiss", "Save with fields ...", "Other ways ..."):
        main.the(name, pyatspi.ROLE_PUSH_BUTTON)
    main.press("Show ...")
    sheet = Window("Import contacts")
    until("the row that was not used", lambda: sheet.has("Rows as they will be sent") and
          len(sheet.table("Rows as they will be sent")[1]) == 1)
    walk.look("Import contacts").leave_by("Close")
    main.press("Dismiss")
    main.press("Check before sending ...")
    check = Window("Check before sending")
    until("the rows of the list", lambda: check.has("Rows as they will be sent") and
          check.table("Rows as they will be sent")[1])
    walk.look("Check before sending").leave_by("Close")
    main.press("Other ways ...")
    title = "Other ways to send"
    walk.tab_through(walk.look(title), [("Hand over to a folder ...", pyatspi.ROLE_PUSH_BUTTON),
                                        ("Do not tell again", pyatspi.ROLE_CHECK_BOX),
                                        ("Close", pyatspi.ROLE_PUSH_BUTTON)])
    Window(title).leave_by("Close")


def visit(data_folder, start, _children):
    (data_folder / "Exclusion").mkdir(parents=True)
    fill(data_folder)
    fill_with_a_job(data_folder.parent / "Jobs")
    begin()
    start("--demo")
    walk = Walk(data_folder)
    try:
        for step in (read_what_has_not_ended, read_the_main_window, read_the_dialogs_of_the_list,
                     read_the_windows_of_the_job, read_the_stores, read_the_exclusions, choose_the_phone, send,
                     add_contacts):
            step(walk)
    except Trouble as trouble:
        walk.complaints.append(f"it could not {step.__name__.replace('_', ' ')}: {trouble}; open are {what_is_open()}")
    return walk.complaints


Session.run(visit, "every window can be read")
