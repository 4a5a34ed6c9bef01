"""Exit codes, and servers that refuse, close or talk nonsense at each point of the dialogue."""

import socket
import unittest

from endtoend import EndToEnd, Ended, rows, states
from server import (
    CLOSES,
    CLOSES_WITH_421,
    NEVER_ENDS_ITS_LINE,
    POINTS,
    REFUSES,
    REFUSES_FOR_NOW,
    TALKS_GARBAGE,
    Server,
)

EVERYBODY = [f"r{i}@list.example" for i in range(1, 5)]


class Outcomes(EndToEnd):
    """Four recipients, one packet."""

    def setUp(self):
        super().setUp()
        server = Server()
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)
        self.path = self.project(self.server, rows(4))

    def test_all_sent_is_0(self):
        self.send(self.path, "--save")
        self.assertEqual(self.server.recipients(), EVERYBODY)
        self.assertEqual(set(states(self.path).values()), {"Sent"})

    def test_output_that_nobody_reads_does_not_end_the_run(self):
        # More rows than the output's buffer holds, so that it is written while the run goes on.
        many = rows(200)
        process = self.program.start("send", self.project(self.server, many, packet=200))
        process.stdout.close()
        process.stdout = None
        self.assertEqual(Ended(process).status, 0)
        self.assertEqual(self.server.recipients(), sorted(row.address for row in many))

    def test_one_of_several_refused_is_1(self):
        self.server.refused_addresses["r2@list.example"] = "550 5.1.1 No such user"
        ended = self.send(self.path, "--save", status=1)
        self.assertEqual(self.server.recipients(), [a for a in EVERYBODY if "r2" not in a])
        self.assertEqual(states(self.path)["r2@list.example"], "Error!")
        self.assertIn("550 5.1.1 No such user", ended.output + ended.messages)

    def test_one_of_a_group_refused_is_1_and_the_others_have_it(self):
        self.server.refused_addresses["r2@list.example"] = "550 5.1.1 No such user"
        path = self.project(self.server, rows(4), group=True)
        self.send(path, "--save", status=1)
        self.assertEqual(self.server.recipients(), [a for a in EVERYBODY if "r2" not in a])
        self.assertEqual(
            list(states(path).values()), ["Sent", "Error!", "Sent", "Sent"]
        )

    def test_a_message_refused_at_any_point_is_an_error_of_its_row(self):
        for point in ("MAIL", "RCPT", "DATA", "content"):
            for failure in (REFUSES, REFUSES_FOR_NOW):
                with self.subTest(point=point, reply=failure.reply):
                    self.server.received.clear()
                    self.path = self.project(self.server, rows(4))
                    self.server.fail(point, failure, after=1)
                    self.send(self.path, "--save", status=1)
                    self.assertEqual(
                        list(states(self.path).values()), ["Sent", "Error!", "Sent", "Sent"]
                    )
                    self.assertEqual(len(self.server.received), 3)

    def test_a_session_refused_is_3(self):
        self.server.fail("greeting", REFUSES)
        self.send(self.path, status=3)
        self.server.fail("EHLO", REFUSES)
        self.server.fail("HELO", REFUSES)
        self.send(self.path, status=3)
        self.assertEqual(self.server.received, [])

    def test_ehlo_refused_is_followed_by_helo(self):
        self.server.fail("EHLO", REFUSES)
        self.send(self.path)
        self.assertEqual(self.server.recipients(), EVERYBODY)

    def test_a_session_that_fails_before_any_message_is_3(self):
        for point in ("greeting", "EHLO"):
            for failure in (CLOSES, CLOSES_WITH_421, TALKS_GARBAGE, NEVER_ENDS_ITS_LINE):
                with self.subTest(point=point, reply=failure.reply[:20]):
                    self.server.fail(point, failure, times=9)
                    self.send(self.path, status=3)
                    self.server.failures.clear()
        self.assertEqual(self.server.received, [])

    def test_a_message_not_taken_is_sent_again_in_a_new_session(self):
        for point in ("MAIL", "RCPT", "DATA"):
            for failure in (CLOSES, CLOSES_WITH_421, TALKS_GARBAGE, NEVER_ENDS_ITS_LINE):
                with self.subTest(point=point, reply=failure.reply[:20]):
                    self.server.received.clear()
                    before = self.server.connections
                    self.server.fail(point, failure, after=1)
                    self.send(self.path)
                    self.assertEqual(self.server.recipients(), EVERYBODY)
                    self.assertEqual(self.server.connections - before, 2)

    def test_a_message_not_taken_twice_is_3(self):
        for point in ("MAIL", "RCPT", "DATA"):
            with self.subTest(point=point):
                self.server.received.clear()
                self.path = self.project(self.server, rows(4))
                self.server.fail(point, CLOSES, times=2, after=1)
                self.send(self.path, status=3)
                self.assertEqual(self.server.recipients(), EVERYBODY[:1])

    def test_a_message_in_doubt_is_never_sent_again_by_itself(self):
        for failure in (CLOSES, TALKS_GARBAGE):
            with self.subTest(reply=failure.reply):
                self.server.received.clear()
                self.path = self.project(self.server, rows(4))
                self.server.fail("content", failure, after=1)
                self.send(self.path, "--save", status=3)
                self.assertEqual(
                    list(states(self.path).values()), ["Sent", "Sending...", "Waiting", "Waiting"]
                )
                self.send(self.path, status=2)
                self.assertEqual(len(self.server.received), 1)
                self.send(self.path, "--rest")
                self.assertEqual(self.server.recipients(), [EVERYBODY[i] for i in (0, 2, 3)])

    def test_421_to_the_content_refuses_the_message_and_the_next_goes_on(self):
        self.server.fail("content", CLOSES_WITH_421, after=1)
        self.send(self.path, "--save", status=1)
        self.assertEqual(
            list(states(self.path).values()), ["Sent", "Error!", "Sent", "Sent"]
        )

    def test_again_sends_to_all(self):
        self.send(self.path, "--save")
        self.send(self.path, status=2)
        self.send(self.path, "--again")
        self.assertEqual(self.server.recipients(), sorted(EVERYBODY * 2))

    def test_a_server_that_is_not_there_is_3(self):
        with socket.create_server(("127.0.0.1", 0)) as taken:
            port = taken.getsockname()[1]
        self.server.address = f"127.0.0.1:{port}"
        self.send(self.project(self.server, rows(1)), status=3)

    def test_a_bad_port_is_3(self):
        for port in ("", "x", "0", "65536", "-1"):
            self.server.address = f"127.0.0.1:{port}"
            self.send(self.project(self.server, rows(1)), status=3)

    def test_what_start_refuses_is_2_for_send_and_check(self):
        missing = self.folder / "missing"
        for fields in (
            {"subject": ""},
            {"sender_address": "nobody"},
            {"control_address": "nobody"},
            {"text": ""},
            {"text": missing},
            {"packet": 0},
            {"delay": ""},
            {"html": self.file("a.html", '<img src="missing.png">')},
        ):
            with self.subTest(**fields):
                path = self.project(self.server, rows(1), **fields)
                self.send(path, status=2)
                self.assertEqual(self.program.run("check", path, "--offline").status, 2)
        self.assertEqual(self.server.connections, 0)

    def test_check_of_a_good_project_is_0_and_sends_nothing(self):
        self.assertEqual(self.program.run("check", self.path, "--offline").status, 0)
        self.assertEqual(self.server.connections, 0)

    def test_yes_sends_although_pictures_cannot_travel(self):
        html = self.file("a.html", '<img src="missing.png">')
        self.send(self.project(self.server, rows(1), html=html), "--yes")
        self.assertIn('src="missing.png"', self.server.received[0].content.decode())

    def test_projects_that_cannot_be_read_are_2(self):
        whole = self.path.read_bytes()
        for content in (b"", b"\0\1\2", b"v1.0\r\n", whole[:100], whole[:-20]):
            with self.subTest(content=content[-20:]):
                self.send(self.file("bad.svk", content), status=2)
        self.send(self.folder / "missing.svk", status=2)
        self.send(self.folder, status=2)
        self.assertEqual(self.server.connections, 0)

    def test_wrong_usage_is_2(self):
        for arguments in ((), ("sing",), ("send",), ("send", "a", "b"), ("send", "--loud", "a")):
            self.assertEqual(self.program.run(*arguments).status, 2, arguments)
        self.assertEqual(self.program.run("settings", "Controllo").status, 2)

    def test_attachment_that_vanished_is_an_error_of_every_row(self):
        path = self.project(self.server, rows(2), attachments=[self.folder / "missing.pdf"])
        self.send(path, "--save", status=1)
        self.assertEqual(set(states(path).values()), {"Error!"})
        self.assertEqual(self.server.received, [])

    def test_settings_are_read_back(self):
        self.assertEqual(self.program.run("settings", "Server", "città.example").status, 0)
        self.assertEqual(self.program.run("settings", "Server").output.strip(), "città.example")
        self.assertEqual(self.program.run("settings", "Language", "1").status, 0)
        listed = self.program.run("settings").output
        self.assertIn("città.example", listed)
        self.send(self.path, "--save")
        self.assertEqual(set(states(self.path).values()), {"Sent"})  # English all the same


class OutcomesOverPipelining(Outcomes):
    """The same with a server that takes several commands at once."""

    def setUp(self):
        super().setUp()
        self.server.extensions = ["PIPELINING"]


class Points(unittest.TestCase):
    """The tests above name points that the server knows."""

    def test_points(self):
        self.assertEqual(POINTS, ("greeting", "EHLO", "MAIL", "RCPT", "DATA", "content"))


if __name__ == "__main__":
    unittest.main()
