"""What the tests with encryption and logins have in common: the machine, the certificates, a server
that was set up for the test, and the program with a login.
"""

import base64
import hashlib
import ssl
import subprocess
import tempfile
from pathlib import Path

from dovecot import Dovecot
from endtoend import SOURCES, WORK, EndToEnd, rows
from exim import Exim
from mail_servers import DOMAIN, DOORS, PASSWORD, USER, Setup, unpacked
from own_machine import ADDRESS, CLIENT, HOST, enter
from postfix import Postfix

SERVERS = (Postfix, Exim, Dovecot)
PACKAGES = WORK / "packages"
CERTIFICATES = WORK / "certificates"


def prepare():
    """Fetches the servers, makes the certificates, and goes on on a machine of its own."""
    if not (CERTIFICATES / "ca.pem").exists():
        maker = SOURCES / "tests" / "support" / "make-certificates"
        subprocess.run([maker, CERTIFICATES, ADDRESS], check=True)
    for server in SERVERS:
        for package in server.packages:
            unpacked(package, PACKAGES)
    enter(CERTIFICATES / "ca.pem", [PACKAGES / name for name in Dovecot.packages])


def setup(doors=DOORS, certificate="good", **others):
    """A server at the address of the machine."""
    return Setup(ADDRESS, CLIENT, tuple(doors), CERTIFICATES / certificate, **others)


def fingerprint(name):
    """The fingerprint of a certificate, as people compare it."""
    pem = (CERTIFICATES / f"{name}.pem").read_text("ascii")
    digest = hashlib.sha256(ssl.PEM_cert_to_DER_cert(pem)).digest()
    return ":".join(f"{byte:02X}" for byte in digest)


def shapes(password):
    """The bytes in which a password could be found."""
    plain = password.encode()
    for said in (plain, f"\0{USER}\0{password}".encode(), f"{USER}\0{USER}\0{password}".encode()):
        yield said
        yield base64.b64encode(said).rstrip(b"=")
        yield said.hex().encode()
        yield said.hex().upper().encode()


class Secure(EndToEnd):
    """A test with a server; what the program must not keep lies in another folder than its own."""

    server_class = None

    def setUp(self):
        super().setUp()
        outside = tempfile.TemporaryDirectory(dir=WORK)
        self.addCleanup(outside.cleanup)
        self.outside = Path(outside.name)
        self.trace = self.folder / "trace.txt"

    def serve(self, **others):
        """A server for a `with`."""
        folder = Path(tempfile.mkdtemp(dir=self.outside))
        return self.server_class(PACKAGES, folder, setup(**others))

    def account(self, name, value):
        """Keeps something about the server."""
        ended = self.program.run("account", HOST, name, value)
        self.assertEqual(ended.status, 0, ended.messages)

    def password(self, password=PASSWORD):
        """The option that has the password come from a command."""
        file = self.outside / "password"
        file.write_text(f"{password}\n", encoding="utf-8")
        return ["--password-command", f"cat {file}"]

    def netrc(self, mode):
        """The user's file of passwords."""
        quoted = PASSWORD.replace("\\", "\\\\").replace('"', '\\"')
        path = Path(self.program.environment["HOME"]) / ".netrc"
        path.write_text(f'machine {HOST} login {USER} password "{quoted}"\n', encoding="utf-8")
        path.chmod(mode)

    def mailing(self, port, count=3, **fields):
        """A project that is to be sent through a port."""
        server = type("Named", (), {"address": f"{HOST}:{port}"})
        return self.project(server, rows(count, DOMAIN), **fields)

    def traced(self):
        """What was taken down, and empties it."""
        text = self.trace.read_text("utf-8")
        self.trace.unlink()
        return text

    def run_well(self, *arguments, status=0):
        """Runs the program and expects an exit status."""
        ended = self.program.run(*arguments)
        self.assertEqual(ended.status, status, ended.messages + ended.output)
        self.assertNotIn("runtime error", ended.messages)
        self.assertNotIn("Sanitizer", ended.messages)
        return ended

    def assert_nothing_arrived(self, server):
        """No message was delivered. None was accepted, so that none can still be on its way."""
        self.assertEqual(server.received(0), [])

    def assert_each_got_one(self, server, count):
        """Everybody got one message, and only one."""
        got = sorted(
            line
            for content in server.received(count)
            for line in content.decode("latin-1").splitlines()
            if line.startswith("To: ")
        )
        self.assertEqual(got, sorted(f"To: r{i}@{DOMAIN}" for i in range(1, count + 1)))
