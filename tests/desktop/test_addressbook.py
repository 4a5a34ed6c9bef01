"""What a new user does at a desktop with the address books, up to a mailing to one of them."""

import unittest

from person import AtTheDesktop
from waiting import until


class Window:
    """A window of the address books; its controls by their English names."""

    def __init__(self, sorvanta, context, title):
        self.sorvanta = sorvanta
        self.context = context
        self.window = sorvanta.box(context, title)

    def tr(self, text):
        """A text of the window as it is shown."""
        return self.sorvanta.tr(self.context, text).replace("&", "")

    def control(self, role, text):
        """A control."""
        return self.sorvanta.running.control(self.window, role, self.tr(text))

    def click(self, button):
        """Clicks on a button."""
        self.sorvanta.running.click(self.control("push button", button))

    def press(self, key):
        """Presses a key, once the window has the keyboard."""
        self.sorvanta.running.window(self.window.name)
        self.sorvanta.desktop.press(key)

    def confirm(self):
        """Clicks on OK and waits until the window is closed."""
        running = self.sorvanta.running
        running.click(running.control(self.window, "push button", "OK"))
        running.wait_until_closed(self.window)

    def rows(self, name):
        """The texts of a list."""
        texts = self.control("tree", name)
        return [
            tuple(texts.cell(row, column).name for column in range(texts.columns))
            for row in range(texts.rows)
        ]

    def wait_for_rows(self, name, expected):
        """Waits until a list shows these rows."""
        until(
            lambda: f"{expected}; there is {self.rows(name)}",
            lambda: self.rows(name) == expected,
        )

    def select(self, name, row):
        """Clicks on a row of a list, counted from 0."""
        self.sorvanta.select(self.control("tree", name), row)


class AMailingToABook(AtTheDesktop):
    """From no address book at all to the received messages."""

    standard, book, other = "Standard", "Walkers", "Old friends"
    waiting, sent = "Waiting", "Sent"
    person = {
        "Name:": "Anna Hill",
        "Company:": "Hill and Daughter",
        "E-Mail:": "anna@list.example",
        "Address:": "3 Mill Lane",
        "Town/City:": "Larkhill",
        "State:": "Wiltshire",
        "Post/Zip Code:": "SP4 8QT",
        "Country:": "England",
        "Telephone:": "01980 111",
        "Fax:": "01980 222",
        "Mobile phone:": "07700 333",
        "Notes:": "Brings the cake.\nAsk for her sister.",
    }
    company = {"Company:": "Larkhill Bakery", "E-Mail:": "shop@list.example"}
    correction = {"E-Mail:": "bakery@list.example", "Town/City:": "Larkhill"}
    stranger = {"Name:": "Bruno Lark", "E-Mail:": "bruno@list.example"}
    people = (
        ("Anna Hill - Hill and Daughter", "anna@list.example"),
        ("Larkhill Bakery", "bakery@list.example"),
    )
    lines = (
        "Anna Hill - Hill and Daughter;anna@list.example;Anna Hill;Hill and Daughter;3 Mill Lane;"
        "Larkhill;Wiltshire;SP4 8QT;England;01980 111;01980 222;07700 333;"
        r"Brings the cake.\n\rAsk for her sister.;",
        "Larkhill Bakery;bakery@list.example;;Larkhill Bakery;;Larkhill;;;;;;;;",
    )

    def test_a_book_is_made_and_everybody_in_it_gets_one_message(self):
        self.path = self.project(self.server, [])
        sorvanta = self.start(self.path).shown(self.path.name)
        self.assertEqual(self.files(), [])
        self.make(sorvanta)
        self.see_files()
        self.take_recipients(sorvanta)
        self.send(sorvanta)
        self.see_messages()
        # Neither the import nor the run has touched the book.
        self.see_files()

    def files(self):
        """The files of the address books."""
        return sorted(
            path.name for pattern in ("*.rub", "rubrica.ini") for path in self.folder.glob(pattern)
        )

    def make(self, sorvanta):
        """Makes the books and their contacts, and tries what must not be done."""
        sorvanta.click_heading(sorvanta.tr("frmMain", "&Address Book").replace("&", ""))
        window = Window(sorvanta, "frmRubrica", "Address Book")
        self.assertEqual(self.files(), ["rubrica.ini", "rubrica.rub"])
        window.wait_for_rows("Address Books", [(self.standard,)])
        self.add_book(window, self.book)
        window.wait_for_rows("Address Books", [(self.standard,), (self.book,)])

        for contact in (self.person, self.company, self.stranger):
            window.click("&New")
            self.write_contact(sorvanta, "New Contact", contact)
        shown = (self.stranger["Name:"], self.stranger["E-Mail:"])
        before = (self.company["Company:"], self.company["E-Mail:"])
        window.wait_for_rows("Contacts", [self.people[0], before, shown])
        window.select("Contacts", 1)
        window.press("F2")
        self.write_contact(sorvanta, "Edit Contact", self.correction)
        window.wait_for_rows("Contacts", [*self.people, shown])
        window.select("Contacts", 2)
        window.click("&Delete")
        question = "Are you sure to delete *N* selected contact(s)?"
        self.answer_box(sorvanta, question, **{"*N*": "1"})
        window.wait_for_rows("Contacts", list(self.people))

        self.refuse_to_delete_the_standard_book(sorvanta, window)
        self.add_and_delete_a_book(sorvanta, window)
        window.click("&Close")
        sorvanta.running.wait_until_closed(window.window)

    def add_book(self, window, name):
        """Adds a book, with the file that is proposed."""
        window.click("&Add")
        sorvanta = window.sorvanta
        box = sorvanta.running.window("Sorvanta")
        question = sorvanta.tr("AddressBooks", "Insert the name for the new address book:")
        self.assertEqual(sorvanta.says(box), question)
        sorvanta.write(box, name)
        box = sorvanta.box("AddressBooks", "New address book")
        field = next(part for part in box.parts() if part.role == "text")
        sorvanta.running.wait_for_text(field, f"{name}.rub")
        sorvanta.answer(box, "Return")

    @staticmethod
    def write_contact(sorvanta, title, fields):
        """Fills the editor and agrees."""
        editor = Window(sorvanta, "frmContatto", title)
        for label, text in fields.items():
            sorvanta.running.fill(editor.control("text", label), text)
        editor.confirm()

    def answer_box(self, sorvanta, text, **replaced):
        """Sees what a box says, and presses Enter in it."""
        box = sorvanta.running.window("Sorvanta")
        expected = sorvanta.tr("AddressBooks", text)
        for word, number in replaced.items():
            expected = expected.replace(word, number)
        self.assertEqual(sorvanta.says(box), expected)
        sorvanta.answer(box, "Return")

    def refuse_to_delete_the_standard_book(self, sorvanta, window):
        """Tries it."""
        window.select("Address Books", 0)
        window.wait_for_rows("Contacts", [])
        window.click("&Remove")
        self.answer_box(sorvanta, "The standard address book can't be deleted.")
        self.assertEqual(window.rows("Address Books"), [(self.standard,), (self.book,)])

    def add_and_delete_a_book(self, sorvanta, window):
        """Its file stays."""
        self.add_book(window, self.other)
        window.wait_for_rows("Address Books", [(self.standard,), (self.book,), (self.other,)])
        window.click("&Remove")
        self.answer_box(
            sorvanta,
            "Are you sure to delete the selected address book? All the contacts will be deleted! "
            "Do you want to continue?",
        )
        window.wait_for_rows("Address Books", [(self.standard,), (self.book,)])

    def see_files(self):
        """They hold what was entered, to the byte."""
        names = [f"{self.book}.rub", f"{self.other}.rub", "rubrica.ini", "rubrica.rub"]
        self.assertEqual(self.files(), sorted(names))
        path = self.folder / f"{self.book}.rub"
        self.see_bytes("rubrica.ini", self.standard, "rubrica.rub", self.book, str(path))
        self.see_bytes("rubrica.rub")
        self.see_bytes(path.name, *self.lines)
        self.see_bytes(f"{self.other}.rub")

    def see_bytes(self, name, *lines):
        """A file holds these lines and nothing else."""
        expected = "".join(f"{line}\r\n" for line in lines).encode("cp1252")
        self.assertEqual((self.folder / name).read_bytes(), expected)

    def with_state(self, state):
        """The rows of the people, who are sorted by name in the list of recipients."""
        return [(*person, state) for person in sorted(self.people)]

    def take_recipients(self, sorvanta):
        """Makes the book the project's recipients."""
        sorvanta.shown(self.path.name).click("Import from address book...")
        window = Window(sorvanta, "frmRubriche", "Address Books")
        window.wait_for_rows("Address Books", [(self.standard,), (self.book,)])
        window.select("Address Books", 1)
        window.confirm()
        sorvanta.wait_for_states(self.with_state(self.waiting))

    def send(self, sorvanta):
        """Sends to them, and closes the program."""
        sorvanta.click("Start")
        sorvanta.answer(sorvanta.box("Start", "Save"), "Return")
        box = sorvanta.box("Dispatch", "Sending")
        self.assertEqual(sorvanta.says(box), sorvanta.tr("Dispatch", "Sending ended."))
        sorvanta.answer(box, "Return")
        sorvanta.wait_for_states(self.with_state(self.sent))
        sorvanta.close()
        sorvanta.answer(sorvanta.box("WindowLifecycle", "Save"), "Return")
        sorvanta.has_ended()

    def see_messages(self):
        """Everybody has got one, with the name in it."""
        got = [
            (received.recipients, received.message.get_content().splitlines()[0])
            for received in self.server.received
        ]
        expected = [([address], f"Dear {name},") for name, address in sorted(self.people)]
        self.assertEqual(got, expected)


class AMailingToABookInItalian(AMailingToABook):
    """The same with Italian windows, and letters that are no English ones."""

    italian = True
    standard, book, other = "Principale", "Più soci", "Società"
    waiting, sent = "Attesa", "Inviato"
    person = AMailingToABook.person | {
        "Name:": "Niccolò Rè",
        "Company:": "Caffè Perù",
        "E-Mail:": "niccolo@list.example",
        "Town/City:": "Forlì",
        "Notes:": "Porta la torta.\nPerché no?",
    }
    company = {"Company:": "La Libertà", "E-Mail:": "bar@list.example"}
    correction = {"E-Mail:": "liberta@list.example", "Town/City:": "Cantù"}
    stranger = {"Name:": "Zoè Papà", "E-Mail:": "zoe@list.example"}
    people = (
        ("Niccolò Rè - Caffè Perù", "niccolo@list.example"),
        ("La Libertà", "liberta@list.example"),
    )
    lines = (
        "Niccolò Rè - Caffè Perù;niccolo@list.example;Niccolò Rè;Caffè Perù;3 Mill Lane;"
        "Forlì;Wiltshire;SP4 8QT;England;01980 111;01980 222;07700 333;"
        r"Porta la torta.\n\rPerché no?;",
        "La Libertà;liberta@list.example;;La Libertà;;Cantù;;;;;;;;",
    )


if __name__ == "__main__":
    unittest.main()
