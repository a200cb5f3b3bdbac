"""The copy of the sources with all faults in it, and how it is built."""

import os
import pathlib
import re
import shlex
import subprocess

import Faults

LEFT_OUT_ROOMS = {"layers", "long"}


def run(*command, **options):
    subprocess.run([str(word) for word in command], check=True, **options)


def tracked_files(root):
    listed = subprocess.run(["git", "-C", str(root), "ls-files", "-z"], check=True, capture_output=True).stdout
    return [name for name in listed.decode().split("\0") if name and (root / name).is_file()]


def put(path, content):
    """Writes a file only when that changes it, so that nothing is built in vain."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.is_file() or path.read_bytes() != content:
        path.write_bytes(content)


def copy_sources(root, tree, faults):
    changed = Faults.seeded(faults, lambda file: (root / file).read_text(encoding="utf-8"))
    contents = {name: (root / name).read_bytes() for name in tracked_files(root)}
    contents.update({name: text.encode() for name, text in changed.items()})
    for name, content in contents.items():
        put(tree / name, content)
        if name in changed:
            continue
        (tree / name).chmod((root / name).stat().st_mode)
    for path in [path for path in tree.rglob("*") if path.is_file()]:
        name = path.relative_to(tree)
        if name.parts[0] != "build" and str(name) not in contents:
            path.unlink()


def test_rooms(tree):
    """The rooms that have a test program which is run here, as the build describes them."""
    rooms = re.findall(r"^corvane_tests\(([\w/]+)", (tree / "tests/CMakeLists.txt").read_text(), re.MULTILINE)
    return [room for room in rooms if room not in LEFT_OUT_ROOMS]


def program_of(room):
    return "test_" + room.replace("/", "_")


def build(source, folder, jobs, *settings):
    own = shlex.split(os.environ.get("CORVANE_CMAKE_ARGUMENTS", ""))
    preset = [] if any(setting.startswith("-DCMAKE_BUILD_TYPE") for setting in settings) else ["--preset", "release"]
    run("cmake", *preset, "-S", source, "-B", folder, "-G", "Ninja", "-DCORVANE_WARNINGS_ARE_ERRORS=OFF",
        "-DCORVANE_FUZZERS=", *settings, *own, cwd=source, stdout=subprocess.DEVNULL)
    targets = [program_of(room) for room in test_rooms(pathlib.Path(source))]
    run("cmake", "--build", folder, "--parallel", jobs, "--target", *targets)
