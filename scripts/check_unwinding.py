#!/usr/bin/env python3
"""Checks that exceptions can pass through every function of the programs named on the command line.

Some compilers leave parts of functions that hold no code. Such a part and what follows it begin at one address, and some
linkers then keep the entry of the empty one alone, in the table by which an exception finds its way: one that comes
through the other function ends the program at once. The check fails on every address where that can happen.
"""

import re
import subprocess
import sys

ENTRY = re.compile(r" FDE cie=\S+ pc=([0-9a-f]+)\.\.([0-9a-f]+)$", re.MULTILINE)


def hidden(program):
    """The addresses at which an entry without code begins together with one that has code."""
    frames = subprocess.run(["readelf", "--debug-dump=frames", program], capture_output=True, text=True, check=True)
    entries = {(int(begin, 16), int(end, 16)) for begin, end in ENTRY.findall(frames.stdout)}
    if not entries:
        sys.exit(f"{program}: tells nothing of exceptions")
    empty = {begin for begin, end in entries if begin == end}
    return sorted(begin for begin, end in entries if begin != end and begin in empty)


def main():
    found = [(program, address) for program in sys.argv[1:] for address in hidden(program)]
    for program, address in found:
        print(f"{program}: no exception may pass the function at {address:#x}, which begins where an empty one does")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
