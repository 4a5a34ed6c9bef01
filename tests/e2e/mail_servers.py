"""Postfix and Exim, unpacked into a folder and run from there, each on a free port of the loopback
interface. They deliver into Maildirs. Nothing is installed; root is needed, as they start only so.
"""

import os
import pwd
import shutil
import socket
import subprocess
import time
from pathlib import Path

# Accounts that every Debian has and that own nothing.
OWNER = "daemon"
DELIVERER = "mail"
QUEUE_GROUP = "games"
DOMAIN = "list.example"
PATIENCE = 60


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


class MailServer:
    """A server that runs within a `with`; what it received is read from its Maildirs."""

    def __init__(self, packages, folder):
        self.packages = Path(packages)
        self.folder = Path(folder)
        self.port = free_port()
        self.address = f"127.0.0.1:{self.port}"
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

    def wait_until_it_listens(self):
        """Tries to connect; a server has no other way to say that it is ready."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end and self.process.poll() is None:
            try:
                socket.create_connection(("127.0.0.1", self.port), 1).close()
                return
            except OSError:
                time.sleep(0.05)
        raise RuntimeError(f"{type(self).__name__} does not listen; see {self.folder}")

    def received(self, count):
        """The messages' bytes, once so many have been delivered."""
        end = time.monotonic() + PATIENCE
        while True:
            files = [path for path in self.mail.rglob("new/*") if path.is_file()]
            if len(files) >= count or time.monotonic() > end:
                return [path.read_bytes() for path in files]
            time.sleep(0.05)


class Postfix(MailServer):
    """Delivers into one Maildir."""

    def start(self):
        files = unpacked("postfix", self.packages)
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
mynetworks = 127.0.0.0/8
inet_interfaces = loopback-only
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
""",
            encoding="utf-8",
        )
        (etc / "master.cf").write_text(
            f"""127.0.0.1:{self.port} inet n - n - - smtpd
pickup unix n - n 60 1 pickup
cleanup unix n - n - 0 cleanup
qmgr unix n - n 300 1 qmgr
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

    def queue_folder(self, name, mode):
        """One of the folders of the queue."""
        path = self.folder / "queue" / name
        path.mkdir(mode=mode)
        shutil.chown(path, OWNER, QUEUE_GROUP if mode != 0o700 else None)


class Exim(MailServer):
    """Delivers into one Maildir."""

    def start(self):
        files = unpacked("exim4-daemon-light", self.packages)
        program = files / "usr/sbin/exim4"
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
local_interfaces = 127.0.0.1
daemon_smtp_ports = {self.port}
never_users =
smtp_accept_queue_per_connection = 0
exim_user = {DELIVERER}
exim_group = {DELIVERER}
deliver_drop_privilege = true
tls_advertise_hosts =
pipelining_advertise_hosts = *
chunking_advertise_hosts = *
host_lookup =
rfc1413_hosts =
keep_environment = {' : '.join(environment)}
acl_smtp_rcpt = accept_all
acl_smtp_data = accept_all
begin acl
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
""",
            encoding="utf-8",
        )
        return subprocess.Popen([program, "-C", configuration, "-bdf"], env=environment)
