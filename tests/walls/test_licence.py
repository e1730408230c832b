#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Every source begins with the line that says its licence. A source is what is written as code: by its suffix or name,
or because it begins as a script does. Forms, pictures, texts and data are none."""

import pathlib
import sys
import tempfile
import unittest

SOURCE_DIR = pathlib.Path(__file__).resolve().parents[2]
ROOMS = (".ci", "audiosetting", "bench", "cmake", "conformance", "debian", "desktop", "examples", "headunit", "platform",
         "tests", "tools")
SUFFIXES = {".cpp", ".h", ".js", ".py", ".cmake", ".css", ".in", ".sh", ".bash-completion"}
LINE = "SPDX-License-Identifier: Apache-2.0"
LINES = 3  # a shebang, or what XML begins with, stands before it


def is_source(path):
    if path.suffix in SUFFIXES or path.name == "CMakeLists.txt":
        return True
    with path.open("rb") as file:
        return file.read(2) == b"#!"


def sources(root):
    files = [path for path in root.glob("*") if path.is_file()]
    for room in ROOMS:
        files += (path for path in (root / room).rglob("*") if path.is_file() and "__pycache__" not in path.parts)
    return sorted(path for path in files if is_source(path))


def without_licence(root):
    def says(path):
        return any(LINE in line for line in path.read_text(encoding="utf-8").splitlines()[:LINES])

    return [str(path.relative_to(root)) for path in sources(root) if not says(path)]


class LicenceTest(unittest.TestCase):
    def test_sources_without_it_are_found(self):
        wanting = ["audiosetting/a.cpp", "platform/a.h", "headunit/host/script/a.js", "tools/a.py", "cmake/a.cmake",
                   "tests/CMakeLists.txt", "CMakeLists.txt", "audiosetting/resources/a.css", "headunit/a.conf.in", "tools/a.sh",
                   "desktop/a.bash-completion"]
        scripts = ["run", "bench/measure", "debian/rules", ".ci/run"]
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name in wanting + scripts + ["docs.md", "tests/data.txt", "build/a.cpp", "tests/late.js", "tests/good.js",
                                             "tests/good.py"]:
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text("#!/bin/sh\n" if name in scripts else "text\n", encoding="utf-8")
            (root / "tests/late.js").write_text("// 1\n// 2\n// 3\n// " + LINE + "\n", encoding="utf-8")
            (root / "tests/good.js").write_text("// " + LINE + "\n", encoding="utf-8")
            (root / "tests/good.py").write_text("#!/usr/bin/env python3\n# " + LINE + "\n", encoding="utf-8")
            self.assertEqual(without_licence(root), sorted([*wanting, *scripts, "tests/late.js"]))

    def test_this_project(self):
        self.assertGreater(len(sources(SOURCE_DIR)), 700)
        self.assertEqual(without_licence(SOURCE_DIR), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
