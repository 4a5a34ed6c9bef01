"""What somebody does at a desktop with a server that wants a login or shows a certificate, and what
there is to do before a message goes to everybody.
"""

import subprocess
import unittest

from accessibility import ACTIVE, CHECKED, ENABLED, FOCUSED, SELECTED
from desktop import RIGHT
from person import SOURCES, WORK, AtTheDesktop, Server, rows
from waiting import until

HOST = "127.0.0.1"
USER = "anna"
PASSWORD = "Trota-42"
CERTIFICATES = WORK / "certificates"


class WithAServer(AtTheDesktop):
    """A project of two recipients, and the words of the windows about its server."""

    subject = "A letter"

    def setUp(self):
        super().setUp()
        self.people = rows(2)
        self.path = self.project(self.server, self.people, subject=self.subject)

    def open(self):
        """The program with the project."""
        return self.start(self.path).shown(self.path.name)

    def account(self, name, *value):
        """What is kept about the server; with a value: keeps that."""
        ended = self.program.run("account", HOST, name, *value)
        self.assertEqual((ended.status, ended.messages), (0, ""))
        return ended.output.removesuffix("\n")

    def start_again(self, sorvanta):
        """Presses Start in a project that a run has changed."""
        sorvanta.click("Start")
        sorvanta.answer(sorvanta.box("Start", "Save"), "Return")

    def see_it_sent(self, sorvanta, times=1):
        """Sees the run to its end; everybody has got as many messages by now."""
        box = sorvanta.box("Dispatch", "Sending")
        self.assertEqual(sorvanta.says(box), sorvanta.tr("Dispatch", "Sending ended."))
        sorvanta.answer(box, "Return")
        expected = sorted(row.address for row in self.people) * times
        self.assertEqual(self.server.recipients(), sorted(expected))

    def see_error(self, sorvanta):
        """What the notice says with which a run fails; the run is over."""
        box = sorvanta.running.window("Error")
        said = sorvanta.says(box)
        sorvanta.answer(box, "Return")
        sorvanta.wait_for_label(sorvanta.tr("Pacing", "Not started"))
        self.assertEqual(self.server.received, [])
        return said

    def close(self, sorvanta):
        """Closes the program, which a run has changed."""
        sorvanta.close()
        sorvanta.answer(sorvanta.box("WindowLifecycle", "Save"), "Return")
        sorvanta.has_ended()

    def close_behind(self, sorvanta):
        """Closes the program from behind a window that has the keyboard."""
        self.desktop.click(sorvanta.control("label", "Subject:"))
        sorvanta.close()
        # The window manager loses a key now and then when the keyboard has just changed hands; a
        # person presses it again.
        if not sorvanta.running.ends_within(5):
            sorvanta.close()
        sorvanta.has_ended()


class WithALogin(WithAServer):
    """A server that wants to know who sends."""

    def serve(self):
        return Server(passwords={USER: PASSWORD})

    def setUp(self):
        super().setUp()
        self.account("User", USER)

    def login_box(self, sorvanta):
        """The box that asks for the login, while the run waits for it."""
        box = sorvanta.box("frmAccesso", "Server login")
        sorvanta.wait_for_label(sorvanta.tr("Pacing", "Waiting for the login..."))
        return box

    def enter(self, sorvanta, box, password):
        """Types a password, which the keyboard is ready for, and agrees."""
        self.desktop.type(password)
        agree = sorvanta.running.control(box, "push button", "OK")
        until("a login to agree with", lambda: agree.has(ENABLED))
        sorvanta.answer(box, "Return")

    def offers_to_remember(self, sorvanta, box):
        """Whether the box offers the keyring."""
        offer = sorvanta.tr("frmAccesso", "Remember in the keyring")
        return any(part.name == offer for part in box.parts())


class TheLogin(WithALogin):
    """The box that asks for it."""

    def test_the_box_asks_until_the_login_is_right_and_then_no_more(self):
        sorvanta = self.open()
        sorvanta.click("Start")
        box = self.login_box(sorvanta)
        self.assertFalse(self.offers_to_remember(sorvanta, box))
        self.assertIn(self.server.address, sorvanta.says(box))
        self.enter(sorvanta, box, "Trota-41")

        again = self.login_box(sorvanta)
        refused = sorvanta.tr("frmAccesso", "It did not accept the last login:")
        reason = sorvanta.running.control(again, "text", refused).text
        self.assertIn("535 5.7.8 Authentication credentials invalid", reason)
        user = sorvanta.running.control(again, "text", sorvanta.tr("frmAccesso", "User:"))
        self.assertEqual(user.text, USER)
        self.enter(sorvanta, again, PASSWORD)
        self.see_it_sent(sorvanta)
        self.assertEqual(self.server.logins, [(USER, False), (USER, True)])

        self.start_again(sorvanta)
        self.see_it_sent(sorvanta, times=2)
        self.assertEqual(self.server.logins[2:], [(USER, True)])
        self.close(sorvanta)


class TheLoginInItalian(TheLogin):
    """The same before an Italian window."""

    italian = True


class TheWindowBehindTheBox(WithALogin):
    """It stays as usable as ever."""

    def test_the_window_can_be_used_while_the_box_is_open(self):
        sorvanta = self.open()
        sorvanta.click("Start")
        box = self.login_box(sorvanta)
        sorvanta.click("Pause")
        sorvanta.wait_for_label(sorvanta.tr("Pacing", "Pause..."))
        self.assertIn(box, sorvanta.running.windows())
        sorvanta.click("Stop")
        sorvanta.answer(sorvanta.box("Pacing", "Stop"), "Return")
        sorvanta.running.wait_until_closed(box)
        sorvanta.wait_for_label(sorvanta.tr("Pacing", "Not started"))
        self.assertEqual((self.server.logins, self.server.received), ([], []))

        self.start_again(sorvanta)
        self.enter(sorvanta, self.login_box(sorvanta), PASSWORD)
        self.see_it_sent(sorvanta)
        self.close(sorvanta)

    def test_a_login_that_is_cancelled_ends_the_run(self):
        sorvanta = self.open()
        sorvanta.click("Start")
        sorvanta.answer(self.login_box(sorvanta), "Escape")
        cancelled = sorvanta.tr("LoginChain", "the login was cancelled")
        self.assertIn(cancelled, self.see_error(sorvanta))
        self.assertEqual({state for _, _, state in sorvanta.states()}, {"Waiting"})

    def test_a_test_and_a_run_ask_for_the_login_once(self):
        sorvanta = self.open()
        sorvanta.running.click(sorvanta.control("push button", "Start"), RIGHT)
        self.desktop.press("t")
        box = sorvanta.box("frmAccesso", "Server login")
        sorvanta.click("Start")

        def second():
            for window in sorvanta.running.windows():
                if window.name == box.name and window != box and window.has(ACTIVE):
                    return window
            return None

        self.enter(sorvanta, until("the box of the run", second), PASSWORD)
        sorvanta.running.wait_until_closed(box)
        sender, people = "sender@sorvanta.example", [row.address for row in self.people]
        everybody = sorted([sender, *people])
        until("all messages", lambda: self.server.recipients() == everybody)

    def test_the_program_ends_while_the_box_is_open(self):
        sorvanta = self.open()
        sorvanta.click("Start")
        self.login_box(sorvanta)
        self.close_behind(sorvanta)
        self.assertEqual(self.server.received, [])


class TheKeyring(WithALogin):
    """A desktop that keeps passwords."""

    keyring = True

    def test_a_password_that_is_to_be_remembered_is_asked_for_once(self):
        sorvanta = self.open()
        sorvanta.click("Start")
        box = self.login_box(sorvanta)
        self.assertTrue(self.offers_to_remember(sorvanta, box))
        remember = sorvanta.running.control(box, "check box", "Remember in the keyring")
        self.desktop.press("Tab", "space")
        until("the tick", lambda: remember.has(CHECKED))
        self.desktop.press("shift+Tab")
        self.enter(sorvanta, box, PASSWORD)
        self.see_it_sent(sorvanta)
        self.close(sorvanta)

        again = self.open()
        again.click("Start")
        self.see_it_sent(again, times=2)
        self.assertEqual(self.server.logins, [(USER, True)] * 2)
        self.close(again)


class WithACertificate(WithAServer):
    """An encrypted server for which nobody vouches."""

    def serve(self):
        if not (CERTIFICATES / "ca.pem").exists():
            maker = SOURCES / "tests" / "support" / "make-certificates"
            subprocess.run([maker, CERTIFICATES], check=True)
        return Server(certificate=CERTIFICATES / "self-signed.pem")


class TheAccount(WithACertificate):
    """The page of what is kept about the server."""

    def page(self, sorvanta):
        """Opens the page of the server's account."""
        sorvanta.click("Account of the server")
        title = sorvanta.tr("frmAccount", "Account of %1").replace("%1", HOST)
        return sorvanta.running.window(title)

    def press(self, sorvanta, page, button):
        """Clicks on a button of the page."""
        name = sorvanta.tr("frmAccount", button)
        sorvanta.running.click(sorvanta.running.control(page, "push button", name))

    def wait_for_result(self, sorvanta, page, *expected):
        """Waits until the report on the page says all this."""
        report = sorvanta.running.control(page, "list", "Result of the test")

        def said():
            lines = [line.name for line in report.children()]
            return all(any(words in line for line in lines) for words in expected)

        until(lambda: f"{expected} in {[line.name for line in report.children()]}", said)

    def test_the_page_of_the_account_trusts_a_certificate_until_it_is_removed(self):
        sorvanta = self.open()
        page = self.page(sorvanta)
        refused = ("Bad. Certificate: It does not verify", "Bad. Result: ")
        self.press(sorvanta, page, "Test the connection")
        self.wait_for_result(sorvanta, page, *refused)
        self.assertEqual(self.account("TrustedCertificates"), "")

        self.press(sorvanta, page, "Trust this certificate")
        trusted = ("You trust this certificate.", "Good. Result: All is well. Nothing was sent.")
        self.wait_for_result(sorvanta, page, *trusted)
        self.press(sorvanta, page, "Test the connection")
        self.wait_for_result(sorvanta, page, *trusted)
        known = sorvanta.running.control(page, "list", "Trusted certificates").children()
        self.assertEqual([line.name for line in known], [self.account("TrustedCertificates")])

        sorvanta.running.click(known[0])
        self.press(sorvanta, page, "Remove the certificate")
        self.press(sorvanta, page, "Test the connection")
        self.wait_for_result(sorvanta, page, *refused)
        self.assertEqual(self.account("TrustedCertificates"), "")
        self.assertEqual(self.server.received, [])
        self.close_behind(sorvanta)


class TheQuestionInItalian(WithACertificate):
    """A run meets the certificate before anybody has looked at it; the window is Italian."""

    italian = True

    def test_a_run_asks_whether_to_trust_the_certificate(self):
        sorvanta = self.open()
        sorvanta.click("Start")
        self.see_error(sorvanta)
        box = sorvanta.box("CertificateQuestion", "Certificate")
        self.assertIn(HOST, sorvanta.says(box))
        # Who closes the notice in haste has trusted nobody.
        sorvanta.answer(box, "Return")
        self.assertEqual(self.account("TrustedCertificates"), "")

        sorvanta.click("Start")
        self.see_error(sorvanta)
        box = sorvanta.box("CertificateQuestion", "Certificate")
        sorvanta.answer(box, "s")
        notice = sorvanta.box("CertificateQuestion", "Certificate")
        sorvanta.answer(notice, "Return")
        self.assertNotEqual(self.account("TrustedCertificates"), "")

        sorvanta.click("Start")
        self.see_it_sent(sorvanta)
        self.close(sorvanta)


class BeforeItIsSent(WithAServer):
    """What the menu of Start is for."""

    subject = "A LETTER IN CAPITALS"

    def check(self, sorvanta):
        """Opens the menu with the mouse and chooses the check."""
        sorvanta.running.click(sorvanta.control("push button", "Start"), RIGHT)
        self.desktop.press("Down", "Return")
        return sorvanta.box("frmCheck", "Check before sending")

    def finding(self, sorvanta, box, words):
        """The line with these words, once the server has been asked."""
        asked = sorvanta.tr("frmCheck", "Click on a line, or press Enter, to go where it is put right.")
        until("the findings", lambda: sorvanta.says(box) == asked)
        findings = sorvanta.running.control(box, "list", sorvanta.tr("frmCheck", "Findings"))
        return next(line for line in findings.children() if words in line.name)

    def test_a_finding_leads_to_where_it_is_put_right(self):
        self.people += rows(1)
        self.path = self.project(self.server, self.people, subject=self.subject)
        sorvanta = self.open()
        box = self.check(sorvanta)
        twice = '"r1@list.example" would get the message twice: rows 1 and 3.'
        sorvanta.running.click(self.finding(sorvanta, box, twice))
        row = sorvanta.recipients.cell(2, 0)
        until("the row of the duplicate", lambda: row.has(SELECTED, FOCUSED))
        # The window manager hands the keyboard over when it comes to it; that must be done before
        # the line is clicked on, as people are no faster.
        self.desktop.click(next(part for part in box.parts() if part.role == "label"))
        sorvanta.box("frmCheck", "Check before sending")
        sorvanta.running.click(self.finding(sorvanta, box, "The subject is in capital letters"))
        subject = sorvanta.field("Subject:")
        until("the keyboard in the subject", lambda: subject.has(FOCUSED))
        self.desktop.type("x")
        until("a letter in the subject", lambda: "x" in subject.text)
        sorvanta.shown(self.path.name)
        sorvanta.close()
        sorvanta.answer(sorvanta.box("WindowLifecycle", "Save"), "alt+n")
        sorvanta.has_ended()
        self.assertEqual(self.server.received, [])

    def test_a_test_goes_to_the_sender_and_leaves_everything_as_it_is(self):
        saved = self.path.read_bytes()
        sorvanta = self.open()
        before = sorvanta.states()
        while sorvanta.focused() != sorvanta.control("push button", "Start"):
            sorvanta.tab()
        self.desktop.press("Menu", "t")

        def result():
            # A window of the same name says before that the test is on its way.
            box = sorvanta.box("TestToSender", "Test message")
            return box if "The server accepted the message" in sorvanta.says(box) else None

        box = until("the result of the test", result)
        self.assertEqual(self.server.recipients(), ["sender@sorvanta.example"])
        text = self.server.received[0].message.get_content()
        self.assertEqual(text.splitlines()[0], f"Dear {self.people[0].name},")
        sorvanta.answer(box, "Return")
        self.assertEqual(sorvanta.states(), before)
        sorvanta.close()
        sorvanta.has_ended()
        self.assertEqual(self.path.read_bytes(), saved)

    def test_the_program_ends_while_the_findings_are_open(self):
        sorvanta = self.open()
        self.check(sorvanta)
        self.close_behind(sorvanta)


if __name__ == "__main__":
    unittest.main()
