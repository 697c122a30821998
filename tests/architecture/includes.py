#!/usr/bin/env python3
"""Checks that includes run one way: lower folders never see higher ones, and only qt/ and what drives
the window from outside see Qt. And that the core, and the command that links nothing above it, see nothing
of the forms: what the core is made of, the rooms' own CMakeLists.txt tell.

Prints file:line of each include that isn't allowed, and fails if there is one.
Call: includes.py ROOT
"""
import re
import sys
from pathlib import Path

GROUND = {"numbers", "controls"}
LOGIC = GROUND | {"engine", "shots", "files", "plots", "printing", "clubs", "results", "exchange",
                  "measured", "tables", "sets", "maps"}

# Folder -> the other folders whose headers it may include.
MAY_SEE = {
    "numbers": set(),
    "controls": {"numbers"},
    "engine": {"numbers"},
    "files": GROUND,
    "shots": {"numbers", "engine"},
    "plots": GROUND | {"engine"},
    "exchange": {"numbers"},
    "measured": {"numbers", "engine", "shots", "clubs", "files", "exchange"},
    "tables": {"numbers", "exchange"},
    "sets": GROUND | {"engine", "shots", "exchange", "tables", "plots", "files"},
    "maps": {"numbers", "controls", "engine", "shots", "plots", "exchange"},
    "printing": GROUND | {"engine", "files", "plots"},
    "clubs": GROUND | {"engine", "files"},
    "results": GROUND | {"engine", "shots", "printing", "files"},
    "mainform": LOGIC,
    "run": LOGIC | {"mainform"},
    "sessions": LOGIC | {"mainform"},
    "fitting": LOGIC | {"mainform"},
    "shell": LOGIC | {"mainform", "run", "sessions", "fitting"},
    "qt": LOGIC | {"mainform", "run", "sessions", "fitting", "shell"},
    "cli": {"numbers", "engine", "shots", "files", "clubs", "exchange", "measured", "maps", "sessions"},
    # Around the program.
    "docs": {"engine", "shots"},
    "fuzz": LOGIC | {"mainform", "run", "sessions", "fitting", "shell", "qt"},
    "bench": LOGIC | {"mainform", "run", "sessions", "fitting", "shell", "qt", "cli"},
}
SEES_QT = {"qt", "fuzz", "bench"}
# The folder of the command, and what it may link.
COMMAND = "cli"
MAY_LINK = {"PUBLIC", "PRIVATE", "Parabolt::core", "Parabolt::commands", "parabolt_warnings",
            "CLI11::CLI11", "nlohmann_json::nlohmann_json", "Threads::Threads"}
# Files outside the folders above that may do what their folder may not.
ENTRY = {"shell/main.cpp": ({"qt"}, True)}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def includes(path):
    """Number, own header or None, system header or None of each include."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if match := INCLUDE.match(line):
            yield number, *match.groups()


def faults(root):
    for folder, allowed in MAY_SEE.items():
        sources = [p for p in (root / folder).rglob("*") if p.suffix in {".h", ".cpp"}]
        for path in sorted(sources):
            name = path.relative_to(root).as_posix()
            more, qt = ENTRY.get(name, (set(), folder in SEES_QT))
            for number, own, system in includes(path):
                where = f"{name}:{number}:"
                if own is not None:
                    target = own.split("/")[0] if "/" in own else None
                    if target not in MAY_SEE:
                        yield f'{where} "{own}" doesn\'t read "folder/file.h"'
                    elif target != folder and target not in allowed | more:
                        yield f"{where} {folder} must not see {target}: {own}"
                elif re.match(r"Q[A-Z]|q[a-z]+\.h$|Qt", system) and not qt:
                    yield f"{where} only qt/ and the entry include Qt: {system}"


def calls(text, command):
    """The arguments of each call of a command in a CMakeLists.txt."""
    text = re.sub(r"#.*", "", text)
    return [call.split() for call in re.findall(rf"\b{command}\s*\(([^)]*)\)", text)]


def core_faults(root):
    """What of the core, or of the command on it, includes or links anything above the core."""
    headers, sources = set(), set()
    for room in sorted(root.glob("*/CMakeLists.txt")):
        folder, text = room.parent, room.read_text(encoding="utf-8")
        for target, *names in calls(text, "open_room"):
            if target == "parabolt_core":
                shown = [folder / name for name in names] or folder.glob("*.h")
                headers |= {path.relative_to(root).as_posix() for path in shown}
        for target, _, *names in calls(text, "target_sources"):
            if target == "parabolt_core":
                sources |= {(folder / name).relative_to(root).as_posix() for name in names}
    if not headers or not sources:
        yield "the core has no headers or no sources"
    command = {p.relative_to(root).as_posix() for p in (root / COMMAND).iterdir()
               if p.suffix in {".h", ".cpp"}}
    for seen, names in ((headers, headers | sources), (headers | command, command)):
        for name in sorted(names):
            for number, own, _ in includes(root / name):
                if own is not None and own not in seen:
                    yield f"{name}:{number}: {own} is above the core"
    links = calls((root / COMMAND / "CMakeLists.txt").read_text(encoding="utf-8"),
                  "target_link_libraries")
    for name in sorted({name for call in links for name in call[1:]} - MAY_LINK):
        yield f"{COMMAND}/CMakeLists.txt: {COMMAND} must not link {name}"


def main():
    root = Path(sys.argv[1])
    missing = [folder for folder in MAY_SEE if not (root / folder).is_dir()]
    found = [*faults(root), *core_faults(root)]
    for line in found:
        print(line)
    for folder in missing:
        print(f"{folder}: no such folder")
    return 1 if found or missing else 0


sys.exit(main())
