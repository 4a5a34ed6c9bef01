"""What the tests of the windows have in common: somebody at a desktop, with the program in a folder.

The environment says where the programs are (SORVANTA, SORVANTA_CLI), and the rest as the end-to-end
tests want it.
"""

import os
import sys
from pathlib import Path

SOURCES = Path(os.environ["SORVANTA_SOURCES"])
sys.path.insert(0, str(SOURCES / "tests" / "e2e"))

from endtoend import WORK, EndToEnd, copied, rows  # noqa: E402, F401  the path is set above
from server import Server  # noqa: E402

from catalogue import Catalogue  # noqa: E402
from desktop import Desktop  # noqa: E402
from sorvanta import Sorvanta  # noqa: E402

WINDOWS = Path(os.environ["SORVANTA"])


class AtTheDesktop(EndToEnd):
    """A test with a desktop."""

    italian = False
    keyring = False

    def setUp(self):
        super().setUp()
        self.tr = Catalogue(SOURCES / "translations" / "sorvanta_it.ts", self.italian)
        self.windows = copied(WINDOWS, self.folder)
        if self.italian:
            self.assertEqual(self.program.run("settings", "Language", "1").status, 0)
        keyboard = "it" if self.italian else "us"
        desktop = Desktop(self.program.environment, keyboard=keyboard, keyring=self.keyring)
        self.desktop = desktop.__enter__()
        self.addCleanup(desktop.__exit__)
        self.server = self.serve()
        self.server.__enter__()
        self.addCleanup(self.server.__exit__)

    def serve(self):
        """The server of the test."""
        return Server()

    def start(self, *arguments):
        """Starts the program."""
        return Sorvanta(self.desktop.start(self.windows, *arguments), self.tr)

    def setting(self, name):
        """A setting, as it is kept."""
        return self.program.run("settings", name).output.removesuffix("\n")
