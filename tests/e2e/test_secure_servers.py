"""Mailings through Postfix, Exim and Dovecot with encryption and logins."""

import unittest

from dovecot import Dovecot
from endtoend import states
from exim import Exim
from mail_servers import MECHANISMS, PASSWORD, SUBMISSION_DOOR, TLS_DOOR, USER, Door
from own_machine import ADDRESS, HOST
from postfix import Postfix
from scripted_server import ScriptedServer
from secure import Secure, fingerprint, prepare, shapes

# What is said about a certificate that does not verify.
PROBLEMS = {
    "expired": "expired on",
    "other-name": "it is for other.example, not for mail.example",
    "unknown-issuer": "An authority that nobody knows",
    "self-signed": "signed by nobody but itself",
}


class WithLogins:
    """What every server with logins must show; the subclasses name the server."""

    doors = (TLS_DOOR, SUBMISSION_DOOR)

    def setUp(self):
        super().setUp()
        self.account("User", USER)

    def test_a_mailing_goes_through_each_door_once(self):
        for door in self.doors:
            with self.subTest(port=door.port), self.serve(doors=[door]) as server:
                self.send(self.mailing(door.port), *self.password(), "--save")
                self.assert_each_got_one(server, 3)
                self.assertEqual(set(states(self.folder / "mailing.svk").values()), {"Sent"})

    def test_the_mechanism_that_is_offered_is_used(self):
        for mechanism in MECHANISMS:
            with self.subTest(mechanism), self.serve(mechanisms=(mechanism,)) as server:
                trace = ["--trace", self.trace]
                self.send(self.mailing(587), *self.password(), *trace)
                self.assertIn(f"C: AUTH {mechanism}", self.traced())
                self.assert_each_got_one(server, 3)

    def test_a_wrong_password_is_3_and_marks_no_row(self):
        with self.serve() as server:
            for port in (465, 587):
                project = self.mailing(port)
                self.send(project, *self.password("wrong"), "--save", status=3)
                self.assertEqual(set(states(project).values()), {"Waiting"})
            self.assert_nothing_arrived(server)

    def test_check_finds_a_wrong_password(self):
        with self.serve():
            project = self.mailing(587)
            self.run_well("check", project, *self.password())
            ended = self.run_well("check", project, *self.password("wrong"), status=2)
            self.assertIn("fails: ", ended.output)

    def test_netrc_is_read_unless_others_can_read_it(self):
        with self.serve() as server:
            self.netrc(0o644)
            ended = self.send(self.mailing(587), status=3)
            self.assertIn(".netrc", ended.messages)
            self.assert_nothing_arrived(server)
            self.netrc(0o600)
            self.send(self.mailing(587))
            self.assert_each_got_one(server, 3)

    def test_certificates_that_do_not_verify_are_refused_until_trusted(self):
        for name, problem in PROBLEMS.items():
            with self.subTest(name), self.serve(certificate=name) as server:
                project = self.mailing(587)
                ended = self.send(project, *self.password(), status=3)
                self.assertIn(problem, ended.messages)
                self.assertIn(fingerprint(name), ended.messages)
                self.send(self.mailing(465), *self.password(), status=3)
                self.assert_nothing_arrived(server)
                self.account("TrustedCertificates", fingerprint(name))
                self.send(project, *self.password())
                self.assert_each_got_one(server, 3)
                self.account("TrustedCertificates", "")
                self.send(project, *self.password(), "--again", status=3)
                self.assert_each_got_one(server, 3)

    def test_a_trusted_certificate_is_no_trust_in_another(self):
        self.account("TrustedCertificates", fingerprint("expired"))
        with self.serve(certificate="self-signed") as server:
            self.send(self.mailing(587), *self.password(), status=3)
            self.assert_nothing_arrived(server)

    def test_a_server_is_tried_out_and_nothing_is_sent(self):
        with self.serve() as server:
            for port in (465, 587):
                ended = self.run_well("server", f"{HOST}:{port}", *self.password())
                for said in (ADDRESS, "TLSv1.", fingerprint("good"), "PIPELINING", USER):
                    self.assertIn(said, ended.output)
                self.run_well("server", f"{HOST}:{port}", *self.password("wrong"), status=3)
            self.assert_nothing_arrived(server)

    def test_a_test_message_goes_to_the_address_given(self):
        with self.serve() as server:
            project = self.mailing(587)
            before = project.read_bytes()
            to = ["--to", "r1@list.example", "--row", "2"]
            self.run_well("test", project, *to, *self.password())
            self.assert_each_got_one(server, 1)
            self.assertIn(b"Dear Name 2,", server.received(1)[0])
            self.run_well("test", project, *to, *self.password("wrong"), status=3)
            self.assertEqual(project.read_bytes(), before)
            self.assert_each_got_one(server, 1)

    def test_the_password_is_nowhere(self):
        wrong = "Quite*another=1"
        said = []
        with self.serve(mechanisms=("LOGIN",)), self.subTest("LOGIN"):
            said += self.everything_said(wrong)
        with self.serve(mechanisms=("PLAIN",)), self.subTest("PLAIN"):
            said += self.everything_said(wrong)
        kept = [path for path in self.folder.rglob("*") if path.is_file()]
        self.assertIn(self.trace, kept)
        self.assertIn("C: AUTH", self.trace.read_text("utf-8"))
        said += [path.read_bytes() for path in kept if path != self.program.path]
        for secret in (PASSWORD, wrong):
            for shape in shapes(secret):
                for text in said:
                    self.assertNotIn(shape, text)

    def everything_said(self, wrong):
        """What the program prints in runs that go well and in those that do not."""
        self.account("Trace", "1")
        trace = ["--trace", self.trace]
        project = self.mailing(587)
        for password, status in ((wrong, 3), (PASSWORD, 0)):
            options = [*self.password(password), *trace]
            runs = [
                self.run_well("server", f"{HOST}:587", *options, status=status),
                self.run_well("test", project, "--to", "r9@list.example", *options, status=status),
                self.run_well("send", project, "--again", "--save", *options, status=status),
            ]
            for ended in runs:
                yield ended.output.encode()
                yield ended.messages.encode()


class WithRelay:
    """What a server's port 25 must show, where a login is not usual."""

    def test_port_25_takes_any_certificate_and_no_login(self):
        for name in ("good", *PROBLEMS):
            with self.subTest(name), self.serve(certificate=name) as server:
                self.send(self.mailing(25), "--trace", self.trace)
                self.assert_each_got_one(server, 3)
                trace = self.traced()
                self.assertIn("C: STARTTLS", trace)
                self.assertNotIn("C: AUTH", trace)

    def test_port_25_logs_in_when_the_server_asks_at_mail(self):
        door = Door(25, "STARTTLS", "MAIL")
        self.netrc(0o600)
        with self.serve(doors=[door]) as server:
            self.send(self.mailing(25))
            self.assert_each_got_one(server, 3)

    def test_port_25_says_no_secret_to_a_certificate_that_does_not_verify(self):
        door = Door(25, "STARTTLS", "MAIL")
        self.netrc(0o600)
        with self.serve(doors=[door], certificate="self-signed") as server:
            self.send(self.mailing(25), "--trace", self.trace, status=3)
            self.assertNotIn("C: AUTH", self.traced())
            self.assert_nothing_arrived(server)


class ThroughPostfix(WithLogins, Secure):
    """Asks for the login at RCPT."""

    server_class = Postfix


class ThroughExim(WithLogins, Secure):
    """Ends a session after so many messages."""

    server_class = Exim

    def test_421_after_some_messages_loses_and_doubles_none(self):
        with self.serve(messages_in_session=4) as server:
            for port in (465, 587):
                self.send(self.mailing(port, 10, packet=100), *self.password(), "--save")
            messages = server.received(20)
            self.assertEqual(len(messages), 20)
            for i in range(1, 11):
                to = f"To: r{i}@list.example".encode()
                self.assertEqual(sum(to in message.splitlines() for message in messages), 2)

    def test_starttls_withdrawn_is_reported_and_nothing_is_said_in_clear(self):
        with self.serve() as server:
            self.send(self.mailing(587), *self.password())
            self.assert_each_got_one(server, 3)
        with self.serve(doors=[Door(587, "none")]) as server:
            ended = self.send(
                self.mailing(587), *self.password(), "--trace", self.trace, status=3
            )
            self.assertIn("STARTTLS", ended.messages + ended.output)
            self.assertNotRegex(self.traced(), "C: (AUTH|MAIL|RCPT|DATA|BDAT)")
            self.assert_nothing_arrived(server)
            # Whoever knows why forgets that it was offered.
            self.account("User", "")
            self.account("StartTls", "")
            self.send(self.mailing(587))
            self.assert_each_got_one(server, 3)


class ThroughDovecot(WithLogins, Secure):
    """Hands on what it takes; says nothing before the login."""

    server_class = Dovecot


class RelayedByPostfix(WithRelay, Secure):
    """Port 25 of Postfix."""

    server_class = Postfix


class RelayedByExim(WithRelay, Secure):
    """Port 25 of Exim."""

    server_class = Exim


class InTheMiddle(Secure):
    """Somebody between the program and its server changes what they say."""

    def setUp(self):
        super().setUp()
        self.account("User", USER)

    def test_a_reply_put_in_before_the_encryption_is_refused(self):
        answers = {
            "EHLO": b"250-scripted.example\r\n250-AUTH PLAIN\r\n250 STARTTLS\r\n",
            "STARTTLS": b"220 go\r\n250 injected\r\n",
        }
        with ScriptedServer(ADDRESS, 587, answers) as server:
            self.send(self.mailing(587), *self.password(), status=3)
        self.assertRegex(server.heard, rb"(?s)\AEHLO [^\r\n]+\r\nSTARTTLS\r\n")
        # What may follow is a record of TLS, no command.
        behind = server.heard.split(b"STARTTLS\r\n")[1]
        self.assertIn(behind[:1], (b"", b"\x16", b"\x15"))
        self.assertNotRegex(behind, rb"(EHLO|HELO|AUTH|MAIL|QUIT)")

    def test_no_password_is_said_without_encryption(self):
        answers = {
            "EHLO": b"250-scripted.example\r\n250 AUTH PLAIN LOGIN\r\n",
            "QUIT": b"221 bye\r\n",
        }
        with ScriptedServer(ADDRESS, 587, answers) as server:
            self.send(self.mailing(587), *self.password(), status=3)
            self.run_well("server", f"{HOST}:587", *self.password(), status=3)
        self.assertIn(b"EHLO", server.heard)
        self.assertNotIn(b"AUTH", server.heard)
        for shape in shapes(PASSWORD):
            self.assertNotIn(shape, server.heard)


if __name__ == "__main__":
    prepare()
    unittest.main()
