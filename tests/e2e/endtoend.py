"""What the end-to-end tests have in common: the program in a folder of its own, and its log.

The environment says where the program is (SORVANTA_CLI), where the sources are (SORVANTA_SOURCES)
and where test folders may be made (SORVANTA_WORK).
"""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCES = Path(os.environ["SORVANTA_SOURCES"])
WORK = Path(os.environ["SORVANTA_WORK"])

sys.path.insert(0, str(SOURCES / "scripts"))

from projects import Project, Row  # noqa: E402, F401  the path is set above

# No run of these tests takes longer, on a slow machine with sanitizers either.
PATIENCE = 240


class Program:
    """sorvanta-cli copied alone into a folder, which makes it a portable installation there."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.path = copied(Path(os.environ["SORVANTA_CLI"]), self.folder)
        home = self.folder / "home"
        home.mkdir()
        self.environment = self.environment_in(home)

    @staticmethod
    def environment_in(home):
        """What a program is told in a home of its own, and nothing of this machine's settings."""
        return {
            "PATH": os.environ["PATH"],
            "HOME": str(home),
            "XDG_CONFIG_HOME": str(home / "config"),
            "XDG_DATA_HOME": str(home / "data"),
            "LC_ALL": "C.UTF-8",
            "TZ": "Europe/Rome",
        }

    def start(self, *arguments):
        """Starts it; what it says can be read."""
        return subprocess.Popen(
            [self.path, *map(str, arguments)],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
            encoding="utf-8",
        )

    def run(self, *arguments):
        """Runs it to its end: its exit status, output and messages."""
        return Ended(self.start(*arguments))

    def logs(self):
        """The log's bytes; a session is all in the file of its month."""
        return b"".join(path.read_bytes() for path in sorted(self.folder.glob("*.log")))

    def log_lines(self):
        """The log's messages, without their dates."""
        stamp = re.compile(r"^\d\d/\d\d/\d{4} \d\d:\d\d:\d\d  (.*)$")
        lines = self.logs().decode("cp1252").split("\r\n")
        return [found[1] for found in map(stamp.match, lines) if found]


def copied(program, folder):
    """The copy of a program in a folder."""
    path = Path(folder) / program.name
    try:
        os.link(program, path)
    except OSError:
        shutil.copy2(program, path)
    return path


class Ended:
    """A program that has ended, or is waited for here."""

    def __init__(self, process):
        try:
            self.output, self.messages = process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            process.kill()
            self.output, self.messages = process.communicate()
            self.messages += "\n(the test lost its patience)"
        self.status = process.returncode


class EndToEnd(unittest.TestCase):
    """A test with a program, in a folder that is gone afterwards."""

    maxDiff = None

    def setUp(self):
        WORK.mkdir(parents=True, exist_ok=True)
        folder = tempfile.TemporaryDirectory(dir=WORK)
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.program = self.installed()

    def installed(self):
        """The program of the test."""
        return Program(self.folder)

    def file(self, name, content):
        """A file of the test."""
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
        return path

    def project(self, server, rows, **fields):
        """A project with a text message, saved."""
        fields.setdefault("text", self.file("letter.txt", "Dear *NOME*,\n\nhello.\n"))
        project = Project(server=server.address, rows=rows, **fields)
        return project.write(self.folder / "mailing.svk")

    def send(self, project, *options, status=0):
        """Sends, and expects an exit status."""
        ended = self.program.run("send", project, *options)
        self.assertEqual(ended.status, status, ended.messages + ended.output)
        self.assertNotIn("runtime error", ended.messages)
        self.assertNotIn("Sanitizer", ended.messages)
        return ended


def rows(count, domain="list.example"):
    """So many recipients."""
    return [Row(f"Name {i}", f"r{i}@{domain}") for i in range(1, count + 1)]


def interrupt(process):
    """Ctrl-C, when the program is still there."""
    if process.poll() is None:
        process.send_signal(signal.SIGINT)


def states(project):
    """Addresses and states of the rows of a saved project."""
    lines = Path(project).read_bytes().decode("utf-8", "replace").split("\r\n")
    first = lines.index("", 20) + 1
    return {lines[i + 2]: lines[i + 3] for i in range(first, len(lines) - 1, 6)}
