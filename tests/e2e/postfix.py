"""Postfix, run from a folder."""

import os
import pwd
import shutil
import subprocess

from mail_servers import DELIVERER, DOMAIN, OWNER, PASSWORD, USER, MailServer

QUEUE_GROUP = "games"
REALM = USER.split("@")[1]


class Postfix(MailServer):
    """Delivers into one Maildir. Logins are Cyrus SASL's."""

    packages = ("postfix", "sasl2-bin")

    def start(self):
        files, _ = self.files
        etc = self.folder / "etc"
        for name in ("etc", "queue", "data"):
            (self.folder / name).mkdir()
        shutil.chown(self.folder / "data", OWNER)
        libraries = files / "usr/lib/postfix"
        owner = pwd.getpwnam(DELIVERER)
        (etc / "main.cf").write_text(
            f"""compatibility_level = 3.6
queue_directory = {self.folder}/queue
data_directory = {self.folder}/data
command_directory = {files}/usr/sbin
daemon_directory = {libraries}/sbin
shlib_directory = {libraries}
mail_owner = {OWNER}
setgid_group = {QUEUE_GROUP}
myhostname = postfix.example
mydestination =
mynetworks = 127.0.0.0/8 {self.setup.neighbours}
inet_interfaces = {self.setup.host}
inet_protocols = ipv4
maillog_file = {self.folder}/log
maillog_file_prefixes = {self.folder}
alias_maps =
import_environment = MAIL_CONFIG LD_LIBRARY_PATH
virtual_mailbox_domains = {DOMAIN}
virtual_mailbox_base = {self.mail}
virtual_mailbox_maps = static:all/
virtual_minimum_uid = 1
virtual_uid_maps = static:{owner.pw_uid}
virtual_gid_maps = static:{owner.pw_gid}
smtpd_recipient_restrictions = permit_mynetworks, reject
smtpd_peername_lookup = no
smtpd_tls_security_level = none
smtp_tls_security_level = none
default_transport = discard:
{self.encryption() if self.setup.certificate else ''}""",
            encoding="utf-8",
        )
        (etc / "master.cf").write_text(
            "\n".join(self.door(door) for door in self.setup.doors)
            + """
pickup unix n - n 60 1 pickup
cleanup unix n - n - 0 cleanup
qmgr unix n - n 300 1 qmgr
tlsmgr unix - - n 1000? 1 tlsmgr
rewrite unix - - n - - trivial-rewrite
bounce unix - - n - 0 bounce
defer unix - - n - 0 bounce
trace unix - - n - 0 bounce
proxymap unix - - n - - proxymap
virtual unix - n n - - virtual
discard unix - - n - - discard
error unix - - n - - error
retry unix - - n - - error
anvil unix - - n - 1 anvil
postlog unix-dgram n - n - 1 postlogd
""",
            encoding="utf-8",
        )
        (etc / "dynamicmaps.cf").write_text("", encoding="utf-8")
        for name in ("active", "bounce", "corrupt", "defer", "deferred", "flush", "hold"):
            self.queue_folder(name, 0o700)
        for name in ("incoming", "saved", "trace", "private"):
            self.queue_folder(name, 0o700)
        self.queue_folder("public", 0o710)
        self.queue_folder("maildrop", 0o730)
        (self.folder / "queue" / "pid").mkdir()
        environment = {"PATH": os.environ["PATH"], "LD_LIBRARY_PATH": str(libraries)}
        # It ends its children by their process group, which has to be its own.
        return subprocess.Popen(
            [libraries / "sbin" / "master", "-c", etc, "-d"],
            env=environment,
            start_new_session=True,
        )

    def door(self, door):
        """The lines of master.cf that make a door."""
        lines = [f"{self.setup.host}:{door.port} inet n - n - - smtpd"]
        if door.encryption == "STARTTLS":
            lines.append("smtpd_tls_security_level=may")
        if door.encryption == "at once":
            lines.append("smtpd_tls_wrappermode=yes")
        if door.login_at:
            lines += ["smtpd_sasl_auth_enable=yes", "mynetworks="]
            lines.append("smtpd_recipient_restrictions=permit_sasl_authenticated,reject")
        if door.login_at == "MAIL":
            lines += ["smtpd_delay_reject=no", "reject_code=530"]
            lines.append("smtpd_sender_restrictions=permit_sasl_authenticated,reject")
        return "\n  -o ".join(lines)

    def encryption(self):
        """The lines of main.cf for certificate and logins; makes the table of who may log in."""
        certificate, key = self.certificate_files(OWNER)
        accounts = self.folder / "accounts"
        subprocess.run(
            [self.files[1] / "usr/sbin/saslpasswd2", "-p", "-c", "-f", accounts]
            + ["-u", REALM, USER.split("@")[0]],
            input=PASSWORD.encode(),
            check=True,
        )
        shutil.chown(accounts, OWNER)
        logins = self.folder / "etc" / "sasl"
        logins.mkdir()
        (logins / "smtpd.conf").write_text(
            f"""pwcheck_method: auxprop
auxprop_plugin: sasldb
mech_list: {' '.join(self.setup.mechanisms)}
sasldb_path: {accounts}
""",
            encoding="utf-8",
        )
        return f"""smtpd_tls_cert_file = {certificate}
smtpd_tls_key_file = {key}
smtpd_tls_auth_only = yes
smtpd_sasl_type = cyrus
smtpd_sasl_path = smtpd
cyrus_sasl_config_path = {logins}
smtpd_sasl_local_domain = {REALM}
"""

    def queue_folder(self, name, mode):
        """One of the folders of the queue."""
        path = self.folder / "queue" / name
        path.mkdir(mode=mode)
        shutil.chown(path, OWNER, QUEUE_GROUP if mode != 0o700 else None)
