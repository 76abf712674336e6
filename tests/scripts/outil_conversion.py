#!/usr/bin/env python3
"""The word `liste convertir` of sonarelle-outil between lists and the texts of other programs."""
import json
import os
import struct
import subprocess
import tempfile
import unittest
import wave
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
RECORD = struct.Struct("<200s100s100shd8s")


def record(path, end=b"200.00", genre=b"Rock", volume=80, start=0.1, duration=b"00:03:20"):
    return RECORD.pack(path.encode("cp1252").ljust(200), end.ljust(100), genre.ljust(100), volume, start,
                       duration.ljust(8))


class Converting(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name).resolve()
        self.list = self.folder / "liste.dfm"

    def call(self, *words, status=0):
        run = subprocess.run([TOOL, *map(str, words), "--dossier", str(self.folder / "station")], capture_output=True,
                             check=False)
        self.error = run.stderr.decode()
        self.assertEqual(run.returncode, status, self.error)
        return run.stdout.decode()

    def convert(self, old, new, status=0):
        self.call("liste", "convertir", self.folder / old, self.folder / new, status=status)

    def put(self, name, text, encoding="utf-8"):
        (self.folder / name).write_bytes(text.encode(encoding))

    def get(self, name):
        return (self.folder / name).read_bytes()

    def sound(self, name, seconds=2):
        file = self.folder / name
        file.parent.mkdir(exist_ok=True)
        with wave.open(str(file), "wb") as sound:
            sound.setnchannels(1)
            sound.setsampwidth(1)
            sound.setframerate(8000)
            sound.writeframes(b"\x60\xa0" * (4000 * seconds))
        return file

    def station_path(self, file):
        return "C:" + str(file).replace("/", "\\")

    def rows(self):
        return json.loads(self.call("liste", "voir", self.list, "--json"))["enregistrements"]

    def paths(self):
        return [row["chemin"] for row in self.rows()]


class M3u(Converting):
    def test_is_read_with_paths_of_all_kinds(self):
        file = self.sound("sous/Été 1.wav")
        self.put("a.m3u8", "\ufeff#EXTM3U\r\n#EXTINF:2,Été\r\n" + "\r\n".join(
            ["sous/Été 1.wav", "sous\\été 1.wav".replace("é", "É", 1), str(file), self.station_path(file),
             "file://" + str(file).replace(" ", "%20")]) + "\r\n\r\n")
        self.convert("a.m3u8", "liste.dfm")
        self.assertEqual(self.paths(), [self.station_path(file)] * 5)
        self.assertEqual((self.rows()[0]["fin_lecture"], self.rows()[0]["volume"]), ("2.00", 100))

    def test_is_read_in_windows_1252_too(self):
        file = self.sound("Été.wav")
        self.put("a.m3u", "Été.wav\n", "cp1252")
        self.convert("a.m3u", "liste.dfm")
        self.assertEqual(self.paths(), [self.station_path(file)])

    def test_names_and_skips_what_cannot_be_played(self):
        file = self.sound("a.wav")
        self.put("a.m3u", "absent.wav\na.wav\nhttp://radio/flux\n")
        self.convert("a.m3u", "liste.dfm", status=1)
        self.assertIn("absent.wav : Fichier introuvable", self.error)
        self.assertIn("http://radio/flux : une adresse n'est pas un fichier", self.error)
        self.assertEqual(self.paths(), [self.station_path(file)])

    def test_is_written_with_lengths_and_paths_of_this_machine(self):
        self.list.write_bytes(record("C:\\musique\\Été.mp3") + record("Q:\\a.mp3", end=b""))
        self.convert("liste.dfm", "b.m3u8")
        self.assertEqual(self.get("b.m3u8").decode(), "#EXTM3U\n#EXTINF:200,Été.mp3\n/musique/Été.mp3\n"
                                                      "#EXTINF:-1,a.mp3\nQ:\\a.mp3\n")
        self.convert("liste.dfm", "b.m3u")
        self.assertIn(b"\xc9t\xe9.mp3", self.get("b.m3u"))


class Csv(Converting):
    HEAD = "numero,chemin,debut_lecture,fin_lecture,genre,volume,duree_piste\n"

    def test_is_written_and_read_back_without_loss(self):
        data = record('C:\\a "b", c.mp3', genre="Été;x".encode("cp1252")) + record("C:\\b.mp3", start=float("inf"),
                                                                                  volume=-5)
        self.list.write_bytes(data)
        self.convert("liste.dfm", "b.csv")
        self.assertEqual(self.get("b.csv").decode(),
                         self.HEAD + '1,"C:\\a ""b"", c.mp3",0.1,200.00,"Été;x",80,00:03:20\n'
                                     "2,C:\\b.mp3,inf,200.00,Rock,-5,00:03:20\n")
        self.convert("b.csv", "c.dfm")
        self.assertEqual(self.get("c.dfm"), data)

    def test_of_an_empty_list_is_its_head(self):
        self.list.write_bytes(b"")
        self.convert("liste.dfm", "b.csv")
        self.assertEqual(self.get("b.csv").decode(), self.HEAD)
        self.convert("b.csv", "c.dfm")
        self.assertEqual(self.get("c.dfm"), b"")

    def test_may_have_semicolons_and_its_fields_in_any_order(self):
        self.put("a.csv", "volume;chemin;debut_lecture;fin_lecture;genre;duree_piste\r\n"
                          "80;C:\\a.mp3;0.1;200.00;Rock;00:03:20\r\n")
        self.convert("a.csv", "liste.dfm")
        self.assertEqual(self.list.read_bytes(), record("C:\\a.mp3"))

    def test_of_paths_alone_is_measured(self):
        file = self.sound("a.wav", 3)
        self.put("a.csv", f"chemin\n{file}\n")
        self.convert("a.csv", "liste.dfm")
        self.assertEqual([(row["chemin"], row["fin_lecture"]) for row in self.rows()], [(self.station_path(file), "3.00")])

    def test_with_a_wrong_value_is_refused_and_nothing_is_written(self):
        self.put("a.csv", self.HEAD + "1,C:\\a.mp3,0.1,200.00,Rock,fort,00:03:20\n")
        self.convert("a.csv", "liste.dfm", status=1)
        self.assertIn("enregistrement 1 : le champ « volume »", self.error)
        self.assertFalse(self.list.exists())

    def test_without_its_head_is_refused(self):
        self.put("a.csv", "C:\\a.mp3\n")
        self.convert("a.csv", "liste.dfm", status=1)
        self.assertIn("a.csv", self.error)


class Endings(Converting):
    def test_that_do_not_go_together_are_refused(self):
        for old, new in (("a.dfm", "b.dfm"), ("a.m3u", "b.csv"), ("a.txt", "b.dfm"), ("a.dfm", "b.rfm")):
            self.put(old, "")
            self.convert(old, new, status=1)
            self.assertIn("il n'y a pas de conversion", self.error)
            self.assertFalse((self.folder / new).exists())


if __name__ == "__main__":
    unittest.main()
