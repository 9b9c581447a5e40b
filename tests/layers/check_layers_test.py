# SPDX-License-Identifier: MIT
"""The layer check must be able to fail: each row is a small house with one fault, and the sentence that names it."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).with_name("check_layers.py")

SOUND = {
    "src/platform/File.h": "#include <QString>\n#include <QtCore/QString>\n#include <vector>\n",
    "src/actions/Token.cpp": '#include "platform/File.h"\n',
    "src/workspace/Grid.h": '#include "platform/File.h"\n#include <QString>\n',
    "src/workspace/ui/Window.cpp": '#include "workspace/Grid.h"\n#include "windowing/Anchor.h"\n#include <QWidget>\n',
    "src/windowing/Anchor.h": '#include "platform/File.h"\n#include <QtWidgets/QWidget>\n',
    "src/main.cpp": '#include "workspace/Grid.h"\n#include <QApplication>\n',
    "tests/ui/Test.cpp": "QTest::qWaitFor(condition); // never sleep(1)\n",
}

# What is added to the sound house, and what the check then says.
FAULTS = {
    "a lower room includes a higher one": (
        {"src/actions/Bad.cpp": '\n#include "workspace/Grid.h"\n'},
        'src/actions/Bad.cpp:2: includes "workspace/Grid.h", but actions/ may not know workspace/'),
    "the core includes a ui/ file of its own room": (
        {"src/workspace/ui/Window.h": "", "src/workspace/Bad.cpp": '#include "workspace/ui/Window.h"\n'},
        "src/workspace/Bad.cpp:1: includes \"workspace/ui/Window.h\", a window, but belongs to the core"),
    "the core includes windowing": (
        {"src/workspace/Bad.cpp": '#include "windowing/Anchor.h"\n'}, "may not know windowing/"),
    "the core includes a widget by its short name": (
        {"src/fileview/Bad.cpp": "#include <QWidget>\n"},
        "src/fileview/Bad.cpp:1: includes <QWidget>, but the core uses Qt Core alone"),
    "the core includes a GUI header by its module": (
        {"src/fileview/Bad.cpp": "#  include <QtGui/QColor>\n"}, "includes <QtGui/QColor>"),
    "two files include each other": (
        {"src/model/A.h": '#include "model/B.h"\n', "src/model/B.h": '#include "model/A.h"\n'},
        "files include each other in a circle: model/A.h -> model/B.h -> model/A.h"),
    "two folders include each other": (
        {"src/model/A.h": '#include "model/in/B.h"\n', "src/model/in/B.h": "",
         "src/model/in/C.h": '#include "model/D.h"\n', "src/model/D.h": ""},
        "folders include each other in a circle: model -> model/in -> model"),
    "an include names no file": (
        {"src/model/Bad.h": '#include "Text.h"\n'}, 'includes "Text.h", which is no file of src/'),
    "a room that nobody planned": (
        {"src/cellar/Wine.h": ""}, "src/cellar/Wine.h:1: lies in cellar/, a room that"),
    "a test sleeps": (
        {"tests/ui/Bad.cpp": "\n\nQTest::qWait(250);\n"}, "tests/ui/Bad.cpp:3: qWait waits a fixed time"),
    "a shell test sleeps": (
        {"tests/e2e/bad.sh": "true\nsleep 0.5\n"}, "tests/e2e/bad.sh:2: sleep waits a fixed time"),
}


class LayerCheck(unittest.TestCase):
    def check(self, house):
        with tempfile.TemporaryDirectory() as folder:
            qt_core = {"qt/QtCore/QString": ""}
            for name, text in (house | qt_core).items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            command = [sys.executable, CHECK, *(Path(folder, part) for part in ("src", "tests", "qt/QtCore"))]
            return subprocess.run(command, capture_output=True, text=True, check=False)

    def test_a_sound_house_passes(self):
        result = self.check(SOUND)
        self.assertEqual((result.stdout.strip(), result.returncode), ("", 0))

    def test_each_fault_is_named_by_file_and_line(self):
        for row, (files, sentence) in FAULTS.items():
            with self.subTest(row):
                result = self.check(SOUND | files)
                self.assertIn(sentence, result.stdout)
                self.assertEqual((len(result.stdout.splitlines()), result.returncode), (1, 1), result.stdout)


if __name__ == "__main__":
    unittest.main()
