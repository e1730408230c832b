#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes the crossover curves: audiosetting/resources/curve_{high,low}_{6,12,18}db.svg.

The curves are those of Butterworth filters of order n = 1, 2, 3 (6, 12, 18 dB per octave). At a frequency that lies
k octaves inside the pass band of the -3 dB point the attenuation is, by the definition of the Butterworth response,

    10 * log10(1 + 2 ** (-2 * n * k)) dB.

The page draws the same line itself (audiosetting/crossover/curveline.cpp), so that it can stretch it evenly. It shows a picture shifted (high-pass) or with another width (low-pass) and stretched to another height. The
graph is 688 px wide: a high-pass at x = -360 and a low-pass of 1050 px must show their pass band only, a high-pass at
x = -330 begins at the left edge and one at x = 295 ends near the right one.
"""

import argparse
import math
import pathlib
import sys

RESOURCES = pathlib.Path(__file__).resolve().parents[1] / "audiosetting" / "resources"

WIDTH, HEIGHT = 1050, 256
PASS_BAND = 4  # y of 0 dB: in view also where only the uppermost pixels of the picture are
RANGE = 24.0  # dB from there to the lower edge: at its usual height of 506 px a picture has the graph's 21 px per dB
MARGIN = 4  # px that the line runs on beyond the picture, so that no line end is seen

ORDERS = {"6db": 1, "12db": 2, "18db": 3}
# x of the -3 dB point, px per octave (the sign says on which side the pass band lies).
FAMILIES = {"high": (335, 18.0), "low": (756, -36.0)}


def attenuation(order, octaves_inside):
    return 10 * math.log10(1 + 2 ** (-2 * order * octaves_inside))


def curve(order, corner, pixels_per_octave):
    """The line's points, from left to right, over the picture's width and down to below its lower edge."""
    points = []
    for x in range(-MARGIN, WIDTH + MARGIN + 1):
        level = attenuation(order, (x - corner) / pixels_per_octave)
        y = PASS_BAND + level * (HEIGHT - PASS_BAND) / RANGE
        if y <= HEIGHT + 4 * MARGIN:
            points.append((x, round(y, 2)))
    # A point on a straight line needs no entry of its own.
    kept = points[:1]
    for previous, point, following in zip(points, points[1:], points[2:]):
        if abs(previous[1] + following[1] - 2 * point[1]) > 0.001:
            kept.append(point)
    return kept + points[-1:]


def path(points):
    return "M" + " ".join(f"{x:g} {y:g}" for x, y in points)


def drawing(order, corner, pixels_per_octave):
    points = curve(order, corner, pixels_per_octave)
    return f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}">
  <!-- Written by tools/crossover_curves.py. Not smoothed: nobody sees the picture, and two colours are cheap to read. -->
  <path class="curve" shape-rendering="crispEdges" d="{path(points)}"/>
</svg>
"""


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="write nothing, fail where a file is not what it would be")
    arguments = parser.parse_args()
    for family, (corner, pixels_per_octave) in FAMILIES.items():
        for name, order in ORDERS.items():
            file = RESOURCES / f"curve_{family}_{name}.svg"
            text = drawing(order, corner, pixels_per_octave)
            if not arguments.check:
                file.write_text(text, encoding="utf-8")
            elif not file.exists() or file.read_text(encoding="utf-8") != text:
                sys.exit(f"{file}: not what tools/crossover_curves.py writes")


if __name__ == "__main__":
    main()
