"""Exim, run from a folder."""

import shutil
import subprocess
from pathlib import Path

from mail_servers import DELIVERER, DOMAIN, PASSWORD, USER, MailServer

# What the server is given as an account's name and password, and what a login must be to be right.
AUTHENTICATORS = {
    "PLAIN": ("plain", ":", "$auth2", "$auth3"),
    "LOGIN": ("login", "Username:: : Password::", "$auth1", "$auth2"),
}


class Exim(MailServer):
    """Delivers into one Maildir. Answers 421 after so many messages of a session."""

    packages = ("exim4-daemon-light",)

    def start(self):
        program = self.files[0] / "usr/sbin/exim4"
        shutil.chown(self.folder, DELIVERER)
        configuration = self.folder / "exim.conf"
        # The program insists on an account of this name; it is given one that only it can see.
        accounts = {}
        for name in ("passwd", "group"):
            accounts[f"NSS_WRAPPER_{name.upper()}"] = str(self.folder / name)
            known = Path("/etc", name).read_text(encoding="utf-8").splitlines()
            mine = next(line for line in known if line.startswith(f"{DELIVERER}:"))
            known.append(mine.replace(DELIVERER, "Debian-exim", 1))
            (self.folder / name).write_text("\n".join(known) + "\n", encoding="utf-8")
        environment = {"LD_PRELOAD": "libnss_wrapper.so", **accounts}
        # A program with a set-uid bit would not be given it.
        program.chmod(0o755)
        configuration.write_text(
            f"""primary_hostname = exim.example
exim_path = {program}
spool_directory = {self.folder}/spool
log_file_path = {self.folder}/%slog
pid_file_path = {self.folder}/pid
domainlist local_domains = {DOMAIN}
local_interfaces = {self.setup.host}
daemon_smtp_ports = {self.ports(lambda door: True)}
never_users =
smtp_accept_queue_per_connection = 0
exim_user = {DELIVERER}
exim_group = {DELIVERER}
deliver_drop_privilege = true
pipelining_advertise_hosts = *
chunking_advertise_hosts = *
host_lookup =
rfc1413_hosts =
keep_environment = {' : '.join(environment)}
{self.encryption()}
{self.limit()}
acl_smtp_mail = ask_at_mail
acl_smtp_rcpt = ask_at_rcpt
acl_smtp_data = accept_all
begin acl
{self.acl("MAIL")}
{self.acl("RCPT")}
accept_all:
  accept
begin routers
everybody:
  driver = accept
  transport = box
begin transports
box:
  driver = appendfile
  directory = {self.mail}/all
  maildir_format
  create_directory
  envelope_to_add
begin retry
* * F,1h,10m
begin authenticators
{''.join(map(self.authenticator, self.setup.mechanisms))}""",
            encoding="utf-8",
        )
        return subprocess.Popen([program, "-C", configuration, "-bdf"], env=environment)

    def ports(self, condition):
        """The ports of the doors that meet a condition."""
        return " : ".join(str(door.port) for door in self.setup.doors if condition(door))

    def only_at(self, condition, otherwise="{*}"):
        """A list of hosts: all of them at the doors that meet a condition, else nobody."""
        ports = self.ports(condition)
        return f"${{if inlist{{$received_port}}{{{ports}}}{otherwise}}}" if ports else ""

    def encryption(self):
        """The options for certificate and logins."""
        if not self.setup.certificate:
            return "tls_advertise_hosts ="
        certificate, key = self.certificate_files(DELIVERER)
        encrypted = "{${if def:tls_in_cipher{*}}}"
        return f"""tls_certificate = {certificate}
tls_privatekey = {key}
tls_advertise_hosts = {self.only_at(lambda door: door.encryption == "STARTTLS")}
tls_on_connect_ports = {self.ports(lambda door: door.encryption == "at once")}
auth_advertise_hosts = {self.only_at(lambda door: door.login_at, encrypted)}"""

    def limit(self):
        """The option for the number of messages in a session."""
        number = self.setup.messages_in_session
        return f"smtp_accept_max_per_connection = {number}" if number else ""

    def acl(self, command):
        """What stands between a command and those who have not logged in."""
        lines = [f"ask_at_{command.lower()}:"]
        ports = self.ports(lambda door: door.login_at == command)
        if ports:
            lines.append("  deny message = 530 5.7.0 Authentication required")
            lines.append(f"    condition = ${{if inlist{{$received_port}}{{{ports}}}}}")
            lines.append("    !authenticated = *")
        lines.append("  accept")
        return "\n".join(lines)

    @staticmethod
    def authenticator(mechanism):
        """One way to log in."""
        name, prompts, user, password = AUTHENTICATORS[mechanism]
        wanted = PASSWORD.replace("\\", "\\\\\\\\").replace("$", "\\\\$").replace('"', '\\"')
        return f"""{name}:
  driver = plaintext
  public_name = {mechanism}
  server_prompts = {prompts}
  server_condition = "${{if and{{{{eq{{{user}}}{{{USER}}}}}{{eq{{{password}}}{{{wanted}}}}}}}}}"
  server_set_id = {user}
"""
