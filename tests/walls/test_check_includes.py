#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Tests of tools/check_includes.py: trees that break one rule each, trees that break none, and the project's own."""

import importlib.util
import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCE_DIR = pathlib.Path(__file__).resolve().parents[2]
CHECK = SOURCE_DIR / "tools/check_includes.py"

# Every header that the cases below include.
HEADERS = [
    "platform/setting.h", "platform/contract.h",
    "audiosetting/app/plugin.h", "audiosetting/navigation/tab.h", "audiosetting/base/caption.h",
    "audiosetting/eq/eqwidget.h", "audiosetting/eq/eqsettings.h", "audiosetting/eq/eqtable.h",
    "audiosetting/timing/timingsettings.h", "audiosetting/timing/othersettings.h",
    "headunit/toolkit/style.h", "headunit/host/app/unit.h", "headunit/host/screens/look.h",
    "headunit/settings/store.h", "headunit/mcu/mcu.h", "headunit/desk/frame/desk.h", "headunit/virtualtime/clock.h",
    "headunit/audio/service/state.h", "headunit/audio/engine/engine.h", "headunit/audio/files/reader.h",
    "headunit/audio/live/player.h", "cmake/embedded.h",
    "tests/platform/recorder.h", "bench/benchtools.h", "examples/beep.h",
]

# A file, what it includes, and what is said of it.
BROKEN = [
    ("platform/contract.cpp", "../audiosetting/base/caption.h", "the contract includes nothing but itself"),
    ("platform/contract.cpp", "../headunit/toolkit/style.h", "the contract includes nothing but itself"),
    ("audiosetting/base/caption.cpp", "eq/eqsettings.h", "base stands below eq"),
    ("audiosetting/base/caption.cpp", "navigation/tab.h", "base stands below navigation"),
    ("audiosetting/eq/eqwidget.cpp", "navigation/tab.h", "eq stands below navigation"),
    ("audiosetting/eq/eqwidget.cpp", "app/plugin.h", "eq stands below app"),
    ("audiosetting/navigation/tab.cpp", "app/plugin.h", "navigation stands below app"),
    ("audiosetting/timing/page.cpp", "eq/eqtable.h", "a page uses another page's settings header alone"),
    ("audiosetting/timing/page.cpp", "eq/eqwidget.h", "a page uses another page's settings header alone"),
    ("audiosetting/eq/page.cpp", "timing/othersettings.h", "a page uses another page's settings header alone"),
    ("audiosetting/newpage/page.cpp", "base/caption.h", "no rule for audiosetting/newpage"),
    ("audiosetting/eq/page.cpp", "headunit/toolkit/style.h", "the product does not know the reference unit"),
    ("audiosetting/eq/page.h", "../../headunit/toolkit/style.h", "the product does not know the reference unit"),
    ("audiosetting/eq/page.cpp", "tests/platform/recorder.h", "only tests include tests"),
    ("audiosetting/eq/page.cpp", "bench/benchtools.h", "nothing includes measurements"),
    ("headunit/toolkit/style.cpp", "eq/eqsettings.h", "the reference unit does not know the product"),
    ("headunit/host/app/unit.cpp", "audiosetting/eq/eqwidget.h", "the reference unit does not know the product"),
    ("headunit/host/screens/bandadjustpanel.cpp", "eq/eqtable.h", "the reference unit does not know the product"),
    ("headunit/toolkit/style.cpp", "headunit/host/screens/look.h", "the unit's libraries do not know its host"),
    ("headunit/toolkit/style.cpp", "tests/platform/recorder.h", "only tests include tests"),
    ("headunit/settings/store.cpp", "headunit/desk/frame/desk.h", "settings stands below desk"),
    ("headunit/settings/store.cpp", "headunit/audio/service/state.h", "settings stands below audio/service"),
    ("headunit/toolkit/style.cpp", "headunit/audio/service/state.h", "toolkit may not use audio/service"),
    ("headunit/audio/service/state.cpp", "headunit/audio/engine/engine.h", "audio/service stands below audio/engine"),
    ("headunit/audio/service/state.cpp", "headunit/toolkit/style.h", "audio/service may not use toolkit"),
    ("headunit/mcu/mcu.cpp", "headunit/audio/engine/engine.h", "mcu may not use audio/engine"),
    ("headunit/mcu/mcu.cpp", "headunit/toolkit/style.h", "mcu may not use toolkit"),
    ("headunit/audio/engine/engine.cpp", "headunit/audio/live/player.h", "audio/engine stands below audio/live"),
    ("headunit/audio/engine/engine.cpp", "../files/reader.h", "audio/engine stands below audio/files"),
    ("headunit/audio/engine/engine.cpp", "headunit/settings/store.h", "audio/engine may not use settings"),
    ("headunit/audio/files/reader.cpp", "headunit/audio/live/player.h", "audio/files stands below audio/live"),
    ("headunit/audio/files/reader.cpp", "headunit/settings/store.h", "audio/files may not use settings"),
    ("headunit/audio/live/player.cpp", "headunit/desk/frame/desk.h", "audio/live stands below desk"),
    ("headunit/audio/live/player.cpp", "headunit/settings/store.h", "audio/live may not use settings"),
    ("headunit/desk/frame/desk.cpp", "headunit/mcu/mcu.h", "desk may not use mcu"),
    ("headunit/desk/frame/desk.cpp", "headunit/audio/files/reader.h", "desk may not use audio/files"),
    ("headunit/desk/frame/desk.cpp", "headunit/host/app/unit.h", "the unit's libraries do not know its host"),
    ("headunit/virtualtime/clock.cpp", "headunit/settings/store.h", "virtualtime may not use settings"),
    ("headunit/newroom/new.cpp", "headunit/settings/store.h", "no rule for headunit/newroom"),
    ("headunit/audio/new/new.cpp", "headunit/settings/store.h", "no rule for headunit/audio/new"),
    ("headunit/desk/frame/desk.cpp", "cmake/embedded.h", "generated sources alone include it"),
    ("audiosetting/base/picture.cpp", "cmake/embedded.h", "generated sources alone include it"),
    ("cmake/embedded.cpp", "audiosetting/base/caption.h", "it knows the contract at most"),
    ("cmake/embedded.cpp", "headunit/settings/store.h", "it knows the contract at most"),
    ("bench/product.cpp", "tests/platform/recorder.h", "only tests include tests"),
    ("examples/beep.cpp", "headunit/toolkit/style.h", "it knows the contract alone"),
    ("examples/beep.cpp", "base/caption.h", "it knows the contract alone"),
]

SOUND = [
    ("platform/contract.cpp", "contract.h"),
    ("audiosetting/app/plugin.cpp", "navigation/tab.h"),
    ("audiosetting/app/plugin.cpp", "base/caption.h"),
    ("audiosetting/navigation/tab.cpp", "eq/eqwidget.h"),
    ("audiosetting/timing/page.cpp", "eq/eqsettings.h"),
    ("audiosetting/timing/page.cpp", "timingsettings.h"),
    ("audiosetting/eq/page.cpp", "contract.h"),
    ("audiosetting/eq/page.cpp", "ui_Page.h"),
    ("audiosetting/eq/page.cpp", "QWidget"),
    ("headunit/host/screens/bandadjustpanel.cpp", "eq/eqwidget.h"),
    ("headunit/host/app/unit.cpp", "headunit/toolkit/style.h"),
    ("headunit/host/app/unit.cpp", "headunit/desk/frame/desk.h"),
    ("headunit/host/app/unit.cpp", "headunit/virtualtime/clock.h"),
    ("headunit/host/sound/live.cpp", "headunit/audio/live/player.h"),
    ("headunit/desk/frame/desk.cpp", "headunit/audio/live/player.h"),
    ("headunit/desk/frame/desk.cpp", "headunit/toolkit/style.h"),
    ("headunit/audio/live/player.cpp", "headunit/audio/files/reader.h"),
    ("headunit/audio/files/reader.cpp", "headunit/audio/engine/engine.h"),
    ("headunit/audio/engine/engine.cpp", "headunit/audio/service/state.h"),
    ("headunit/mcu/mcu.cpp", "headunit/audio/service/state.h"),
    ("headunit/audio/service/state.cpp", "headunit/settings/store.h"),
    ("headunit/toolkit/style.cpp", "headunit/settings/store.h"),
    ("headunit/toolkit/style.cpp", "contract.h"),
    ("cmake/embedded.cpp", "embedded.h"),
    ("cmake/embedded.cpp", "contract.h"),
    ("tests/audiosetting/resources/tst_pictures.cpp", "cmake/embedded.h"),
    ("tests/audiosetting/eq/tst_page.cpp", "eq/eqtable.h"),
    ("tests/audiosetting/eq/tst_page.cpp", "headunit/host/app/unit.h"),
    ("bench/product.cpp", "headunit/toolkit/style.h"),
    ("examples/beep.cpp", "contract.h"),
]


spec = importlib.util.spec_from_file_location("check_includes", CHECK)
check_includes = importlib.util.module_from_spec(spec)
spec.loader.exec_module(check_includes)


def violations(root):
    return list(check_includes.violations(pathlib.Path(root).resolve()))


def run(root):
    return subprocess.run([sys.executable, CHECK, root], capture_output=True, text=True, check=False)


class IncludesTest(unittest.TestCase):
    def tree(self, *sources):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        root = pathlib.Path(folder.name)
        for name, text in [(header, "#pragma once\n") for header in HEADERS] + list(sources):
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text, encoding="utf-8")
        return root

    def test_each_rule(self):
        for source, include, why in BROKEN:
            for line in (f'#include "{include}"', f"  #  include <{include}>"):
                with self.subTest(source=source, line=line):
                    root = self.tree((source, f"// First line.\n{line}\n"))
                    self.assertEqual(violations(root), [f"{source}:2: {include}: {why}"])

    def test_what_is_allowed(self):
        for source, include in SOUND:
            with self.subTest(source=source, include=include):
                self.assertEqual(violations(self.tree((source, f'#include "{include}"\n'))), [])

    def test_headers_that_forms_name(self):
        form = "<ui>\n   <header>{}</header>\n</ui>\n"
        good = self.tree(("audiosetting/forms/Page.ui", form.format("eq/eqwidget.h")))
        self.assertEqual(violations(good), [])
        bad = self.tree(("audiosetting/forms/Page.ui", form.format("headunit/toolkit/style.h")))
        self.assertEqual(violations(bad), [
            "audiosetting/forms/Page.ui:2: headunit/toolkit/style.h: the product does not know the reference unit"])

    def test_as_a_program(self):
        broken = run(self.tree(
            ("audiosetting/base/caption.cpp", '#include "eq/eqtable.h"\n#include "caption.h"\n#include "app/plugin.h"\n')))
        self.assertEqual(broken.returncode, 1)
        self.assertEqual(len(broken.stdout.splitlines()), 2)
        self.assertEqual(run(self.tree()).returncode, 0)

    def test_an_empty_tree_is_an_error(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertNotEqual(run(folder).returncode, 0)

    def test_this_project(self):
        self.assertEqual(violations(SOURCE_DIR), [])


if __name__ == "__main__":
    unittest.main()
