#!/usr/bin/env python3
"""What only a process shows of the command: pipes that break, disks that are full, results that come while
the input is still open, memory that doesn't grow.
Call: streams.py COMMAND
"""
import os
import subprocess
import sys
import threading

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


def peak(rows, *arguments):
    """Greatest resident memory in KB of a run that has flown so many short shots."""
    run = start("batch", *arguments)
    feeding = threading.Thread(target=lambda: run.stdin.write(HEAD + b"30\n" * rows) and run.stdin.flush())
    feeding.start()
    last = f"{rows + 1},".encode()
    while not run.stdout.readline().startswith(last):
        pass
    feeding.join()
    with open(f"/proc/{run.pid}/status", encoding="ascii") as status:
        resident = next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))
    run.communicate()
    return resident if run.returncode == 0 else 0


def flat(*arguments, rows):
    few, many = peak(rows, *arguments), peak(4 * rows, *arguments)
    print(f"{few} KB for {rows} shots, {many} KB for {4 * rows}")
    return check("memory stays flat " + " ".join(arguments), 0 < many < few + 4096)


def endless():
    """A line without an end, in as little memory as a sanitizer leaves a test."""
    with open("/dev/zero", "rb") as zeros:
        run = start("batch", stdin=zeros)
        told = run.communicate(timeout=60)[1]
    return check("a line without an end is refused", run.returncode == 2 and b"line 1: " in told)


sys.exit(0 if all([broken_pipe(), full_disk(), immediate(), endless(), flat(rows=10000),
                   flat("--path", rows=1000)]) else 1)
