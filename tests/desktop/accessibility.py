"""What a screen reader is told of a program: its windows and controls, by role and name."""

import gi

gi.require_version("Gio", "2.0")

from gi.repository import Gio, GLib  # noqa: E402  the version is set above

from waiting import Gone  # noqa: E402

SERVICE = "org.a11y.atspi."
ROOT = "/org/a11y/atspi/accessible/root"
CALL_LIMIT = 10000  # milliseconds

# Numbers of states.
ACTIVE, CHECKED, ENABLED, FOCUSABLE, FOCUSED, SELECTED, SHOWING = 1, 4, 8, 11, 12, 23, 25

# What is in them are no controls, and may be much.
LISTS = {"tree", "list", "table", "combo box", "menu bar"}


class Accessibility:
    """The bus on which programs describe themselves."""

    def __init__(self, session_address):
        session = connect(session_address)
        answer = call(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        session.close_sync()
        self.connection = connect(answer[0])

    def close(self):
        """Leaves the bus."""
        self.connection.close_sync()

    def program(self, process):
        """What the program of this process shows; None as long as it has not said."""
        for child in Control(self, f"{SERVICE}Registry", ROOT).children():
            bus = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")
            owner = GLib.Variant("(s)", (child.owner,))
            if self.call(*bus, "GetConnectionUnixProcessID", owner)[0] == process:
                return child
        return None

    def call(self, *arguments):
        """The answer to a call."""
        return call(self.connection, *arguments)


class Control:
    """Something a program shows: a window, a control in it, a cell of a list."""

    def __init__(self, bus, owner, path):
        self.bus = bus
        self.owner = owner
        self.path = path

    def __eq__(self, other):
        return isinstance(other, Control) and self.path == other.path and self.owner == other.owner

    def __hash__(self):
        return hash((self.owner, self.path))

    def __repr__(self):
        try:
            return f"{self.role} '{self.name}'"
        except Gone:
            return "what has gone"

    @property
    def role(self):
        """What it is."""
        return self._ask("Accessible", "GetRoleName")[0]

    @property
    def name(self):
        """What it is called."""
        return self._property("Accessible", "Name")

    @property
    def text(self):
        """What is written in it."""
        return self._ask("Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def place(self):
        """Left, top, width and height on the screen."""
        return self._ask("Component", "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def has(self, *states):
        """Whether it is in all these states."""
        low, high = self._ask("Accessible", "GetState")[0]
        return all((low | high << 32) >> state & 1 for state in states)

    def children(self):
        """What it is made of."""
        return [self._other(child) for child in self._ask("Accessible", "GetChildren")[0]]

    def parts(self):
        """Everything shown in it; of lists the list."""
        for child in self.children():
            if child.has(SHOWING):
                yield child
                if child.role not in LISTS:
                    yield from child.parts()

    @property
    def rows(self):
        """How many rows a list has."""
        return self._property("Table", "NRows")

    @property
    def columns(self):
        """How many columns a list has."""
        return self._property("Table", "NColumns")

    def cell(self, row, column):
        """A cell of a list, counted from 0."""
        place = GLib.Variant("(ii)", (row, column))
        return self._other(self._ask("Table", "GetAccessibleAt", place)[0])

    def _ask(self, interface, method, arguments=None):
        return self.bus.call(self.owner, self.path, SERVICE + interface, method, arguments)

    def _property(self, interface, name):
        which = GLib.Variant("(ss)", (SERVICE + interface, name))
        properties = "org.freedesktop.DBus.Properties"
        return self.bus.call(self.owner, self.path, properties, "Get", which)[0]

    def _other(self, reference):
        return Control(self.bus, *reference)


def connect(address):
    """A connection of our own to a bus."""
    flags = Gio.DBusConnectionFlags
    how = flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, how, None, None)


def call(connection, owner, path, interface, method, arguments=None):
    """The answer to a call over a connection."""
    flags = Gio.DBusCallFlags.NONE
    try:
        answer = connection.call_sync(
            owner, path, interface, method, arguments, None, flags, CALL_LIMIT, None
        )
    except GLib.Error as error:
        raise Gone(f"{path}: {method}: {error.message}") from error
    return answer.unpack()
