"""Ctrl-C at any moment: whoever is on the list gets exactly one message in the end."""

import os
import random
import signal
import subprocess
import tempfile
import threading
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from endtoend import PATIENCE, WORK, EndToEnd, Ended, Program, Project, interrupt, rows, states
from server import SAYS_NOTHING, Server

MOMENTS = 50
AT_ONCE = 4
RECIPIENTS = 7
PACKET = 3

SEED = int(os.environ.get("SORVANTA_SEED", random.randrange(1000000)))


class RandomMoments(unittest.TestCase):
    """Each moment with a program, a server and a folder of its own, some at a time."""

    def test_every_recipient_gets_exactly_one_message(self):
        print(f"SORVANTA_SEED={SEED}", flush=True)
        self.pauses = []
        with ThreadPoolExecutor(AT_ONCE) as pool:
            runs = [pool.submit(self.run_with_interruptions, SEED + i) for i in range(MOMENTS)]
        complaints = [complaint for complaint in (run.result() for run in runs) if complaint]
        self.assertEqual(complaints, [])
        print(f"paused {len(self.pauses)} times", flush=True)
        self.assertGreater(len(self.pauses), MOMENTS // 2)

    def run_with_interruptions(self, seed):
        """A whole mailing; what went wrong, or nothing."""
        choice = random.Random(seed)
        WORK.mkdir(parents=True, exist_ok=True)
        with tempfile.TemporaryDirectory(dir=WORK) as folder, Server() as server:
            program = Program(folder)
            text = Path(folder) / "letter.txt"
            text.write_text("Dear *NOME*\n", encoding="utf-8")
            people = rows(RECIPIENTS)
            group = choice.random() < 0.2
            project = Project(
                server=server.address,
                rows=people,
                text=text,
                packet=PACKET,
                group=group,
                control_address="control@list.example",
            ).write(Path(folder) / "mailing.svk")
            for _ in range(20):
                status = self.interrupted_run(program, server, project, choice)
                if status == 0:
                    break
                if status not in (130, -signal.SIGINT):
                    return f"seed {seed}: exit status {status}"
                if status == 130:
                    self.pauses.append(seed)
            expected = sorted([row.address for row in people] + ["control@list.example"])
            if server.recipients() != expected:
                return f"seed {seed}: received by {server.recipients()}"
        return None

    @staticmethod
    def interrupted_run(program, server, project, choice):
        """One start, stopped at a moment of the dialogue or of the clock; its exit status."""
        started = threading.Event()
        process = None
        moment = choice.randint(1, 40)

        def at_command(number):
            if number == moment:
                started.wait()
                interrupt(process)

        by_clock = choice.random() < 0.4
        server.commands.clear()
        server.restart_count()
        server.on_command = (lambda number: None) if by_clock else at_command
        process = program.start("send", project)
        started.set()
        if by_clock:
            try:
                # Not to wait for something to happen: the moment is what is random here.
                process.wait(choice.uniform(0.0, 4.0))
            except subprocess.TimeoutExpired:
                interrupt(process)
        return Ended(process).status


class Interruptions(EndToEnd):
    """Ctrl-C at moments that are known."""

    def setUp(self):
        super().setUp()
        server = Server()
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)
        self.path = self.project(self.server, rows(4))

    def interrupted_at(self, command, times=1):
        """Sends, and presses Ctrl-C when the server has read that many commands."""
        reached = threading.Event()
        self.server.on_command = lambda number: number == command and reached.set()
        process = self.program.start("send", self.path)
        self.assertTrue(reached.wait(PATIENCE))
        for _ in range(times):
            interrupt(process)
        return process

    def test_paused_project_goes_on_where_it_stood(self):
        # Greeting, EHLO, then MAIL, RCPT, DATA and the content of two messages.
        ended = Ended(self.interrupted_at(2 + 2 * 4))
        self.assertEqual(ended.status, 130, ended.messages)
        lines = self.path.read_bytes().split(b"\r\n")
        self.assertEqual(lines[:2], [b"v2.0", b"pausa"])
        self.server.on_command = lambda number: None
        self.send(self.path)
        self.assertEqual(self.server.recipients(), [f"r{i}@list.example" for i in range(1, 5)])
        # A project that was resumed is always written back.
        self.assertEqual(set(states(self.path).values()), {"Sent"})

    def test_pause_and_going_on_are_logged(self):
        Ended(self.interrupted_at(2 + 4))
        self.assertIn("User has pressed the pause command", self.program.log_lines())
        self.server.on_command = lambda number: None
        self.send(self.path)
        self.assertIn("Sending procedure paused", self.program.log_lines())
        self.assertIn("User has pressed the resume command", self.program.log_lines())

    def test_second_ctrl_c_ends_at_once_and_the_message_in_flight_is_not_sent_again(self):
        self.server.fail("content", SAYS_NOTHING, after=1)
        process = self.interrupted_at(2 + 2 * 4)
        # The first is on its way; the second must be another signal, not the same one.
        while process.poll() is None:
            interrupt(process)
            try:
                process.wait(0.2)
            except subprocess.TimeoutExpired:
                pass
        self.assertEqual(Ended(process).status, 130)
        self.assertEqual(states(self.path)["r2@list.example"], "Sending...")
        self.server.on_command = lambda number: None
        ended = self.send(self.path, status=1)
        self.assertIn("In doubt: 2  Name 2 <r2@list.example>", ended.messages)
        self.assertEqual(ended.output.splitlines()[-1], "3 of 4 sent, 1 in doubt")
        self.assertEqual(
            self.server.recipients(), [f"r{i}@list.example" for i in (1, 3, 4)]
        )

    def test_ctrl_c_ends_a_run_whose_server_says_nothing(self):
        for command, point in enumerate(("greeting", "EHLO"), 1):
            with self.subTest(point=point):
                self.server.restart_count()
                self.server.fail(point, SAYS_NOTHING)
                ended = Ended(self.interrupted_at(command))
                self.assertEqual(ended.status, 130, ended.messages)
                self.path = self.project(self.server, rows(4))


if __name__ == "__main__":
    unittest.main()
