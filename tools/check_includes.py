#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Checks that includes run one way, in the product (app -> navigation -> pages -> base -> platform) and in the reference
unit (the table UNIT), and never between the two.

    tools/check_includes.py [ROOT]     prints each include that breaks a rule, and fails if there is one

An include is looked up where the compiler would find it: beside the file, in the roots of its room, in platform/. One
that stands nowhere in the tree belongs to a library or is generated.
"""

import pathlib
import re
import sys

PAGES = ("general", "eq", "crossover", "timing", "volume")

# Rooms of the product, each with those below it that it may use.
PRODUCT = {
    "app": {"navigation", "base", *PAGES},
    "navigation": {"base", *PAGES},
    **{page: {"base"} for page in PAGES},
    "base": set(),
    "resources": set(),
}

# Rooms of the reference unit, likewise. The host uses all of them, and none uses the host.
UNIT = {
    "settings": set(),
    "toolkit": {"settings"},
    "audio/service": {"settings"},
    "mcu": {"audio/service", "settings"},
    "audio/engine": {"audio/service"},
    "audio/files": {"audio/engine", "audio/service"},
    "audio/live": {"audio/service", "audio/engine", "audio/files"},
    "desk": {"settings", "toolkit", "audio/service", "audio/engine", "audio/live"},
    "virtualtime": set(),
}
UNIT["host"] = set(UNIT)

# The one file that shows the panel which the product exports.
PANEL = ("headunit/host/screens/bandadjustpanel.cpp", "audiosetting/eq/eqwidget.h")

# Whoever knows the contract alone.
CONTRACT_ONLY = ("examples", "conformance")

ROOMS = ("platform", "audiosetting", "headunit", "tests", "bench", "cmake", *CONTRACT_ONLY)
SOURCES = {".h", ".cpp", ".ui", ".in"}
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')
FORM_HEADER = re.compile(r"<header(?: [^>]*)?>([^<]+)</header>")


def sources(root):
    for room in ROOMS:
        for path in sorted((root / room).rglob("*")):
            if path.suffix in SOURCES and path.is_file():
                yield path


def includes(path):
    pattern = FORM_HEADER if path.suffix == ".ui" else INCLUDE
    search = pattern.search if path.suffix == ".ui" else pattern.match
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if found := search(line):
            yield number, found[1]


def target(root, path, name):
    """The file of the tree that an include names, or None."""
    places = [path.parent, root / "platform"]
    if path.relative_to(root).parts[0] != "platform":
        places += [root, root / "audiosetting"]
    for place in places:
        candidate = (place / name).resolve()
        if candidate.is_file() and candidate.is_relative_to(root):
            return candidate.relative_to(root)
    return None


def is_settings(header):
    return header.name.endswith("settings.h") and header.stem == header.parent.name + "settings"


def reason(source, header):
    """Why \\a source may not include \\a header; None where it may."""
    room, to = source.parts[0], header.parts[0]
    if room == "platform" and to != "platform":
        return "the contract includes nothing but itself"
    if to == "tests" and room != "tests":
        return "only tests include tests"
    if to == "bench" and room != "bench":
        return "nothing includes measurements"
    if to == "cmake" and room not in ("cmake", "tests"):
        return "generated sources alone include it"
    if room == "cmake" and to not in ("cmake", "platform"):
        return "it knows the contract at most"
    if room in CONTRACT_ONLY and to not in (room, "platform"):
        return "it knows the contract alone"
    if room == "audiosetting":
        return product_reason(source, header)
    return unit_reason(source, header) if room == "headunit" else None


def product_reason(source, header):
    if header.parts[0] == "headunit":
        return "the product does not know the reference unit"
    if header.parts[0] != "audiosetting":
        return None
    here, there = source.parts[1], header.parts[1]
    if here == there or here == "forms":
        return None
    if here not in PRODUCT:
        return f"no rule for audiosetting/{here}"
    if here in PAGES and there in PAGES:
        return None if is_settings(header) else "a page uses another page's settings header alone"
    if there not in PRODUCT[here]:
        return f"{here} stands below {there}" if here in PRODUCT.get(there, ()) else f"{here} may not use {there}"
    return None


def unit_room(path):
    return "/".join(path.parts[1:3]) if path.parts[1] == "audio" else path.parts[1]


def unit_reason(source, header):
    if header.parts[0] == "audiosetting":
        return None if (str(source), str(header)) == PANEL else "the reference unit does not know the product"
    if header.parts[0] != "headunit":
        return None
    here, there = unit_room(source), unit_room(header)
    if here not in UNIT:
        return f"no rule for headunit/{here}"
    if there == here or there in UNIT[here]:
        return None
    if there == "host":
        return "the unit's libraries do not know its host"
    return f"{here} stands below {there}" if here in UNIT.get(there, ()) else f"{here} may not use {there}"


def violations(root):
    for path in sources(root):
        source = path.relative_to(root)
        for number, name in includes(path):
            header = target(root, path, name)
            if header and (why := reason(source, header)):
                yield f"{source}:{number}: {name}: {why}"


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[1]).resolve()
    if not any(sources(root)):
        sys.exit(f"{root}: no sources")
    found = list(violations(root))
    print("\n".join(found) if found else "every include runs the right way")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
