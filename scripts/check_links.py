#!/usr/bin/env python3
"""Checks the links between the documents and to what they tell of.

The check fails on a relative link that leads nowhere, be it the file or the heading in it, on a section of
docs/decisions.md that its table of contents lacks, and on an entry there ("**Title.** ...") that links to nothing of
the code that holds it.
"""

import pathlib
import re
import sys
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCUMENTS = ["README.md", "CONTRIBUTING.md", "CHANGELOG.md"]
DECISIONS = "docs/decisions.md"
LINK = re.compile(r"\]\((?P<target>[^()\s]+)\)")
INLINE_CODE = re.compile(r"`[^`]*`")
HEADING = re.compile(r"^#+\s+(?P<title>.*?)\s*#*$")
SECTION = re.compile(r"^## +(?P<title>.*?)\s*$")
ENTRY = re.compile(r"^\*\*(?P<title>[^*]+)\*\*")
ANCHOR_OF_PAGE = re.compile(r'\b(?:id|name)="([^"]+)"')


def prose(text):
    """The lines of a document with their numbers, those of code blocks left empty."""
    fenced = False
    for number, line in enumerate(text.splitlines(), 1):
        if line.lstrip().startswith("```"):
            fenced = not fenced
            line = ""
        yield number, "" if fenced else line


def anchor_of(title):
    """The anchor that a heading gets: small letters, blanks as hyphens, no other signs."""
    plain = re.sub(r"[^\w\- ]", "", title.lower().replace("`", ""))
    return plain.replace(" ", "-")


def anchors_of(file):
    text = file.read_text(encoding="utf-8")
    if file.suffix != ".md":
        return set(ANCHOR_OF_PAGE.findall(text))
    found, times = set(), {}
    for _, line in prose(text):
        heading = HEADING.match(line)
        if heading:
            anchor = anchor_of(heading["title"])
            count = times.get(anchor, 0)
            times[anchor] = count + 1
            found.add(f"{anchor}-{count}" if count else anchor)
    return found


def links_in(line):
    for link in LINK.finditer(INLINE_CODE.sub("", line)):
        yield urllib.parse.unquote(link["target"])


def fault_of_link(root, document, target):
    """Why a link leads nowhere; None when it leads somewhere or away from here."""
    if re.match(r"[a-z]+:", target):
        return None
    path, _, anchor = target.partition("#")
    file = (document.parent / path).resolve() if path else document
    if not file.is_relative_to(root):
        return "leads out of the project"
    if not file.exists():
        return "leads to no file"
    if anchor and anchor not in anchors_of(file):
        return "leads to no heading"
    return None


def check_links(root, document):
    name = document.relative_to(root).as_posix()
    for number, line in prose(document.read_text(encoding="utf-8")):
        for target in links_in(line):
            fault = fault_of_link(root, document, target)
            if fault:
                yield f"{name}:{number}: the link {target} {fault}"


def check_decisions(root):
    text = (root / DECISIONS).read_text(encoding="utf-8")
    listed = {target for _, line in prose(text) if line.startswith("- ") for target in links_in(line)}
    entry = None  # its line, title and whether it has a link yet
    for number, line in [*prose(text), (0, "## ")]:
        begins = ENTRY.match(line)
        if entry and (begins or line.startswith("#")):
            if not entry[2]:
                yield f'{DECISIONS}:{entry[0]}: "{entry[1]}" links to no code'
            entry = None
        if begins:
            entry = [number, begins["title"], False]
        if entry and any(target.startswith("../") for target in links_in(line)):
            entry[2] = True
        section = SECTION.match(line)
        if section and section["title"] and "#" + anchor_of(section["title"]) not in listed:
            yield f'{DECISIONS}:{number}: the table of contents lacks "{section["title"]}"'


def main():
    root = pathlib.Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else ROOT
    documents = [root / name for name in DOCUMENTS] + sorted((root / "docs").glob("*.md"))
    problems = [problem for document in documents for problem in check_links(root, document)]
    problems.extend(check_decisions(root))
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
