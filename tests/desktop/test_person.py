"""What somebody does with the program at a desktop, by keyboard and mouse."""

import signal
import unittest

from accessibility import CHECKED, ENABLED, FOCUSABLE, FOCUSED
from person import AtTheDesktop, rows
from waiting import until

LETTER = "Dear *NOME*,\n\nthe walk is on Sunday.\n"


class AMailing(AtTheDesktop):
    """From the empty window to the received messages."""

    sent = "Sent"
    waiting = "Waiting"
    people = (("Anna Hill", "anna@list.example"), ("Bruno Lark", "bruno@list.example"))
    typed = {
        "Sender Name:": "Larkhill Walking Club",
        "Sender E-Mail:": "news@larkhill.example",
        "Subject:": "Spring walks and cake",
        "N° of messages in a packet:": "10",
        "Delay between packets [min]:": "1",
    }

    def setUp(self):
        super().setUp()
        self.letter = self.file("letter.txt", LETTER)
        self.project_file = self.folder / "walks.svk"

    def test_a_mailing_is_made_sent_saved_and_found_again(self):
        sorvanta = self.start().shown()
        self.make(sorvanta)
        self.send_it(sorvanta)
        sorvanta.close()
        sorvanta.answer(sorvanta.box("WindowLifecycle", "Save"), "Return")
        sorvanta.has_ended()

        again = self.start(self.project_file).shown("walks.svk")
        self.assertEqual(again.fields(), self.fields)
        self.assertEqual(again.states(), self.with_state(self.sent))
        again.close()
        again.has_ended()
        for name, label in (("Mittente", "Sender Name:"), ("EmailMittente", "Sender E-Mail:")):
            self.assertEqual(self.setting(name), self.typed[label])
        self.assertEqual(self.setting("Server"), self.server.address)
        self.see_messages()

    def make(self, sorvanta):
        """Types a project and saves it."""
        for label, text in (self.typed | {"SMTP Server:": self.server.address}).items():
            sorvanta.fill(label, text)
        for name, address in self.people:
            sorvanta.click("Add a recipient")
            sorvanta.add(name, address)
        sorvanta.wait_for_states(self.with_state(self.waiting))
        sorvanta.click("Browse for the text message")
        box = sorvanta.box("MessageFiles", "Select the message file:", "text file")
        sorvanta.write(box, self.letter)
        sorvanta.running.wait_for_text(sorvanta.field("Text Message:"), str(self.letter))
        sorvanta.click("Save as...")
        sorvanta.write(
            sorvanta.box("ProjectCommands", "Select the file to save:"), self.project_file
        )
        sorvanta.shown(self.project_file.name)
        self.fields = sorvanta.fields()

    def send_it(self, sorvanta):
        """Presses Start and sees it through."""
        sorvanta.click("Start")
        sorvanta.answer(sorvanta.box("Start", "Save"), "Return")
        box = sorvanta.box("Dispatch", "Sending")
        self.assertEqual(sorvanta.says(box), sorvanta.tr("Dispatch", "Sending ended."))
        sorvanta.wait_for_states(self.with_state(self.sent))
        sorvanta.answer(box, "Return")

    def with_state(self, state):
        """The rows, each with this state."""
        return [(name, address, state) for name, address in self.people]

    def see_messages(self):
        """Everybody has got one, with the name in it."""
        self.assertEqual(len(self.server.received), len(self.people))
        for received, (name, address) in zip(self.server.received, self.people):
            message = received.message
            self.assertEqual(received.recipients, [address])
            self.assertEqual(message["To"], address)
            self.assertEqual(message["Subject"], self.typed["Subject:"])
            sender = (self.typed["Sender Name:"], self.typed["Sender E-Mail:"])
            self.assertEqual(received.sender_shown, sender)
            self.assertEqual(
                message.get_content().splitlines(), LETTER.replace("*NOME*", name).splitlines()
            )


class AMailingInItalian(AMailing):
    """The same before an Italian window, with an Italian keyboard."""

    italian = True
    sent = "Inviato"
    waiting = "Attesa"
    people = (("Niccolò Rè", "niccolo@list.example"), ("Zoè Papà", "zoe@list.example"))
    typed = AMailing.typed | {
        "Sender Name:": "Società dei camminatori",
        "Subject:": "Più passeggiate perché è primavera",
    }


class TheKeyboard(AtTheDesktop):
    """Everything without a mouse."""

    def test_a_recipient_comes_and_goes_and_the_project_is_saved(self):
        path = self.project(self.server, [])
        sorvanta = self.start(path).shown(path.name)
        while sorvanta.tab() != sorvanta.recipients:
            pass
        self.desktop.press("Insert")
        questions = sorvanta.add("Anna Hill", "anna@list.example")
        self.assertEqual(
            questions, ["Name of the new recipient:", "E-mail address of the new recipient:"]
        )
        sorvanta.wait_for_states([("Anna Hill", "anna@list.example", "Waiting")])
        self.assertNotIn(b"anna@list.example", path.read_bytes())

        self.desktop.press("ctrl+a")
        box = sorvanta.recipients.cell(0, 0)
        for checked in (False, True):
            self.desktop.press("space")
            until(f"checked {checked}", lambda wanted=checked: box.has(CHECKED) == wanted)
        self.desktop.press("ctrl+s")
        until("the saved project", lambda: b"anna@list.example" in path.read_bytes())
        self.desktop.press("Delete")
        sorvanta.wait_for_states([])
        self.desktop.press("ctrl+s")
        until("the project without", lambda: b"anna@list.example" not in path.read_bytes())

    def test_the_tab_key_goes_round_and_comes_to_everything_once(self):
        sorvanta = self.start(self.project(self.server, rows(2))).shown("mailing.svk")
        controls = [part for part in sorvanta.main.parts() if part.has(FOCUSABLE, ENABLED)]
        round_trip = [sorvanta.focused()]
        while len(round_trip) <= len(controls):
            control = sorvanta.tab()
            if control == round_trip[0]:
                break
            round_trip.append(control)
        names = sorted(map(repr, controls))
        self.assertEqual(sorted(map(repr, round_trip)), names)
        # Somebody who cannot see can tell them apart.
        self.assertEqual(sorted(set(names)), names)
        self.assertNotIn("", [control.name for control in controls])


class TheEnd(AtTheDesktop):
    """Ways in which the program ends, and what it leaves behind."""

    def open(self, **fields):
        """The program with a project of two recipients."""
        self.path = self.project(self.server, rows(2), **fields)
        self.saved = self.path.read_bytes()
        return self.start(self.path).shown(self.path.name)

    def test_sigterm_ends_it_without_a_question_and_keeps_the_settings(self):
        sorvanta = self.open()
        sorvanta.fill("Sender Name:", "Somebody else")
        sorvanta.running.process.send_signal(signal.SIGTERM)
        sorvanta.has_ended()
        self.assertEqual(self.setting("Mittente"), "Somebody else")
        self.assertEqual(self.setting("Server"), self.server.address)
        self.assertEqual(self.path.read_bytes(), self.saved)

    def test_sigterm_ends_it_while_a_run_waits_for_its_next_packet(self):
        sorvanta = self.open(packet=1, delay=2)
        sorvanta.click("Start")
        sorvanta.wait_for_label(" minutes...")
        self.assertEqual([state for _, _, state in sorvanta.states()], ["Sent", "Waiting"])
        sorvanta.running.process.send_signal(signal.SIGTERM)
        sorvanta.has_ended()
        self.assertEqual(self.setting("Server"), self.server.address)
        self.assertEqual(self.server.recipients(), ["r1@list.example"])

    def test_exit_ends_it_at_once_and_keeps_nothing(self):
        sorvanta = self.open()
        sorvanta.fill("Sender Name:", "Somebody else")
        sorvanta.running.click(sorvanta.open_menu("File", "Exit"))
        sorvanta.has_ended()
        self.assertEqual(self.setting("Mittente"), "")
        self.assertEqual(self.setting("Server"), "")
        self.assertEqual(self.path.read_bytes(), self.saved)


class TheBeginning(AtTheDesktop):
    """Ways in which the program starts."""

    def test_two_copies_run_side_by_side(self):
        path = self.project(self.server, rows(2))
        first = self.start(path).shown(path.name)
        second = self.start().shown()
        second.fill("Subject:", "The second")
        self.assertEqual(first.field("Subject:").text, "A letter")
        second.close()
        second.answer(second.box("WindowLifecycle", "Save"), "alt+n")
        second.has_ended()
        first.fill("Subject:", "The first")
        first.close()
        first.answer(first.box("WindowLifecycle", "Save"), "alt+n")
        first.has_ended()

    def test_a_project_that_cannot_be_read_leaves_a_usable_window(self):
        missing = self.folder / "missing.svk"
        sorvanta = self.start(missing)
        box = sorvanta.box("ProjectFile", "Open")
        said = sorvanta.says(box)
        self.assertIn("Unable to load the specified file!", said)
        self.assertIn(str(missing), said)
        sorvanta.answer(box, "Return")
        sorvanta.shown().fill("Subject:", "A new one")


if __name__ == "__main__":
    unittest.main()
