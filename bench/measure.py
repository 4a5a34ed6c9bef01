"""Measures a mailing and prints one table.

    measure.py BUILD_FOLDER MESSAGES

Everything is measured in one run, since figures of different runs on different machines say
nothing beside each other. The time of a message is the whole processor time of the program,
start-up included, divided by the number of messages.
"""

import json
import os
import random
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "scripts"))

from projects import Project, Row  # noqa: E402  the path is set above

BUILD = Path(sys.argv[1])
MESSAGES = int(sys.argv[2])
MESSAGES_WITH_ATTACHMENT = max(MESSAGES // 5, 20)
MESSAGES_OVER_A_NETWORK = 100
MESSAGES_WITH_A_WINDOW = 5000
RUNS_WITH_A_JOURNAL = 5  # in turn with those without
RUNS_WITH_A_WINDOW = 5  # since a few hundredths of a second are told apart
ROUND_TRIP_MS = 50
LONGEST_LIST = 32767
MIB = 1024 * 1024

TEXT = (
    "Dear *NOME*,\n\n"
    + "This is one line of the personal letter which goes to everybody on the list.\n" * 26
    + "\nYours,\nthe sender\n"
)


class Server:
    """A program that prints the port it listens on, and ends with the block."""

    def __init__(self, *command):
        self.command = [str(BUILD / "bin" / command[0]), *map(str, command[1:])]

    def __enter__(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.PIPE, text=True)
        self.port = int(self.process.stdout.readline())
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.process.stdout.close()

    def next_connection(self):
        """What the sink says of the next connection that ends with messages."""
        while True:
            connection = json.loads(self.process.stdout.readline())
            if connection["messages"] > 0:
                return connection


class Screen:
    """An X server without a screen, for the length of the block."""

    def __enter__(self):
        read, write = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
            pass_fds=[write],
            stderr=subprocess.DEVNULL,
        )
        os.close(write)
        with os.fdopen(read) as said:
            self.display = ":" + said.readline().strip()
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def window(self, folder, *arguments):
        """What bench_window says of a window on this screen."""
        environment = dict(
            os.environ, DISPLAY=self.display, QT_QPA_PLATFORM="xcb", XDG_CONFIG_HOME=str(folder)
        )
        said = subprocess.run(
            [BUILD / "bin" / "bench_window", *arguments],
            check=True,
            stdout=subprocess.PIPE,
            env=environment,
        )
        return json.loads(said.stdout)


class Usage:
    """What a program used, from its start to its end."""

    def __init__(self, command):
        with open(os.devnull, "wb") as nowhere:
            process = subprocess.Popen([str(part) for part in command], stdout=nowhere)
            _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            raise SystemExit(f"{command} ended with {process.returncode}")
        self.cpu = usage.ru_utime + usage.ru_stime
        self.memory = usage.ru_maxrss * 1024


class Table:
    """Rows of a measured thing, its figure, and the bound it must meet."""

    def __init__(self):
        self.rows = [("", "Sorvanta", "others, and the ratio to them", "bound", "")]
        self.missed = 0

    def add(self, what, figure, unit, others=None, most=None, least=None):
        """One row; a bound is a figure, or the name of one of the others."""
        shown = [
            f"{name} {other:,.0f} ({figure / other:.2f})" for name, other in (others or {}).items()
        ]
        bound, verdict = "", ""
        if most is not None or least is not None:
            limit = most if most is not None else least
            value = others[limit] if isinstance(limit, str) else limit
            met = figure <= value if most is not None else figure >= value
            sign = "at most" if most is not None else "at least"
            bound = f"{sign} {limit if isinstance(limit, str) else format(limit, ',.5g')}"
            verdict = "met" if met else "MISSED"
            self.missed += not met
        digits = 0 if figure >= 20 else 2
        self.rows.append((what, f"{figure:,.{digits}f} {unit}", ", ".join(shown), bound, verdict))

    def show(self):
        """Prints the table."""
        widths = [max(len(row[i]) for row in self.rows) for i in range(5)]
        for number, row in enumerate(self.rows):
            print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())
            if number == 0:
                print("-" * (sum(widths) + 8))


class Bench:
    """The measurements, in a folder of their own."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.text = self.folder / "letter.txt"
        self.text.write_text(TEXT, encoding="utf-8")
        self.attachment = self.folder / "attachment.bin"
        self.attachment.write_bytes(random.Random(1).randbytes(MIB))
        self.table = Table()

    def project(self, port, count, attachments=()):
        """The project of a mailing."""
        rows = [Row(f"Recipient {i}", f"recipient{i}@bench.example") for i in range(1, count + 1)]
        return Project(
            server=f"127.0.0.1:{port}",
            rows=rows,
            text=self.text,
            subject="The letter of the bench",
            packet=min(count, LONGEST_LIST),
            attachments=list(attachments),
        ).write(self.folder / "bench.svk")

    def send(self, port, count, attachments=()):
        """Sorvanta's own mailing."""
        project = self.project(port, count, attachments)
        return Usage([BUILD / "bin" / "sorvanta-cli", "send", project])

    def others(self, port, count, attachments=()):
        """The same mailing by other clients, in microseconds of processor time a message."""
        libcurl = BUILD / "bin" / "bench_libcurl"
        python = ["/usr/bin/python3", Path(__file__).with_name("smtplib_client.py")]
        few = max(count // 50, 10)
        commands = {
            "libcurl ready-made": ([libcurl, port, count, "ready", self.text], count),
            "libcurl MIME": ([libcurl, port, count, "mime", self.text], count),
            "smtplib": ([*python, port, few, self.text], few),
        }
        return {
            name: Usage([*command, *attachments]).cpu * 1e6 / messages
            for name, (command, messages) in commands.items()
        }

    def measure_mailing(self):
        """Small messages without a network."""
        progress(f"{MESSAGES} messages of 2 KB")
        with Server("bench_sink", "chunking") as sink:
            usage = self.send(sink.port, MESSAGES)
            connection = sink.next_connection()
            others = self.others(sink.port, MESSAGES)
        self.table.add(
            "2 KB text, processor time a message",
            usage.cpu * 1e6 / MESSAGES,
            "us",
            others,
            most="libcurl MIME",
        )
        rate = (connection["messages"] - 1) / connection["seconds"]
        self.table.add("2 KB text, messages a second", rate, "/s")

    def measure_journal(self):
        """What keeping the run on the disk costs: both ways in turn, the medians compared."""
        progress(f"{MESSAGES} messages with and without a record of the run")
        processor = {"with": [], "without": []}
        rate = {"with": [], "without": []}
        with Server("bench_sink", "chunking") as sink:
            project = self.project(sink.port, MESSAGES)
            for _ in range(RUNS_WITH_A_JOURNAL):
                for way in processor:
                    said = subprocess.run(
                        [BUILD / "bin" / "bench_journal", way, project, self.folder],
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
        with Server("bench_sink", "chunking") as sink:
            usage = self.send(sink.port, count, [self.attachment])
            others = self.others(sink.port, count, [self.attachment])
        self.table.add(
            "1 MiB attachment, processor time a message",
            usage.cpu * 1e6 / count,
            "us",
            others,
            most=300,
        )

    def measure_network(self):
        """How well round trips are used."""
        for offer, least in (("chunking", 0.95), ("pipelining", 0.48), ("neither", 0.24)):
            progress(f"{MESSAGES_OVER_A_NETWORK} messages over {ROUND_TRIP_MS} ms, {offer}")
            with Server("bench_sink", offer) as sink:
                with Server("bench_delay", sink.port, ROUND_TRIP_MS) as network:
                    self.send(network.port, MESSAGES_OVER_A_NETWORK)
                    connection = sink.next_connection()
            trips = connection["seconds"] * 1000 / ROUND_TRIP_MS
            self.table.add(
                f"messages a round trip of {ROUND_TRIP_MS} ms, {offer}",
                (connection["messages"] - 1) / trips,
                "",
                least=least,
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
            [BUILD / "bin" / "bench_lists", recipients, project],
            check=True,
            capture_output=True,
            text=True,
        )
        seconds = json.loads(said.stdout)
        assert seconds["imported"] == seconds["loaded"] == LONGEST_LIST and seconds["saved"]
        for work in ("import", "load", "save"):
            self.table.add(f"{LONGEST_LIST:,} recipients, {work}", seconds[work], "s", most=0.3)

        progress(f"{LONGEST_LIST} messages")
        with Server("bench_sink", "chunking") as sink:
            usage = self.send(sink.port, LONGEST_LIST)
        self.table.add(
            f"{LONGEST_LIST:,} recipients, memory of a run", usage.memory / MIB, "MiB", most=100
        )

    def measure_window(self):
        """What a window adds to a run, and how long it stands still."""
        progress(f"{MESSAGES_WITH_A_WINDOW} messages behind a window")
        with Screen() as screen, Server("bench_sink", "chunking") as sink:
            project = self.project(sink.port, MESSAGES_WITH_A_WINDOW)
            command = BUILD / "bin" / "sorvanta-cli"
            runs, shares = [], []
            for _ in range(RUNS_WITH_A_WINDOW):
                # Without a window, less what starting and reading the project costs.
                sending = Usage([command, "send", project]).cpu
                bare = sending - Usage([command, "check", project, "--offline"]).cpu
                runs.append(screen.window(self.folder, "run", project))
                assert not runs[-1]["failed"]
                shares.append(100 * (runs[-1]["processor"] - bare) / runs[-1]["seconds"])
            rows = [
                Row(f"Zoë Recipient {i}", f"recipient{i}@bench.example", state)
                for i, state in enumerate(
                    random.Random(3).choices(["Sent", "Waiting"], k=LONGEST_LIST), 1
                )
            ]
            long_list = Project(server="127.0.0.1", rows=rows).write(self.folder / "states.svk")
            actions = screen.window(self.folder, "list", long_list)
        count = f"{MESSAGES_WITH_A_WINDOW:,}"
        share = statistics.median(shares)
        self.table.add(f"window, run of {count}, share of a core", share, "%", most=5)
        stall = max(run["longest"] for run in runs) * 1000
        self.table.add(f"window, run of {count}, longest stall", stall, "ms", most=50)
        opening = actions.pop("open")
        self.table.add(f"window, {LONGEST_LIST:,} recipients, open", opening, "s", most=0.5)
        for action, seconds in actions.items():
            self.table.add(
                f"window, {LONGEST_LIST:,} recipients, {action}", seconds * 1000, "ms", most=100
            )


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
        index = BUILD / "bin" / "rubrica.ini"
        index.write_text(f"Standard\r\n{book}\r\n", encoding="utf-8", newline="")
        with Screen() as screen:
            actions = screen.window(self.folder, "book")
        index.unlink()
        assert actions.pop("contacts") == LONGEST_LIST
        # A full line ends with a ";", which those above lack.
        assert book.read_bytes().splitlines()[0].endswith(b";")
        for action, most in (("open", 0.5), ("save and close", 0.3)):
            self.table.add(f"{LONGEST_LIST:,} contacts, {action}", actions.pop(action), "s", most=most)
        for action, seconds in actions.items():
            self.table.add(f"{LONGEST_LIST:,} contacts, {action}", seconds * 1000, "ms", most=100)


def progress(what):
    """Says what is being measured."""
    print(f"Measuring {what} ...", file=sys.stderr, flush=True)


def main():
    """Measures everything."""
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(folder)
        bench.measure_mailing()
        bench.measure_journal()
        bench.measure_attachment()
        bench.measure_network()
        bench.measure_lists()
        bench.measure_window()
        bench.measure_address_book()
    bench.table.show()
    return 1 if bench.table.missed else 0


if __name__ == "__main__":
    sys.exit(main())
