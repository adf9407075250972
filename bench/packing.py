#!/usr/bin/env python3
"""Packs ten megabytes with `fabula package` and with the system's `zip -6`, by turns, and compares the best times.

usage: bench/packing.py path/to/fabula
"""
import os
import random
import subprocess
import sys
import tempfile
import time

RUNS = 7
SIZE = 10_000_000


def text(size):
    """A text like that of a game: words from a small vocabulary, in sentences."""
    source = random.Random(17)
    words = ["".join(source.choice("abcdefghijklmnoprstuvw") for _ in range(source.randint(2, 9))) for _ in range(3000)]
    pieces, length = [], 0
    while length < size:
        line = " ".join(source.choice(words) for _ in range(12)) + ".\n"
        pieces.append(line)
        length += len(line)
    return "".join(pieces)[:size].encode()


def seconds(arguments, folder):
    start = time.perf_counter()
    subprocess.run(arguments, cwd=folder, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def main():
    fabula = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([fabula, "new", "game.fbd"], cwd=folder, check=True)
        half = SIZE // 2
        with open(os.path.join(folder, "text.txt"), "wb") as file:
            file.write(text(half))
        with open(os.path.join(folder, "picture.bin"), "wb") as file:
            file.write(random.Random(4).randbytes(half))
        ours = [fabula, "package", "game.fbd", "--force", "--version", "1", "--file", "text.txt", "--file", "picture.bin",
                "ours.zip"]
        theirs = ["zip", "-6", "-q", "theirs.zip", "game.fbd", "text.txt", "picture.bin"]
        times = {"fabula": [], "zip": []}
        for _ in range(RUNS):
            times["fabula"].append(seconds(ours, folder))
            if os.path.exists(os.path.join(folder, "theirs.zip")):
                os.remove(os.path.join(folder, "theirs.zip"))
            times["zip"].append(seconds(theirs, folder))
        best = {name: min(measured) for name, measured in times.items()}
        for name, file in (("fabula", "ours.zip"), ("zip", "theirs.zip")):
            size = os.path.getsize(os.path.join(folder, file))
            print(f"{name:8} best of {RUNS}: {best[name]:.3f} s, {size} bytes")
        print(f"ratio    {best['fabula'] / best['zip']:.2f}")


if __name__ == "__main__":
    main()
