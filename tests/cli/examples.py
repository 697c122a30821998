#!/usr/bin/env python3
"""Runs the examples of the command that documents show, and compares what they print.

An example is a line "$ ..." in a code block of a Markdown file or between .EX and .EE of a man page, and what
stands below it up to the next one. And each option of the command must stand in the man page and the other
way round.
Call: examples.py COMMAND DOCUMENT...      the last document is the man page
"""
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path


def blocks(path):
    text = path.read_text(encoding="utf-8")
    if path.suffix == ".md":
        return re.findall(r"^```console\n(.*?)^```", text, re.S | re.M)
    found = re.findall(r"^\.EX\n(.*?)^\.EE", text, re.S | re.M)
    return [re.sub(r"\\(.)", lambda m: {"e": "\\", "\\": "\\"}.get(m[1], m[1]), block) for block in found]


def examples(block):
    for part in re.split(r"^\$ ", block, flags=re.M)[1:]:
        command, _, output = part.partition("\n")
        yield command, output


def options(command, *path):
    """All long options of a command and of those below it, as its help tells them."""
    help_text = subprocess.run([command, *path, "--help"], capture_output=True, text=True, check=True).stdout
    found = set(re.findall(r"--[a-z][a-z-]*", help_text))
    listed = re.search(r"^Subcommands:\n(.*?)\n\n", help_text + "\n\n", re.S | re.M)
    for name in re.findall(r"^  ([a-z]+) ", listed[1] if listed else "", re.M):
        found |= options(command, *path, name)
    return found


def main():
    command, *documents = sys.argv[1:]
    environment = {**os.environ, "PATH": f"{Path(command).parent}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}
    count = faults = 0
    with tempfile.TemporaryDirectory() as folder:
        for document in map(Path, documents):
            for block in blocks(document):
                for line, expected in examples(block):
                    count += 1
                    run = subprocess.run(["bash", "-c", line], capture_output=True, cwd=folder, env=environment)
                    printed = (run.stdout + run.stderr).decode() # with line ends as they are
                    if printed != expected:
                        faults += 1
                        print(f"{document}: $ {line}\n{printed}--- but the document has\n{expected}")
    manual = Path(documents[-1]).read_text(encoding="utf-8").replace("\\-", "-")
    told = set(re.findall(r"--[a-z][a-z-]*", manual))
    known = options(command)
    # A short form is one without the unit.
    missing = {o for o in known - told if not any(t.startswith(o + "-") for t in told)}
    for option in sorted(missing | (told - known)):
        faults += 1
        print(f"{option}: {'not in the manual' if option in missing else 'the command has none'}")
    print(f"{count} examples, {len(known)} options")
    return 1 if faults or count < 5 else 0


sys.exit(main())
