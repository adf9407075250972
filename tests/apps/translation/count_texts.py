#!/usr/bin/env python3
"""Counts the texts of the windows in the sources and looks for each in what lupdate has found.

    count_texts.py TEXTS.ts ROOT

Knows nothing of scripts/sentences.py: it looks for the places at which a text becomes visible.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

STRING = r'"(?:[^"\\\n]|\\.)*"'
STRINGS = rf"{STRING}(?:\s*{STRING})*"
TR = re.compile(rf"\btr\(({STRINGS})")
SAID = re.compile(rf"\b(?:Tell|Confirm|Proceed|Refuse|refuse|Say|AskLeaving|Report|Translated|throw Error)\(({STRINGS})")
ENTRY = re.compile(rf"\bCommandEntry\{{.*?\}}|^ *\{{Command::.*?\}},$", re.DOTALL | re.MULTILINE)
# A text that goes to a widget as it is.
RAW = re.compile(rf"\b(?:setText|setToolTip|setAccessibleName|setAccessibleDescription|setWindowTitle|setPlaceholderText|"
                 rf"setTitle|setStatusTip|addMenu|addTab|addRow|QLabel|QPushButton|QCheckBox|QRadioButton|QGroupBox|"
                 rf"setHorizontalHeaderLabels|setHeaderLabels|NewButton|AddControl|addItem)"
                 rf"\((?:\*?form, |\{{)?({STRINGS})")
# The name of the program, and formats without words.
NO_TEXT = {"Fabula", "8"}


def value_of(strings):
    joined = "".join(part[1:-1] for part in re.findall(STRING, strings))
    return re.sub(r'\\(.)', lambda match: {"n": "\n", "t": "\t"}.get(match[1], match[1]), joined)


def has_words(text):
    return bool(re.search(r"[A-Za-z]{2}", text))


def main(texts, root):
    sources = [message.find("source").text for message in ElementTree.parse(texts).iter("message")]
    contexts = {name.text for name in ElementTree.parse(texts).iter("name")}
    known, all_of_them = set(sources), "\n".join(sources)
    missing = [] if contexts == {"Fabula"} else [f"contexts other than Fabula: {sorted(contexts)}"]
    counts = {"tr": 0, "said": 0, "commands": 0}

    def look(kind, file, text, found):
        if not has_words(text):
            return
        counts[kind] += 1
        if not found:
            missing.append(f"{file}: {text!r} is not found by lupdate")

    for file in sorted((pathlib.Path(root) / "src").rglob("*.cpp")):
        name = file.relative_to(root).as_posix()
        if name.startswith(("src/apps/cli/", "src/apps/terminal/")):
            continue
        code = re.sub(r"^\s*//.*$", "", file.read_text(encoding="utf-8"), flags=re.MULTILINE)
        for match in TR.finditer(code):
            look("tr", name, value_of(match[1]), value_of(match[1]) in known)
        for match in SAID.finditer(code):
            for line in map(str.strip, value_of(match[1]).split("\n")):
                if not line.islower() or " " in line:
                    look("said", name, line, line in all_of_them)
        if file.name == "commands.cpp":
            for entry in ENTRY.finditer(code):
                # Words with a mnemonic, and the sentence of the tip.
                for text in map(value_of, re.findall(STRINGS, entry[0])):
                    if "&" in text or (" " in text and "+" not in text):
                        look("commands", name, text, text in known)
        if name.startswith("src/apps/"):
            for match in RAW.finditer(code):
                text = value_of(match[1])
                if has_words(re.sub(r"<[^>]*>", "", text)) and text not in NO_TEXT:
                    missing.append(f"{name}: {text!r} goes to a widget untranslated")
    print(f"{len(known)} texts found by lupdate; {counts['tr']} in tr(), {counts['said']} said in boxes and on the status "
          f"line, {counts['commands']} of commands in the sources")
    for line in missing:
        print(line)
    few = [kind for kind, count in counts.items() if count < 50]
    if few:
        print(f"too few to be true: {few}")
    return 1 if missing or few else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
