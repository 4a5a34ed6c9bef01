"""The report of a run, read as other programs read it: with Python's csv and json modules."""

import csv
import json
import os
import random
import unittest
from datetime import datetime

from endtoend import EndToEnd, Ended, Row, interrupt, rows
from server import CLOSES, REFUSES_FOR_NOW, SAYS_NOTHING, Server

SEED = int(os.environ.get("SORVANTA_SEED", random.randrange(1000000)))

STATES = ("Sent", "Refused", "In doubt", "Waiting", "Not sent")


def table(path):
    """Head and rows of a report for spreadsheets, as dictionaries."""
    with open(path, encoding="utf-8-sig", newline="") as file:
        lines = list(csv.reader(file, delimiter=";", strict=True))
    end = lines.index([])
    headings, people = lines[end + 1], lines[end + 2 :]
    return dict(lines[:end]), [dict(zip(headings, fields, strict=True)) for fields in people]


class Reports(EndToEnd):
    """A server that takes, refuses and breaks off, and the report of that."""

    def setUp(self):
        super().setUp()
        server = Server()
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)
        self.report = self.folder / "report.csv"

    def table_of(self, project, *options, status=0):
        """Sends, and reads the table that comes of it."""
        self.send(project, *options, "--report", self.report, status=status)
        return table(self.report)

    def object_of(self, project, *options, status=0):
        """The same for programs."""
        path = self.folder / "report.JSON"
        self.send(project, *options, "--report", path, status=status)
        return json.loads(path.read_bytes())

    def mishaps(self):
        """A project of which every row has another fate, and a server that sees to it."""
        people = rows(7)
        people[3].checked = False
        self.server.refused_addresses["r2@list.example"] = "550 5.1.1 No such user"
        self.server.failures["content"] = [None, REFUSES_FOR_NOW, None, CLOSES]
        return self.project(self.server, people)

    def test_every_row_is_in_one_of_the_totals(self):
        head, people = self.table_of(self.mishaps(), status=3)
        self.assertEqual(
            {label: int(head[label]) for label in STATES},
            {"Sent": 2, "Refused": 2, "In doubt": 1, "Waiting": 1, "Not sent": 1},
        )
        self.assertEqual(head["Of them for now"], "1")
        self.assertEqual(head["Recipients"], "7")
        self.assertEqual(len(people), 7)
        self.assertEqual(head["Result"], "Not complete: 1 in doubt, 1 left")
        totals = self.object_of(self.mishaps(), status=3)["totals"]
        self.assertEqual(
            totals,
            {
                "recipients": 7,
                "sent": 2,
                "refused": 2,
                "refusedForNow": 1,
                "inDoubt": 1,
                "waiting": 1,
                "notSent": 1,
            },
        )

    def test_every_row_says_what_became_of_it(self):
        _, people = self.table_of(self.mishaps(), status=3)
        told = [
            tuple(
                row[heading]
                for heading in ("State", "Last outcome", "Code", "Enhanced code", "Command")
            )
            for row in people
        ]
        self.assertEqual(
            told,
            [
                ("Sent", "sent", "250", "2.0.0", "end of DATA"),
                ("Error!", "refused", "550", "5.1.1", "RCPT"),
                ("Error!", "refused for now", "451", "4.3.0", "end of DATA"),
                ("Not sent", "none", "", "", ""),
                ("Sent", "sent", "250", "2.0.0", "end of DATA"),
                ("Sending...", "in doubt", "", "", ""),
                ("Waiting", "none", "", "", ""),
            ],
        )
        self.assertEqual([row["Checked"] for row in people], ["yes"] * 3 + ["no"] + ["yes"] * 3)
        self.assertEqual([row["Tries"] for row in people], list("1110110"))
        for row, sent in ((people[0], self.server.received[0]), (people[4], self.server.received[1])):
            self.assertEqual(f"<{row['Message identifier']}>", sent.message["Message-ID"])

    def test_both_forms_say_the_same(self):
        head, people = self.table_of(self.mishaps(), status=3)
        self.server.received.clear()  # whose number is in the replies
        report = self.object_of(self.mishaps(), status=3)
        self.assertEqual(report["project"], head["Report of the project"])
        self.assertEqual(report["subject"], head["Subject"])
        self.assertEqual(report["sender"], head["Sender"])
        self.assertIs(report["complete"], False)
        self.assertEqual(
            [row["outcome"] for row in report["recipients"]],
            ["sent", "refused", "refusedForNow", "none", "sent", "inDoubt", "none"],
        )
        for told, row in zip(report["recipients"], people, strict=True):
            self.assertEqual(
                (told["row"], told["name"], told["address"], told["state"], told["reply"] or ""),
                (row["N°"], row["Name"], row["Address"], row["State"], row["Server's text"])
            )
            self.assertEqual("" if told["code"] is None else str(told["code"]), row["Code"])
            self.assertEqual(told["tries"], int(row["Tries"]))
            self.assertIs(told["checked"], row["Checked"] == "yes")

    def test_times_are_those_of_the_run(self):
        begin = datetime.now().astimezone().replace(microsecond=0)
        head, people = self.table_of(self.project(self.server, rows(2)))
        end = datetime.now().astimezone()
        for time in (head["Made"], *(row["Time"] for row in people)):
            self.assertLessEqual(begin, datetime.fromisoformat(time))
            self.assertLessEqual(datetime.fromisoformat(time), end)

    def test_complete_is_said_when_nobody_is_left(self):
        self.server.refused_addresses["r2@list.example"] = "450 4.2.1 Greylisted"
        head, _ = self.table_of(self.project(self.server, rows(3)), status=1)
        self.assertEqual(head["Result"], "Complete")
        self.assertEqual(head["Of them for now"], "1")

    def test_the_control_copy_is_none_of_the_recipients(self):
        project = self.project(self.server, rows(2), control_address="control@list.example")
        head, people = self.table_of(project)
        self.assertEqual(head["Recipients"], "2")
        self.assertEqual([row["Address"] for row in people], ["r1@list.example", "r2@list.example"])
        self.assertEqual(len(self.server.received), 3)

    def test_queue_ids_are_told(self):
        self.server.acceptance = "250 2.0.0 Ok: queued as 4WkZ2y1B3Wz{}"
        _, people = self.table_of(self.project(self.server, rows(2)))
        self.assertEqual([row["Queue id"] for row in people], ["4WkZ2y1B3Wz1", "4WkZ2y1B3Wz2"])
        report = self.object_of(self.project(self.server, rows(1)))
        self.assertEqual(report["recipients"][0]["queueId"], "4WkZ2y1B3Wz3")

    def test_a_server_that_names_no_queue_id_has_none(self):
        _, people = self.table_of(self.project(self.server, rows(1)))
        self.assertEqual(people[0]["Server's text"], "Taken as 1")
        self.assertEqual(people[0]["Queue id"], "")

    def test_awkward_texts_are_read_back(self):
        print(f"SORVANTA_SEED={SEED}", flush=True)
        choice = random.Random(SEED)
        pieces = ('"', ";", " ", "'", "a", "è", "日本", "🎄", "\t", "=", "\u202e", "\\", "|")
        people = [
            Row("x" + "".join(choice.choices(pieces, k=choice.randrange(9))), row.address)
            for row in rows(40)
        ]
        self.server.refused_addresses["r1@list.example"] = '550 5.1.1 No "such"; user, here'
        project = self.project(self.server, people, packet=40, subject='A "letter"; for you')
        head, told = self.table_of(project, status=1)
        self.assertEqual(head["Subject"], 'A "letter"; for you')
        self.assertEqual([row["Name"] for row in told], [row.name for row in people])
        self.assertEqual(told[0]["Server's text"], 'No "such"; user, here')
        report = self.object_of(project, status=1)
        self.assertEqual([row["name"] for row in report["recipients"]], [r.name for r in people])
        self.assertEqual(report["recipients"][0]["reply"], 'No "such"; user, here')

    def test_no_name_and_no_reply_becomes_a_formula(self):
        self.server.refused_addresses["r1@list.example"] = '550 5.1.1 =HYPERLINK("x";"y")'
        people = [Row("@SUM(1)", "r1@list.example"), Row("-1+1", "r2@list.example")]
        _, told = self.table_of(self.project(self.server, people), status=1)
        self.assertEqual([row["Name"] for row in told], ["'@SUM(1)", "'-1+1"])
        self.assertEqual(told[0]["Server's text"], '\'=HYPERLINK("x";"y")')

    def test_a_pause_has_its_report(self):
        self.server.fail("content", SAYS_NOTHING)
        process = self.program.start(
            "send", self.project(self.server, rows(2)), "--report", self.report
        )
        self.server.on_command = lambda number: number == 6 and interrupt(process)
        # The second must be another signal, not the same one.
        first = process.stderr.readline()
        self.assertIn("Pausing", first)
        interrupt(process)
        self.assertEqual(Ended(process).status, 130)
        head, people = table(self.report)
        self.assertEqual(head["Result"], "Not complete: 1 in doubt, 1 left")
        self.assertEqual(people[0]["Last outcome"], "in doubt")

    def test_a_run_that_went_on_after_its_program_died_tells_of_both_parts(self):
        self.server.fail("content", SAYS_NOTHING, after=1)
        project = self.project(self.server, rows(4))
        process = self.program.start("send", project)
        # Greeting, EHLO, then MAIL, RCPT, DATA and the content of two messages.
        self.server.on_command = lambda number: number == 2 + 2 * 4 and process.kill()
        Ended(process)
        self.server.on_command = lambda number: None
        head, people = self.table_of(project, "--continue", status=1)
        self.assertEqual(head["Result"], "Not complete: 1 in doubt")
        self.assertEqual(
            [(row["Last outcome"], row["Code"], row["Tries"]) for row in people],
            [("sent", "250", "1"), ("in doubt", "", "1"), ("sent", "250", "1"), ("sent", "250", "1")],
        )
        self.assertEqual(people[0]["Command"], "end of DATA")
        self.assertEqual(people[0]["Server's text"], "Taken as 1")
        self.assertEqual(self.server.recipients(), [f"r{i}@list.example" for i in (1, 3, 4)])

    def test_a_report_that_cannot_be_written_is_3(self):
        missing = self.folder / "missing" / "report.csv"
        ended = self.send(self.project(self.server, rows(1)), "--report", missing, status=3)
        self.assertIn(str(missing), ended.messages)
        self.assertEqual(ended.output.splitlines()[-1], "1 of 1 sent")


if __name__ == "__main__":
    unittest.main()
