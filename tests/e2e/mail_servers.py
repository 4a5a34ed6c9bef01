"""What the mail servers of the tests have in common: each is unpacked into a folder and run from
there, with encryption and logins as a test wants them. Nothing is installed; root is needed, as
they start only so.
"""

import shutil
import socket
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

# Accounts that every Debian has and that own nothing.
OWNER = "daemon"
DELIVERER = "mail"
DOMAIN = "list.example"
PATIENCE = 60

# Who may log in. The password has what is easily written wrongly, and stands in no text by chance.
USER = "anna@postino.example"
PASSWORD = 'Zw9: "ü=%+?\\#$x'
MECHANISMS = ("PLAIN", "LOGIN")


def unpacked(package, folder):
    """The folder that holds the package's files; fetched once."""
    files = Path(folder) / package
    if files.is_dir():
        return files
    download = Path(folder) / f"{package}.download"
    download.mkdir(parents=True, exist_ok=True)
    fetch = ["apt-get", "-q", "-o", "APT::Sandbox::User=root", "download", package]
    if subprocess.run(fetch, cwd=download, capture_output=True, check=False).returncode != 0:
        subprocess.run(["apt-get", "-q", "update"], capture_output=True, check=True)
        subprocess.run(fetch, cwd=download, capture_output=True, check=True)
    part = Path(folder) / f"{package}.part"
    subprocess.run(["dpkg", "-x", *download.glob("*.deb"), part], check=True)
    part.rename(files)
    return files


def free_port():
    """A port that nobody listens on now."""
    with socket.create_server(("127.0.0.1", 0)) as taken:
        return taken.getsockname()[1]


@dataclass(frozen=True)
class Door:
    """A port of a server, and what it asks of those who come."""

    port: int
    # "none", "STARTTLS", or "at once" for TLS from the first byte.
    encryption: str = "none"
    # The command without which nobody goes on who has not logged in; "" where no login is offered.
    login_at: str = ""


# What a provider's server has.
RELAY_DOOR = Door(25, "STARTTLS")
TLS_DOOR = Door(465, "at once", "RCPT")
SUBMISSION_DOOR = Door(587, "STARTTLS", "RCPT")
DOORS = (RELAY_DOOR, TLS_DOOR, SUBMISSION_DOOR)


@dataclass(frozen=True)
class Setup:
    """How a server is set up: where it listens, what it shows, what it offers."""

    host: str = "127.0.0.1"
    # Who may come without a login, besides the loopback interface.
    neighbours: str = ""
    doors: tuple = ()
    # The certificate without ".pem"; its ".key" lies beside it.
    certificate: Path = None
    mechanisms: tuple = MECHANISMS
    # It ends a session with 421 after so many; 0: as the server does by itself.
    messages_in_session: int = 0


class MailServer:
    """A server that runs within a `with`; what it received is read from its Maildirs."""

    # The packages it is made of, its own first.
    packages = ()
    # The ports that it has where it serves a provider's customers.
    usual_doors = DOORS

    def __init__(self, packages, folder, setup=None):
        self.files = [unpacked(name, packages) for name in self.packages]
        self.folder = Path(folder)
        self.setup = setup or Setup(doors=(Door(free_port()),))
        self.address = self.address_of(self.setup.doors[0])
        self.mail = self.folder / "mail"
        self.process = None

    def __enter__(self):
        # The servers' accounts must be able to walk down to their folders.
        for above in [self.folder, *self.folder.parents]:
            if above.owner() == "root" and not above.stat().st_mode & 0o001:
                above.chmod(above.stat().st_mode | 0o711)
        self.mail.mkdir(parents=True)
        shutil.chown(self.mail, DELIVERER)
        self.process = self.start()
        self.wait_until_it_listens()
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def start(self):
        """Starts the server in the foreground."""
        raise NotImplementedError

    def address_of(self, door):
        """The door as a project names it."""
        return f"{self.setup.host}:{door.port}"

    def certificate_files(self, owner):
        """Certificate and key where an account can read them."""
        copies = []
        for ending in (".pem", ".key"):
            copy = self.folder / f"server{ending}"
            shutil.copy(self.setup.certificate.with_suffix(ending), copy)
            shutil.chown(copy, owner)
            copies.append(copy)
        return copies

    def wait_until_it_listens(self):
        """Tries to connect; a server has no other way to say that it is ready."""
        end = time.monotonic() + PATIENCE
        for door in self.setup.doors:
            while not self.listens(door):
                if time.monotonic() > end or self.process.poll() is not None:
                    raise RuntimeError(f"{type(self).__name__} does not listen; see {self.folder}")
                time.sleep(0.05)

    def listens(self, door):
        """Whether a port can be connected."""
        try:
            socket.create_connection((self.setup.host, door.port), 1).close()
            return True
        except OSError:
            return False

    def received(self, count):
        """The messages' bytes, once so many have been delivered."""
        end = time.monotonic() + PATIENCE
        while True:
            files = [path for path in self.mail.rglob("new/*") if path.is_file()]
            if len(files) >= count or time.monotonic() > end:
                return [path.read_bytes() for path in files]
            time.sleep(0.05)
