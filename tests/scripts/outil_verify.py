#!/usr/bin/env python3
"""The words `liste verifier` of sonarelle-outil: which files of a list are there."""
import json
import os
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
RECORD = struct.Struct("<200s100s100shd8s")


def record(path):
    return RECORD.pack(path.encode("cp1252").ljust(200), b"200.00".ljust(100), b"Rock".ljust(100), 100, 0.1,
                       b"00:03:20")


class Verifying(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.music = self.folder / "Musique"
        self.music.mkdir()
        self.list = self.folder / "matin.dfm"

    def call(self, *words, status=0):
        run = subprocess.run([TOOL, "liste", "verifier", *map(str, words), "--dossier", self.folder / "station",
                              "--lecteur", f"D={self.folder}"], capture_output=True, check=False)
        self.assertEqual(run.returncode, status, run.stderr.decode())
        self.error = run.stderr.decode()
        return run.stdout.decode()

    def write(self, *paths):
        self.list.write_bytes(b"".join(map(record, paths)))

    def states(self, *paths):
        self.write(*paths)
        return [row["etat"] for row in map(json.loads, self.call(self.list, "--json").splitlines())]

    def test_tells_one_line_a_row(self):
        (self.music / "été.mp3").touch()
        self.write("D:\\Musique\\été.mp3", "D:\\Musique\\autre.mp3")
        rows = [json.loads(line) for line in self.call(self.list, "--json").splitlines()]
        self.assertEqual(rows, [{"numero": 1, "chemin": "D:\\Musique\\été.mp3", "etat": "present"},
                                {"numero": 2, "chemin": "D:\\Musique\\autre.mp3", "etat": "absent"}])

    def test_finds_a_file_ignoring_case(self):
        (self.music / "Titre.MP3").touch()
        self.assertEqual(self.states("d:\\MUSIQUE\\titre.mp3"), ["present"])

    def test_tells_a_missing_folder(self):
        self.assertEqual(self.states("D:\\Nulle part\\a.mp3"), ["dossier absent"])

    def test_tells_a_drive_without_a_folder_as_absent(self):
        self.assertEqual(self.states("Q:\\a.mp3"), ["absent"])

    def test_tells_a_row_without_a_path_as_absent(self):
        self.assertEqual(self.states(""), ["absent"])

    def test_does_not_look_on_the_network(self):
        self.assertEqual(self.states("\\\\serveur\\partage\\a.mp3"), ["reseau"])

    def test_does_not_take_a_folder_for_a_file(self):
        (self.music / "a.mp3").mkdir()
        self.assertEqual(self.states("D:\\Musique\\a.mp3"), ["absent"])

    def test_finds_nothing_behind_a_wild_card(self):
        (self.music / "a.mp3").touch()
        self.assertEqual(self.states("D:\\Musique\\?.mp3", "D:\\Mus*\\a.mp3"), ["absent", "absent"])

    def test_finds_a_file_in_a_folder_with_nothing_else(self):
        self.assertEqual(self.states("D:\\Musique\\a.mp3"), ["absent"])

    def test_changes_nothing(self):
        self.write("D:\\Nulle part\\a.mp3")
        before = self.list.read_bytes()
        self.call(self.list)
        self.assertEqual(self.list.read_bytes(), before)

    def test_shows_people_how_many_are_missing(self):
        (self.music / "a.mp3").touch()
        self.write("D:\\Musique\\a.mp3", "D:\\Musique\\b.mp3", "D:\\c\\d.mp3")
        self.assertEqual(self.call(self.list).splitlines(),
                         ["1  present  D:\\Musique\\a.mp3", "2  absent  D:\\Musique\\b.mp3",
                          "3  dossier absent  D:\\c\\d.mp3", "2 fichiers manquants sur 3"])

    def test_of_an_empty_list_says_nothing(self):
        self.assertEqual(self.states(), [])

    def test_refuses_another_kind_of_file(self):
        (self.folder / "a.rfm").touch()
        self.call(self.folder / "a.rfm", status=1)
        self.assertIn("a.rfm", self.error)

    def test_refuses_a_list_that_is_not_there(self):
        self.call(self.folder / "rien.dfm", status=1)

    def test_asks_for_a_list(self):
        self.call(status=2)


if __name__ == "__main__":
    unittest.main()
