"""What a spam filter says about messages of every kind, and the table of it.

The filter is SpamAssassin with its own rules, without the network and without what a machine has
taught it. The messages are copies that a server received, with the line that the recipient's server
would put above them.
"""

import os
import re
import subprocess
import tempfile
import textwrap
import unittest
from email.utils import formatdate
from pathlib import Path

from endtoend import SOURCES, EndToEnd, Row
from server import Server

RULES = "/usr/share/spamassassin"
TABLE = SOURCES / "docs" / "spam.md"
NEWSLETTER = SOURCES / "examples" / "newsletter"
SUBJECT = "Our spring walks"

# What looks at a message alone. What asks the network or remembers other mail is left out.
PLUGINS = (
    "BodyEval Check DNSEval FreeMail HTMLEval HTTPSMismatch HeaderEval ImageInfo MIMEEval "
    "MIMEHeader RelayEval ReplaceTags URIDetail URIEval VBounce WLBLEval"
).split()

HEAD = """# What a spam filter says

SpamAssassin with its own rules, without the network, about messages as a recipient's server has
them. From 5 points on it calls a message spam. Written by `./test --spam`, which fails when a rule
is met that is not explained here.

| Message | Points | Rules |
|---|---:|---|
"""

# Why a rule is met, and what a sender can do.
EXPLAINED = {
    "HTML_MESSAGE": "The message has a page in HTML. It costs nothing.",
    "HTML_IMAGE_ONLY": "There are few words beside the picture, as in messages that hide their "
    "words in it from filters. A page of some length has no such points; the last digits are the "
    "hundreds of characters.",
    "HTML_IMAGE_RATIO": "The same, measured by the picture's area. It costs nothing.",
    "MPART_ALT_DIFF": "The text and the page say different things. Without a text of its own a "
    "message has \"Unable to show the message\" in its place, which has no word in common with the "
    "page. A text that says what the page says has no such points.",
    "MIXED_ES": "The message has more letters that look like an e than letters e, as words that "
    "hide from filters have. A letter is far from that unless it is made of accents, as this one is.",
}

LETTER = """Caro *NOME*,

è già primavera: più di metà dei soci c'è stata, perché la città è così bella.
Ci vediamo lunedì alle nove davanti al caffè; chi arriverà per ultimo porterà i thermos.

Il programma è in allegato. Chi verrà con amici lo dica una settimana prima, perché
l'autobus ha soltanto ventiquattro posti.

A presto, Niccolò e Zoë
"""


class Spam(EndToEnd):
    """Each kind of message is sent once."""

    def setUp(self):
        super().setUp()
        server = Server()
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)
        site = self.folder / "site"
        site.mkdir()
        loads = [f"loadplugin Mail::SpamAssassin::Plugin::{name}\n" for name in PLUGINS]
        (site / "plugins.pre").write_text("".join(loads), encoding="utf-8")
        settings = "use_bayes 0\nclear_report_template\nreport _SCORE_ _TESTSSCORES(,)_\n"
        (site / "settings.cf").write_text(settings, encoding="utf-8")
        self.site = site

    def variants(self):
        """The kinds of messages, by what people would call them."""
        text = NEWSLETTER / "letter.txt"
        html = NEWSLETTER / "letter.html"
        programme = NEWSLETTER / "Walking programme – été.pdf"
        unlinked = self.file("plain.html", re.sub("<img[^>]*>", "", html.read_text("utf-8")))
        accents = self.file("lettera.txt", LETTER)
        paragraphs = "".join(f"<p>{part}</p>\n" for part in LETTER.split("\n\n"))
        page = self.file("lettera.html", f"<!DOCTYPE html><html><body>{paragraphs}</body></html>\n")
        self.file("hills.png", (NEWSLETTER / "hills.png").read_bytes())
        few = self.file("few.txt", "Dear *NOME*,\n\nsee you!\n")
        poster = self.file(
            "poster.html",
            '<!DOCTYPE html><html><body><p>Dear *NOME*,</p><img src="hills.png" alt="The hills">'
            "<p>see you!</p></body></html>\n",
        )
        return {
            "Text": {"text": text},
            "Text and HTML": {"text": text, "html": unlinked},
            "Text and HTML with a picture": {"text": text, "html": html},
            "HTML without a text": {"text": "", "html": unlinked},
            "HTML with a picture, without a text": {"text": "", "html": html},
            "A picture and few words": {"text": few, "html": poster},
            "A picture and few words, and another text": {"text": text, "html": poster},
            "A picture and few words, without a text": {"text": "", "html": poster},
            "Text with an attachment": {"text": text, "attachments": [programme]},
            "Everything": {"text": text, "html": html, "attachments": [programme, text]},
            "Text, with a receipt asked for": {"text": text, "receipt": True},
            "Text, to a group": {"text": text, "group": True},
            "Accents everywhere": {
                "text": accents,
                "html": page,
                "subject": "Perché no? La città è così bella",
                "sender_name": "Società «Niccolò»",
                "attachments": [self.file("perché.txt", LETTER)],
            },
        }

    def received(self, fields):
        """A message as it lies in the recipient's mailbox."""
        self.server.received.clear()
        people = [Row("Zoë Ångström", "zoe@list.example"), Row("Anna", "anna@list.example")]
        fields = {"sender_name": "Larkhill Walking Club", "subject": SUBJECT, **fields}
        self.send(self.project(self.server, people, **fields))
        return (
            "Received: from mail.postino.example (mail.postino.example [93.184.215.14])\r\n"
            "\tby mx.list.example (Postfix) with ESMTPS id 4Nk2Xw5zq1z9v\r\n"
            f"\tfor <zoe@list.example>; {formatdate()}\r\n"
        ).encode() + self.server.received[0].content

    def judged(self, message):
        """The points of a message, and those of each rule that it meets."""
        with tempfile.TemporaryDirectory(dir=self.folder) as home:
            ended = subprocess.run(
                ["spamassassin", "--local", "--test-mode", "--nocreate-prefs"]
                + ["-C", RULES, f"--siteconfigpath={self.site}"],
                input=message,
                env={"PATH": os.environ["PATH"], "HOME": home, "LC_ALL": "C.UTF-8", "TZ": "UTC"},
                capture_output=True,
                check=True,
            )
        self.assertEqual(ended.stderr.decode(), "")
        points, rules = ended.stdout.decode().rstrip().splitlines()[-1].split(" ")
        pairs = [rule.split("=") for rule in rules.split(",") if rule != "none"]
        return float(points), {name: float(score) for name, score in pairs}

    def test_every_rule_that_a_message_meets_is_explained(self):
        lines = []
        met = set()
        for name, fields in self.variants().items():
            points, rules = self.judged(self.received(fields))
            met |= set(rules)
            shown = ", ".join(f"{rule} ({score:g})" for rule, score in sorted(rules.items()))
            lines.append(f"| {name} | {points} | {shown or 'none'} |\n")
        why = {rule: explanation_of(rule) for rule in sorted(met)}
        unexplained = [rule for rule, text in why.items() if not text]
        self.assertEqual(unexplained, [], "".join(lines))
        paragraphs = {}
        for rule, text in why.items():
            paragraphs.setdefault(text, []).append(rule)
        parts = [f"\n**{', '.join(rules)}**: {text}\n" for text, rules in paragraphs.items()]
        TABLE.write_text(HEAD + "".join(lines + list(map(wrapped, parts))), encoding="utf-8")


def explanation_of(rule):
    """Why a rule is met; its name may go on with a number."""
    return next((text for name, text in EXPLAINED.items() if rule.startswith(name)), None)


def wrapped(paragraph):
    """The paragraph in lines of the length that the documents have."""
    return "\n" + textwrap.fill(paragraph.strip(), 100) + "\n"


if __name__ == "__main__":
    unittest.main()
