"""Measures a mailing and prints one table.

    measure.py BUILD_FOLDER MESSAGES

Everything is measured in one run, since figures of different runs on different machines say
nothing beside each other. The time of a message is the whole processor time of the program,
start-up included, divided by the number of messages.
"""

import json
import os
import platform
import random
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "scripts"))

from programs import Screen, Server, Usage  # noqa: E402  the path is set above
from projects import Project, Row  # noqa: E402
from table import Table  # noqa: E402

BUILD = Path(sys.argv[1])
MESSAGES = int(sys.argv[2])
MESSAGES_WITH_ATTACHMENT = max(MESSAGES // 5, 20)
MESSAGES_OVER_A_NETWORK = 100
MESSAGES_WITH_A_WINDOW = 5000
RUNS_WITH_A_JOURNAL = 5  # in turn with those without
RUNS_WITH_A_WINDOW = 5  # since a few hundredths of a second are told apart
RUNS_OF_A_LENGTH = 7
STARTS = 9
ROUND_TRIP_MS = 50
LONGEST_LIST = 32767
LENGTHS = (1000, 10_000, LONGEST_LIST)
MIB = 1024 * 1024
MB = 1_000_000

TEXT = (
    "Dear *NOME*,\n\n"
    + "This is one line of the personal letter which goes to everybody on the list.\n" * 26
    + "\nYours,\nthe sender\n"
)


class Bench:
    """The measurements, in a folder of their own."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.projects = 0
        # What they write of a run lies beside the programs, and goes with them.
        self.programs = self.folder / "bin"
        self.programs.mkdir()
        for program in ("sorvanta-cli", *(path.name for path in (BUILD / "bin").glob("bench_*"))):
            shutil.copy2(BUILD / "bin" / program, self.programs)
        self.command = self.programs / "sorvanta-cli"
        self.window = self.programs / "bench_window"
        self.text = self.folder / "letter.txt"
        self.text.write_text(TEXT, encoding="utf-8")
        self.attachment = self.folder / "attachment.bin"
        self.attachment.write_bytes(random.Random(1).randbytes(MIB))
        self.table = Table()

    def project(self, port, count, attachments=()):
        """The project of a mailing, of which nothing has been sent."""
        self.projects += 1
        rows = [Row(f"Recipient {i}", f"recipient{i}@bench.example") for i in range(1, count + 1)]
        return Project(
            server=f"127.0.0.1:{port}",
            rows=rows,
            text=self.text,
            subject="The letter of the bench",
            packet=min(count, LONGEST_LIST),
            attachments=list(attachments),
        ).write(self.folder / f"bench{self.projects}.svk")

    def send(self, port, count, attachments=()):
        """Sorvanta's own mailing."""
        return Usage([self.command, "send", self.project(port, count, attachments)])

    def sink(self, offer):
        """A server that takes everything."""
        return Server(self.programs / "bench_sink", offer)

    def others(self, port, count, attachments=()):
        """The same mailing by other clients, in microseconds of processor time a message."""
        libcurl = self.programs / "bench_libcurl"
        python = ["/usr/bin/python3", Path(__file__).with_name("smtplib_client.py")]
        few = max(count // 50, 10)
        files = [self.text, *attachments]
        # As it travels: in base64, in lines.
        size = self.text.stat().st_size + sum(path.stat().st_size * 78 // 57 for path in attachments)
        commands = {
            "bare bytes": ([self.programs / "bench_bytes", port, count, size], count),
            "libcurl ready-made": ([libcurl, port, count, "ready", *files], count),
            "libcurl MIME": ([libcurl, port, count, "mime", *files], count),
            "smtplib": ([*python, port, few, *files], few),
        }
        return {
            name: Usage(command).cpu * 1e6 / messages
            for name, (command, messages) in commands.items()
        }

    def measure_mailing(self):
        """Small messages without a network."""
        progress(f"{MESSAGES} messages of 2 KB")
        with self.sink("chunking") as sink:
            usage = self.send(sink.port, MESSAGES)
            connection = sink.next_connection()
            others = self.others(sink.port, MESSAGES)
        self.table.add(
            "2 KB text, processor time a message",
            usage.cpu * 1e6 / MESSAGES,
            "us",
            others,
            most="libcurl MIME",
            should="libcurl ready-made",
        )
        rate = (connection["messages"] - 1) / connection["seconds"]
        self.table.add("2 KB text, messages a second", rate, "/s")

    def measure_journal(self):
        """What keeping the run on the disk costs: both ways in turn, the medians compared."""
        progress(f"{MESSAGES} messages with and without a record of the run")
        processor = {"with": [], "without": []}
        rate = {"with": [], "without": []}
        with self.sink("chunking") as sink:
            project = self.project(sink.port, MESSAGES)
            for _ in range(RUNS_WITH_A_JOURNAL):
                for way in processor:
                    said = subprocess.run(
                        [self.programs / "bench_journal", way, project, self.folder],
                        check=True,
                        stdout=subprocess.PIPE,
                    )
                    processor[way].append(json.loads(said.stdout)["processor"] * 1e6 / MESSAGES)
                    connection = sink.next_connection()
                    rate[way].append((connection["messages"] - 1) / connection["seconds"])
        bare = statistics.median(processor["without"])
        self.table.add(
            "recorded run, processor time a message",
            statistics.median(processor["with"]),
            "us",
            {"not recorded": bare},
            most=1.5 * bare,
        )
        bare = statistics.median(rate["without"])
        self.table.add(
            "recorded run, messages a second",
            statistics.median(rate["with"]),
            "/s",
            {"not recorded": bare},
            least=0.6 * bare,
        )

    def measure_attachment(self):
        """Messages with a large attachment."""
        count = MESSAGES_WITH_ATTACHMENT
        progress(f"{count} messages of 1 MiB")
        with self.sink("chunking") as sink:
            usage = self.send(sink.port, count, [self.attachment])
            others = self.others(sink.port, count, [self.attachment])
        self.table.add(
            "1 MiB attachment, processor time a message",
            usage.cpu * 1e6 / count,
            "us",
            others,
            most=300,
            should=150,
        )

    def measure_growth(self):
        """Whether a message of a long mailing costs more than one of a short mailing."""
        progress(f"mailings of {', '.join(map(str, LENGTHS))}")
        runs = {count: [] for count in (1, *LENGTHS)}
        with self.sink("chunking") as sink:
            for _ in range(RUNS_OF_A_LENGTH):  # in turn, so that a busy moment meets them all
                for count, cpu in runs.items():
                    cpu.append(self.send(sink.port, count).cpu)
        start = min(runs[1])
        costs = {
            f"{count:,}": (min(runs[count]) - start) * 1e6 / (count - 1) for count in LENGTHS
        }
        self.table.add(
            "growth: dearest message of a short, middle and long mailing",
            max(costs.values()),
            "us",
            costs,
            most=1.2 * min(costs.values()),
            should=1.05 * min(costs.values()),
        )

    def measure_network(self):
        """How well round trips are used."""
        for offer, least, limit in (
            ("chunking", 0.95, 1.0),
            ("pipelining", 0.48, 0.5),
            ("neither", 0.24, 0.25),
        ):
            progress(f"{MESSAGES_OVER_A_NETWORK} messages over {ROUND_TRIP_MS} ms, {offer}")
            with self.sink(offer) as sink:
                with Server(self.programs / "bench_delay", sink.port, ROUND_TRIP_MS) as network:
                    self.send(network.port, MESSAGES_OVER_A_NETWORK)
                    connection = sink.next_connection()
            trips = connection["seconds"] * 1000 / ROUND_TRIP_MS
            self.table.add(
                f"messages a round trip of {ROUND_TRIP_MS} ms, {offer}",
                (connection["messages"] - 1) / trips,
                "",
                least=least,
                should=limit,
            )

    def measure_lists(self):
        """A list as long as it can be."""
        progress(f"{LONGEST_LIST} recipients")
        numbers = list(range(1, LONGEST_LIST + 1))
        random.Random(2).shuffle(numbers)
        rows = [Row(f"Zoë Recipient {i}", f"recipient{i}@bench.example") for i in numbers]
        recipients = self.folder / "recipients.txt"
        recipients.write_text(
            "".join(f"{row.name};{row.address}\r\n" for row in rows), encoding="utf-8", newline=""
        )
        project = Project(server="127.0.0.1", rows=rows).write(self.folder / "long.svk")
        said = subprocess.run(
            [self.programs / "bench_lists", recipients, project],
            check=True,
            capture_output=True,
            text=True,
        )
        seconds = json.loads(said.stdout)
        assert seconds["imported"] == seconds["loaded"] == LONGEST_LIST and seconds["saved"]
        for work in ("import", "load", "save"):
            self.table.add(
                f"{LONGEST_LIST:,} recipients, {work}", seconds[work], "s", most=0.3, should=0.1
            )

        progress(f"{LONGEST_LIST} messages")
        with self.sink("chunking") as sink:
            usage = self.send(sink.port, LONGEST_LIST)
        self.table.add(
            f"{LONGEST_LIST:,} recipients, memory of a run",
            usage.memory / MB,
            "MB",
            most=100,
            should=50,
        )

    def measure_start(self):
        """From the start of the program until its window is painted."""
        progress("the start")
        with Screen() as screen:
            starts = [screen.window(self.window, "start")["painted"] for _ in range(STARTS)]
        self.table.add(
            "start to painted window", statistics.median(starts), "s", most=0.5, should=0.25
        )

    def measure_window(self):
        """What a window adds to a run, and how long it stands still."""
        progress(f"{MESSAGES_WITH_A_WINDOW} messages behind a window")
        with Screen() as screen, self.sink("chunking") as sink:
            runs, shares = [], []
            for _ in range(RUNS_WITH_A_WINDOW):
                project = self.project(sink.port, MESSAGES_WITH_A_WINDOW)
                # Without a window, less what starting and reading the project costs.
                sending = Usage([self.command, "send", project]).cpu
                bare = sending - Usage([self.command, "check", project, "--offline"]).cpu
                runs.append(screen.window(self.window, "run", project))
                assert not runs[-1]["failed"]
                shares.append(100 * (runs[-1]["processor"] - bare) / runs[-1]["seconds"])
            project = self.project(sink.port, LONGEST_LIST)
            longest = screen.window(self.window, "run", project)
            assert not longest["failed"]
        count = f"{MESSAGES_WITH_A_WINDOW:,}"
        share = statistics.median(shares)
        self.table.add(f"window, run of {count}, share of a core", share, "%", most=5, should=2)
        stall = max(run["longest"] for run in runs) * 1000
        self.table.add(
            f"window, run of {count}, longest stall", stall, "ms", most=50, should=16
        )
        count = f"{LONGEST_LIST:,}"
        self.table.add(
            f"window, run of {count}, longest stall", longest["longest"] * 1000, "ms", most=50
        )
        self.table.add(
            f"window, run of {count}, memory", longest["memory"] / MB, "MB", most=200, should=120
        )

    def measure_long_list(self):
        """A window with a list as long as it can be."""
        progress(f"a window with {LONGEST_LIST} recipients")
        rows = [
            Row(f"Zoë Recipient {i}", f"recipient{i}@bench.example", state)
            for i, state in enumerate(
                random.Random(3).choices(["Sent", "Waiting"], k=LONGEST_LIST), 1
            )
        ]
        long_list = Project(server="127.0.0.1", rows=rows).write(self.folder / "states.svk")
        with Screen() as screen:
            actions = screen.window(self.window, "list", long_list)
        what = f"window, {LONGEST_LIST:,} recipients"
        self.table.add(
            f"{what}, memory", actions.pop("memory") / MB, "MB", most=200, should=120
        )
        self.table.add(
            f"{what}, start to painted", actions.pop("painted"), "s", most=0.5, should=0.17
        )
        for action, seconds in actions.items():
            self.table.add(f"{what}, {action}", seconds * 1000, "ms", most=300, should=100)

    def measure_address_book(self):
        """A book as long as a list of recipients can be."""
        progress(f"{LONGEST_LIST} contacts")
        numbers = list(range(1, LONGEST_LIST + 1))
        random.Random(4).shuffle(numbers)
        book = self.folder / "book.rub"
        lines = (
            f"Zoë Contact {i} - Mill;contact{i}@bench.example;Zoë Contact {i};Mill;"
            f"{i} Mill Lane;Larkhill;Wessex;AB{i};England;01234 {i};;07700 {i};A note\r\n"
            for i in numbers
        )
        book.write_text("".join(lines), encoding="utf-8", newline="")
        index = self.programs / "rubrica.ini"
        index.write_text(f"Standard\r\n{book}\r\n", encoding="utf-8", newline="")
        with Screen() as screen:
            actions = screen.window(self.window, "book")
        del actions["memory"]
        assert actions.pop("contacts") == LONGEST_LIST
        # A full line ends with a ";", which those above lack.
        assert book.read_bytes().splitlines()[0].endswith(b";")
        what = f"{LONGEST_LIST:,} contacts"
        for action, most in (("open", 0.5), ("save and close", 0.3)):
            self.table.add(
                f"{what}, {action}", actions.pop(action), "s", most=most, should=round(most / 3, 2)
            )
        for action, seconds in actions.items():
            self.table.add(f"{what}, {action}", seconds * 1000, "ms", most=300, should=100)


def progress(what):
    """Says what is being measured."""
    print(f"Measuring {what} ...", file=sys.stderr, flush=True)


def machine():
    """When and where: figures of different machines say nothing beside each other."""
    processor = next(
        line.partition(":")[2].strip()
        for line in Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines()
        if line.startswith("model name")
    )
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / MIB / 1024
    return (
        f"{time.strftime('%Y-%m-%d')}, {os.cpu_count()} cores of {processor}, "
        f"{memory:.0f} GiB, {system}, Linux {platform.release()}"
    )


def main():
    """Measures everything."""
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(folder)
        bench.measure_mailing()
        bench.measure_journal()
        bench.measure_attachment()
        bench.measure_growth()
        bench.measure_network()
        bench.measure_lists()
        bench.measure_start()
        bench.measure_window()
        bench.measure_long_list()
        bench.measure_address_book()
    print(machine())
    bench.table.show()
    return 1 if bench.table.missed else 0


if __name__ == "__main__":
    sys.exit(main())
