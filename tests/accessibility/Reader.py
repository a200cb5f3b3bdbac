"""Reads the program's windows as a screen reader does: through the accessibility bus and by nothing else."""

import collections
import re
import time

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402
from gi.repository import Atspi, GLib  # noqa: E402

# What somebody can work with, or has to be told the purpose of.
NEED_A_NAME = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON,
    pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_TABLE, pyatspi.ROLE_LIST,
    pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_LINK, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SLIDER,
    pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_ANIMATION, pyatspi.ROLE_DOCUMENT_FRAME,
}
WINDOWS = {pyatspi.ROLE_FRAME, pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT, pyatspi.ROLE_WINDOW, pyatspi.ROLE_FILE_CHOOSER}
SECONDS = 30  # far more than anything here takes
TAB = 0xFF09


class Trouble(Exception):
    """What was waited for did not come, or is not there."""


def until(what, condition):
    """Serves the bus until the condition has an answer, and returns that."""
    context = GLib.MainContext.default()
    end = time.monotonic() + SECONDS
    while True:
        try:
            answer = condition()
        except GLib.Error:  # a window went while it was looked at
            answer = None
        if answer:
            return answer
        if time.monotonic() > end:
            raise Trouble(f"waited {SECONDS} seconds in vain for {what}")
        heartbeat = GLib.timeout_add(100, lambda: True)  # so that the wait for events ends now and then
        context.iteration(True)
        GLib.source_remove(heartbeat)


def is_showing(thing):
    return thing.getState().contains(pyatspi.STATE_SHOWING)


def _has_focus(thing):
    return thing.getState().contains(pyatspi.STATE_FOCUSED)


def described(thing):
    return f"{thing.getRoleName()} '{thing.name}'"


def open_windows():
    return [window for application in pyatspi.Registry.getDesktop(0) if application and application.name == "corvane"
            for window in application if window and window.getRole() in WINDOWS and is_showing(window)]


def find_window(title, text=None):
    """The window with this title, and with a label that says this text when one is given; or None."""
    return next((window for window in open_windows() if window.name == title and
                 (text is None or Window(title, window).has(text, pyatspi.ROLE_LABEL))), None)


def what_is_open():
    """For whoever has to find out why a walk ended."""
    return "; ".join(f"'{window.name}' with {[thing.name for thing, _ in Window(window.name, window).all() if thing.name]}"
                     for window in open_windows())


class Window:
    """A window of the program, for as long as it is shown."""

    def __init__(self, title, thing=None):
        self.title = title
        self.thing = thing or until(f"the window '{title}'", lambda: find_window(title))

    def all(self):
        """Everything that is shown in the window, with what it is in; not the cells of tables and lists."""
        return list(self._below(self.thing, []))

    def _below(self, thing, way):
        if thing.getRole() in (pyatspi.ROLE_TABLE, pyatspi.ROLE_LIST):
            return
        for child in thing:
            if child and is_showing(child):
                yield child, way
                yield from self._below(child, way + [child])

    def has(self, name, role=None):
        return next((thing for thing, _ in self.all() if thing.name == name and role in (None, thing.getRole())), None)

    def the(self, name, role=None):
        return until(f"'{name}' in the window '{self.title}'", lambda: self.has(name, role))

    def press(self, name):
        button = self.the(name)
        until(f"'{name}' to be enabled", lambda: button.getState().contains(pyatspi.STATE_ENABLED))
        actions = button.queryAction()
        names = [actions.getName(index) for index in range(actions.nActions)]
        action = next((index for index, known in enumerate(names) if known in ("Press", "Toggle")), None)
        if action is None:
            raise Trouble(f"{described(button)} in the window '{self.title}' can not be pressed: {names}")
        actions.doAction(action)

    def shortcut(self, name):
        """The key that is told for a control, as the X server's tools write it: "alt+s"; or None."""
        actions = self.the(name).queryAction()
        told = next(filter(None, (actions.getKeyBinding(index) for index in range(actions.nActions))), "")
        return told.split(";")[0].lower().replace("enter", "Return") or None

    def is_ticked(self, name):
        return self.the(name, pyatspi.ROLE_CHECK_BOX).getState().contains(pyatspi.STATE_CHECKED)

    def has_focus(self, name, roles):
        """Whether the keyboard is at a control of one of these roles."""
        goal = until(f"'{name}' in the window '{self.title}'", lambda: next(
            (thing for thing, _ in self.all() if thing.name == name and thing.getRole() in roles), None))
        return _has_focus(goal)

    def await_keyboard(self):
        until(f"the keyboard to come to the window '{self.title}'",
              lambda: self.thing.getState().contains(pyatspi.STATE_ACTIVE))

    def cell(self, table, row, column):
        return self.the(table, pyatspi.ROLE_TABLE).queryTable().getAccessibleAt(row, column)

    def await_focus_on_cell(self, table, row, column):
        until(f"the keyboard to come to cell {column} of row {row} in '{table}'",
              lambda: _has_focus(self.cell(table, row, column)))

    def tab_to(self, name, role):
        """Goes to a control by the keyboard alone. Without a window manager no window gets the keyboard back once a
        dialog has had it."""
        goal = self.the(name, role)
        for _ in range(60):
            if _has_focus(goal):
                return
            here = until(f"the focus in the window '{self.title}'", self._focused)
            press_key(TAB)
            until(f"Tab to leave {described(here)}", lambda: not _has_focus(here))
        raise Trouble(f"Tab does not lead to '{name}' in the window '{self.title}'")

    def tab_round(self):
        """What Tab leads to from where the focus is until it comes back, as (name, role)."""
        heard, reached = [], []

        def hear(event):
            if event.detail1 and event.source:
                heard.append((event.source.name, event.source.getRole()))

        pyatspi.Registry.registerEventListener(hear, "object:state-changed:focused")
        try:
            while len(reached) < 100 and not any(stop in reached[:1] for stop in heard):
                reached += heard
                heard.clear()
                press_key(TAB)
                until(f"Tab to lead on from {reached[-1:]} in the window '{self.title}'", lambda: heard)
        finally:
            pyatspi.Registry.deregisterEventListener(hear, "object:state-changed:focused")
        return reached

    def _focused(self):
        return next((thing for thing, _ in self.all() if _has_focus(thing)), None)

    def write(self, name, text):
        field = self.the(name, pyatspi.ROLE_TEXT)
        field.queryEditableText().setTextContents(text)

    def text(self, name):
        return self.the(name, pyatspi.ROLE_TEXT).queryText().getText(0, -1)

    def select_row(self, table, row):
        self.the(table, pyatspi.ROLE_TABLE).queryTable().addRowSelection(row)

    def leave_by(self, button):
        self.press(button)
        self.await_end()

    def await_end(self):
        until(f"the window '{self.title}' to be closed", lambda: not find_window(self.title))

    def table(self, name):
        """The headings and the rows of a table, as they are told."""
        table = self.the(name, pyatspi.ROLE_TABLE).queryTable()
        columns = range(table.nColumns)
        headings = [table.getColumnHeader(column).name for column in columns]
        return headings, [[table.getAccessibleAt(row, column).name for column in columns] for row in range(table.nRows)]


def complaints_about(window, reads=(), tables=(), fields=()):
    """What a blind person would miss in a window. It must read the given values, as labels say them; show the tables,
    each a name, headings and rows; and hold the fields, each a name and what stands in it."""
    found = list(_complaints_about_names(window))
    labels = [thing.name for thing, _ in window.all() if thing.getRole() == pyatspi.ROLE_LABEL]
    for value in reads:
        if value not in labels:
            found.append(f"no label reads '{value}'; they read {labels}")
    for name, headings, rows in tables:
        told = window.table(name) if window.has(name, pyatspi.ROLE_TABLE) else None
        if told != (headings, rows):
            found.append(f"the table '{name}' tells {told} and not {(headings, rows)}")
    for name, text in fields:
        told = window.text(name) if window.has(name, pyatspi.ROLE_TEXT) else None
        if told != text:
            found.append(f"the field '{name}' tells {told!r} and not {text!r}")
    return [f"window '{window.title}': {complaint}" for complaint in found]


def _where(way):
    named = [described(above) for above in way if above.name]
    return " in " + ", ".join(named) if named else ""


def _complaints_about_names(window):
    if not window.thing.name:
        yield "it has no title"
    seen = collections.Counter()
    for thing, way in window.all():
        role = thing.getRole()
        if role in NEED_A_NAME and not thing.name.strip():
            yield f"a {thing.getRoleName()} without a name{_where(way)}"
        if role == pyatspi.ROLE_PASSWORD_TEXT:
            yield f"{described(thing)} hides what is typed{_where(way)}"
        if role not in NEED_A_NAME or not thing.name:
            continue
        if re.search(r"\b(\w{2,})\W+\1\b", thing.name, re.IGNORECASE):
            yield f"{described(thing)} says a word twice{_where(way)}"
        if "&" in thing.name:
            yield f"{described(thing)} reads out the mark of a key{_where(way)}"
        part_of_a_box = thing.parent is not None and thing.parent.getRole() == pyatspi.ROLE_COMBO_BOX
        seen[described(thing)] += 0 if part_of_a_box else 1
    for name, times in seen.items():
        if times > 1:
            yield f"{times} controls are called {name}"


def _told_of(event):
    """The name and the role of what an event is about; nothing if that has gone meanwhile."""
    try:
        return [(event.source.name, event.source.getRole())] if event.source else []
    except GLib.Error:
        return []


class Announcements:
    """What is announced while something goes on: every name that changes."""

    def __init__(self):
        self.names = []
        pyatspi.Registry.registerEventListener(self._hear, "object:property-change:accessible-name")

    def _hear(self, event):
        self.names += [name for name, _ in _told_of(event)]

    def missing(self, expected):
        """The first of the expected ones that was not heard after those before it."""
        heard = iter(self.names)
        return next((name for name in expected if name not in heard), None)


class Places:
    """Where the keyboard goes, as it is told, cells of tables and lists included: each a name and a role."""

    def __init__(self):
        self.all = []
        pyatspi.Registry.registerEventListener(self._hear, "object:state-changed:focused")

    def _hear(self, event):
        if event.detail1:
            self.all += _told_of(event)

    def after(self, move):
        """Where a move leads to, which must be somewhere."""
        before = len(self.all)
        move()
        until(f"the keyboard to go on from {self.all[-1:]}", lambda: len(self.all) > before)
        return self.all[-1]


def press_key(keysym):
    """As somebody at the keyboard; it goes where the focus is."""
    pyatspi.Registry.generateKeyboardEvent(keysym, None, pyatspi.KEY_SYM)


def begin():
    """Reads everything anew each time: nothing here may be out of date."""
    Atspi.init()
    pyatspi.Registry.getDesktop(0).set_cache_mask(Atspi.Cache.NONE)
