"""The include test caught in the act: a wrong include planted in each room of a copy is seen.

    test_includes.py SRC QT_INCLUDE_FOLDER
"""

import shutil
import sys
import tempfile
import unittest
from pathlib import Path

import includes

SRC = Path(sys.argv[1])
HOUSE = includes.load(sys.argv[2])
ROOMS = sorted(HOUSE.rooms)


class PlantedIncludes(unittest.TestCase):
    """Each test works on a copy of the tree in which every room has a file."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.src = Path(folder.name) / "src"
        shutil.copytree(SRC, self.src)
        for room in ROOMS:
            (self.src / room).mkdir(parents=True, exist_ok=True)
            (self.src / room / "Present.h").write_text("#pragma once\n", encoding="utf-8")

    def faults_with(self, room, *lines):
        """What is found when a file of this room holds these lines."""
        planted = self.src / room / "Planted.cpp"
        planted.write_text("\n".join(lines) + "\n", encoding="utf-8")
        try:
            return [fault for fault in HOUSE.faults(self.src) if f"{room}/Planted.cpp" in fault]
        finally:
            planted.unlink()

    def test_every_missing_arrow_is_seen_in_every_room(self):
        for room in ROOMS:
            for target in ROOMS:
                allowed = target == room or target in HOUSE.rooms[room]["uses"]
                faults = self.faults_with(room, f'#include "{target}/Present.h"')
                self.assertEqual(len(faults), 0 if allowed else 1, f"{room} -> {target}: {faults}")

    def test_a_room_that_is_not_in_the_table_is_seen(self):
        (self.src / "attic").mkdir()
        (self.src / "attic" / "Old.cpp").write_text("int old;\n", encoding="utf-8")
        self.assertIn("attic/Old.cpp: in no room of the table", HOUSE.faults(self.src))

    def test_paths_that_are_not_below_src_are_seen(self):
        for room in ROOMS:
            for header in ("Present.h", "../base/Present.h", "base/Absent.h"):
                self.assertEqual(len(self.faults_with(room, f'#include "{header}"')), 1)

    def test_headers_of_the_operating_system_are_seen(self):
        for room in ROOMS:
            allowed = room in ("base", "settings")
            for header in ("unistd.h", "sys/socket.h", "windows.h"):
                faults = self.faults_with(room, f"#include <{header}>")
                self.assertEqual(len(faults), 0 if allowed else 1, f"{room}: {faults}")

    def test_qt_is_seen_in_a_room_without_it(self):
        self.assertEqual(len(self.faults_with("settings", "#include <QString>")), 1)
        self.assertEqual(len(self.faults_with("settings", "#include <qstring.h>")), 1)
        self.assertEqual(len(self.faults_with("settings", "#include <QtCore/QString>")), 1)

    def test_windows_are_seen_under_the_core(self):
        for room in ROOMS:
            allowed = room in ("ui", "app")
            for header in ("QWidget", "QPainter", "QtWidgets/QLabel"):
                faults = self.faults_with(room, f"#include <{header}>")
                self.assertEqual(len(faults), 0 if allowed else 1, f"{room}: {faults}")

    def test_the_network_is_seen_outside_the_client(self):
        for room in ROOMS:
            allowed = room in ("smtp/client", "app")
            faults = self.faults_with(room, "#include <QTcpSocket>")
            self.assertEqual(len(faults), 0 if allowed else 1, f"{room}: {faults}")

    def test_whole_libraries_are_seen(self):
        for room in ROOMS:
            for header in ("QtCore", "QtWidgets", "QtCore/QtCore"):
                self.assertEqual(len(self.faults_with(room, f"#include <{header}>")), 1)

    def test_gmime_is_seen_in_any_other_room(self):
        for room in ROOMS:
            allowed = room == "smtp/client"
            faults = [f for f in self.faults_with(room, "#include <gmime/gmime.h>") if "belongs" in f]
            self.assertEqual(len(faults), 0 if allowed else 1)

    def test_gmime_is_seen_in_a_second_file(self):
        client = self.src / "smtp" / "client"
        for name in ("One.cpp", "Two.cpp"):
            (client / name).write_text("#include <gmime/gmime.h>\n", encoding="utf-8")
        self.assertTrue([fault for fault in HOUSE.faults(self.src) if fault.startswith("GMime")])

    def test_litehtml_is_seen_outside_the_files_that_may_know_it(self):
        names = ("HtmlCanvas.h", "HtmlElements.cpp", "HtmlPage.cpp", "HtmlPage.h", "Planted.cpp")
        for name in names:
            file = self.src / "ui" / name
            file.write_text("#include <litehtml/litehtml.h>\n", encoding="utf-8")
        faults = [fault.split(":")[0] for fault in HOUSE.faults(self.src) if "litehtml" in fault]
        self.assertEqual(faults, ["ui/HtmlPage.h", "ui/Planted.cpp"])

    def test_blanks_do_not_hide_an_include(self):
        self.assertEqual(len(self.faults_with("base", '  #  include  "log/Present.h"')), 1)

    def test_the_table_has_no_circle(self):
        reached = {room: set(entry["uses"]) for room, entry in HOUSE.rooms.items()}
        for _ in ROOMS:
            for room in ROOMS:
                reached[room] |= {far for near in reached[room] for far in reached[near]}
        self.assertEqual([room for room in ROOMS if room in reached[room]], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
