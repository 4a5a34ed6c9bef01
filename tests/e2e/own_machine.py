"""A machine of the test's own, as far as a mail server and its client can tell.

The program runs again in namespaces that it alone has: a network without the world, where every
port is free and ADDRESS, which is no loopback address, belongs to the machine; HOST as its name;
the authority of the tests as the only one that is trusted; and the files of unpacked packages to be
seen below /usr. All that it starts ends with it, and the real machine is not changed. Root is
needed.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

ADDRESS = "192.0.2.1"
# Who comes to ADDRESS. Servers trust those who come from their own address.
CLIENT = "192.0.2.2"
HOST = "mail.example"
_MARK = "SORVANTA_OWN_MACHINE"
_NAMESPACES = ("--mount", "--net", "--pid", "--mount-proc", "--fork", "--kill-child")


def enter(authority, packages=()):
    """Goes on only on the machine of its own. The authority is a certificate; the packages are
    folders of unpacked files.
    """
    if os.environ.get(_MARK) != "entered" or os.getpid() != 1:
        os.environ[_MARK] = "entered"
        os.execvp("unshare", ["unshare", *_NAMESPACES, sys.executable, "-B", *sys.argv])
    # The files that the mounts need stand in a file system of the namespace, too.
    _run("mount", "-t", "tmpfs", "own", "/mnt")
    _run("ip", "link", "set", "lo", "up")
    for address in (ADDRESS, CLIENT):
        _run("ip", "address", "add", f"{address}/32", "dev", "lo")
    local = ["table", "local", "scope", "host", "proto", "kernel"]
    _run("ip", "route", "replace", "local", ADDRESS, "dev", "lo", *local, "src", CLIENT)
    trusted = Path("/mnt/trusted")
    trusted.mkdir()
    shutil.copy(authority, trusted)
    # Programs look for authorities by the hash of their names.
    _run("openssl", "rehash", trusted)
    _run("mount", "--bind", trusted, "/etc/ssl/certs")
    hosts = Path("/mnt/hosts")
    hosts.write_text(f"127.0.0.1 localhost\n{ADDRESS} {HOST}\n", encoding="utf-8")
    _run("mount", "--bind", hosts, "/etc/hosts")
    if packages:
        layers = ":".join([*(str(files / "usr") for files in packages), "/usr"])
        _run("mount", "-t", "overlay", "own", "-o", f"lowerdir={layers}", "/usr")


def _run(*command):
    subprocess.run(command, check=True, capture_output=True)
