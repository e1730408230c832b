#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The plug-in builds with Qt 5.3: tools/check_qt_since.py on it, and on a file that uses later things.

    test_qt_since.py COMPILE_COMMANDS     the build's compile_commands.json
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parents[2] / "tools/check_qt_since.py"

LATER = """#include <QFontMetrics>
#include <QTimer>
void later(const QFont &font, QObject *object, const QList<int> &list) {
    QTimer::singleShot(10, object, SLOT(deleteLater()));
    QTimer::singleShot(10, object, [] {});
    QFontMetrics(font).width(QStringLiteral("text"));
    QFontMetrics(font).horizontalAdvance(QStringLiteral("text"));
    QString::asprintf("%d", qAsConst(list).size());
    QString::fromLatin1("text").append(QString()).arg(1);
}
"""


def check(*arguments):
    return subprocess.run([sys.executable, CHECK, sys.argv[1], *arguments],
                          capture_output=True, text=True, check=False)


class QtSinceTest(unittest.TestCase):
    def test_later_things_are_found(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "later.cpp"
            file.write_text(LATER, encoding="utf-8")
            result = check("--instead", file)
        said = [line.rpartition("later.cpp:")[2] for line in result.stdout.splitlines()]
        self.assertEqual(said, [
            "5: QTimer::singleShot is since Qt 5.8",
            "7: QFontMetrics::horizontalAdvance is since Qt 5.11",
            "8: QString::asprintf is since Qt 5.5",
            "8: qAsConst is since Qt 5.7",
        ], result.stdout + result.stderr)
        self.assertEqual(result.returncode, 1)

    def test_the_plug_in_uses_none(self):
        result = check()
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertGreater(int(result.stdout.split()[0]), 200)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
