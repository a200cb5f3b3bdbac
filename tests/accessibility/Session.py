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
    for name in ("WAYLAND_DISPLAY", "XAUTHORITY", "AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"):
        environment.pop(name, None)
    try:
        return subprocess.run(command, env=environment, check=False).returncode
    finally:
        screen.terminate()
        screen.wait()


def run(visit):
    """Called by a test's script with what is to be done in the session, once the program runs there: visit(data_folder,
    start), where start() starts the program. Ends the script, with the complaints that visit returned."""
    if "--inside" not in sys.argv:
        with tempfile.TemporaryDirectory(prefix="corvane-a11y-") as folder:
            inside = [sys.executable, *sys.argv, "--inside"]
            session = ["dbus-run-session", "--"]
            sys.exit(_with_a_screen(session + inside, folder))

    program = None

    def start():
        nonlocal program
        program = subprocess.Popen([sys.argv[1], "--demo"], stdout=subprocess.DEVNULL)

    data_folder = pathlib.Path(os.environ["XDG_DATA_HOME"]) / "corvane/Resources/CORVANE_DATA"
    (data_folder / "Exclusion").mkdir(parents=True)
    try:
        complaints = visit(data_folder, start)
    finally:
        if program:
            program.terminate()
            program.wait()
    print("\n".join(complaints) if complaints else "every window can be read")
    sys.exit(1 if complaints else 0)
