#!/usr/bin/env python3
"""Checks every #include under src/ against the table of folders in docs/architecture.md.

The table's rows name a folder and the folders it may use; what those may use, it may use too. The check fails on
an include of a folder that is not allowed, on a folder without a row, and on a row that no longer tells the truth:
a folder that is gone, or a permission that no file of the folder makes use of.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROW = re.compile(r"^\|\s*`(?P<folder>[a-z_/]+)/`\s*\|[^|]*\|\s*(?P<uses>[^|]*)\|\s*$")
INCLUDE = re.compile(r'^\s*#\s*include\s*"(?P<path>[^"]+)"', re.MULTILINE)


def read_table(text):
    table = {}
    for line in text.splitlines():
        row = ROW.match(line)
        if row:
            table[row["folder"]] = set(re.findall(r"`([a-z_/]+)/`", row["uses"]))
    return table


def closure(table, folder):
    reached, waiting = set(), list(table[folder])
    while waiting:
        name = waiting.pop()
        if name not in reached:
            reached.add(name)
            waiting.extend(table.get(name, ()))
    return reached


def folder_of(path, folders):
    """The longest folder of the table that `path` (relative to src/, or to src/apps/ in an include) lies in."""
    candidates = [folder for folder in folders if path.startswith((folder + "/", folder.removeprefix("apps/") + "/"))]
    return max(candidates, key=len, default=None)


def check(root):
    table = read_table((root / "docs/architecture.md").read_text(encoding="utf-8"))
    problems = []
    used = {folder: set() for folder in table}
    sources = root / "src"
    for folder in table:
        if not (sources / folder).is_dir():
            problems.append(f"docs/architecture.md: folder {folder}/ does not exist")
    for folder, uses in table.items():
        for name in uses - table.keys():
            problems.append(f"docs/architecture.md: {folder}/ may use {name}/, which has no row")
    for file in sorted(path for path in sources.rglob("*") if path.suffix in (".h", ".cpp")):
        relative = file.relative_to(sources).as_posix()
        folder = folder_of(relative, table)
        if folder is None:
            problems.append(f"src/{relative}: its folder has no row in docs/architecture.md")
            continue
        allowed = closure(table, folder)
        for included in INCLUDE.findall(file.read_text(encoding="utf-8")):
            target = folder_of(included, table)
            if target is None:
                problems.append(f'src/{relative}: "{included}" names no folder of docs/architecture.md')
            elif target != folder and target not in allowed:
                problems.append(f'src/{relative}: "{included}" is not allowed: {folder}/ may not use {target}/')
            elif target != folder:
                used[folder].add(target)
    for folder, uses in table.items():
        # A permission is used when the folder includes it or something that only it brings in.
        for name in sorted(uses & table.keys()):
            others = uses - {name}
            without = others.union(*(closure(table, other) for other in others)) if others else set()
            brought = ({name} | closure(table, name)) - without
            if not brought & used[folder]:
                problems.append(f"docs/architecture.md: {folder}/ may use {name}/ but does not")
    return problems


def main():
    problems = check(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT)
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
