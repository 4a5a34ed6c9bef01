"""The package installed below a folder, and its programs used by somebody who may not write there.
Nothing of this machine is changed. Root is needed, since a package is installed by root.

The environment says in which folder the package is (SORVANTA_PACKAGES) and where the sources are
(SORVANTA_SOURCES).
"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

(PACKAGE,) = Path(os.environ["SORVANTA_PACKAGES"]).glob("*.deb")
SOURCES = Path(os.environ["SORVANTA_SOURCES"])
sys.path[:0] = [str(SOURCES / "tests" / "e2e"), str(SOURCES / "tests" / "desktop")]
# A folder that any user may look into.
os.environ["SORVANTA_WORK"] = tempfile.gettempdir()

from endtoend import EndToEnd, Program  # noqa: E402  the path is set above

ROOT, NOBODY = 0, 65534


def become(user):
    """Has this process, and those that it starts, act as this user. It can become root again."""
    os.setresuid(ROOT, ROOT, ROOT)
    os.setgroups([])
    os.setresgid(user, user, ROOT)
    os.setresuid(user, user, ROOT)


def files_below(folder):
    """The files below a folder, by their paths from there."""
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir()}


class Root:
    """A folder in which the package is installed as elsewhere in "/"."""

    def __init__(self, folder):
        self.folder = folder
        self.programs = folder / "usr" / "bin"
        self.shared = folder / "usr" / "share"
        self._records = folder / "var" / "lib" / "dpkg"
        for name in ("updates", "info"):
            (self._records / name).mkdir(parents=True)
        (self._records / "status").touch()

    def dpkg(self, *arguments):
        """Has dpkg do something in here. What the package depends on is the machine's."""
        command = ["dpkg", f"--root={self.folder}", "--force-depends", *map(str, arguments)]
        subprocess.run(command, check=True, capture_output=True)

    def files(self):
        """Every file, the records of dpkg left out."""
        records = f"{self._records.relative_to(self.folder)}/"
        return {name for name in files_below(self.folder) if not name.startswith(records)}


class InstalledProgram(Program):
    """sorvanta-cli as the package brings it."""

    def __init__(self, root, home):
        self.folder = home / "data" / "Sorvanta"
        self.path = root.programs / "sorvanta-cli"
        self.environment = self.environment_in(home) | {
            "PATH": f"{root.programs}:{os.environ['PATH']}",
            "XDG_DATA_DIRS": f"{root.shared}:/usr/local/share:/usr/share",
        }


class WithThePackage(EndToEnd):
    """A test with the package installed and a home for its user, as whom it goes on."""

    user = NOBODY

    def installed(self):
        self.folder.chmod(0o755)
        self.root = Root(self.folder / "root")
        self.root.dpkg("--install", PACKAGE)
        self.home = self.folder / "home"
        self.home.mkdir()
        for path in (self.folder, self.home):
            os.chown(path, self.user, self.user)
        self.addCleanup(become, ROOT)
        become(self.user)
        return InstalledProgram(self.root, self.home)

    def printed(self, *command, **environment):
        """What another program prints for the user."""
        run = subprocess.run(
            list(map(str, command)),
            env=self.program.environment | environment,
            cwd=self.home,
            capture_output=True,
            text=True,
            check=True,
        )
        return run.stdout
