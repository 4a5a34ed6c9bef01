"""Messages of all kinds, read back with Python's email package."""

import random
import unittest

from endtoend import EndToEnd, Row, rows
from server import Server

ODD_NAMES = (
    "Zoë Ångström",
    'Anna "the boss" Bianchi',
    "Rossi, Mario",
    "a < b > c",
    "Jürgen (Köln)",
    "back\\slash",
    "",
    "日本語の名前",
    "=?utf-8?q?not_encoded?=",
    "*NOME*",
)


class Messages(EndToEnd):
    """One server, one mailing a test."""

    def setUp(self):
        super().setUp()
        server = Server()
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)

    def test_names_of_all_kinds_arrive_in_the_body(self):
        people = [Row(name, f"r{i}@list.example") for i, name in enumerate(ODD_NAMES)]
        self.send(self.project(self.server, people, packet=20))
        for name, received in zip(ODD_NAMES, self.server.received):
            self.assertEqual(
                received.message.get_content().splitlines(), [f"Dear {name},", "", "hello."]
            )

    def test_sender_names_and_subjects_of_all_kinds(self):
        for name in ("Zoë's café", 'The "Club"', "a <b> c", "日本語", "x" * 300):
            self.server.received.clear()
            # A comma or a leading quote cannot stand in these fields of the file.
            self.send(self.project(self.server, rows(1), sender_name=name, subject=name))
            received = self.server.received[0]
            self.assertEqual(received.message["Subject"], name)
            self.assertEqual(received.sender_shown, (name, "sender@sorvanta.example"))

    def test_html_alone_has_the_text_that_says_so(self):
        html = self.file("letter.html", "<p>Dear *NOME*, città</p>\n")
        self.send(self.project(self.server, rows(1), text="", html=html))
        plain, page = self.server.received[0].message.iter_parts()
        self.assertEqual(plain.get_content().strip(), "Unable to show the message")
        self.assertEqual(page.get_content().strip(), "<p>Dear Name 1, città</p>")

    def test_attachments_of_all_kinds_byte_for_byte(self):
        contents = {
            "empty.txt": b"",
            "zeroes.bin": bytes(1000),
            "random.bin": random.Random(5).randbytes(200000),
            "dots.txt": b"..\r\n.\r\n...\n.",
            "perché no – è.txt": "città\r\n".encode(),
            'quote"and;semicolon.dat': b"x",
            "x" * 200 + ".dat": b"long",
        }
        paths = [self.file(name, content) for name, content in contents.items()]
        self.send(self.project(self.server, rows(2), attachments=paths))
        for received in self.server.received:
            _, *attachments = received.message.iter_parts()
            seen = {part.get_filename(): part.get_payload(decode=True) for part in attachments}
            self.assertEqual(seen, contents)

    def test_pictures_travel_and_those_of_subfolders_stay_links(self):
        (self.folder / "img").mkdir()
        self.file("img/a.gif", b"GIF89a-a")
        pictures = {"b.gif": b"GIF89a-b", "città.png": b"PNG-c"}
        for name, content in pictures.items():
            self.file(name, content)
        html = self.file(
            "letter.html",
            '<IMG SRC="B.gif"><img src="città.png"><img src="b.gif"><img src="img/a.gif">*NOME*\n',
        )
        self.send(self.project(self.server, rows(2), html=html))
        for received in self.server.received:
            _, related = received.message.iter_parts()
            page, *inline = related.iter_parts()
            by_id = {part["Content-ID"].strip("<>"): part.get_content() for part in inline}
            links = [link.split('"')[0] for link in page.get_content().split("cid:")[1:]]
            self.assertEqual([by_id[link] for link in links], [b"GIF89a-b", b"PNG-c", b"GIF89a-b"])
            self.assertIn('<IMG SRC="cid:', page.get_content())
            self.assertIn('<img src="img/a.gif">', page.get_content())

    def test_lines_that_begin_with_a_dot_and_long_lines(self):
        body = ".\n..\n.x\n" + "long " * 500 + "\n" + "à" * 2000 + "\n"
        self.send(self.project(self.server, rows(1), text=self.file("dots.txt", body)))
        self.assertEqual(
            self.server.received[0].message.get_content().splitlines(), body.splitlines()
        )

    def test_group_gets_one_message_and_nobody_sees_the_others(self):
        people = rows(5)
        people[1].checked = False
        self.send(self.project(self.server, people, packet=3, group=True))
        self.assertEqual(
            [received.recipients for received in self.server.received],
            [
                ["r1@list.example", "r3@list.example", "r4@list.example"],
                ["r5@list.example"],
            ],
        )
        first = self.server.received[0]
        for address in first.recipients:
            self.assertNotIn(address.encode(), first.content)
        self.assertIn(b"undisclosed-recipients:;", first.content)
        self.assertIn("Dear Name 1,", first.message.get_content())

    def test_receipt_is_asked_for_on_wish(self):
        self.send(self.project(self.server, rows(2), receipt=True))
        for received in self.server.received:
            self.assertEqual(
                received.message.get_all("Disposition-Notification-To"),
                ["sender@sorvanta.example"],
            )

    def test_ten_thousand_messages_have_identifiers_of_their_own(self):
        self.send(self.project(self.server, rows(10000), packet=20000))
        self.assertEqual(self.server.connections, 1)
        self.assertEqual(len(set(self.server.recipients())), 10000)
        identifiers = {received.message["Message-ID"] for received in self.server.received}
        self.assertEqual(len(identifiers), 10000)

    def test_compose_prints_what_send_sends(self):
        picture = self.file("a.gif", b"GIF89a")
        html = self.file("letter.html", '<img src="a.gif">*NOME*\n')
        project = self.project(self.server, rows(2), html=html, attachments=[picture])
        composed = self.program.run("compose", project, "--row", "2")
        self.assertEqual(composed.status, 0, composed.messages)
        self.send(project)
        sent = self.server.received[1].message
        shown = type(self.server.received[1])(0, "", [], composed.output.encode()).message
        self.assertEqual(
            [part.get_content_type() for part in shown.walk()],
            [part.get_content_type() for part in sent.walk()],
        )
        for header in ("From", "To", "Subject", "X-Mailer"):
            self.assertEqual(shown[header], sent[header])
        self.assertIn("Name 2", composed.output)

    def test_compose_of_a_row_that_is_not_there(self):
        project = self.project(self.server, rows(2))
        for row in ("0", "3", "x"):
            self.assertEqual(self.program.run("compose", project, "--row", row).status, 2)


class MessagesOverPipelining(Messages):
    """The same with a server that takes several commands at once."""

    def setUp(self):
        super().setUp()
        self.server.extensions = ["PIPELINING"]


if __name__ == "__main__":
    unittest.main()
