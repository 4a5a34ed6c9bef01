"""The texts in the sources of the program and in its catalogue."""

import re
import xml.etree.ElementTree as ElementTree

COMMENT = re.compile(r'("(?:[^"\\\n]|\\.)*")|//[^\n]*|/\*.*?\*/', re.DOTALL)
PIECE = r'(?:u|u8|L)?"(?:[^"\\\n]|\\.)*"(?:_s|_L1|_qba)?'
LITERAL = re.compile(rf"{PIECE}(?:\s+{PIECE})*")
QUOTED = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
BEFORE_TRANSLATED = re.compile(r'(?:\btr\(|\b(?:QT_TRANSLATE_NOOP|translate)\(\s*"\w+",)\s*$')
# What is written for those who look for a fault, and shown by no window.
BEFORE_TRACE = re.compile(r"\b(?:enter|hello|becomeReady|note|client|qCDebug)\([^;{}]*$")


class Text:
    """A string literal of a C++ source, its pieces put together."""

    def __init__(self, text, is_translated, is_trace):
        self.text = text
        self.is_translated = is_translated
        self.is_trace = is_trace


def without_escapes(text):
    """What a literal says."""
    return re.sub(r"\\(.)", lambda escape: {"n": "\n", "r": "\r"}.get(escape[1], escape[1]), text)


def literals(content):
    """Every literal of a source."""
    code = COMMENT.sub(lambda found: found[1] or " ", content)
    for found in LITERAL.finditer(code):
        before = code[max(0, found.start() - 300) : found.start()]
        yield Text(
            without_escapes("".join(QUOTED.findall(found[0]))),
            bool(BEFORE_TRANSLATED.search(before)),
            bool(BEFORE_TRACE.search(before)),
        )


def catalogue(path):
    """The English texts of a catalogue, each with what may stand for it in the other language."""
    found = {}
    for message in ElementTree.parse(path).getroot().iter("message"):
        translation = message.find("translation")
        forms = [form.text for form in translation.findall("numerusform")] or [translation.text]
        found.setdefault(message.findtext("source"), set()).update(forms)
    return found
