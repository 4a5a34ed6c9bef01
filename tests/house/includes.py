"""Walks the includes of src/ against the table of rooms in arrows.json.

    includes.py SRC QT_INCLUDE_FOLDER

Prints one line for each include that the table does not allow.
"""

import fnmatch
import json
import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)
SOURCES = {".h", ".cpp"}


class House:
    """The rooms and what each may include."""

    def __init__(self, table, qt_folder):
        self.rooms = table["rooms"]
        self.system = table["system"]
        self.umbrellas = set(table["umbrellas"])
        self.single = table["single"]
        self.module_of = {
            header.name: module.name
            for module in sorted(qt_folder.glob("Qt*"))
            if module.is_dir()
            for header in module.iterdir()
        }
        if "QString" not in self.module_of:
            raise SystemExit(f"{qt_folder} does not hold Qt's headers")

    def room_of(self, path):
        """The innermost room that a path relative to src/ lies in."""
        for folder in path.parents:
            if folder.as_posix() in self.rooms:
                return folder.as_posix()
        return None

    def faults(self, src):
        """What the table forbids, as lines for people."""
        found = []
        users = {name: [] for name in self.single}
        for path in sorted(src.rglob("*")):
            if path.suffix not in SOURCES:
                continue
            relative = path.relative_to(src)
            room = self.room_of(relative)
            if room is None:
                found.append(f"{relative}: in no room of the table")
                continue
            for kind, header in INCLUDE.findall(path.read_text(encoding="utf-8")):
                fault = self.fault(src, room, kind, header)
                if fault:
                    found.append(f"{relative}: {header}: {fault}")
                for name, rule in self.single.items():
                    if matches(header, rule["headers"]):
                        users[name].append(relative)
        for name, files in users.items():
            allowed = self.single[name].get("files")
            if allowed:
                for file in sorted(set(files)):
                    if not matches(file.as_posix(), allowed):
                        found.append(f"{file}: {name} belongs into {' or '.join(allowed)}")
            elif len(set(files)) > 1:
                listed = ", ".join(str(file) for file in files)
                found.append(f"{name} is included by more than one file: {listed}")
        return found

    def fault(self, src, room, kind, header):
        """Why a file of this room may not include this header; None when it may."""
        if kind == '"':
            return self.own_fault(src, room, header)
        if header in self.umbrellas or header.split("/")[-1] in self.umbrellas:
            return "includes a whole library"
        if matches(header, self.system["headers"]) and room not in self.system["rooms"]:
            return "knows the operating system, outside " + " and ".join(self.system["rooms"])
        for rule in self.single.values():
            if matches(header, rule["headers"]) and room != rule["room"]:
                return f"belongs into {rule['room']}"
        named = header.startswith("Qt") and "/" in header
        module = header.split("/")[0] if named else self.module_of.get(header)
        if module and module not in self.rooms[room]["qt"]:
            return f"{room} does without {module}"
        return None

    def own_fault(self, src, room, header):
        """The same for a header of the project's own."""
        if header.endswith(".moc") or (room == "ui" and header.startswith("ui_")):
            return None  # generated
        if not (src / header).is_file():
            return "is not the path of a file below src/"
        target = self.room_of(Path(header))
        if target != room and target not in self.rooms[room]["uses"]:
            return f"there is no arrow from {room} to {target}"
        return None


def matches(path, patterns):
    """Whether a header or a file is one of those that the patterns name."""
    return any(fnmatch.fnmatchcase(path, pattern) for pattern in patterns)


def load(qt_folder):
    """The house of the table beside this file."""
    table = json.loads(Path(__file__).with_name("arrows.json").read_text(encoding="utf-8"))
    return House(table, Path(qt_folder))


def main():
    """Checks one tree."""
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    faults = load(sys.argv[2]).faults(Path(sys.argv[1]))
    print("\n".join(faults) or "every include follows an arrow")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
