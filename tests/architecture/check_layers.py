#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the layers from the tables of docs/architecture.md and the includes from the sources, and fails on an include
that points upwards.

    check_layers.py TREE       TREE is the root of the source tree

A table whose first two columns are "layer" and "folder" lists layers, the highest first. Several folders of one layer do
not see one another; files that a layer names are a part of it. Of a folder, what a longer entry names belongs to that. A file may
include its own folder and lower layers of its table; files of any later table may include all layers of the first one,
but no header whose name ends in _p.h, and nothing of the other tables.
"""
import pathlib
import re
import sys

COVERED = ("src", "apps")
SUFFIXES = (".h", ".cpp")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^">]+)[>"]', re.MULTILINE)


class Place:
    """An entry of a table: a folder that ends in a slash, or a file."""

    def __init__(self, path, table, row, layer):
        self.path, self.table, self.row, self.layer = path, table, row, layer

    def holds(self, name):
        return name.startswith(self.path) if self.path.endswith("/") else name == self.path


def read_tables(text):
    places, table, row = [], -1, None
    for line in text.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")] if line.startswith("|") else []
        if len(cells) < 2:
            row = None
        elif cells[:2] == ["layer", "folder"]:
            table, row = table + 1, 0
        elif row is not None and not set(cells[0]) <= set("-: "):
            places += [Place(path, table, row, cells[0]) for path in re.findall(r"`([^`]+)`", cells[1])]
            row += 1
    return places


def place_of(places, name):
    return max((place for place in places if place.holds(name)), key=lambda place: len(place.path), default=None)


def resolve(tree, files, source, quote, name):
    """The file of the tree that an include means, or None for one from elsewhere."""
    folder = source.rsplit("/", 1)[0]
    application = "/".join(source.split("/")[:2])
    candidates = ["src/" + name, "src/host/" + name]
    if quote == '"':
        candidates = [folder + "/" + name, application + "/" + name, "apps/" + name] + candidates
    return next((path for path in candidates if path in files), None)


def is_allowed(source, target, name):
    if source.table == target.table:
        are_folders = source.path.endswith("/") and target.path.endswith("/")
        return target.row > source.row or target.row == source.row and (source.path == target.path or not are_folders)
    return target.table == 0 and not name.endswith("_p.h")


def find_circle(includes):
    """Files that include one another in a circle, or an empty list."""
    done = set()

    def visit(name, way):
        if name in way:
            return way[way.index(name):] + [name]
        if name in done:
            return []
        for target in includes.get(name, []):
            circle = visit(target, way + [name])
            if circle:
                return circle
        done.add(name)
        return []

    return next((circle for circle in (visit(name, []) for name in sorted(includes)) if circle), [])


def check(tree):
    """One line for each thing that is wrong, and how many includes were looked at."""
    places = read_tables((tree / "docs/architecture.md").read_text(encoding="utf-8"))
    files = sorted(str(path.relative_to(tree)) for folder in COVERED for path in (tree / folder).rglob("*")
                   if path.suffix in SUFFIXES)
    problems, includes, folders, count = [], {}, {}, 0
    for place in places:
        if not any(place.holds(name) for name in files):
            problems.append(f"docs/architecture.md: {place.path} holds no source")
    known = set(files)
    for name in files:
        source = place_of(places, name)
        if not source:
            problems.append(f"{name}: no layer of docs/architecture.md holds it")
            continue
        for quote, included in INCLUDE.findall((tree / name).read_text(encoding="utf-8")):
            target_name = resolve(tree, known, name, quote, included)
            target = place_of(places, target_name) if target_name else None
            if not target:
                continue
            count += 1
            includes.setdefault(name, []).append(target_name)
            if source.path != target.path:
                folders.setdefault(source.path, set()).add(target.path)
            if not is_allowed(source, target, target_name):
                problems.append(f"{name}: {included} is not below {source.path}")
    for graph, what in ((folders, "folders"), (includes, "files")):
        circle = find_circle(graph)
        if circle:
            problems.append(f"{what} include one another: " + " -> ".join(circle))
    return problems, count


def main():
    problems, count = check(pathlib.Path(sys.argv[1]))
    if not count:
        problems.append("no include was looked at")
    print("\n".join(problems) if problems else f"{count} includes, none of them upwards")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
