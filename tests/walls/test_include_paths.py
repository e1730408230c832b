#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""A file of the product that includes the reference unit does not compile, whatever check reads it.

    test_include_paths.py COMPILE_COMMANDS     the build's compile_commands.json
"""

import json
import pathlib
import shlex
import subprocess
import sys
import unittest

SOURCE_DIR = pathlib.Path(__file__).resolve().parents[2]
PRODUCT = SOURCE_DIR / "audiosetting"


def product_commands():
    """File, folder and command of each of the product's objects. Tests compile some of its files with other paths."""
    for entry in json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")):
        file = pathlib.Path(entry["file"])
        if PRODUCT in file.parents and "audiosetting_objects.dir" in entry["command"]:
            yield file, entry["directory"], shlex.split(entry["command"])


def compile_instead(command, directory, text):
    """The compiler's messages for \a text, compiled in a product file's place."""
    arguments = []
    words = iter(command)
    for word in words:
        if word in ("-o", "-c", "-MF", "-MT"):
            next(words)
        elif word not in ("-MD", "-MMD"):
            arguments.append(word)
    return subprocess.run([*arguments, "-fsyntax-only", "-x", "c++", "-"], input=text, cwd=directory,
                          capture_output=True, text=True, check=False)


class IncludePathsTest(unittest.TestCase):
    def setUp(self):
        # One command for each set of folders that the product's files are compiled with.
        self.commands = {}
        for file, directory, command in product_commands():
            folders = tuple(word for word in command if word.startswith(("-I", "-isystem", "-iquote")))
            self.commands.setdefault(folders, (file, directory, command))
        self.assertTrue(self.commands)

    def test_the_product_and_the_contract_are_found(self):
        for file, directory, command in self.commands.values():
            with self.subTest(file=file):
                said = compile_instead(command, directory,
                                       '#include "base/setting.h"\n#include "audioservice.h"\n#include <QWidget>\n')
                self.assertEqual(said.returncode, 0, said.stderr)

    def test_nothing_else_of_the_tree_is(self):
        for header in ("headunit/toolkit/picture.h", "headunit/host/app/unit.h", "toolkit/picture.h", "host/app/unit.h",
                       "tests/platform/recorder.h", "bench/benchtools.h"):
            for file, directory, command in self.commands.values():
                with self.subTest(file=file, header=header):
                    said = compile_instead(command, directory, f'#include "{header}"\n')
                    self.assertNotEqual(said.returncode, 0)
                    self.assertIn(f"{header}: No such file", said.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
