"""Whether the help pages lead somewhere and say what the program says.

    test_help_pages.py SRC CATALOGUE HELP

An error page quotes the program in <q class="said">. A quotation that has a language of its own is
of a text that is English in both windows; "…" stands for a value. What a server says stands in
<q class="reply"> and is not looked for.
"""

import re
import sys
import unittest
from html.parser import HTMLParser
from pathlib import Path

from sources import catalogue, literals

SRC, CATALOGUE, HELP = Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3])
LANGUAGES = {"it": "italiano", "en": "english"}
ERRORS = HELP / "Errors"
INDEX = ERRORS / "index.htm"
WITHOUT_END = {"meta", "link", "img", "br"}

# Where somebody comes from when something went wrong.
WAYS_TO_THE_INDEX = (HELP / "ita_help.htm", HELP / "Tutorial" / "come_cominciare.htm")

# A source that shows a box with a sign, or hands on why something failed.
TELLS_OF_FAILURES = re.compile(
    r"Icon::(?:Critical|Exclamation)|tl::unexpected|FileError|Q_EMIT failed"
)
# The commands speak for themselves and have a manual page.
SILENT_ROOMS = {"cli"}
# What these sources say themselves tells of no failure.
MERE_LABELS = {
    "journal/Report.cpp": "the headings and cells of a report",
    "ui/MessageBox.cpp": "buttons",
    "ui/frmAccount.cpp": "what the page of an account shows while all is well",
}
# Texts of the other sources that tell of no failure, or of none that somebody could meet.
NO_ERRORS = {
    "Address Book (*.rub)|*.rub": "a file dialog",
    "Are you sure to delete *N* selected contact(s)?": "a question",
    "Are you sure to delete the selected address book? All the contacts will be deleted! Do you "
    "want to continue?": "a question",
    "Contacts (*.vcf; *.csv; *.txt; *.rub)|*.vcf; *.csv; *.txt; *.rub|All files (*.*)|*.*": (
        "a file dialog"
    ),
    "Contacts imported: %1": "a success",
    "E-mail address of the new recipient:": "an input box",
    "HTML Files (*.htm; *.html)|*.htm; *.html|All files (*.*)|*.*": "a file dialog",
    "Import contacts": "a file dialog",
    "Insert the name for the new address book:": "an input box",
    "Name of the new recipient:": "an input box",
    "New address book": "a file dialog",
    "New message file:": "a file dialog",
    "New recipient": "an input box",
    "No Name": "a title",
    "Not started": "the countdown",
    "Pause...": "the countdown",
    "Recipients added: %1": "a success",
    "Report (*.csv)|*.csv|JSON (*.json)|*.json": "a file dialog",
    "Save": "a title",
    "Save changes before create a new project?": "a question",
    "Save changes before open another project?": "a question",
    "Select recipients file:": "a file dialog",
    "Select the file for the report:": "a file dialog",
    "Select the file to open:": "a file dialog",
    "Select the file to save:": "a file dialog",
    "Select the message file:": "a file dialog",
    "Sending...": "the countdown",
    "Sorvanta File (*.svk)|*.svk": "a file dialog",
    "Sorvanta file (*.svk)|*.svk|All files (*.*)|*.*": "a file dialog",
    "Standard": "the name of a book",
    "Stop": "a title",
    "Stop the procedure?": "a question",
    "Text file (*.txt)|*.txt|All files (*.*)|*.*": "a file dialog",
    # Of the client, English in both windows.
    "d MMMM yyyy": "how a day is written",
    "ddd, dd MMM yyyy hh:mm:ss": "how a day is written",
    "nobody named": "part of a name",
    "the server announces CHUNKING and does not know BDAT": "the message is handed over otherwise",
    "the session is no longer wanted": "nobody is told",
    "the session is over": "nobody is told",
    "there is no session to send a message in": "the engine does not do that",
}
# Buttons and states that the sources name in both languages themselves, without the catalogue.
NAMED_BY_THE_SOURCES = {
    "en": {"Waiting", "Sending...", "Sent", "Not sent", "Error!", "Pause", "Resume"},
    "it": {"Attesa", "Invio...", "Inviato", "Non inviato", "Errore!", "Pausa", "Riprendi"},
}
# The title of a box, right behind its sign.
TITLE = re.compile(r"^[A-Z][A-Za-z]*(?:-[A-Z][a-z]*| [a-z]+)?$")
# Words for people, as the client says them.
PROSE = re.compile(r"^[ %(\d:]*[A-Za-z]+[ ,']+[a-z]")


def plain(text):
    """A text with one blank between words, and one sign for every value."""
    words = " ".join(re.sub(r"%\d", "…", text).split())
    return "'…" + words if words.startswith("' ") else words


def bare(text):
    """A text without the values, blanks and colons at its edges."""
    return plain(text).strip(" …:.")


def quotes(quotation, text):
    """Whether a quotation is the text, or all of it before a value."""
    said, whole = bare(quotation), bare(text)
    rest = whole[len(said) :]
    return bool(said) and whole.startswith(said) and bool(re.match(r"$|[\s:\"']*…", rest))


class Page(HTMLParser):
    """A help page: where it leads, and what it says in each language."""

    def __init__(self, path):
        super().__init__()
        self.path = path
        self.open = []
        self.ids = []
        self.links = {"": [], **{language: [] for language in LANGUAGES}}
        self.headings = {language: [] for language in LANGUAGES}
        self.said = {language: [] for language in LANGUAGES}
        self.said_in_both = {language: [] for language in LANGUAGES}
        self.shown = {language: [] for language in LANGUAGES}
        self.texts = [""]  # of the elements that are open, behind what stands in none
        self.feed(path.read_text("utf-8"))
        self.close()

    @property
    def language(self):
        """The language of the section that is read; empty outside of sections."""
        return next((dict(a).get("lang", "") for tag, a in self.open if tag == "section"), "")

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        if "id" in attributes:
            self.ids.append(attributes["id"])
        self.links[self.language] += [attributes[a] for a in ("href", "src") if a in attributes]
        if tag not in WITHOUT_END:
            self.open.append((tag, attrs))
            self.texts.append("")

    def handle_data(self, data):
        self.texts[-1] += data

    def handle_endtag(self, tag):
        opened, attrs = self.open.pop()
        said = self.texts.pop()
        self.texts[-1] += said
        if opened != tag:
            raise ValueError(f"{self.path}:{self.getpos()[0]}: <{opened}> ends as <{tag}>")
        attributes = dict(attrs)
        kind = attributes.get("class")
        text = plain(said)
        if re.fullmatch("h[1-6]", tag):
            self.headings[self.language].append(tag)
        if tag == "q" and kind == "said":
            place = self.said_in_both if "lang" in attributes else self.said
            place[self.language].append(text)
        if tag == "b" and kind == "ui":
            self.shown[self.language].append(text)

    def leads_to(self, language):
        """The places that a section leads to: a file and the name of a place in it."""
        places = [link.partition("#")[::2] for link in self.links[language]]
        return [
            ((self.path.parent / file).resolve() if file else self.path.resolve(), place)
            for file, place in places
        ]


class Texts:
    """What the program says, and what of that tells of failures."""

    def __init__(self):
        self.translated = catalogue(CATALOGUE)
        self.fixed = set()
        self.of_failures = set()
        self.fixed_of_failures = set()
        for source in sorted(SRC.rglob("*.cpp")):
            name = source.relative_to(SRC)
            if name.parts[0] not in SILENT_ROOMS:
                self.take(name, source.read_text("utf-8"))

    def take(self, name, content):
        """Notes the texts of one source."""
        tells = TELLS_OF_FAILURES.search(content) and str(name) not in MERE_LABELS
        is_client = name.parts[:2] == ("smtp", "client")
        for literal in literals(content):
            text = literal.text
            if not literal.is_translated:
                self.fixed.add(text)
            if text in NO_ERRORS:
                continue
            if literal.is_translated and tells and not TITLE.match(text):
                self.of_failures.add(text)
            if is_client and not literal.is_trace and PROSE.match(text):
                self.fixed_of_failures.add(text)

    def in_language(self, language):
        """The translated texts as one window shows them."""
        if language == "en":
            return set(self.translated)
        return set().union(*self.translated.values())


class HelpPages(unittest.TestCase):
    """Every page, as a browser meets it."""

    @classmethod
    def setUpClass(cls):
        cls.texts = Texts()
        cls.pages = {path.resolve(): Page(path) for path in sorted(HELP.rglob("*.htm"))}
        cls.error_pages = {
            path: page for path, page in cls.pages.items() if path.parent == ERRORS.resolve()
        }

    def quoted(self, language):
        """All that the error pages quote of the translated texts, and of the others."""
        said, said_in_both = [], []
        for page in self.error_pages.values():
            said += page.said[language]
            said_in_both += page.said_in_both[language]
        return said, said_in_both if language == "it" else said

    def test_every_link_leads_to_a_place_that_is_there(self):
        for path, page in self.pages.items():
            for language in page.links:
                for file, place in page.leads_to(language):
                    with self.subTest(page=path.name, file=file.name, place=place):
                        self.assertTrue(file.is_file())
                        if place:
                            self.assertIn(place, self.pages[file].ids)

    def test_every_place_has_a_name_of_its_own(self):
        for path, page in self.pages.items():
            with self.subTest(page=path.name):
                self.assertEqual(len(page.ids), len(set(page.ids)))

    def test_both_languages_have_the_same_headings(self):
        for path, page in self.pages.items():
            with self.subTest(page=path.name):
                self.assertEqual(page.headings["it"], page.headings["en"])
                self.assertIn("h2", page.headings["it"])
                for section in LANGUAGES.values():
                    self.assertIn(section, page.ids)

    def test_the_index_leads_to_every_error_page_in_both_languages(self):
        self.assertGreater(len(self.error_pages), 15)
        for language, section in LANGUAGES.items():
            for path in self.error_pages:
                with self.subTest(page=path.name, language=language):
                    if path != INDEX.resolve():
                        self.assertIn(
                            (path, section), self.pages[INDEX.resolve()].leads_to(language)
                        )
                        self.assertIn(
                            (INDEX.resolve(), section), self.pages[path].leads_to(language)
                        )

    def test_the_manual_and_the_first_steps_lead_to_the_errors(self):
        for way in WAYS_TO_THE_INDEX:
            for language, section in LANGUAGES.items():
                with self.subTest(page=way.name, language=language):
                    places = self.pages[way.resolve()].leads_to(language)
                    self.assertIn((INDEX.resolve(), section), places)

    def test_what_is_quoted_is_what_the_program_says(self):
        for language in LANGUAGES:
            own = self.texts.in_language(language)
            for path, page in self.error_pages.items():
                allowed = own | self.texts.fixed if language == "en" else own
                for said in page.said[language]:
                    with self.subTest(page=path.name, said=said):
                        self.assertTrue(any(quotes(said, text) for text in allowed))
                for said in page.said_in_both[language]:
                    with self.subTest(page=path.name, said=said):
                        self.assertTrue(any(quotes(said, text) for text in self.texts.fixed))

    def test_buttons_fields_and_states_are_named_as_the_windows_name_them(self):
        for language in LANGUAGES:
            names = self.texts.in_language(language) | NAMED_BY_THE_SOURCES[language]
            known = {bare(text).replace("&", "") for text in names}
            for path, page in self.error_pages.items():
                for name in page.shown[language]:
                    with self.subTest(page=path.name, name=name):
                        self.assertIn(bare(name), known)

    def test_every_failure_that_the_program_tells_of_is_on_a_page(self):
        self.assertGreater(len(self.texts.of_failures), 60)
        self.assertGreater(len(self.texts.fixed_of_failures), 40)
        for language in LANGUAGES:
            said, fixed = self.quoted(language)
            for text in self.texts.of_failures:
                forms = {text} if language == "en" else self.texts.translated.get(text, ())
                with self.subTest(language=language, text=text):
                    self.assertTrue(any(quotes(q, form) for q in said for form in forms))
            for text in self.texts.fixed_of_failures:
                with self.subTest(language=language, text=text):
                    self.assertTrue(any(quotes(q, text) for q in fixed))

    def test_what_the_sources_name_themselves_is_still_named_there(self):
        for language, names in NAMED_BY_THE_SOURCES.items():
            with self.subTest(language=language):
                self.assertEqual(names - self.texts.fixed, set())

    def test_what_is_no_failure_is_still_a_text_of_the_program(self):
        known = set(self.texts.translated) | self.texts.fixed
        self.assertEqual(set(NO_ERRORS) - known, set())
        self.assertEqual([name for name in MERE_LABELS if not (SRC / name).is_file()], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
