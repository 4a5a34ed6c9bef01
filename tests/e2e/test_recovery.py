"""The program is killed in the middle of a run: what it says next time, and who has the message."""

import re
import signal
import socket
import threading
import unittest

from endtoend import PATIENCE, EndToEnd, Ended, interrupt, rows, states
from server import Server

PEOPLE = 4
# Greeting and EHLO, then so many commands for each message.
BEFORE_MESSAGES = 2
COMMANDS = ("MAIL", "RCPT", "DATA", "content")
# The message at which the program is killed, and the command.
MOMENTS = [(1, command) for command in COMMANDS] + [
    (2, "DATA"),
    (2, "content"),
    (3, "MAIL"),
    (4, "RCPT"),
    (4, "content"),
]


class Killing(EndToEnd):
    """A run of four recipients, killed while the server looks at a command."""

    extensions = ()

    def setUp(self):
        super().setUp()
        server = Server(self.extensions)
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)

    def killed_at(self, number, project, *options):
        """Sends, and kills the program before the server answers the command of that number."""
        started, killed = threading.Event(), threading.Event()
        process = None

        def at_command(count):
            if count == number:
                started.wait()
                process.kill()
                process.wait()
                killed.set()

        self.server.restart_count()
        self.server.on_command = at_command
        process = self.program.start("send", project, *options)
        started.set()
        self.assertTrue(killed.wait(PATIENCE))
        self.assertEqual(Ended(process).status, -signal.SIGKILL)
        self.server.on_command = lambda count: None

    def killed_in(self, message, command, project):
        """The same at that command of the n-th message."""
        place = COMMANDS.index(command) + 1
        self.killed_at(BEFORE_MESSAGES + len(COMMANDS) * (message - 1) + place, project)

    def assert_no_record_is_left(self):
        """The project's file tells it all."""
        self.assertEqual(list((self.folder / "Runs").glob("*.run")), [])


class Moments(Killing):
    """Killed at moments all over the run."""

    def test_a_run_goes_on_and_the_message_in_flight_is_in_doubt(self):
        everybody = [row.address for row in rows(PEOPLE)]
        for message, command in MOMENTS:
            with self.subTest(message=message, command=command):
                self.server.received.clear()
                project = self.project(self.server, rows(PEOPLE))
                self.killed_in(message, command, project)
                # It says what happened, and sends nothing.
                before = self.server.recipients()
                refused = self.send(project, status=2)
                self.assertIn(f"{message - 1} of {PEOPLE} sent, 1 in doubt", refused.messages)
                self.assertIn("--continue", refused.messages)
                self.assertEqual(self.server.recipients(), before)
                # It goes on, and names who is in doubt.
                ended = self.send(project, "--continue", status=1)
                doubtful = everybody[message - 1]
                self.assertEqual(
                    re.findall(r"In doubt: .*<(.*)>", ended.messages), [doubtful]
                )
                # A server that had the content when the program died has accepted it.
                accepted = command == "content"
                self.assertEqual(
                    self.server.recipients(),
                    [to for to in everybody if to != doubtful or accepted],
                )
                self.assertEqual(
                    states(project),
                    {to: "Sending..." if to == doubtful else "Sent" for to in everybody},
                )
                self.assert_no_record_is_left()


class MomentsOverPipelining(Moments):
    """The same with a server that takes several commands at once."""

    extensions = ("PIPELINING",)


class Afterwards(Killing):
    """Other runs that were killed, and other ways to go on."""

    def test_a_run_killed_before_its_first_message_starts_anew(self):
        for number in range(1, BEFORE_MESSAGES + 1):
            with self.subTest(number=number):
                self.server.received.clear()
                project = self.project(self.server, rows(PEOPLE))
                self.killed_at(number, project)
                self.send(project, "--save")
                self.assertEqual(
                    self.server.recipients(), [row.address for row in rows(PEOPLE)]
                )
                self.assert_no_record_is_left()

    def test_all_recipients_of_a_message_in_flight_are_in_doubt(self):
        project = self.project(self.server, rows(PEOPLE), group=True, packet=2)
        # The second message is the first of another session.
        self.killed_at(2 * (BEFORE_MESSAGES + len(COMMANDS) + 1), project)
        self.assertIn("2 of 4 sent, 2 in doubt", self.send(project, status=2).messages)
        self.send(project, "--continue", status=1)
        self.assertEqual(
            list(states(project).values()), ["Sent", "Sent", "Sending...", "Sending..."]
        )

    def test_a_run_that_was_continued_and_killed_again_goes_on_again(self):
        project = self.project(self.server, rows(PEOPLE))
        self.killed_in(2, "RCPT", project)
        # The content of the third message, the first of this session.
        self.killed_at(BEFORE_MESSAGES + len(COMMANDS), project, "--continue")
        self.send(project, "--continue", status=1)
        self.assertEqual(
            list(states(project).values()), ["Sent", "Sending...", "Sending...", "Sent"]
        )
        self.assertEqual(
            self.server.recipients(), [f"r{i}@list.example" for i in (1, 3, 4)]
        )

    def test_rest_sends_to_those_who_certainly_do_not_have_it(self):
        project = self.project(self.server, rows(PEOPLE))
        self.killed_in(2, "DATA", project)
        self.send(project, "--rest")
        self.assertEqual(
            self.server.recipients(), [f"r{i}@list.example" for i in (1, 3, 4)]
        )
        self.assert_no_record_is_left()

    def test_again_sends_to_all(self):
        project = self.project(self.server, rows(PEOPLE))
        self.killed_in(2, "DATA", project)
        self.send(project, "--again")
        self.assertEqual(
            self.server.recipients(), [f"r{i}@list.example" for i in (1, 1, 2, 3, 4)]
        )


class TwoPrograms(EndToEnd):
    """A second program while the first one runs the project."""

    def test_a_project_that_is_being_run_is_refused_and_the_other_process_named(self):
        with Server() as server:
            waits = threading.Event()

            async def said_quit(*_):
                waits.set()
                return "221 2.0.0 Bye"

            server.handle_QUIT = said_quit
            project = self.project(server, rows(PEOPLE), packet=1, delay=10)
            first = self.program.start("send", project)
            # The first packet is sent, and the run waits for the time of the next.
            self.assertTrue(waits.wait(PATIENCE))
            for options in ((), ("--rest",), ("--again",), ("--continue",)):
                refused = self.send(project, *options, status=2)
                if "--continue" not in options:
                    named = f"process {first.pid} on {socket.gethostname()}"
                    self.assertIn(named, refused.messages)
            self.assertIsNone(first.poll())
            interrupt(first)
            self.assertEqual(Ended(first).status, 130)
            self.assertEqual(server.recipients(), ["r1@list.example"])


if __name__ == "__main__":
    unittest.main()
