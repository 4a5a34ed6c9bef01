"""The programs that are measured, and what they stand on."""

import json
import os
import subprocess
import time


class Server:
    """A program that prints the port it listens on, and ends with the block."""

    def __init__(self, *command):
        self.command = [str(part) for part in command]

    def __enter__(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.PIPE, text=True)
        self.port = int(self.process.stdout.readline())
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.process.stdout.close()

    def next_connection(self):
        """What the sink says of the next connection that ends with messages."""
        while True:
            connection = json.loads(self.process.stdout.readline())
            if connection["messages"] > 0:
                return connection


class Screen:
    """An X server without a screen, for the length of the block."""

    def __enter__(self):
        read, write = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
            pass_fds=[write],
            stderr=subprocess.DEVNULL,
        )
        os.close(write)
        with os.fdopen(read) as said:
            self.display = ":" + said.readline().strip()
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def window(self, program, *arguments):
        """What bench_window says of a window on this screen, and its memory in bytes."""
        environment = dict(
            os.environ, DISPLAY=self.display, QT_QPA_PLATFORM="xcb", XDG_CONFIG_HOME=program.parent
        )
        usage = Usage([program, *arguments, time.monotonic_ns()], environment)
        return {**json.loads(usage.said), "memory": usage.memory}


class Usage:
    """What a program used, from its start to its end, and what it said."""

    def __init__(self, command, environment=None):
        command = [str(part) for part in command]
        with subprocess.Popen(command, stdout=subprocess.PIPE, env=environment) as process:
            self.said = process.stdout.read()
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            raise SystemExit(f"{command} ended with {process.returncode}")
        self.cpu = usage.ru_utime + usage.ru_stime
        self.memory = usage.ru_maxrss * 1024
