"""The measuring half of peers.sh: compare_peers.py FABULA FOLDER, with the games and the story in the folder."""

import os
import statistics
import subprocess
import sys
import time

ROUNDS = 5
STARTS = 21
TOUR = ["take lamp", "north", "drop lamp", "take lamp", "south", "drop lamp"]
# The same in the other game, from its start to its lamp and then in and out of the building.
OTHER_START = ["no", "in"]
OTHER_TOUR = ["take lamp", "out", "drop lamp", "take lamp", "in", "drop lamp"]
COMMANDS = 12000


def play(line, commands):
    """Plays all commands through pipes. Gives elapsed and processor seconds."""
    feeder = subprocess.Popen(["cat", commands], stdout=subprocess.PIPE)
    begun = time.perf_counter()
    player = subprocess.Popen(line, stdin=feeder.stdout, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    feeder.stdout.close()
    sink = subprocess.Popen(["cat"], stdin=player.stdout, stdout=subprocess.DEVNULL)
    player.stdout.close()
    _, _, usage = os.wait4(player.pid, 0)
    elapsed = time.perf_counter() - begun
    player.returncode = 0
    feeder.wait()
    sink.wait()
    return elapsed, usage.ru_utime + usage.ru_stime


def peak_memory(line, commands):
    """Plays all commands. Gives the most memory that was resident at once, in MiB, read at the last prompt."""
    with open(commands, "rb") as file:
        count = len(file.readlines())
    feeder = subprocess.Popen(["cat", commands, "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    player = subprocess.Popen(line, stdin=feeder.stdout, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    prompts, tail = 0, b""
    while prompts <= count:
        piece = os.read(player.stdout.fileno(), 65536)
        if not piece:
            raise SystemExit(f"{line[0]} ended before its last prompt")
        prompts += (tail + piece).count(b"\n>")
        tail = piece[-1:]
    with open(f"/proc/{player.pid}/status") as status:
        peak = next(int(row.split()[1]) for row in status if row.startswith("VmHWM"))
    feeder.stdin.close()
    player.stdout.close()
    player.wait()
    feeder.wait()
    return peak / 1024


def first_prompt(line):
    """Seconds from the start of a program to its first prompt."""
    begun = time.perf_counter()
    player = subprocess.Popen(line, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    said = b""
    while not said.endswith(b"\n>"):
        piece = os.read(player.stdout.fileno(), 65536)
        if not piece:
            raise SystemExit(f"{line[0]} ended without a prompt")
        said += piece
    elapsed = time.perf_counter() - begun
    player.stdin.close()
    player.stdout.close()
    player.wait()
    return elapsed


def write_commands(path, start, tour):
    with open(path, "w") as file:
        file.write("".join(line + "\n" for line in start))
        file.write("".join(tour[i % len(tour)] + "\n" for i in range(COMMANDS)))
    return path


def main():
    fabula, folder = sys.argv[1:]
    commands = write_commands(os.path.join(folder, "commands"), [], TOUR)
    other_commands = write_commands(os.path.join(folder, "other_commands"), OTHER_START, OTHER_TOUR)
    peer, program = "dfrotz", "open-adventure"
    lines = {
        peer: ["dfrotz", "-p", "-m", os.path.join(folder, "two_rooms.z5")],
        program: ["advent"],
        "fabula play, small": [fabula, "play", os.path.join(folder, "small.fbd")],
        "fabula play, large": [fabula, "play", os.path.join(folder, "large.fbd")],
    }
    played = {name: [] for name in lines}
    starts = {name: [] for name in lines}
    for _ in range(ROUNDS):
        for name, line in lines.items():
            played[name].append(play(line, other_commands if name == program else commands))
    for _ in range(STARTS):
        for name, line in lines.items():
            if name != program:
                starts[name].append(first_prompt(line))

    def middle(name, column):
        return statistics.median(run[column] for run in played[name])

    print(f"| what | turns a second | of {peer} | of {program} | of processor time | of {program} "
          "| first prompt | ratio | peak memory |")
    print("| --- | --- | --- | --- | --- | --- | --- | --- | --- |")
    for name in lines:
        elapsed, busy = middle(name, 0), middle(name, 1)
        row = (
            f"| {name} | {COMMANDS / elapsed:,.0f} | {middle(peer, 0) / elapsed:.1f} "
            f"| {middle(program, 0) / elapsed:.2f} | {COMMANDS / busy:,.0f} | {middle(program, 1) / busy:.2f} "
        )
        # It writes nothing before it ends when nobody looks on: there is no prompt to wait for.
        if name == program:
            print(row + "| - | - | - |")
            continue
        start = statistics.median(starts[name])
        print(
            row + f"| {start * 1000:.1f} ms | {start / statistics.median(starts[peer]):.1f} "
            f"| {peak_memory(lines[name], commands):.1f} MiB |"
        )


main()
