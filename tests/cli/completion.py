#!/usr/bin/env python3
"""Completes command lines as a shell does, and compares with what the command takes.

The options come from the manual: each stands there with what it takes, and each command refuses what isn't
its own.
Call: completion.py COMMAND SCRIPT MANUAL
"""
import os
import re
import subprocess
import sys
from pathlib import Path

COMMAND, SCRIPT, MANUAL = map(Path, sys.argv[1:])
ENVIRONMENT = {**os.environ, "PATH": f"{COMMAND.parent}:{os.environ['PATH']}"}
# What the shell's package of completions brings; files are told by a name of their own.
SHELL = """_init_completion() { words=("${COMP_WORDS[@]}") cword=$COMP_CWORD cur=${words[cword]} prev=${words[cword-1]}; }
_filedir() { COMPREPLY=(some-file); }
. "$0"
COMP_WORDS=(parabolt-cli "$@") COMP_CWORD=$#
_parabolt_cli && printf '%s\\n' "${COMPREPLY[@]}"
"""
COMMANDS = ("fly", "batch", "map", "study launch", "clubs list", "clubs check", "clubs convert", "clubs fly",
            "normalise", "session")


def complete(line):
    words = line.split(" ")
    run = subprocess.run(["bash", "-c", SHELL, SCRIPT, *words], capture_output=True, text=True, env=ENVIRONMENT,
                         check=False)
    return set(run.stdout.split()) if not run.stderr else {run.stderr}


def known(command, option):
    """Whether the parser of the command knows an option: an unknown one is named before a missing value."""
    run = subprocess.run([COMMAND, *command.split(), option], capture_output=True, text=True,
                         stdin=subprocess.DEVNULL, check=False)
    return "was not expected" not in run.stderr and "were not expected" not in run.stderr


faults = []


def check(line, found, expected):
    if found != expected:
        faults.append(f"{line}: {sorted(found)}, not {sorted(expected)}")


manual = MANUAL.read_text(encoding="utf-8").replace("\\-", "-")
options = set(re.findall(r"--[a-z][a-z-]*", manual)) - {"--version"}
flags = set(re.findall(r"^\.TP\n\.B (--[a-z-]+)$", manual, re.M)) - {"--version"}
offered = set()
for command in COMMANDS:
    found = complete(f"{command} --")
    offered |= found
    for option in sorted(options):
        if known(command, option) != (option in found):
            faults.append(f"{command} {option}: {'not ' if option not in found else ''}completed")
    for flag in flags & found:
        check(f"{command} {flag} --", complete(f"{command} {flag} --"), found)
for option in sorted(options - offered):
    faults.append(f"{option}: in the manual, but never completed")
for line, expected in {"": {"fly", "batch", "map", "study", "clubs", "normalise", "session"},
                       "clubs ": {"list", "check", "convert", "fly"}, "study ": {"launch", "spin", "loft"},
                       "f": {"fly"}, "batch ": {"some-file"}, "clubs fly ": {"some-file"},
                       "fly --format ": {"csv", "json", "table"}, "batch x.csv --format j": {"json"},
                       "map --kind ": {"launch", "swing"}, "clubs convert --to ": {"clb", "csv", "json"},
                       "fly --ball ": {"1", "2", "3", "4"}, "fly --clubs ": {"some-file"},
                       "clubs fly --bag ": {"some-file"}, "fly --wind ": set(), "fly --spin-rpm ": set(),
                       "fly --club D": {"Driver"}, "batch --own-air ": {"some-file"}}.items():
    check(line, complete(line), expected)
print("\n".join(faults) or f"{len(options)} options, {len(flags)} flags")
sys.exit(1 if faults or len(options) < 25 or len(flags) < 2 else 0)
