#!/usr/bin/env python3
"""What only a process shows of the command: pipes that break, disks that are full, results that come while
the input is still open, memory that doesn't grow.
Call: streams.py COMMAND
"""
import os
import subprocess
import sys

COMMAND = sys.argv[1]
HEAD = b"Ball speed [mph]\n"
# A sanitizer keeps what is freed; little of it will do.
ENVIRONMENT = {**os.environ, "ASAN_OPTIONS": "quarantine_size_mb=1"}


def start(*arguments, **streams):
    return subprocess.Popen([COMMAND, *arguments], **{"stdin": subprocess.PIPE, "stdout": subprocess.PIPE,
                                                      "stderr": subprocess.PIPE,
                                                      "env": ENVIRONMENT, **streams})


def check(what, holds):
    print(("ok: " if holds else "FAULT: ") + what)
    return holds


def broken_pipe():
    run = start("fly", "--path", "--format", "json")
    run.stdout.close()
    return check("a reader that goes away is no fault", run.wait() == 0 and run.stderr.read() == b"")


def full_disk():
    with open("/dev/full", "wb") as full:
        run = start("fly", stdout=full)
        told = run.communicate()[1]
    return check("a full disk is told", run.returncode == 3 and b"No space left" in told)


def immediate():
    run = start("batch")
    run.stdin.write(HEAD + b"150\n")
    run.stdin.flush()
    run.stdout.readline()
    first = run.stdout.readline()
    run.stdin.write(b"160\n")
    run.stdin.close()
    second = run.stdout.readline()
    return check("results come while the input is open",
                 first.startswith(b"2,,150,") and second.startswith(b"3,,160,") and run.wait() == 0)


def peak(rows):
    """Greatest resident memory in KB of a run over so many refused rows."""
    run = start("batch", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    run.stdin.write(HEAD)
    piece = b"12\n" * 10000
    for _ in range(rows // 10000):
        run.stdin.write(piece)
    run.stdin.flush()
    with open(f"/proc/{run.pid}/status", encoding="ascii") as status:
        resident = next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))
    run.stdin.close()
    return resident if run.wait() == 1 else 0


def flat():
    few, many = peak(100000), peak(400000)
    print(f"{few} KB for 100,000 rows, {many} KB for 400,000")
    return check("memory stays flat", 0 < many < few + 4096)


sys.exit(0 if all([broken_pipe(), full_disk(), immediate(), flat()]) else 1)
