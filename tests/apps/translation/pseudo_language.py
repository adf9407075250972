#!/usr/bin/env python3
"""Makes a translation into a language that nobody speaks, for tests.

    pseudo_language.py LUPDATE LRELEASE SENTENCES SOURCES OUTPUT.qm

lupdate finds the texts; each becomes one of accented letters, 40 % longer, in brackets: "&Open..." is "[&Oƥḗƞ... ~~~]".
Places of values, mnemonics and tags stay. A text that lupdate does not find stays as it is, and a test sees it.
"""

import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

PLAIN = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
ACCENTED = "ÀƁÇĎĖƑĜĤÌĴĶĹṀÑÓṖɊŔŠŢÙṼŴẊŶŽàƀçďéƒĝĥìĵķĺṁñóƥɋŕšţùṽŵẋŷž"
ACCENTS = str.maketrans(PLAIN, ACCENTED)
KEPT = re.compile(r"(%L?\d|&&|&\w|<[^>]*>)")


def pseudo(text):
    parts = KEPT.split(text)
    longer = "~" * max(1, round(len(text) * 0.4) - 2)
    blanks = " ".join(longer[at:at + 6] for at in range(0, len(longer), 6))
    return "[" + "".join(part if KEPT.fullmatch(part) else part.translate(ACCENTS) for part in parts) + blanks + "]"


def main(lupdate, lrelease, sentences, sources, output):
    texts = pathlib.Path(output).with_suffix(".ts")
    texts.parent.mkdir(parents=True, exist_ok=True)
    texts.unlink(missing_ok=True)
    run = subprocess.run([lupdate, sources, sentences, "-I", sources, "-target-language", "eo", "-silent", "-ts", texts],
                         capture_output=True, text=True, check=True)
    if run.stderr:
        sys.exit(run.stderr)
    tree = ElementTree.parse(texts)
    for message in tree.iter("message"):
        translation = message.find("translation")
        translation.attrib.pop("type", None)
        translation.text = pseudo(message.find("source").text)
    tree.write(texts, encoding="utf-8", xml_declaration=True)
    subprocess.run([lrelease, "-silent", texts, "-qm", output], check=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
