"""The program's windows as somebody sees and uses them, in either language."""

from accessibility import FOCUSABLE, FOCUSED, SELECTED, SHOWING
from waiting import until

FIELDS = (
    "Sender Name:",
    "Sender E-Mail:",
    "SMTP Server:",
    "Subject:",
    "Text Message:",
    "HTML Message:",
    "N° of messages in a packet:",
    "Delay between packets [min]:",
    "Control E-Mail:",
)


class Sorvanta:
    """The program as somebody sees it."""

    def __init__(self, running, tr):
        self.running = running
        self.desktop = running.desktop
        self.tr = tr
        self.main = None

    def shown(self, name=None):
        """The main window with a project's name, once it has the keyboard; returns itself."""
        title = f"{name or self.tr('ProjectCommands', 'No Name')} - Sorvanta ver. *"
        self.main = self.running.window(title)
        return self

    def control(self, role, text):
        """A control of the main window by its English name."""
        return self.running.control(self.main, role, self.tr("frmMain", text))

    def field(self, label):
        """A field."""
        return self.control("text", label)

    def fill(self, label, text):
        """Types a text into a field."""
        self.running.fill(self.field(label), text)

    def focused(self, before=None):
        """The control that has the keyboard, once it is another than before."""

        def found():
            for part in self.main.parts():
                if part != before and part.has(FOCUSED, FOCUSABLE):
                    return part
            return None

        return until(f"the keyboard to leave {before}", found)

    def tab(self):
        """Presses the Tab key; returns the control that gets the keyboard."""
        before = self.focused()
        self.desktop.press("Tab")
        return self.focused(before)

    def click(self, name):
        """Clicks on a button."""
        self.running.click(self.control("push button", name))

    @property
    def recipients(self):
        """The list of the recipients."""
        return self.control("tree", "Recipients")

    def click_heading(self, heading):
        """Clicks on a heading of the menu bar, and returns it."""
        bar = next(part for part in self.main.parts() if part.role == "menu bar")
        found = next(part for part in bar.children() if part.name == heading)
        self.running.click(found)
        return found

    def open_menu(self, heading, entry):
        """Clicks on a heading of the menu bar; returns an entry, once it is shown."""
        menu = self.click_heading(heading)

        def shown():
            for part in menu.children()[0].children():
                if part.name == entry and part.has(SHOWING):
                    return part
            return None

        return until(f"the entry '{entry}'", shown)

    def states(self):
        """Names, addresses and states of the rows."""
        rows = self.recipients
        return [
            tuple(rows.cell(row, column).name for column in (1, 2, 3)) for row in range(rows.rows)
        ]

    def wait_for_states(self, expected):
        """Waits until the rows are these."""
        until(lambda: f"{expected}; there is {self.states()}", lambda: self.states() == expected)

    def wait_for_label(self, words):
        """Waits until a text with these words is shown beside the progress."""

        def shown():
            return any(part.role == "label" and words in part.name for part in self.main.parts())

        until(f"'{words}'", shown)

    def fields(self):
        """What the fields say."""
        return {label: self.field(label).text for label in FIELDS}

    def box(self, *title):
        """A box, once it has the keyboard."""
        return self.running.window(self.tr(*title))

    def says(self, box):
        """What a box says."""
        return "\n".join(part.name for part in box.parts() if part.role == "label")

    def select(self, tree, row):
        """Clicks on a row of a list, counted from 0, once it is there."""
        until(f"row {row} of {tree}", lambda: tree.rows > row)
        cell = tree.cell(row, 0)
        self.desktop.click(cell)
        until(lambda: f"{cell} to be selected", lambda: cell.has(SELECTED))

    def answer(self, box, *keys):
        """Presses keys in a box and waits until it is closed."""
        self.desktop.press(*keys)
        self.running.wait_until_closed(box)

    def close(self):
        """Closes the main window as the window manager does."""
        # The window manager closes what has the keyboard in its own eyes.
        self.desktop.frame(self.running.window(self.main.name))
        self.desktop.press("alt+F4")

    def write(self, box, text):
        """Writes a text into the one field of a box and agrees."""
        field = until(
            "a field to write in",
            lambda: [part for part in box.parts() if part.role == "text"],
        )[0]
        self.running.fill(field, str(text))
        self.answer(box, "Return")

    def add(self, name, address):
        """Adds a recipient by hand; says both boxes' questions."""
        questions = []
        for text in (name, address):
            box = self.box("Recipients", "New recipient")
            questions.append(self.says(box))
            self.write(box, text)
        return questions

    def has_ended(self):
        """Waits for the end of the program, which must be a good one, without a word."""
        ended = self.running.wait_for_end()
        if ended != (0, ""):
            raise AssertionError(f"it ended with {ended}")
