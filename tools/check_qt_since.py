#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Checks that the plug-in uses only functions, classes, values and macros that Qt 5.3 already has.

    tools/check_qt_since.py COMMANDS [--docs FOLDER] [--instead FILE]

COMMANDS is the build's compile_commands.json: every source of the plug-in is read as the compiler reads it. FOLDER holds
Qt's own index of its documentation, which says since when each thing exists (package qtbase5-doc-html). FILE is read in
place of the plug-in's sources, with the command of one of them. Needs libclang for Python (package python3-clang).
"""

import argparse
import collections
import json
import pathlib
import re
import shlex
import sys
import xml.etree.ElementTree

from clang import cindex

FLOOR = (5, 3)
MODULES = ("qtcore", "qtgui", "qtwidgets")
SOURCE_DIR = pathlib.Path(__file__).resolve().parents[1]
KINDS = {"class", "namespace", "function", "enum", "value", "typedef", "property", "variable", "header", "page"}

Entry = collections.namedtuple("Entry", "since parameters")


def version(text):
    return tuple(int(number) for number in re.findall(r"\d+", text)[:2])


def plain(parameter):
    """A parameter's type without what may be written in several ways: const, references, spaces, names, defaults."""
    parameter = re.sub(r"=.*", "", parameter)
    parameter = re.sub(r"\b(const|struct|class|enum|typename)\b", " ", parameter)
    words = re.findall(r"[\w:<>,]+", parameter)
    return re.sub(r"\w+::", "", words[0]) + ("*" if "*" in parameter else "") if words else ""


def parameters_of(signature):
    """The types of "QString name(const QString &text, int from = 0) const"."""
    inside = signature[signature.find("(") + 1:signature.rfind(")")]
    depth, part, parts = 0, "", []
    for letter in inside:
        depth += letter in "<(" and 1 or letter in ">)" and -1 or 0
        if letter == "," and depth == 0:
            parts.append(part)
            part = ""
        else:
            part += letter
    parts.append(part)
    return tuple(plain(part) for part in parts if part.strip())


def read_index(folder):
    """Qt's documented functions, by full name: since when, and with which parameters."""
    known = collections.defaultdict(list)

    def walk(element, scope, since):
        for child in element:
            if child.tag not in KINDS:
                walk(child, scope, since)
                continue
            name = child.get("name", "")
            own = max(since, version(child.get("since", "0.0")))
            full = f"{scope}::{name}" if scope and child.tag not in ("header", "page") else name
            if child.tag in ("class", "namespace"):
                full = child.get("fullname") or child.get("name")
            if child.tag not in ("header", "page"):
                known[full].append(Entry(own, parameters_of(child.get("signature", "()"))))
            # Values of a scope's enumerations are the scope's.
            inner = scope if child.tag in ("enum", "header", "page", "function", "property") else full
            walk(child, inner, own)

    for module in MODULES:
        walk(xml.etree.ElementTree.parse(folder / module / f"{module}.index").getroot(), "", (0, 0))
    return known


def full_name(cursor):
    names = []
    while cursor and cursor.kind != cindex.CursorKind.TRANSLATION_UNIT:
        if cursor.spelling and cursor.kind != cindex.CursorKind.ENUM_DECL:
            names.append(cursor.spelling.split("<")[0])
        cursor = cursor.semantic_parent
    return "::".join(reversed(names))


def is_in(cursor, places):
    file = cursor.location.file
    return file is not None and places(file.name)


def is_qt(file):
    return "/qt5/" in file


def written(cursor):
    """The function as Qt declares it, where the compiler has made one of a template."""
    template = cindex.conf.lib.clang_getSpecializedCursorTemplate(cursor)
    return template if template else cursor


def uses(unit, ours):
    """Place, full name and parameter types of each thing of Qt that \\a ours refer to."""
    for cursor in (inner for outer in unit.cursor.get_children() if is_in(outer, ours) for inner in outer.walk_preorder()):
        if cursor.kind == cindex.CursorKind.MACRO_INSTANTIATION:
            yield cursor.location, cursor.spelling, None
            continue
        target = cursor.referenced
        if target is None or target == cursor or not is_in(target, is_qt):
            continue
        types = None
        if target.kind in (cindex.CursorKind.CXX_METHOD, cindex.CursorKind.CONSTRUCTOR,
                           cindex.CursorKind.FUNCTION_DECL, cindex.CursorKind.FUNCTION_TEMPLATE):
            types = parameters_of("(" + ",".join(one.type.spelling for one in written(target).get_children()
                                                 if one.kind == cindex.CursorKind.PARM_DECL) + ")")
        yield cursor.location, full_name(target), types


def too_new(entries, types):
    """The release that has it, if it is later than the floor. Overloads are told apart where their types can be."""
    if not entries:
        return None
    if types is not None:
        same = [entry for entry in entries if entry.parameters[:len(types)] == types]
        if not same:
            # It is one of these, so each of them must be old enough.
            entries = [entry for entry in entries if len(entry.parameters) >= len(types)] or entries
            newest = max(entry.since for entry in entries)
            return newest if newest > FLOOR else None
        entries = same
    oldest = min(entry.since for entry in entries)
    return oldest if oldest > FLOOR else None


def parse(command, directory, file):
    arguments, words = [], iter(shlex.split(command)[1:])
    for word in words:
        if word in ("-o", "-c", "-MF", "-MT"):
            next(words)
        elif word.startswith(("-I", "-D", "-std", "-isystem", "-f")):
            arguments += [word, next(words)] if word == "-isystem" else [word]
    unit = cindex.Index.create().parse(
        str(file), args=[*arguments, f"-working-directory={directory}"],
        options=cindex.TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
    errors = [str(one) for one in unit.diagnostics if one.severity >= cindex.Diagnostic.Error]
    if errors:
        sys.exit("\n".join(errors))
    return unit


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("commands", type=pathlib.Path)
    parser.add_argument("--docs", type=pathlib.Path, default=pathlib.Path("/usr/share/qt5/doc"))
    parser.add_argument("--instead", type=pathlib.Path)
    options = parser.parse_args()

    known = read_index(options.docs)
    entries = [entry for entry in json.loads(options.commands.read_text(encoding="utf-8"))
               if "audiosetting_objects.dir" in entry["command"]
               and pathlib.Path(entry["file"]).is_relative_to(SOURCE_DIR)]
    if not entries:
        sys.exit("no sources of the plug-in")
    if options.instead:
        entries = [dict(entries[0], file=str(options.instead))]

    said, used = set(), set()
    for entry in entries:
        file = pathlib.Path(entry["file"])
        ours = (lambda name: name == str(file)) if options.instead else (
            lambda name: name.startswith(str(SOURCE_DIR)) and "/build/" not in name)
        for place, name, types in uses(parse(entry["command"], entry["directory"], file), ours):
            documented = known.get(name, [])
            if documented:
                used.add(name)
            if since := too_new(documented, types):
                said.add(f"{place.file.name}:{place.line}: {name} is since Qt {since[0]}.{since[1]}")
    print("\n".join(sorted(said)) if said else f"{len(used)} functions, classes and values of Qt, none later than 5.3")
    sys.exit(1 if said else 0)


if __name__ == "__main__":
    main()
