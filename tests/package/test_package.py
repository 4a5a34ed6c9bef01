"""The Debian package: what it says of itself, and the programs that it installs."""

import os
import re
import shutil
import subprocess
import unittest

from installed import PACKAGE, ROOT, SOURCES, WithThePackage, become, files_below

from catalogue import Catalogue
from desktop import Desktop
from endtoend import rows
from server import Server
from sorvanta import Sorvanta
from waiting import until

TYPE = "application/x-sorvanta-project"
HELP = {
    "Getting started...": "Help/Tutorial/come_cominciare.htm",
    "Help...": "Help/ita_help.htm",
}


class ThePackage(unittest.TestCase):
    """Seen from outside."""

    def test_those_who_check_packages_have_nothing_to_say(self):
        check = subprocess.run(
            [SOURCES / "packaging" / "check-package", PACKAGE],
            capture_output=True,
            text=True,
            check=False,
        )
        self.assertEqual((check.returncode, check.stdout + check.stderr), (0, ""))

    def test_what_it_depends_on_can_be_installed(self):
        command = ["apt-get", "install", "--simulate", "--no-install-recommends", PACKAGE]
        tried = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(tried.returncode, 0, tried.stderr)
        self.assertIn("Inst sorvanta ", tried.stdout)


class TheCommand(WithThePackage):
    """sorvanta-cli, installed."""

    def help(self):
        """What the program says about its use."""
        return self.program.run("--help").output

    def options(self):
        """Every long option of the help."""
        return set(re.findall(r"(?<![\w-])--[a-z][a-z-]+", self.help()))

    def completions(self, *words, program="sorvanta-cli"):
        """What the shell offers for the last of the words behind the program."""
        script = (
            '. "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); compopt() { :; }\n'
            '_sorvanta_cli "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"\n'
            'printf "%s\\n" "${COMPREPLY[@]}"'
        )
        completion = self.root.shared / "bash-completion" / "completions" / "sorvanta-cli"
        said = self.printed("bash", "-c", script, "-", completion, program, *words)
        return set(said.split())

    def test_it_says_its_version(self):
        version = self.printed("dpkg-deb", "--show", "--showformat=${Version}", PACKAGE)
        ended = self.program.run("--version")
        self.assertEqual((ended.status, ended.output), (0, f"sorvanta-cli {version}\n"))

    def test_it_sends_and_keeps_what_is_the_users_in_the_users_folders(self):
        installed = self.root.files()
        with Server() as server:
            project = self.project(server, rows(2))
            self.send(project)
            self.assertEqual(server.recipients(), ["r1@list.example", "r2@list.example"])
        self.assertEqual(self.program.run("settings", "Language", "1").status, 0)
        self.assertIn("Sending ended without problems", self.program.log_lines())
        self.assertIn("config/Sorvanta/settings.reg", files_below(self.home))
        self.assertEqual(self.root.files(), installed)

    def test_every_help_page_comes_with_it(self):
        installed = files_below(self.root.shared / "sorvanta" / "Help")
        self.assertEqual(installed, files_below(SOURCES / "Help"))

    def test_the_manual_page_knows_every_option_of_the_help(self):
        page = self.root.shared / "man" / "man1" / "sorvanta-cli.1.gz"
        shown = self.printed("man", "--encoding=UTF-8", "--local-file", page, MANWIDTH="500")
        self.assertEqual(self.options() - set(re.findall(r"--[a-z][a-z-]+", shown)), set())

    def test_the_shell_completes_every_command_and_option_of_the_help(self):
        commands = set(re.findall(r"^  ([a-z]+) ", self.help(), re.MULTILINE))
        first = self.completions("")
        self.assertEqual(first, commands | {"--help", "--version"})
        offered = {name for command in commands for name in self.completions(command, "--")}
        self.assertEqual(offered | {"--help", "--version"}, self.options())

    def test_the_shell_completes_projects_and_settings(self):
        for name in ("walks.svk", "WINTER.SVK", "walks.txt"):
            (self.home / name).touch()
        (self.home / "wood").mkdir()
        self.assertEqual(self.completions("send", "w"), {"walks.svk", "wood"})
        self.assertEqual(self.completions("check", "W"), {"WINTER.SVK"})
        self.assertEqual(self.completions("settings", "Email"), {"EmailMittente"})
        self.assertEqual(self.completions("account", "mail.example", "Tok"), {"TokenCommand"})

    def test_the_shell_runs_nothing_of_what_the_program_prints(self):
        teller = self.home / "teller"
        teller.write_text("#!/bin/sh\necho '$(>ran)=1'\n", "utf-8")
        teller.chmod(0o755)
        self.assertEqual(self.completions("settings", "", program=teller), {"$(>ran)"})
        self.assertFalse((self.home / "ran").exists())


class TheAdministrator(WithThePackage):
    """Somebody who may write to the folder of the programs."""

    user = ROOT

    def test_keeps_nothing_beside_the_programs_either(self):
        installed = self.root.files()
        with Server() as server:
            self.send(self.project(server, rows(1)))
        self.assertIn("Sending ended without problems", self.program.log_lines())
        self.assertEqual(self.root.files(), installed)


class TheDesktop(WithThePackage):
    """What desktops make of it."""

    def setUp(self):
        super().setUp()
        # Desktops refresh these when a package comes; here it is done for a copy.
        self.shared = self.folder / "shared"
        for name in ("mime", "applications"):
            shutil.copytree(self.root.shared / name, self.shared / name)
        self.printed("update-mime-database", self.shared / "mime")
        self.printed("update-desktop-database", self.shared / "applications")
        folders = f"{self.shared}:{self.program.environment['XDG_DATA_DIRS']}"
        self.program.environment["XDG_DATA_DIRS"] = folders

    def type_of(self, path):
        """The type that a desktop takes a file for."""
        told = self.printed("gio", "info", "--attributes=standard::content-type", path)
        return re.search(r"content-type: (\S+)", told)[1]

    def test_a_project_is_known_by_its_name_and_by_what_it_says(self):
        with Server() as server:
            saved = self.project(server, rows(1)).read_bytes()
        self.assertEqual(self.type_of(self.file("named.svk", "anything\n")), TYPE)
        self.assertEqual(self.type_of(self.file("stopped", saved)), TYPE)
        paused = saved.replace(b"stop", b"pausa", 1)
        self.assertEqual(self.type_of(self.file("paused", paused)), TYPE)
        self.assertEqual(self.type_of(self.file("notes", "v2.0\r\nis out\r\n")), "text/plain")

    def test_a_project_is_opened_with_the_program(self):
        self.assertIn("sorvanta.desktop", self.printed("gio", "mime", TYPE))


class TheWindow(WithThePackage):
    """sorvanta, installed."""

    def setUp(self):
        self.tr = Catalogue(SOURCES / "translations" / "sorvanta_it.ts", italian=False)
        super().setUp()
        tools = self.folder / "tools"
        tools.mkdir()
        # What opens files on a desktop: it takes their names down.
        self.opened = self.home / "opened"
        opener = tools / "xdg-open"
        opener.write_text(f'#!/bin/sh\nprintf "%s\\n" "$1" >>"{self.opened}"\n', encoding="utf-8")
        opener.chmod(0o755)
        path = f"{tools}:{self.program.environment['PATH']}"
        desktop = Desktop(self.program.environment | {"PATH": path})
        self.desktop = desktop.__enter__()
        self.addCleanup(desktop.__exit__)

    def start(self):
        """Starts the program with a project of two recipients."""
        with Server() as server:
            project = self.project(server, rows(2))
        running = self.desktop.start(self.root.programs / "sorvanta", project)
        return Sorvanta(running, self.tr).shown(project.name)

    def test_it_shows_a_project_and_keeps_what_is_the_users_in_the_users_folders(self):
        installed = self.root.files()
        sorvanta = self.start()
        self.assertEqual(len(sorvanta.states()), 2)
        sorvanta.close()
        sorvanta.has_ended()
        self.assertEqual(self.root.files(), installed)
        self.assertIn("config/Sorvanta/window.ini", files_below(self.home))
        self.assertIn("Program started...", self.program.log_lines())

    def test_it_finds_its_help(self):
        sorvanta = self.start()
        pages = []
        for entry, page in HELP.items():
            pages.append(f"{self.root.shared}/sorvanta/{page}")
            sorvanta.running.click(sorvanta.open_menu("?", entry))
            until("a page of the help", lambda: self.pages_opened() == pages)
        self.assertTrue(all(os.path.isfile(page) for page in pages))
        sorvanta.running.click(sorvanta.open_menu("File", "Exit"))
        sorvanta.has_ended()

    def pages_opened(self):
        """The files that the desktop was asked to open."""
        if not self.opened.exists():
            return []
        lines = self.opened.read_text("utf-8").splitlines()
        return [line.removeprefix("file://") for line in lines]


class TheEnd(WithThePackage):
    """The package is removed."""

    def test_nothing_is_left_of_it_and_the_users_files_stay(self):
        with Server() as server:
            self.send(self.project(server, rows(1)))
        users = files_below(self.home)
        self.assertTrue(any(name.startswith("data/Sorvanta/") for name in users), users)
        become(ROOT)
        self.root.dpkg("--purge", "sorvanta")
        self.assertEqual(self.root.files(), set())
        self.assertFalse((self.root.folder / "usr").exists())
        self.assertEqual(files_below(self.home), users)


if __name__ == "__main__":
    unittest.main()
