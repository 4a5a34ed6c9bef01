"""What somebody finds at a desktop after the program was killed in the middle of a run."""

import unittest

from person import AtTheDesktop, rows
from server import REFUSES_FOR_NOW, SAYS_NOTHING
from waiting import until


class ARunThatWasKilled(AtTheDesktop):
    """Five people: one has the message, one was refused for now, one is in doubt."""

    waiting, sending, sent, error = "Waiting", "Sending...", "Sent", "Error!"
    resume = "Resume"
    numbers = "1 of 5 sent, 1 refused, 1 in doubt, 2 left."
    so_far = "1 of 5 sent, 1 refused, 1 in doubt."

    def setUp(self):
        super().setUp()
        self.people = rows(5)
        self.path = self.project(self.server, self.people)
        self.server.fail("RCPT", REFUSES_FOR_NOW, after=1)
        self.server.fail("content", SAYS_NOTHING, after=1)
        sorvanta = self.start(self.path).shown(self.path.name)
        sorvanta.click("Start")
        self.see_states(
            sorvanta, self.sent, self.error, self.sending, self.waiting, self.waiting
        )
        sorvanta.running.process.kill()
        sorvanta.running.process.wait()
        self.server.failures.clear()

    def see_states(self, sorvanta, *states):
        """Waits until the rows are in these states."""
        expected = [(row.name, row.address, state) for row, state in zip(self.people, states)]
        sorvanta.wait_for_states(expected)

    def choose(self, sorvanta, choice):
        """Answers the question about the run; says what it told."""
        box = sorvanta.box("Recovery", "Interrupted run")
        said = sorvanta.says(box)
        sorvanta.running.click(
            sorvanta.running.control(
                box, "push button", sorvanta.tr("MessageBox", choice).replace("&", "")
            )
        )
        sorvanta.running.wait_until_closed(box)
        return said

    @staticmethod
    def end(sorvanta):
        """Ends the program as the end of the session does, without a question."""
        sorvanta.running.process.terminate()
        sorvanta.has_ended()

    def test_it_is_asked_about_at_the_next_start_and_goes_on(self):
        sorvanta = self.start()
        self.assertIn(self.numbers, self.choose(sorvanta, "&Continue"))
        sorvanta.shown(self.path.name)
        sorvanta.wait_for_label(sorvanta.tr("Pacing", "Pause..."))
        resume = sorvanta.running.control(sorvanta.main, "push button", self.resume)
        sorvanta.running.click(resume)
        box = sorvanta.box("Dispatch", "Sending")
        sorvanta.answer(box, "Return")
        self.see_states(sorvanta, self.sent, self.error, self.sending, self.sent, self.sent)
        self.assertEqual(
            self.server.recipients(), [self.people[place].address for place in (0, 3, 4)]
        )
        self.end(sorvanta)

    def test_it_is_asked_about_when_its_project_is_opened_and_the_bar_leaves_the_rest(self):
        sorvanta = self.start(self.path)
        self.choose(sorvanta, "&Open as it is")
        sorvanta.shown(self.path.name)
        sorvanta.wait_for_label(self.so_far)
        sorvanta.click("Uncheck those sent")
        sorvanta.click("Start")
        box = sorvanta.box("Start", "Save")
        sorvanta.answer(box, "Return")
        box = sorvanta.box("Dispatch", "Sending")
        sorvanta.answer(box, "Return")
        # Who was refused for now is tried again; who is in doubt is not.
        self.assertEqual(
            self.server.recipients(), [self.people[place].address for place in (0, 1, 3, 4)]
        )
        self.assertEqual(list(self.folder.glob("Runs/*.run")), [])
        self.end(sorvanta)

    def test_a_double_click_on_the_state_tells_who_is_in_doubt(self):
        sorvanta = self.start(self.path)
        self.choose(sorvanta, "&Open as it is")
        sorvanta.shown(self.path.name)
        state = sorvanta.recipients.cell(2, 3)
        self.desktop.click(state)
        self.desktop.click(state)
        title = sorvanta.tr("frmDetails", "Details of %1").replace("%1", self.people[2].name)
        box = sorvanta.running.window(title)
        doubt = sorvanta.tr(
            "AttemptText", "in doubt: the connection ended before the server answered"
        )
        until(
            "the doubt in the details",
            lambda: any(doubt in part.name + (part.text or "") for part in box.parts()),
        )
        sorvanta.answer(box, "Escape")
        self.end(sorvanta)

    def test_forgetting_opens_the_project_as_it_was_saved(self):
        sorvanta = self.start(self.path)
        self.choose(sorvanta, "&Forget")
        sorvanta.shown(self.path.name)
        self.see_states(sorvanta, *["Waiting"] * 5)
        self.assertEqual(list(self.folder.glob("Runs/*.run")), [])
        self.end(sorvanta)


class ARunThatWasKilledInItalian(ARunThatWasKilled):
    """The same with Italian windows."""

    italian = True
    waiting, sending, sent, error = "Attesa", "Invio...", "Inviato", "Errore!"
    resume = "Riprendi"
    numbers = "1 di 5 inviato, 1 rifiutato, 1 in dubbio, 2 rimasti."
    so_far = "1 di 5 inviato, 1 rifiutato, 1 in dubbio."


if __name__ == "__main__":
    unittest.main()
