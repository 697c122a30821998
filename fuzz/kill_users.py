#!/usr/bin/env python3
"""Kills random users in the middle of their work, and checks that the next start has their desk again: as the
last action whose desk was told to be safe left it, or an action since, whose desk was on its way to the disk.

Call: kill_users.py PROGRAM ROUNDS [SEED]     needs a display, such as xvfb-run gives
"""
import random
import subprocess
import sys
import tempfile
import time
from pathlib import Path


def lines(folder):
    file = folder / "desks"
    return [line.split() for line in file.read_text().splitlines()] if file.exists() else []


def one_round(program, seed, dice):
    """Returns why the reopened desk is not the right one; nothing if it is, and the number of actions."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        user = subprocess.Popen([program, str(seed), "1000000", name], stdout=subprocess.DEVNULL)
        while len(lines(folder)) < 2 and user.poll() is None:
            time.sleep(0.02)
        time.sleep(dice.uniform(0, 3))
        if user.poll() is not None:
            return f"the user ended with {user.returncode}", 0
        user.kill()
        user.wait()
        told = [line for line in lines(folder) if len(line) == 2 and len(line[1]) == 16]
        safe = max(i for i, line in enumerate(told) if line[0] == "safe")
        right = {desk for _, desk in told[safe:]}
        reopened = subprocess.run([program, "--reopen", name], capture_output=True, text=True, timeout=60)
        desk = reopened.stdout.strip()
        fault = None if desk in right else f"reopened {desk!r}, not one of {right}: {reopened.stderr}"
        return fault, sum(line[0] == "safe" for line in told)


def main():
    program, rounds = sys.argv[1], int(sys.argv[2])
    first = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    dice = random.Random(first)
    actions = faults = 0
    for seed in range(first, first + rounds):
        fault, done = one_round(program, seed, dice)
        actions += done
        if fault:
            faults += 1
            print(f"user {seed}: {fault}", flush=True)
    print(f"{rounds} users killed after {actions} actions, {faults} desks lost")
    return 1 if faults else 0


sys.exit(main())
