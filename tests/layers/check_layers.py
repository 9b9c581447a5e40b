#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the #include lines of src/ and fails, a sentence each, on what breaks the order of the house:

- a room that includes a higher room, or a room that nobody planned (rooms.py);
- a file of the core that includes a window, or a Qt header from outside Qt Core;
- files or folders that include each other in a circle;
- a quoted include that names no file of src/.

In tests/ it looks for waits that last a fixed time.

usage: check_layers.py SRC TESTS QTCORE   (QTCORE: the folder that holds Qt Core's headers)
"""

import re
import sys
from graphlib import CycleError, TopologicalSorter
from pathlib import Path, PurePosixPath

from rooms import GROUND, KNOWS, WINDOWING

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
FIXED_WAIT = re.compile(r"\b(qWait|qSleep|sleep|msleep|usleep|nanosleep|sleep_for|sleep_until)\s*\(|^\s*(sleep)\b")
COMMENT = re.compile(r"//.*$")


def cpp_files(root):
    return sorted(path.relative_to(root).as_posix() for path in root.rglob("*") if path.suffix in (".h", ".cpp"))


def room_of(file):
    return file.split("/")[0]


def is_window(file):
    """True for what belongs to the windows' library or to the roof, false for the core."""
    return "/ui/" in file or room_of(file) == WINDOWING or file == "main.cpp"


def includes(root, file):
    """(line number, form, name) of each include of a file."""
    text = (root / file).read_text(encoding="utf-8")
    for number, line in enumerate(text.splitlines(), start=1):
        if match := INCLUDE.match(line):
            yield number, match[1], match[2]


def may_know(file, target):
    if file == "main.cpp":
        return True
    room, other = room_of(file), room_of(target)
    if room == other:
        return True
    if room == WINDOWING:
        return other in GROUND
    if other == WINDOWING:
        return is_window(file)
    return other in KNOWS[room]


def fault_of_include(file, form, name, files, qt_core):
    """What is wrong with one include, as the end of a sentence, or nothing."""
    if form == "<":
        if name.startswith("Q") and not is_window(file) and not (qt_core / name.removeprefix("QtCore/")).exists():
            return f"includes <{name}>, but the core uses Qt Core alone"
        return None
    if name not in files:
        return f'includes "{name}", which is no file of src/'
    if not may_know(file, name):
        return f'includes "{name}", but {room_of(file)}/ may not know {room_of(name)}/'
    if is_window(name) and not is_window(file):
        return f'includes "{name}", a window, but belongs to the core'
    return None


def circle_in(graph):
    """The nodes of one circle, first one repeated at the end; empty if there is none."""
    try:
        TopologicalSorter(graph).prepare()
    except CycleError as error:
        return error.args[1][::-1] # it names each node behind the one that includes it
    return []


def faults_of_sources(root, qt_core):
    files = cpp_files(root)
    known = set(files)
    file_graph, folder_graph, faults = {}, {}, []
    for file in files:
        if file != "main.cpp" and room_of(file) not in KNOWS and room_of(file) != WINDOWING:
            faults.append(f"{file}:1: lies in {room_of(file)}/, a room that tests/layers/rooms.py doesn't know")
            continue
        for number, form, name in includes(root, file):
            if fault := fault_of_include(file, form, name, known, qt_core):
                faults.append(f"{file}:{number}: {fault}")
            elif form == '"':
                file_graph.setdefault(file, set()).add(name)
                folder, other = (str(PurePosixPath(path).parent) for path in (file, name))
                if folder != other:
                    folder_graph.setdefault(folder, set()).add(other)
    for kind, graph in (("files", file_graph), ("folders", folder_graph)):
        if circle := circle_in(graph):
            faults.append(f"{circle[0]}:1: {kind} include each other in a circle: {' -> '.join(circle)}")
    return faults


def faults_of_tests(root):
    faults = []
    for path in sorted(path for path in root.rglob("*") if path.suffix in (".h", ".cpp", ".sh")):
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
            if match := FIXED_WAIT.search(COMMENT.sub("", line)):
                faults.append(
                    f"{path.relative_to(root).as_posix()}:{number}: {match[1] or match[2]} waits a fixed time, too long on a "
                    "fast machine and too short on a slow one; wait for what you expect (QTest::qWaitFor)")
    return faults


def main():
    src, tests, qt_core = (Path(argument) for argument in sys.argv[1:4])
    if not cpp_files(src):
        sys.exit(f"{src} holds no C++ file: nothing was checked")
    if not (qt_core / "QString").exists():
        sys.exit(f"{qt_core} doesn't hold Qt Core's headers: nothing was checked")
    faults = [f"src/{fault}" for fault in faults_of_sources(src, qt_core)]
    faults += [f"tests/{fault}" for fault in faults_of_tests(tests)]
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
