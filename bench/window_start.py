#!/usr/bin/env python3
"""Measures how long a program takes from its start to its first whole picture on the screen, and its memory.

usage: bench/window_start.py GAME.fbd [RUNS] [FOLDER] [PROGRAM], the folder of a build (build/default without one), and
FabulaEngine, whose first picture is the one at the prompt, or FabulaIDE, which opens a copy of the game

A virtual screen (Xvfb) keeps its picture in a file. The first run tells what the screen looks like at the prompt,
with the caret and without it; the time of a run is from starting the process until the screen looks like that. The
first run is not counted: the files are then in memory. Needs Xvfb.
"""
import mmap
import os
import shutil
import subprocess
import sys
import tempfile
import time


class Screen:
    def __init__(self, folder):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1000x860x24", "-fbdir", folder],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.display = ":" + number.readline().strip()
        with open(os.path.join(folder, "Xvfb_screen0"), "rb") as file:
            self.picture = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)

    def look(self):
        return self.picture[:]

    def close(self):
        self.server.terminate()
        self.server.wait()


def start(program, game, screen, home):
    settings = {name: home for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR")}
    return subprocess.Popen([program, game], stderr=subprocess.DEVNULL,
                            env={**os.environ, **settings, "DISPLAY": screen.display, "QT_QPA_PLATFORM": "xcb"})


def stop(player):
    player.terminate()
    player.wait()


def whole_pictures(player, screen):
    """The screen when all is drawn, at times half a blink of the caret apart."""
    time.sleep(3)
    looks = set()
    for _ in range(30):
        looks.add(screen.look())
        time.sleep(0.1)
    stop(player)
    if not 0 < len(looks) <= 2:
        sys.exit("The screen does not come to rest.")
    return looks


def peak_memory(player):
    with open(f"/proc/{player.pid}/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmHWM")) / 1024


def main():
    game = os.path.abspath(sys.argv[1])
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 11
    built = sys.argv[3] if len(sys.argv) > 3 else "build/default"
    name = sys.argv[4] if len(sys.argv) > 4 else "FabulaEngine"
    program = os.path.join(built, "bin", name)
    with tempfile.TemporaryDirectory() as folder:
        screen = Screen(folder)
        try:
            empty = screen.look()
            if name == "FabulaIDE":
                game = shutil.copy(game, folder)
                # The first start of a version tells of it in a box.
                first = start(program, game, screen, folder)
                time.sleep(3)
                stop(first)
            whole = whole_pictures(start(program, game, screen, folder), screen)
            times, memory = [], []
            for _ in range(runs):
                while screen.look() != empty:
                    time.sleep(0.01)
                begun = time.monotonic()
                player = start(program, game, screen, folder)
                while screen.look() not in whole:
                    if time.monotonic() - begun > 30:
                        sys.exit("The picture does not come.")
                    time.sleep(0.001)
                times.append((time.monotonic() - begun) * 1000)
                memory.append(peak_memory(player))
                stop(player)
        finally:
            screen.close()
    times.sort()
    print(f"start to the whole picture: middle {times[len(times) // 2]:.0f} ms, least {times[0]:.0f} ms, "
          f"most {times[-1]:.0f} ms, of {runs} runs")
    print(f"most memory: {max(memory):.1f} MiB")
    print(f"load of the machine: {os.getloadavg()[0]:.1f}")


main()
