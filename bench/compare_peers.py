"""The measuring half of peers.sh: compare_peers.py FABULA FOLDER, with the games and the story in the folder."""

import os
import statistics
import subprocess
import sys
import time

ROUNDS = 5
STARTS = 21
TOUR = ["take lamp", "north", "drop lamp", "take lamp", "south", "drop lamp"]
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


def main():
    fabula, folder = sys.argv[1:]
    commands = os.path.join(folder, "commands")
    with open(commands, "w") as file:
        file.write("".join(TOUR[i % len(TOUR)] + "\n" for i in range(COMMANDS)))
    peer = "dfrotz"
    lines = {
        peer: ["dfrotz", "-p", "-m", os.path.join(folder, "two_rooms.z5")],
        "fabula play, small": [fabula, "play", os.path.join(folder, "small.fbd")],
        "fabula play, large": [fabula, "play", os.path.join(folder, "large.fbd")],
    }
    played = {name: [] for name in lines}
    starts = {name: [] for name in lines}
    for _ in range(ROUNDS):
        for name, line in lines.items():
            played[name].append(play(line, commands))
    for _ in range(STARTS):
        for name, line in lines.items():
            starts[name].append(first_prompt(line))

    def middle(name, column):
        return statistics.median(run[column] for run in played[name])

    print("| what | turns a second | ratio | of processor time | ratio | first prompt | ratio | peak memory |")
    print("| --- | --- | --- | --- | --- | --- | --- | --- |")
    for name in lines:
        elapsed, busy, start = middle(name, 0), middle(name, 1), statistics.median(starts[name])
        print(
            f"| {name} | {COMMANDS / elapsed:,.0f} | {middle(peer, 0) / elapsed:.1f} "
            f"| {COMMANDS / busy:,.0f} | {middle(peer, 1) / busy:.1f} "
            f"| {start * 1000:.1f} ms | {start / statistics.median(starts[peer]):.1f} "
            f"| {peak_memory(lines[name], commands):.1f} MiB |"
        )


main()
