#!/usr/bin/env python3
"""Lists the sentences of the system that stand in src/ as plain strings, and the names of tables and columns in
data/Fabula.ini, for those who translate the windows.

    sentences.py OUTPUT [ROOT]

OUTPUT is a C++ file: lupdate finds the sentences in it, and the windows know from it how sentences with values are made.
OUTPUT.json beside it keeps what each source held when it was last read, so that the next run reads only what has changed.
A sentence that is put together, as in `"Could not write " + name + "."` or by append(), is one line with a place for each
value: "Could not write %1.". Texts of several lines are several sentences, as they are translated line by line; a filter
of files ("Text|*.txt") is its names. What is written in tr() is lupdate's own affair and is not listed.

A string that no person reads (a query, a name of a field, a key of the settings) is left out by its looks. One too many
costs a translator a look; one too few stays in English, so in doubt a string is listed.
"""

import hashlib
import json
import pathlib
import re
import sys

TOKEN = re.compile(
    r'''(?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n\\]|\\.)*)'''
    r'''|(?P<raw>R"(?P<mark>[^(\s]*)\((?:.*?)\)(?P=mark)")'''
    r'''|(?P<string>"(?:[^"\\\n]|\\.)*")'''
    r'''|(?P<char>'(?:[^'\\\n]|\\.)+')'''
    r'''|(?P<word>[A-Za-z_][\w]*|\d[\w.']*)'''
    r'''|(?P<mark2>::|->|\+=|\+\+|<<|&&|\|\||[=!<>]=|.)''',
    re.DOTALL | re.MULTILINE)
ESCAPES = {"n": "\n", "t": "\t", "r": "\r", "0": "\0"}
CLOSING = {"(": ")", "[": "]", "{": "}"}
# Files whose strings are all names of something, or go to a trace.
SKIPPED = re.compile(r"help_anchors|section_forms|process_loop|player_settings|/tag_catalogue|apps/(cli|terminal)/")
# Rooms whose words stand as values in sentences: "message" in "delete message 7".
ROOMS_OF_NOUNS = re.compile(r"/src/(authoring|references|condacts)/")
# Calls whose strings are names and not texts.
NAMING = {"tr", "setObjectName", "findChild", "inherits", "setProperty", "property", "QT_TRANSLATE_NOOP", "static_assert",
          "logic_error", "Prepare", "OpenTable", "PreparedQuery", "Execute", "IconOf", "value", "setValue", "FontSize"}
PARTING = {",", ";", "?", ":", "=", "+=", "<<", "&&", "||", "==", "!=", "<=", ">=", "<", ">", "return", "case", "throw",
           "else"}
QUERY = re.compile(r"=\?|\* from\b|\border by\b|<>|\bdesc$|:\w+=|^(and|or) \w+\s*[=<>]|\b\w+='"
                   r"|^(SELECT|INSERT|UPDATE|DELETE FROM|CREATE|PRAGMA|DROP|ALTER|BEGIN|ATTACH|VALUES|COLLATE)\b"
                   r"|^[a-z]\w*(, ?\w+)+,?$|\bfrom [a-z]\w+$|^, \w+(, \w+)*$|\w::\w|\bgrids?\b.*=|^\W*\bwhere\b")


# Keys, marks of pages, names of files, expressions.
NAME = re.compile(r"^(Ctrl|Shift|Alt)\+|^<\w+[^>]*>|\*\.\w+$|\.(html|dat|ini|fbd|png|dll)$|^[\w-]+/[\w/-]*$"
                  r"|[{}\0\t]|\(\?|<[?!]")


class Text(str):
    """The value of a string."""


def unescape(literal):
    def one(match):
        escaped = match[1]
        if escaped[0] in "uU" or escaped[0] == "x":
            return chr(int(escaped[1:], 16))
        return ESCAPES.get(escaped, escaped)
    return re.sub(r"\\(u[0-9A-Fa-f]{4}|U[0-9A-Fa-f]{8}|x[0-9A-Fa-f]+|.)", one, literal, flags=re.DOTALL)


def tokens_of(source):
    """Words and marks; strings as Text, those that follow one another as one."""
    found = []
    for match in TOKEN.finditer(source):
        kind = match.lastgroup if match.lastgroup != "mark" else "raw"
        if kind == "skip":
            continue
        if kind == "string":
            text = unescape(match["string"][1:-1])
            if found and isinstance(found[-1], Text):
                found[-1] = Text(found[-1] + text)
            else:
                found.append(Text(text))
        elif kind in ("raw", "char"):
            found.append("0")
        else:
            found.append(match[0])
    return found


def tree_of(tokens):
    """The tokens with each pair of brackets as a list of what stands in it."""
    whole = []
    open_lists, closers = [whole], []
    for token in tokens:
        if not isinstance(token, Text) and token in CLOSING:
            inner = [token]
            open_lists[-1].append(inner)
            open_lists.append(inner)
            closers.append(CLOSING[token])
        elif not isinstance(token, Text) and closers and token == closers[-1]:
            open_lists.pop()
            closers.pop()
        else:
            open_lists[-1].append(token)
    return whole


def is_text(item):
    return isinstance(item, Text)


def is_mark(item, *marks):
    return isinstance(item, str) and not is_text(item) and item in marks


def parts_of(items, marks):
    """The items between the marks."""
    part = []
    for item in items:
        if is_mark(item, *marks):
            yield part
            part = []
        else:
            part.append(item)
    yield part


def sole_text(operand):
    """The text of an operand that is a string, perhaps as std::string("...") or ("..."); None for any other."""
    wrapped = operand and isinstance(operand[-1], list)
    if wrapped and all(is_mark(item, "std", "::", "string", "string_view", "Text") for item in operand[:-1]):
        operand = operand[-1][1:]
    return operand[0] if len(operand) == 1 and is_text(operand[0]) else None


def pieces_of(operand):
    """What an operand of + adds to a sentence: its text, None for a value; and what each append() adds."""
    text = sole_text(operand)
    if text is not None:
        return [text]
    pieces, at = [None], 0
    for place, item in enumerate(operand):
        if is_mark(item, "append") and place + 1 < len(operand) and isinstance(operand[place + 1], list):
            if at == 0:
                begin = sole_text(operand[:place - 1])
                pieces = [begin] if begin is not None else ([None] if place > 3 else [])
            at = place
            added = operand[place + 1][1:]
            pieces.append(sole_text(added))
    return pieces


def sentences_in(items, into):
    """Puts the sentences of a bracket, or of a file, into a list."""
    previous = ""
    for segment in parts_of(items, PARTING):
        pieces = []
        for operand in parts_of(segment, {"+"}):
            pieces.extend(pieces_of(operand) if operand else [])
        if any(piece is not None for piece in pieces):
            into.append(pieces)
        for item in segment:
            if isinstance(item, list) and not (isinstance(previous, str) and previous in NAMING):
                if not is_append(previous) or sole_text(item[1:]) is None:
                    sentences_in(item[1:], into)
            previous = item


def is_append(item):
    return is_mark(item, "append")


def pattern_of(pieces):
    """One line with %1, %2 ... for the values; values side by side are one."""
    line, values, after_value = "", 0, False
    for piece in pieces:
        if piece is None:
            if not after_value:
                values += 1
                line += f"%{values}"
            after_value = True
        elif piece:
            line += piece
            after_value = False
    return line


def whole(pieces):
    """The pieces with a value at an end that is put to something elsewhere: " records" begins and "Add " ends so. Both ways
    where a sentence of its own might look so too."""
    ways = [pieces]
    if pieces[0] is not None and re.match(r"[ ,:;)](?! *\W*$)", pieces[0]):
        ways = [[None, *way] for way in ways] + (ways if re.match(r" [A-Z]", pieces[0]) else [])
    if pieces[-1] is not None and pieces[-1].endswith(" "):
        ways = [[*way, None] for way in ways] + (ways if re.search(r"[.!?] $", pieces[-1]) else [])
    return ways


def lines_of(pattern):
    for line in pattern.split("\n"):
        names = line.split("|")[::2] if "|*" in line else [line]
        for name in names:
            yield renumbered(name.strip())


def renumbered(line):
    """The values of a line counted from 1."""
    places = []
    def count(match):
        places.append(match[0])
        return f"%{len(places)}"
    return re.sub(r"%\d+", count, line)


def is_read(line, nouns, fields):
    """Whether a person reads it, by its looks. `nouns` tells whether small words count."""
    words = re.sub(r"%\d+", "", line).strip()
    if not re.search(r"[A-Za-z]{2}", words) or QUERY.search(words) or NAME.search(words):
        return False
    if "%1" in line:
        short = re.match(r"&?[A-Z]&?[a-z]|: \d", words)  # "Add %1" and "%1: 1 use", but neither "%1.tpl" nor "add %1"
        return len(re.findall(r"[A-Za-z]", words)) >= (3 if short else 4)
    if " " in words:
        return True
    bare = words.replace("&", "").rstrip(".:…!?")
    if re.fullmatch(r"[A-Z][a-z]+([-/][A-Za-z]+)*", bare):
        return True
    return nouns and bool(re.fullmatch(r"[a-z]{3,}", bare)) and bare not in fields


def rows_of_data(root):
    """The lines of the default data, parted."""
    data = (root / "data" / "Fabula.ini").read_text(encoding="utf-8", errors="replace")
    return [line.split("|") for line in data.splitlines()]


def field_names(rows):
    return {row[0].lower() for row in rows if len(row) > 20}


def names_in_data(rows):
    """What the tree and the headings of columns show: names of nodes, and of fields where they have one."""
    nodes = [row[1] for row in rows if len(row) in (7, 8) and row[-2].endswith("-open")]
    return nodes + [row[20] for row in rows if len(row) > 20 and row[20]]


def written(line):
    return '"' + line.replace("\\", "\\\\").replace('"', '\\"') + '"'


def strings_of(source):
    """The lines of all strings of a source, each once."""
    chains = []
    sentences_in(tree_of(tokens_of(source)), chains)
    ways = (way for chain in chains for way in whole(chain))
    return list(dict.fromkeys(line for way in ways for line in lines_of(pattern_of(way))))


class ReadBefore:
    """What sources held, by their contents and by this script; only what is asked for is kept for the next run."""

    def __init__(self, file):
        self.file = file
        self.script = pathlib.Path(__file__).read_bytes()
        self.now = {}
        try:
            self.before = json.loads(file.read_text(encoding="utf-8"))
        except (OSError, ValueError):
            self.before = {}  # not there yet, or half written: everything is read anew

    def strings_of(self, source):
        key = hashlib.sha256(self.script + source).hexdigest()
        self.now[key] = self.before[key] if key in self.before else strings_of(source.decode("utf-8"))
        return self.now[key]

    def keep(self):
        if self.now != self.before:
            self.file.write_text(json.dumps(self.now), encoding="utf-8")


def main(output, root=pathlib.Path(__file__).resolve().parent.parent):
    root = pathlib.Path(root)
    rows = rows_of_data(root)
    fields = field_names(rows)
    found = {}
    read_before = ReadBefore(pathlib.Path(output + ".json"))
    sources = (str(path) for path in (root / "src").rglob("*") if path.suffix in (".cpp", ".h"))
    for name in sorted(sources):
        if SKIPPED.search(name):
            continue
        nouns = bool(ROOMS_OF_NOUNS.search(name))
        for line in read_before.strings_of(pathlib.Path(name).read_bytes()):
            if is_read(line, nouns, fields):
                found.setdefault(line, None)
    read_before.keep()
    found.update(dict.fromkeys(names_in_data(rows)))
    text = ("// Made by scripts/sentences.py.\n#include \"qt/sentences.h\"\n\n#include <QtGlobal>\n\n"
            "namespace fabula::qt {\nnamespace {\n\nconstexpr const char* kSentences[] = {\n"
            + "".join(f'    QT_TRANSLATE_NOOP("Fabula", {written(line)}),\n' for line in found)
            + "};\n\n}  // namespace\n\nstd::span<const char* const> Sentences() {\n    return kSentences;\n}\n\n"
            "}  // namespace fabula::qt\n")
    target = pathlib.Path(output)
    if not target.exists() or target.read_text(encoding="utf-8") != text:
        target.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
