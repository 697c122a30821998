#!/usr/bin/env python3
"""Checks that includes run one way: lower folders never see higher ones, and only qt/ and what drives
the window from outside see Qt.

Prints file:line of each include that the table below doesn't allow, and fails if there is one.
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
    "results": GROUND | {"engine", "printing", "files"},
    "mainform": LOGIC,
    "run": LOGIC | {"mainform"},
    "sessions": LOGIC | {"mainform"},
    "fitting": LOGIC | {"mainform"},
    "shell": LOGIC | {"mainform", "run", "sessions", "fitting"},
    "qt": LOGIC | {"mainform", "run", "sessions", "fitting", "shell"},
    # Around the program.
    "docs": {"engine", "shots"},
    "fuzz": LOGIC | {"mainform", "run", "sessions", "fitting", "shell", "qt"},
    "bench": LOGIC | {"mainform", "run", "sessions", "fitting", "shell", "qt"},
}
SEES_QT = {"qt", "fuzz", "bench"}
# Files outside the folders above that may do what their folder may not.
ENTRY = {"shell/main.cpp": ({"qt"}, True)}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def faults(root):
    for folder, allowed in MAY_SEE.items():
        sources = [p for p in (root / folder).rglob("*") if p.suffix in {".h", ".cpp"}]
        for path in sorted(sources):
            name = path.relative_to(root).as_posix()
            more, qt = ENTRY.get(name, (set(), folder in SEES_QT))
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                if not match:
                    continue
                own, system = match.groups()
                where = f"{name}:{number}:"
                if own is not None:
                    target = own.split("/")[0] if "/" in own else None
                    if target not in MAY_SEE:
                        yield f'{where} "{own}" doesn\'t read "folder/file.h"'
                    elif target != folder and target not in allowed | more:
                        yield f"{where} {folder} must not see {target}: {own}"
                elif re.match(r"Q[A-Z]|q[a-z]+\.h$|Qt", system) and not qt:
                    yield f"{where} only qt/ and the entry include Qt: {system}"


def main():
    root = Path(sys.argv[1])
    missing = [folder for folder in MAY_SEE if not (root / folder).is_dir()]
    found = list(faults(root))
    for line in found:
        print(line)
    for folder in missing:
        print(f"{folder}: no such folder")
    return 1 if found or missing else 0


sys.exit(main())
