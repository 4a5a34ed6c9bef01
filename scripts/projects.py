"""Project files written by the tests and the bench."""

from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Row:
    """One recipient."""

    name: str
    address: str
    state: str = "Waiting"
    checked: bool = True


@dataclass
class Project:
    """What a project file says, with the defaults of a small mailing."""

    server: str
    rows: list
    sender_name: str = "Sender"
    sender_address: str = "sender@sorvanta.example"
    control_address: str = ""
    receipt: bool = False
    text: str = ""
    html: str = ""
    subject: str = "A letter"
    packet: int = 10
    delay: int = 0
    group: bool = False
    attachments: list = field(default_factory=list)

    def lines(self):
        """The file's lines."""
        yield from ("v2.0", "stop", " 1 ", "0")
        yield from (self.server, self.sender_name, self.sender_address, self.control_address)
        yield f" {int(self.receipt)} "
        yield from (str(self.text), str(self.html), self.subject, "")
        yield from (str(self.packet), str(self.delay), f" {int(self.group)} ")
        yield from ("", "", "", "")
        yield from (str(path) for path in self.attachments)
        yield ""
        for number, row in enumerate(self.rows, 1):
            yield from (str(number), row.name, row.address, row.state)
            yield from ((" 2 ", "check") if row.checked else (" 3 ", "nocheck"))

    def write(self, path):
        """Writes it where it is to stand, and returns the path."""
        text = "".join(f"{line}\r\n" for line in self.lines())
        Path(path).write_bytes(text.encode("utf-8"))
        return Path(path)
