#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Renders one picture family: an SVG source in several states and sizes, at 1:1 and at 2:1.

The renderer is librsvg, called in this process; the PNGs are written for cheap decoding: unfiltered, stored but for those
that shrink to almost nothing, without colour chunks, with a palette where 256 colours do, a bit a pixel where two do, RGB
where nothing is transparent. The same sources give the same bytes on every run.
"""

import argparse
import ctypes
import functools
import pathlib
import re
import struct
import sys
import zlib

DENSITIES = ((1, ""), (2, "@2x"))
# Pictures that shrink at least so much are deflated: inflating long runs costs less than summing every stored byte.
WORTH_DEFLATING = 16


class Failure(Exception):
    pass


class Rectangle(ctypes.Structure):
    _fields_ = [(name, ctypes.c_double) for name in ("x", "y", "width", "height")]


class GError(ctypes.Structure):
    _fields_ = [("domain", ctypes.c_uint32), ("code", ctypes.c_int), ("message", ctypes.c_char_p)]


def load_library(name, functions):
    try:
        library = ctypes.CDLL(name)
    except OSError as error:
        raise Failure(f"{name} is missing ({error}); it comes with the package librsvg2-2") from error
    for function, (result, *arguments) in functions.items():
        getattr(library, function).restype = result
        getattr(library, function).argtypes = arguments
    return library


POINTER, INT, DOUBLE, BYTES, SIZE = ctypes.c_void_p, ctypes.c_int, ctypes.c_double, ctypes.c_char_p, ctypes.c_size_t
ERROR = ctypes.POINTER(ctypes.POINTER(GError))


class Renderer:
    ARGB32 = 0

    def __init__(self):
        self.cairo = load_library("libcairo.so.2", {
            "cairo_image_surface_create": (POINTER, INT, INT, INT),
            "cairo_image_surface_get_data": (POINTER, POINTER),
            "cairo_image_surface_get_stride": (INT, POINTER),
            "cairo_surface_flush": (None, POINTER),
            "cairo_surface_destroy": (None, POINTER),
            "cairo_create": (POINTER, POINTER),
            "cairo_destroy": (None, POINTER),
        })
        self.rsvg = load_library("librsvg-2.so.2", {
            "rsvg_handle_new_from_data": (POINTER, BYTES, SIZE, ERROR),
            "rsvg_handle_set_stylesheet": (INT, POINTER, BYTES, SIZE, ERROR),
            "rsvg_handle_render_document": (INT, POINTER, POINTER, ctypes.POINTER(Rectangle), ERROR),
        })
        self.gobject = load_library("libgobject-2.0.so.0", {"g_object_unref": (None, POINTER)})

    def render(self, svg, css, width, height):
        """The picture as cairo gives it: premultiplied BGRA."""
        error = ctypes.POINTER(GError)()
        handle = self.rsvg.rsvg_handle_new_from_data(svg, len(svg), ctypes.byref(error))
        self._check(handle, error)
        self._check(self.rsvg.rsvg_handle_set_stylesheet(handle, css, len(css), ctypes.byref(error)), error)
        surface = self.cairo.cairo_image_surface_create(self.ARGB32, width, height)
        context = self.cairo.cairo_create(surface)
        area = Rectangle(0, 0, width, height)
        done = self.rsvg.rsvg_handle_render_document(handle, context, ctypes.byref(area), ctypes.byref(error))
        self._check(done, error)
        self.cairo.cairo_surface_flush(surface)
        stride = self.cairo.cairo_image_surface_get_stride(surface)
        data = ctypes.string_at(self.cairo.cairo_image_surface_get_data(surface), stride * height)
        self.cairo.cairo_destroy(context)
        self.cairo.cairo_surface_destroy(surface)
        self.gobject.g_object_unref(handle)
        return data

    @staticmethod
    def _check(result, error):
        if not result:
            raise Failure(error.contents.message.decode().strip() if error else "the renderer failed without a reason")


TRANSLUCENT = re.compile(rb"[^\x00\xff]+")  # alpha values between nothing and opaque


@functools.lru_cache(maxsize=None)
def straight(alpha):
    """Table from premultiplied to straight colour bytes."""
    return bytes(min(255, (colour * 255 + alpha // 2) // alpha) for colour in range(256))


def channels(bgra):
    """Straight red, green, blue and alpha planes of premultiplied BGRA."""
    planes = [bytearray(bgra[offset::4]) for offset in (2, 1, 0, 3)]
    red, green, blue, alpha = planes
    for run in TRANSLUCENT.finditer(alpha):
        for i in range(*run.span()):
            table = straight(alpha[i])
            red[i], green[i], blue[i] = table[red[i]], table[green[i]], table[blue[i]]
    return planes


def palette_of(planes):
    """The picture's colours, the transparent ones first, and the index of each pixel; None if they are too many."""
    pixels = list(zip(planes[3], *planes[:3]))
    colours = sorted(set(pixels))
    if len(colours) > 256:
        return None
    index = {colour: i for i, colour in enumerate(colours)}
    return colours, bytes(index[pixel] for pixel in pixels)


def packed(line):
    """A line of zeros and ones, eight a byte from the highest bit on, filled up with zeros."""
    digits = "".join(map(str, line)).ljust((len(line) + 7) // 8 * 8, "0")
    return int(digits, 2).to_bytes(len(digits) // 8, "big")


def png(bgra, width, height):
    """The PNG file of a premultiplied BGRA picture."""
    planes = channels(bgra)
    opaque = planes[3].count(255) == width * height
    palette = palette_of(planes)
    chunks = []
    if palette:
        colours, pixels = palette
        kind, depth = 3, 1
        chunks.append((b"PLTE", bytes(value for colour in colours for value in colour[1:])))
        if not opaque:
            chunks.append((b"tRNS", bytes(colour[0] for colour in colours if colour[0] < 255)))
    else:
        kind, depth = (2, 3) if opaque else (6, 4)
        pixels = bytearray(width * height * depth)
        for offset in range(depth):
            pixels[offset::depth] = planes[offset]
    line = width * depth
    bits = 8
    if palette and len(colours) <= 2:
        bits, line = 1, (width + 7) // 8
        pixels = b"".join(packed(pixels[y * width:(y + 1) * width]) for y in range(height))
    raw = b"".join(b"\0" + pixels[y * line:(y + 1) * line] for y in range(height))

    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

    header = struct.pack(">IIBBBBB", width, height, bits, kind, 0, 0, 0)
    data = zlib.compress(raw, 1)
    if len(data) * WORTH_DEFLATING > len(raw):
        data = zlib.compress(raw, 0)
    chunks = [(b"IHDR", header), *chunks, (b"IDAT", data), (b"IEND", b"")]
    return b"\x89PNG\r\n\x1a\n" + b"".join(chunk(*each) for each in chunks)


def read_source(path, parts):
    """The source with the shared parts (gradients, glows) as its first element, and its size."""
    text = path.read_text(encoding="utf-8")
    match = re.search(r'<svg\b[^>]*\bviewBox="0 0 (\d+) (\d+)"[^>]*>', text)
    if not match:
        raise Failure('the source has no viewBox="0 0 <width> <height>"')
    shared = re.sub(r"<\?xml.*?\?>|<!--.*?-->", "", parts.read_text(encoding="utf-8"), flags=re.DOTALL)
    shared = " ".join(shared.split())  # one line, so that the renderer's messages name the lines of the source
    text = text[:match.end()] + shared + text[match.end():]
    return text.encode(), int(match[1]), int(match[2])


def style_sheet(palette, states):
    """The vocabulary's base and, over it, every state of "p+on"."""
    return b"\n".join((palette / f"{name}.css").read_bytes() for name in ["base", *states.split("+")])


def render_family(arguments):
    svg, own_width, own_height = read_source(arguments.source, arguments.palette / "parts.svg")
    renderer = Renderer()
    for row in arguments.pictures:
        name, states, width, height = row.split(",")
        width, height = int(width), int(height)
        if width * own_height != height * own_width:
            raise Failure(f"{name}: {width} x {height} has another shape than the source's {own_width} x {own_height}")
        css = style_sheet(arguments.palette, states)
        for density, suffix in DENSITIES:
            size = width * density, height * density
            file = arguments.out / f"{name}{suffix}.png"
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(png(renderer.render(svg, css, *size), *size))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--source", type=pathlib.Path, required=True, help="the family's SVG file")
    parser.add_argument("--palette", type=pathlib.Path, required=True, help="folder of parts.svg, base.css and states")
    parser.add_argument("--out", type=pathlib.Path, required=True, help="folder that takes the PNGs")
    parser.add_argument("pictures", nargs="+", metavar="NAME,STATE,WIDTH,HEIGHT")
    arguments = parser.parse_args()
    try:
        render_family(arguments)
    except (Failure, OSError) as error:
        sys.exit(f"{arguments.source}: {error}")


if __name__ == "__main__":
    main()
