"""A screen, a session bus and an accessibility bus for one run of the program, all of their own: what this starts ends
with it, and nothing of the desktop that it runs on takes part."""

import os
import pathlib
import subprocess
import sys
import tempfile


def _with_a_screen(command, folder):
    number_read, number_write = os.pipe()
    screen = subprocess.Popen(
        ["Xvfb", "-displayfd", str(number_write), "-screen", "0", "1600x1200x24", "-nolisten", "tcp", "-noreset"],
        pass_fds=[number_write], stderr=subprocess.DEVNULL)
    os.close(number_write)
    with os.fdopen(number_read) as numbers:
        number = numbers.readline().strip()
    if not number:
        sys.exit("the virtual screen did not start")
    environment = dict(
        os.environ, DISPLAY=":" + number, HOME=folder, XDG_DATA_HOME=folder + "/data", XDG_RUNTIME_DIR=folder,
        XDG_CONFIG_HOME=folder, XDG_CACHE_HOME=folder, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
        CORVANE_PACE="1", LC_ALL="C.UTF-8")
    for name in ("LANGUAGE", "WAYLAND_DISPLAY", "XAUTHORITY", "AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"):
        environment.pop(name, None)
    try:
        return subprocess.run(command, env=environment, check=False).returncode
    finally:
        screen.terminate()
        screen.wait()


class Children:
    """What a session starts and ends."""

    def __init__(self):
        self._all = []

    def start(self, *command, **how):
        self._all.append(subprocess.Popen(command, **how))
        return self._all[-1]

    def start_window_manager(self):
        """Returns once it is there. With it, a window gets the keyboard back when a dialog over it has gone."""
        manager = self.start("openbox", "--sm-disable", "--startup", "echo ready", stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL, text=True)
        if "ready" not in (line.strip() for line in iter(manager.stdout.readline, "")):
            sys.exit("the window manager did not start")

    def end(self):
        for child in reversed(self._all):
            child.terminate()
            child.wait()


def run(visit, praise):
    """Called by a test's script with what is to be done in the session: visit(data_folder, start, children), where
    start(arguments) starts the program, whose path is the script's first argument. Ends the script, with the complaints
    that visit returned or, where there are none, with praise."""
    if "--inside" not in sys.argv:
        with tempfile.TemporaryDirectory(prefix="corvane-a11y-") as folder:
            inside = [sys.executable, *sys.argv, "--inside"]
            session = ["dbus-run-session", "--"]
            sys.exit(_with_a_screen(session + inside, folder))

    children = Children()

    def start(*arguments):
        return children.start(sys.argv[1], *arguments, stdout=subprocess.DEVNULL)

    data_folder = pathlib.Path(os.environ["XDG_DATA_HOME"]) / "corvane/Resources/CORVANE_DATA"
    try:
        complaints = visit(data_folder, start, children)
    finally:
        children.end()
    print("\n".join(complaints) if complaints else praise)
    sys.exit(1 if complaints else 0)
