#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Tests of tools/render_pictures.py, run as its users do: as a program."""

import pathlib
import subprocess
import sys
import tempfile
import unittest
import zlib

SOURCE_DIR = pathlib.Path(__file__).resolve().parents[3]
RENDERER = SOURCE_DIR / "tools/render_pictures.py"
PALETTE = SOURCE_DIR / "audiosetting/resources/palette"
KEY = SOURCE_DIR / "audiosetting/resources/key_vol_prev.svg"


class RendererTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.out = pathlib.Path(self.folder.name)

    def render(self, source, *pictures, palette=PALETTE, out=None):
        return subprocess.run(
            [sys.executable, RENDERER, "--source", source, "--palette", palette, "--out", out or self.out, *pictures],
            capture_output=True, text=True, check=False)

    def source(self, text):
        path = self.out / "drawing.svg"
        path.write_text(text, encoding="utf-8")
        return path

    def assert_fails(self, run, *words):
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stderr.count("\n"), 1, run.stderr)
        for word in words:
            self.assertIn(word, run.stderr)

    def test_writes_both_densities_of_each_row(self):
        run = self.render(KEY, "a/n,n,72,72", "a/p,p,36,36")
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        sizes = {}
        for file in self.out.rglob("*.png"):
            header = file.read_bytes()[16:24]
            sizes[file.name] = tuple(int.from_bytes(header[i:i + 4], "big") for i in (0, 4))
        self.assertEqual(sizes, {"n.png": (72, 72), "n@2x.png": (144, 144), "p.png": (36, 36), "p@2x.png": (72, 72)})

    def test_same_sources_give_the_same_bytes(self):
        first, second = self.out / "first", self.out / "second"
        for out in (first, second):
            self.assertEqual(self.render(KEY, "a/n,n,72,72", out=out).returncode, 0)
        for name in ("a/n.png", "a/n@2x.png"):
            self.assertEqual((first / name).read_bytes(), (second / name).read_bytes())

    def many_colours(self, opacity):
        """A drawing of 512 colours, a strip of pixels each."""
        return self.source('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 512 4">' + "".join(
            f'<rect x="{x}" width="1" height="4" fill="#{x // 2:02x}80{255 * (x % 2):02x}" fill-opacity="{opacity}"/>'
            for x in range(512)) + "</svg>")

    def test_opaque_picture_has_no_alpha(self):
        self.assertEqual(self.render(self.many_colours(1), "a,n,512,4").returncode, 0)
        data = (self.out / "a.png").read_bytes()
        self.assertEqual(data[25], 2)  # colour type: RGB
        self.assertNotIn(b"tRNS", data)

    def test_translucent_picture_has_straight_colours(self):
        self.assertEqual(self.render(self.many_colours(0.5), "a,n,512,4").returncode, 0)
        data = (self.out / "a.png").read_bytes()
        self.assertEqual(data[25], 6)  # colour type: RGBA
        pixels = zlib.decompress(data[data.index(b"IDAT") + 4:])[1:]
        for value, expected in zip(pixels[4 * 401:], (200, 128, 255, 128)):
            self.assertAlmostEqual(value, expected, delta=2)

    def test_few_colours_make_a_palette(self):
        source = self.source('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 4">'
                             '<rect width="8" height="4" fill="#102030"/></svg>')
        self.assertEqual(self.render(source, "a,n,8,4").returncode, 0)
        data = (self.out / "a.png").read_bytes()
        self.assertEqual(data[25], 3)  # colour type: palette
        self.assertEqual(data[data.index(b"PLTE") + 4:][:3], bytes((0x10, 0x20, 0x30)))
        self.assertNotIn(b"tRNS", data)

    def test_palette_holds_translucent_colours(self):
        source = self.source('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 4">'
                             '<rect width="4" height="4" fill="#ff8000" fill-opacity="0.5"/></svg>')
        self.assertEqual(self.render(source, "a,n,8,4").returncode, 0)
        data = (self.out / "a.png").read_bytes()
        self.assertEqual(data[25], 3)
        self.assertEqual(data[data.index(b"tRNS") + 4:][:2], bytes((0, 128)))
        for value, expected in zip(data[data.index(b"PLTE") + 7:], (255, 128, 0)):
            self.assertAlmostEqual(value, expected, delta=1)
        lines = zlib.decompress(data[data.index(b"IDAT") + 4:])
        # Two colours: a bit a pixel, eight a byte, after the byte that names the line's filter.
        self.assertEqual(data[24], 1)
        self.assertEqual(lines, bytes((0, 0b11110000)) * 4)

    def test_other_shape_than_the_source(self):
        self.assert_fails(self.render(KEY, "a/n,n,72,60"), str(KEY), "a/n", "72 x 60", "72 x 72")

    def test_unknown_state(self):
        self.assert_fails(self.render(KEY, "a/n,x,72,72"), str(KEY), "x.css")

    def test_missing_source(self):
        self.assert_fails(self.render(self.out / "none.svg", "a,n,8,8"), "none.svg")

    def test_source_without_size(self):
        self.assert_fails(self.render(self.source('<svg xmlns="http://www.w3.org/2000/svg"/>'), "a,n,8,8"), "viewBox")

    def test_broken_source(self):
        source = self.source('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 8">\n<rect></svg>')
        self.assert_fails(self.render(source, "a,n,8,8"), "drawing.svg", "line 2")


if __name__ == "__main__":
    unittest.main()
