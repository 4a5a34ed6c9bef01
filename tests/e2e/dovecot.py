"""Dovecot's submission service, run from a folder, and the server behind it."""

import base64
import shutil
import subprocess
from contextlib import ExitStack

from endtoend import SOURCES
from mail_servers import DELIVERER, OWNER, PASSWORD, SUBMISSION_DOOR, TLS_DOOR, USER, MailServer

GROUP = "games"


class Dovecot(MailServer):
    """Hands on what it takes to a server that takes everything. Its programs look for each other
    below /usr, so it runs where the files of its packages are seen there.
    """

    packages = ("dovecot-core", "dovecot-submissiond")
    usual_doors = (TLS_DOOR, SUBMISSION_DOOR)

    def start(self):
        self.relay = subprocess.Popen(
            [SOURCES / "scripts/catch-all-server", self.mail / "all"], stdout=subprocess.PIPE
        )
        relay_port = int(self.relay.stdout.readline())
        certificate, key = self.certificate_files("root")
        home = self.folder / "home"
        home.mkdir()
        shutil.chown(home, DELIVERER)
        password = base64.b64encode(PASSWORD.encode()).decode()
        (self.folder / "users").write_text(f"{USER}:{{PLAIN.b64}}{password}\n", encoding="utf-8")
        configuration = self.folder / "dovecot.conf"
        configuration.write_text(
            f"""base_dir = {self.folder}/base
state_dir = {self.folder}/state
log_path = {self.folder}/log
protocols = submission
listen = {self.setup.host}
hostname = dovecot.example
default_internal_user = {OWNER}
default_internal_group = {OWNER}
default_login_user = games
ssl = required
ssl_cert = <{certificate}
ssl_key = <{key}
ssl_client_require_valid_cert = no
disable_plaintext_auth = yes
auth_mechanisms = {' '.join(self.setup.mechanisms).lower()}
first_valid_uid = 1
first_valid_gid = 1
passdb {{
  driver = passwd-file
  args = {self.folder}/users
}}
userdb {{
  driver = static
  args = uid={DELIVERER} gid={DELIVERER} home={home}
}}
mail_location = maildir:{home}/mail
submission_relay_host = 127.0.0.1
submission_relay_port = {relay_port}
service submission-login {{
  chroot =
  inet_listener submission {{
    port = 0
  }}
{''.join(map(self.door, self.setup.doors))}}}
service anvil {{
  chroot =
}}
""",
            encoding="utf-8",
        )
        return subprocess.Popen(["/usr/sbin/dovecot", "-F", "-c", configuration])

    @staticmethod
    def door(door):
        """One port."""
        encrypted = "yes" if door.encryption == "at once" else "no"
        return f"""  inet_listener at-{door.port} {{
    port = {door.port}
    ssl = {encrypted}
  }}
"""

    def __exit__(self, *_):
        super().__exit__()
        self.relay.terminate()
        self.relay.wait()
        self.relay.stdout.close()
