"""Whether the Italian catalogue holds every text of the program, translated, and no other.

    test_catalogue.py LUPDATE SRC CATALOGUE
"""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

LUPDATE, SRC, CATALOGUE = sys.argv[1:4]


def entries(catalogue):
    """The translation elements of a catalogue by context, English text and comment."""
    found = {}
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            found[key] = message.find("translation")
    return found


def updated():
    """The entries of a copy of the catalogue that has just learnt the texts of the program."""
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / Path(CATALOGUE).name
        shutil.copyfile(CATALOGUE, copy)
        command = [LUPDATE, "-silent", "-locations", "none", SRC, "-ts", str(copy)]
        subprocess.run(command, check=True)
        return entries(copy)


def texts(translation):
    """What a translation says: one text, or one for each plural form."""
    forms = translation.findall("numerusform")
    return [form.text or "" for form in forms] or [translation.text or ""]


class Catalogue(unittest.TestCase):
    """The catalogue against the sources, and each translation against its English text."""

    def test_no_text_is_missing_or_left_over(self):
        fresh = updated()
        self.assertGreater(len(fresh), 50)
        known = set(entries(CATALOGUE))
        self.assertEqual(sorted(map(str, set(fresh) - known)), [], "build update_texts, translate")
        vanished = [
            key for key, translation in fresh.items()
            if translation.get("type") in ("vanished", "obsolete")
        ]
        self.assertEqual(vanished, [], "build update_texts")

    def test_every_text_is_translated(self):
        for key, translation in entries(CATALOGUE).items():
            with self.subTest(key):
                self.assertIsNone(translation.get("type"))
                self.assertTrue(all(texts(translation)))

    def test_places_for_values_are_the_same(self):
        for key, translation in entries(CATALOGUE).items():
            with self.subTest(key):
                places = sorted(re.findall(r"%\d", key[1]))
                for text in texts(translation):
                    self.assertEqual(sorted(re.findall(r"%\d", text)), places)

    def test_blanks_at_the_edges_are_the_same(self):
        for key, translation in entries(CATALOGUE).items():
            with self.subTest(key):
                for text in texts(translation):
                    self.assertEqual(text[:1] == " ", key[1][:1] == " ")
                    self.assertEqual(text[-1:] == " ", key[1][-1:] == " ")

    def test_patterns_of_file_filters_are_the_same(self):
        for key, translation in entries(CATALOGUE).items():
            if "|" in key[1]:
                with self.subTest(key):
                    self.assertEqual(translation.text.split("|")[1::2], key[1].split("|")[1::2])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
