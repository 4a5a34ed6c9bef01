"""A desktop of its own for a program: a screen, a window manager, a keyboard and a mouse, and what a
screen reader would say. Nothing of the user's desktop or settings is touched.
"""

import os
import subprocess
from contextlib import ExitStack
from fnmatch import fnmatchcase
from pathlib import Path

from accessibility import ACTIVE, ENABLED, FOCUSED, SHOWING, Accessibility
from waiting import PATIENCE, Gone, until

LEFT, RIGHT = 1, 3  # buttons of the mouse
KEYRING = "org.freedesktop.secrets"  # its name on the bus
KEYBOARD_PAUSE = "4"  # milliseconds between two letters


class Desktop:
    """Lives within a `with`. The environment says whose it is: HOME and XDG_CONFIG_HOME above all."""

    def __init__(
        self, environment, width=1920, height=1080, scale=1, keyboard="us", keyring=False
    ):
        home = Path(environment["HOME"])
        runtime = home / ".runtime"
        runtime.mkdir(mode=0o700)
        self.environment = environment | {
            "XDG_CACHE_HOME": str(home / ".cache"),
            "XDG_RUNTIME_DIR": str(runtime),
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_SCALE_FACTOR": str(scale),
        }
        self.size = (width, height)
        self.scale = scale
        self.keyboard = keyboard
        self.keyring = keyring
        self._said = home / ".desktop.log"
        self._log = None
        self._ending = ExitStack()

    def __enter__(self):
        with ExitStack() as ending:
            self._log = ending.enter_context(open(self._said, "wb"))
            self._start_screen(ending)
            address = self._start_bus(ending)
            self.accessibility = Accessibility(address)
            ending.callback(self.accessibility.close)
            if self.keyring:
                self._start_keyring(ending)
            self._start_window_manager(ending)
            self._ending = ending.pop_all()
        return self

    def __exit__(self, *_):
        self._ending.close()

    def _start_screen(self, ending):
        width, height = self.size
        reading, writing = os.pipe()
        # Without -noreset it would forget its keyboard when the first client goes.
        command = ["Xvfb", "-noreset", "-nolisten", "tcp", "-displayfd", str(writing)]
        screen = ["-screen", "0", f"{width}x{height}x24", "-dpi", "96"]
        with open(reading, "rb") as number:
            try:
                self._run(ending, *command, *screen, pass_fds=[writing])
            finally:
                os.close(writing)
            self.environment["DISPLAY"] = ":" + number.readline().decode().strip()
        subprocess.run(["setxkbmap", self.keyboard], env=self.environment, check=True)

    def _start_bus(self, ending):
        # The bus would start the keyring of a machine that has one, when somebody asks for it.
        services = Path(self.environment["XDG_RUNTIME_DIR"]) / "dbus-1" / "services"
        services.mkdir(parents=True)
        no_keyring = f"[D-BUS Service]\nName={KEYRING}\nExec=/bin/false\n"
        (services / f"{KEYRING}.service").write_text(no_keyring, encoding="utf-8")
        command = ["dbus-daemon", "--session", "--nofork", "--print-address"]
        daemon = self._run(ending, *command, stdout=subprocess.PIPE)
        address = daemon.stdout.readline().decode().strip()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        return address

    def _start_keyring(self, ending):
        """A keyring that is open."""
        command = ["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"]
        daemon = self._run(ending, *command, stdin=subprocess.PIPE)
        with daemon.stdin as password:
            password.write(b"throwaway")
        waiting = ["gdbus", "wait", "--session", "--timeout", str(PATIENCE), KEYRING]
        subprocess.run(waiting, env=self.environment, check=True)

    def _start_window_manager(self, ending):
        self._run(ending, "openbox", "--sm-disable")
        managed = ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]
        until("the window manager", lambda: b"window id" in self._output(*managed))

    def _run(self, ending, *command, stdin=subprocess.DEVNULL, stdout=None, pass_fds=()):
        """Starts a program of the desktop, which ends with it."""
        process = subprocess.Popen(
            command,
            env=self.environment,
            stdin=stdin,
            stdout=stdout or self._log,
            stderr=self._log,
            pass_fds=pass_fds,
        )
        ending.enter_context(Ending(process))
        return process

    def _output(self, *command):
        run = subprocess.run(command, env=self.environment, capture_output=True, check=False)
        return run.stdout

    def start(self, program, *arguments, **environment):
        """Starts a program with windows; whoever starts it ends it, or it ends with the desktop."""
        process = subprocess.Popen(
            [program, *map(str, arguments)],
            env=self.environment | environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE,
            text=True,
            encoding="utf-8",
        )
        self._ending.enter_context(Ending(process))
        return Program(self, process)

    # The hands of who sits before it.

    def press(self, *keys):
        """Presses keys, one after the other, as "ctrl+s"."""
        subprocess.run(["xdotool", "key", *keys], env=self.environment, check=True)

    def type(self, text):
        """Types a text; between its lines Enter."""
        first, *others = text.split("\n")
        self._type_line(first)
        for line in others:
            # As a letter of a text it would be another key than the one on the keyboard.
            self.press("Return")
            self._type_line(line)

    def _type_line(self, line):
        command = ["xdotool", "type", "--delay", KEYBOARD_PAUSE, "--", line]
        subprocess.run(command, env=self.environment, check=True)

    def click(self, control, button=LEFT):
        """Clicks on the middle of a control."""
        left, top, width, height = (number * self.scale for number in control.place)
        place = (str(round(left + width / 2)), str(round(top + height / 2)))
        command = ["xdotool", "mousemove", *place, "click", str(button)]
        subprocess.run(command, env=self.environment, check=True)

    def resize(self, window, width, height):
        """Puts the window that has the keyboard into the corner of the screen and gives it a size."""
        active, (left, _, top, _) = self._framed(window)
        command = ["xdotool", "windowmove", active, left, top, "windowsize", active, width, height]
        subprocess.run(list(map(str, command)), env=self.environment, check=True)
        size = (round(width / self.scale), round(height / self.scale))
        until(
            lambda: f"the size {size} of {window}, which lies at {window.place}",
            lambda: tuple(window.place[2:]) == size,
        )

    # Its eyes.

    def frame(self, window):
        """The place of the window that has the keyboard, with the window manager's frame."""
        _, (left, right, top, bottom) = self._framed(window)
        x, y, width, height = (round(number * self.scale) for number in window.place)
        return x - left, y - top, width + left + right, height + top + bottom

    def _framed(self, window):
        """The number of the window that has the keyboard, and the widths of its frame."""

        def framed():
            active = self._output("xdotool", "getactivewindow").decode().strip()
            told = self._output("xprop", "-id", active, "_NET_WM_NAME", "_NET_FRAME_EXTENTS")
            title, _, widths = told.decode().partition("\n")
            if f'= "{window.name}"' not in title or "=" not in widths:
                return None
            return active, tuple(map(int, widths.split("=")[1].split(",")))

        return until(f"the frame of {window}", framed)

    def shown(self, process):
        """The numbers of the windows of a process, its menus among them."""
        command = ["xdotool", "search", "--onlyvisible", "--pid", str(process.pid)]
        return self._output(*command).split()

    def picture(self, path, place):
        """Writes a picture of a part of the screen: left, top, width and height."""
        left, top, width, height = place
        screen = self._output("import", "-silent", "-window", "root", "png:-")
        crop = ["-crop", f"{width}x{height}+{left}+{top}", "+repage"]
        # So few colours are enough for windows, and make small files.
        small = ["-strip", "+dither", "-colors", "256", "-define", "png:compression-level=9"]
        subprocess.run(["convert", "png:-", *crop, *small, str(path)], input=screen, check=True)


class Program:
    """A program that runs on a desktop."""

    def __init__(self, desktop, process):
        self.desktop = desktop
        self.process = process
        self._shown = None

    def windows(self):
        """The windows it shows."""
        if self._shown is None:
            self._shown = self.desktop.accessibility.program(self.process.pid)
            if self._shown is None:
                raise Gone("the program shows nothing yet")
        return [window for window in self._shown.children() if window.has(SHOWING)]

    def window(self, title):
        """The window whose title fits the pattern, once it is there and has the keyboard."""

        def found():
            # The newest comes last.
            for window in reversed(self.windows()):
                if fnmatchcase(window.name, title) and window.has(ACTIVE):
                    return window
            return None

        return until(lambda: f"a window '{title}' among {self._titles()}", found)

    def _titles(self):
        try:
            return [window.name for window in self.windows()]
        except Gone:
            return []

    def wait_until_closed(self, window):
        """Waits until a window is no longer shown, and be it that the program ended."""

        def closed():
            return self.process.poll() is not None or window not in self.windows()

        until(lambda: f"{window} to be closed", closed)

    def control(self, window, role, name):
        """The control of this role and name."""

        def found():
            for part in window.parts():
                if part.role == role and part.name == name:
                    return part
            return None

        return until(f"a {role} '{name}' in '{window.name}'", found)

    def click(self, control, button=LEFT):
        """Clicks on a control, once it is enabled."""
        until(lambda: f"{control} to be enabled", lambda: control.has(ENABLED))
        self.desktop.click(control, button)

    def fill(self, field, text):
        """Clicks into a field and types a text in place of its own."""
        self.click(field)
        until(lambda: f"the keyboard in {field}", lambda: field.has(FOCUSED))
        self.desktop.press("ctrl+a")
        self.desktop.type(text)
        self.wait_for_text(field, text)

    @staticmethod
    def wait_for_text(field, text):
        """Waits until a field shows a text."""
        until(lambda: f"'{text}' in {field}, which says '{field.text}'", lambda: field.text == text)

    def ends_within(self, seconds):
        """Whether it ends in that time."""
        try:
            self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            return False
        return True

    def wait_for_end(self):
        """Its exit status and what it said on its error output."""
        try:
            _, said = self.process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired as late:
            status = self.process.poll()
            raise AssertionError(f"no end ({status}); it shows {self._titles()}") from late
        return self.process.returncode, said


class Ending:
    """A process that is ended with a `with`, in any case."""

    def __init__(self, process):
        self.process = process

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        for stream in (self.process.stdout, self.process.stderr):
            if stream:
                stream.close()
