#!/usr/bin/env python3
"""Checks that no name of an unnamed namespace is used in two sources that may be compiled together.

With FABULA_TOGETHER the compiler reads several sources of a target as one (cmake/FabulaTargets.cmake), in which such a
name would be declared twice. Which sources meet changes with every file that is added, so that each name has to be
the only one of its target.
"""

import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TARGET = re.compile(r"(?P<command>fabula_library|fabula_test|add_library|add_executable)"
                    r"\(\s*(?P<name>\w+)(?P<rest>[^)]*)\)")
TOGETHER = re.compile(r"fabula_together\((\w+)\)")
APART = re.compile(r"set_target_properties\((\w+) PROPERTIES UNITY_BUILD OFF")
TYPE = re.compile(r"(?:class|struct|union|enum(?: class)?) (\w+)|using (\w+) =")
ENUM = re.compile(r"enum (?!class)(?:\w+ )?(?:: [\w:]+ )?\{")
ENUMERATOR = re.compile(r"    (\w+)\b")
# "using references::Kind;" may stand twice, if it is the same one.
TAKEN = re.compile(r"using ((?:\w+::)+(\w+));")
# A function or a constant: its name stands behind its type and before what it is given.
VALUE = re.compile(r"[\w:<>,*&\s]*?[\w>*&]\s+[*&]?(\w+)\s*(?:[({\[;]|=(?!=))")
NOT_DECLARED = re.compile(r"[\s})#/:]|TEST|TYPED_TEST|INSTANTIATE_|MATCHER|namespace |using namespace |template")


def names_of(source):
    """What the unnamed namespaces of a source declare; the formatter puts such declarations at the edge.

    Each name with what it stands for where it was taken from another namespace, else with the source."""
    inside, counted, names = False, False, {}
    for line in source.read_text(encoding="utf-8").splitlines():
        if taken := TAKEN.match(line):
            names[taken[2]] = taken[1]
        elif line == "namespace {":
            inside = True
        elif line.startswith("}  // namespace"):
            inside = False
        elif inside and ENUM.match(line):
            counted = "}" not in line
        elif line.startswith("}"):
            counted = False
        elif counted and ENUMERATOR.match(line):
            names[ENUMERATOR.match(line)[1]] = source
        elif inside and line and not NOT_DECLARED.match(line):
            match = TYPE.match(line) or VALUE.match(line)
            if match:
                names[next(name for name in match.groups() if name)] = source
    return names


def targets_of(lists):
    """The sources of each target that is compiled together."""
    text = re.sub(r"#[^\n]*", "", lists.read_text(encoding="utf-8"))
    together, apart = set(TOGETHER.findall(text)), set(APART.findall(text))
    for match in TARGET.finditer(text):
        name = match["name"]
        if name in apart or (match["command"].startswith("add_") and name not in together):
            continue
        files = [lists.parent / file for file in re.findall(r"[\w./-]+\.cpp", match["rest"])]
        yield name, [file.resolve() for file in files if file.exists()]


def check(root):
    problems = []
    for lists in sorted([*root.glob("src/**/CMakeLists.txt"), *root.glob("tests/**/CMakeLists.txt"),
                         *root.glob("bench/CMakeLists.txt")]):
        for target, sources in targets_of(lists):
            places, meanings = collections.defaultdict(list), collections.defaultdict(set)
            for source in sources:
                for name, meaning in names_of(source).items():
                    places[name].append(source.relative_to(root).as_posix())
                    meanings[name].add(meaning)
            problems += [f"{target}: {name} stands in {', '.join(sorted(files))}"
                         for name, files in sorted(places.items()) if len(meanings[name]) > 1]
    return problems


if __name__ == "__main__":
    found = check(ROOT)
    print("\n".join(found) or "names: each stands once in its target")
    sys.exit(1 if found else 0)
