#!/usr/bin/env python3
"""The words `mesure`, `liste ajouter` and `sorties` of sonarelle-outil, on real sound files."""
import json
import os
import resource
import shutil
import struct
import subprocess
import tempfile
import unittest
import wave
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
RECORD = struct.Struct("<200s100s100shd8s")


def write_wav(path, seconds, rate=8000):
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(1)
        sound.setframerate(rate)
        sound.writeframes(bytes(160 if i // 20 % 2 else 96 for i in range(round(seconds * rate))))
    return path



def write_mp3(path, seconds):
    sound = write_wav(path.with_suffix(".wav"), seconds, 44100)
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-i", str(sound), "-write_xing", "0", "-id3v2_version", "0",
                    str(path)], check=True)
    sound.unlink()
    return path


def tag(genre):
    return b"TAG" + b"Titre".ljust(30) + b"Artiste".ljust(30) + b"Album".ljust(30) + b"2001" + b" " * 30 + bytes([genre])


class Tool(unittest.TestCase):
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

    def measures(self, *files, status=0):
        return [json.loads(line) for line in self.call("mesure", *files, "--json", status=status).splitlines()]

    def rows(self):
        run = subprocess.run([TOOL, "liste", "voir", str(self.list), "--json"], capture_output=True, check=True)
        return json.loads(run.stdout)["enregistrements"]

    def station_path(self, file):
        return "C:" + str(file).replace("/", "\\")

    def wav(self, name, seconds=3.0):
        (self.folder / name).parent.mkdir(exist_ok=True)
        return write_wav(self.folder / name, seconds)

    def rubbish(self, name="rien.mp3"):
        path = self.folder / name
        path.write_bytes(b"ceci n'est pas du son\n" * 40)
        return path


class Measuring(Tool):
    def test_tells_a_files_length(self):
        file = self.wav("a.wav", 100.5)
        self.assertEqual(self.measures(file), [{"fichier": str(file), "duree": 100.5, "duree_texte": "00:01:40",
                                                "video": False}])

    def test_keeps_the_order_of_the_keys(self):
        text = self.call("mesure", self.wav("a.wav"), "--json")
        self.assertTrue(text.startswith('{"fichier":'))
        self.assertLess(text.index('"duree"'), text.index('"duree_texte"'))
        self.assertLess(text.index('"duree_texte"'), text.index('"video"'))

    def test_tells_the_files_in_the_order_of_the_words(self):
        files = [self.wav(name, seconds) for name, seconds in (("b.wav", 2), ("a.wav", 1))]
        self.assertEqual([measure["duree"] for measure in self.measures(*files)], [2.0, 1.0])

    def test_counts_the_frames_of_an_mp3_without_a_length_in_its_head(self):
        measure, = self.measures(write_mp3(self.folder / "a.mp3", 30))
        self.assertAlmostEqual(measure["duree"], 30.0, delta=0.1)

    def test_tells_pictures(self):
        film = self.folder / "film.avi"
        subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "testsrc=size=64x48:rate=5:duration=2", str(film)],
                       check=True)
        self.assertTrue(self.measures(film)[0]["video"])

    def test_names_a_missing_file_and_goes_on(self):
        absent, present = self.folder / "absent.mp3", self.wav("a.wav")
        first, second = self.measures(absent, present, status=1)
        self.assertEqual(first, {"fichier": str(absent), "erreur": "Fichier introuvable"})
        self.assertEqual(second["duree"], 3.0)
        self.assertEqual(self.error, f"sonarelle-outil : {absent} : Fichier introuvable\n")

    def test_names_a_file_that_is_no_sound(self):
        measure, = self.measures(self.rubbish(), status=1)
        self.assertEqual(set(measure), {"fichier", "erreur"})
        self.assertIn("rien.mp3 : ", self.error)

    def test_names_a_folder(self):
        self.measures(self.folder, status=1)
        self.assertIn(str(self.folder), self.error)

    def test_shows_lengths_to_people(self):
        self.assertIn("00:00:03", self.call("mesure", self.wav("a.wav")))

    def test_shows_a_name_with_control_characters_on_one_line(self):
        self.call("mesure", self.folder / "a\nb\x1b[2J.mp3", status=1)
        self.assertEqual(self.error.count("\n"), 1)
        self.assertNotIn("\x1b", self.error)

    def test_wants_a_file(self):
        self.call("mesure", status=2)
        self.call("mesure", "", status=2)


class Odd(Tool):
    def test_files_are_named_for_what_they_are(self):
        pipe = self.folder / "tuyau.mp3"
        os.mkfifo(pipe)
        for odd in (pipe, self.folder, "/dev/zero"):
            self.call("mesure", odd, status=1)
            self.assertEqual(self.error, f"sonarelle-outil : {odd} : ce n'est pas un fichier ordinaire\n")


class Appending(Tool):
    def test_makes_a_row_as_the_file_manager_does(self):
        file = self.wav("a.wav", 100.2)
        self.call("liste", "ajouter", self.list, file)
        self.assertEqual(self.rows(), [{"numero": 1, "chemin": self.station_path(file), "debut_lecture": 0.1,
                                        "fin_lecture": "100.00", "genre": "divers", "volume": 100,
                                        "duree_piste": "00:01:40"}])

    def test_rounds_the_end_to_whole_seconds(self):
        self.call("liste", "ajouter", self.list, self.wav("a.wav", 2.6), self.wav("b.wav", 2.4))
        self.assertEqual([row["fin_lecture"] for row in self.rows()], ["3.00", "2.00"])

    def test_skips_what_is_shorter_than_a_second(self):
        self.call("liste", "ajouter", self.list, self.wav("a.wav", 0.99), self.wav("b.wav", 1.0), status=1)
        self.assertEqual([row["fin_lecture"] for row in self.rows()], ["1.00"])
        self.assertIn("a.wav : le fichier dure moins d'une seconde", self.error)

    def test_makes_no_list_for_no_row(self):
        self.call("liste", "ajouter", self.list, self.folder / "absent.wav", status=1)
        self.assertFalse(self.list.exists())

    def test_at_once_by_several_programs_loses_no_row(self):
        files = [self.wav(f"{number}.wav", 1) for number in range(3)]
        runs = [subprocess.Popen([TOOL, "liste", "ajouter", str(self.list), *map(str, files), "--dossier",
                                  str(self.folder / "station")]) for _ in range(6)]
        self.assertEqual([run.wait() for run in runs], [0] * 6)
        self.assertEqual(sorted(row["chemin"] for row in self.rows()), sorted(6 * list(map(self.station_path, files))))

    def test_refuses_a_list_whose_end_would_be_lost(self):
        self.list.write_bytes(b"x" * (RECORD.size + 9))
        self.call("liste", "ajouter", self.list, self.wav("a.wav"), status=1)
        self.assertIn("seraient perdus", self.error)
        self.assertEqual(self.list.stat().st_size, RECORD.size + 9)

    def test_walks_more_nested_folders_than_files_can_be_open(self):
        folder = self.folder / "musique"
        for _ in range(60):
            folder = folder / "d"
        folder.mkdir(parents=True)
        (self.folder / "musique/a.wav").write_bytes(self.wav("a.wav", 1).read_bytes())
        (folder / "z.wav").write_bytes((self.folder / "a.wav").read_bytes())
        run = subprocess.run([TOOL, "liste", "ajouter", str(self.list), str(self.folder / "musique"), "--dossier",
                              str(self.folder / "station")], capture_output=True, check=False,
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_NOFILE, (40, 40)))
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertEqual([row["chemin"][-5:] for row in self.rows()], ["a.wav", "z.wav"])

    @unittest.skipIf(os.getuid() == 0 and not shutil.which("setpriv"), "the administrator reads everything")
    def test_names_a_folder_that_it_may_not_read(self):
        private = self.folder / "prive"
        private.mkdir(mode=0)
        os.chmod(self.folder, 0o777)
        as_another = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"] if os.getuid() == 0 else []
        run = subprocess.run([*as_another, TOOL, "liste", "ajouter", str(self.list), str(private), "--dossier",
                              str(self.folder / "station")], capture_output=True, check=False)
        self.assertEqual(run.returncode, 1)
        self.assertIn(f"{private} : ", run.stderr.decode())
        self.assertFalse(self.list.exists())

    def test_refuses_a_list_that_is_a_link_to_itself(self):
        self.list.symlink_to(self.list)
        self.call("liste", "ajouter", self.list, self.wav("a.wav"), status=1)
        self.assertIn(f"{self.list} : Erreur d'accès", self.error)

    def test_takes_the_genre_from_the_tag(self):
        file = write_mp3(self.folder / "a.mp3", 2)
        file.write_bytes(file.read_bytes() + tag(17))
        self.call("liste", "ajouter", self.list, file)
        self.assertEqual(self.rows()[0]["genre"], "Rock")

    def test_takes_genre_and_volume_from_the_words(self):
        file = write_mp3(self.folder / "a.mp3", 2)
        file.write_bytes(file.read_bytes() + tag(17))
        self.call("liste", "ajouter", self.list, file, "--genre", "Été", "--volume", "80")
        self.assertEqual([(row["genre"], row["volume"]) for row in self.rows()], [("Été", 80)])

    def test_refuses_a_volume_that_is_none(self):
        for volume in ("fort", "101", "-1", "70000"):
            self.call("liste", "ajouter", self.list, self.wav("a.wav"), "--volume", volume, status=2)
        self.assertFalse(self.list.exists())

    def test_appends_behind_the_rows_that_are_there(self):
        old = RECORD.pack(b"C:\\vieux.mp3".ljust(200), b"9".ljust(100), b"x".ljust(100), 35, 1.5, b"00:00:09")
        self.list.write_bytes(old)
        self.call("liste", "ajouter", self.list, self.wav("a.wav"))
        self.assertEqual(self.list.read_bytes()[:len(old)], old)
        self.assertEqual(self.list.stat().st_size, 2 * RECORD.size)

    def test_walks_folders_in_the_order_of_their_names(self):
        for name in ("musique/b.wav", "musique/a.wav", "autre/z.wav"):
            self.wav(name, 1)
        (self.folder / "musique/sous").mkdir()
        self.wav("musique/sous/c.wav", 1)
        self.call("liste", "ajouter", self.list, self.folder / "musique", self.folder / "autre")
        self.assertEqual([row["chemin"].rsplit("\\", 2)[1:] for row in self.rows()],
                         [["musique", "a.wav"], ["musique", "b.wav"], ["sous", "c.wav"], ["autre", "z.wav"]])

    def test_names_and_skips_what_is_no_sound(self):
        first, bad, last = self.wav("a.wav"), self.rubbish(), self.wav("b.wav")
        self.call("liste", "ajouter", self.list, first, bad, self.folder / "absent.wav", last, status=1)
        self.assertEqual([row["chemin"] for row in self.rows()], list(map(self.station_path, (first, last))))
        self.assertIn(f"{bad} : ", self.error)
        self.assertIn("absent.wav : Fichier introuvable", self.error)
        self.assertEqual(self.error.count("\n"), 2)

    def test_skips_the_picture_of_a_cover(self):
        (self.folder / "disque").mkdir()
        cover = self.folder / "disque/a.jpg"
        subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "testsrc=size=64x64", "-frames:v", "1", str(cover)],
                       check=True)
        self.wav("disque/b.wav")
        self.call("liste", "ajouter", self.list, self.folder / "disque", status=1)
        self.assertEqual([row["chemin"][-5:] for row in self.rows()], ["b.wav"])
        self.assertIn("a.jpg : ", self.error)

    def test_skips_a_path_that_a_row_cannot_hold(self):
        deep = self.folder / ("d" * 100)
        deep.mkdir()
        long = write_wav(deep / ("f" * 100 + ".wav"), 1)
        self.call("liste", "ajouter", self.list, long, self.wav("a.wav"), status=1)
        self.assertIn("ne tient pas", self.error)
        self.assertEqual(len(self.rows()), 1)

    def test_stores_paths_by_the_drive_that_is_nearest(self):
        file = self.wav("a.wav")
        self.call("liste", "ajouter", self.list, file, "--lecteur", f"D={self.folder}")
        self.assertEqual(self.rows()[0]["chemin"], "D:\\a.wav")

    def test_refuses_another_kind_of_list(self):
        self.call("liste", "ajouter", self.folder / "a.rfm", self.wav("a.wav"), status=1)
        self.assertFalse((self.folder / "a.rfm").exists())

    def test_wants_a_list_and_a_file(self):
        self.call("liste", "ajouter", status=2)
        self.call("liste", "ajouter", self.list, status=2)
        self.call("liste", "ajouter", "", self.wav("a.wav"), status=2)
        self.call("liste", "ajouter", self.list, "", status=2)


class Outputs(Tool):
    def test_are_listed_even_where_there_is_none(self):
        self.call("sorties")
        self.assertEqual(self.error, "")

    def test_take_no_word(self):
        self.call("sorties", "x", status=2)


if __name__ == "__main__":
    unittest.main()
