#!/usr/bin/env python3
"""The words `tag …`, `genre …` and `entete` of sonarelle-outil, as scripts of operators use them."""
import json
import os
import resource
import stat
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
TAG_SIZE = 128


def frames(count=20, header=b"\xff\xfb\x90\x00", length=417):
    """Frames of MPEG-1 Layer III at 128 kbit/s and 44100 Hz, in stereo."""
    return (header + b"a" * (length - len(header))) * count


def tag(title=b"", artist=b"", album=b"", year=b"", comment=b"", track=0, genre=255, mark=b"TAG"):
    fields = [title.ljust(30, b"\0"), artist.ljust(30, b"\0"), album.ljust(30, b"\0"), year.ljust(4, b"\0"),
              comment.ljust(28, b"\0")]
    return mark + b"".join(fields) + bytes([0, track, genre])


class Tool(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def call(self, *words, status=0, **more):
        run = subprocess.run([TOOL, *map(str, words), "--dossier", str(self.folder / "station")],
                             capture_output=True, check=False, **more)
        self.assertEqual(run.returncode, status, run.stderr.decode())
        if status == 1:
            self.assertEqual(run.stderr.decode().count("\n"), 1, run.stderr.decode())
        self.error = run.stderr.decode()
        return run.stdout.decode()

    def file(self, name="a.mp3", data=None):
        path = self.folder / name
        path.write_bytes(frames() if data is None else data)
        return path

    def tags(self, *files, status=0):
        return [json.loads(line) for line in self.call("tag", "lire", *files, "--json", status=status).splitlines()]


class Reading(Tool):
    def test_tells_what_the_file_holds_and_what_the_setters_make_of_it(self):
        path = self.file(data=frames() + tag(b"\xc9t\xe9", b"Les Oiseaux", b"Rive", b"1999", b"Vu\r\nici", 7, 17))
        self.assertEqual(self.tags(path), [{
            "valide": True,
            "brut": {"artiste": "Les Oiseaux", "album": "Rive", "piste": 7, "titre": "Été", "genre": 17,
                     "annee": "1999", "commentaire": "Vu\r\nici"},
            "filtre": {"artiste": "Les Oiseaux", "album": "Rive", "piste": 7, "titre": "t", "genre": 17,
                       "annee": "1999", "commentaire": "Vu\r\nici"}}])

    def test_keeps_the_order_of_the_keys(self):
        text = self.call("tag", "lire", self.file(), "--json")
        keys = ["valide", "brut", "artiste", "album", "piste", "titre", "genre", "annee", "commentaire", "filtre"]
        self.assertEqual(sorted(keys, key=lambda key: text.index(f'"{key}"')), keys)

    def test_has_empty_fields_without_a_tag(self):
        empty = {"artiste": "", "album": "", "piste": 0, "titre": "", "genre": 255, "annee": "", "commentaire": ""}
        self.assertEqual(self.tags(self.file()), [{"valide": False, "brut": empty, "filtre": empty}])

    def test_has_no_tag_in_a_file_that_is_too_short(self):
        self.assertFalse(self.tags(self.file(data=b"TAG"))[0]["valide"])

    def test_takes_the_mark_in_small_letters(self):
        self.assertTrue(self.tags(self.file(data=frames() + tag(mark=b"tag")))[0]["valide"])

    def test_has_no_genre_from_147_on(self):
        codes = [self.tags(self.file(data=tag(genre=code)))[0]["brut"]["genre"] for code in (146, 147, 200)]
        self.assertEqual(codes, [146, 255, 255])

    def test_keeps_the_bytes_without_a_character(self):
        path = self.file(data=frames() + tag(b"a\x81\x8d\x8f\x90\x9db\x80"))
        self.assertEqual(self.tags(path)[0]["brut"]["titre"], "a\x81\x8d\x8f\x90\x9db€")

    def test_reads_several_files_in_order(self):
        files = [self.file(f"{number}.mp3", tag(track=number)) for number in (3, 1, 2)]
        self.assertEqual([found["brut"]["piste"] for found in self.tags(*files)], [3, 1, 2])

    def test_names_a_missing_file_and_reads_the_others(self):
        path = self.file(data=tag(track=5))
        found = self.tags(self.folder / "absent.mp3", path, status=1)
        self.assertEqual([one["brut"]["piste"] for one in found], [5])
        self.assertIn(f"{self.folder}/absent.mp3 : Fichier introuvable", self.error)

    def test_refuses_a_name_without_bytes(self):
        self.call("tag", "lire", self.file("日.mp3"), "--json", status=1)
        self.assertIn("日.mp3 : Le caractère « 日 » n'existe pas en Windows-1252", self.error)

    def test_shows_a_tag_to_people(self):
        shown = self.call("tag", "lire", self.file(data=tag(b"\xc9t\xe9\x1b[2J", track=4)))
        self.assertIn("titre : Été·[2J\n", shown)
        self.assertIn("piste : 4\n", shown)

    def test_shows_people_no_control_character_of_a_name(self):
        self.assertNotIn("\x1b", self.call("tag", "lire", self.file("a\x1b[2J.mp3")))

    def test_tells_a_refused_name_on_one_line(self):
        self.call("tag", "lire", self.folder / "a\nb.mp3", status=1)

    def test_finds_a_file_beside_where_it_is_called(self):
        self.file(data=tag(track=9))
        found = json.loads(self.call("tag", "lire", "a.mp3", "--json", cwd=self.folder))
        self.assertEqual(found["brut"]["piste"], 9)

    def test_needs_a_file(self):
        self.call("tag", "lire", status=2)
        self.assertIn("Usage", self.error)

    def test_refuses_an_unknown_option(self):
        self.call("tag", "lire", self.file(), "--piste", "3", status=2)


class Writing(Tool):
    def test_writes_all_fields(self):
        path = self.file()
        self.call("tag", "ecrire", path, "--titre", "Rive", "--artiste", "Les Oiseaux", "--album", "Ailes", "--annee",
                  "1999", "--commentaire", "Vu ici", "--genre", "Rock", "--piste", "7")
        self.assertEqual(path.read_bytes(), frames() + tag(b"Rive", b"Les Oiseaux", b"Ailes", b"1999", b"Vu ici", 7, 17))

    def test_empties_what_is_not_named(self):
        path = self.file(data=frames() + tag(b"Rive", b"Les Oiseaux", b"Ailes", b"1999", b"Vu ici", 7, 17))
        self.call("tag", "ecrire", path, "--titre", "Nuit")
        self.assertEqual(path.read_bytes(), frames() + tag(b"Nuit"))

    def test_says_nothing(self):
        self.assertEqual(self.call("tag", "ecrire", self.file(), "--titre", "Rive"), "")
        self.assertEqual(self.error, "")

    def test_leaves_accents_out(self):
        path = self.file()
        self.call("tag", "ecrire", path, "--titre", "Été")
        self.assertEqual(path.read_bytes(), frames() + tag(b"t"))

    def test_cuts_long_fields(self):
        path = self.file()
        self.call("tag", "ecrire", path, "--titre", "t" * 31, "--annee", "19999", "--commentaire", "c" * 29)
        self.assertEqual(path.read_bytes(), frames() + tag(b"t" * 30, year=b"1999", comment=b"c" * 28))

    def test_takes_the_genre_by_name_or_code(self):
        for word, code in (("rock", 17), ("Punk", 42), ("(17)Rock", 17), ("17", 17), ("(147)", 147), ("inconnu", 255),
                           ("((13", 255), ("(200)", 255)):
            path = self.file()
            self.call("tag", "ecrire", path, "--genre", word)
            self.assertEqual(path.read_bytes()[-1], code, word)

    def test_takes_words_that_begin_with_a_dash(self):
        path = self.file()
        self.call("tag", "ecrire", path, "--titre", "--titre")
        self.assertEqual(path.read_bytes(), frames() + tag(b"--titre"))

    def test_refuses_a_track_outside_a_byte(self):
        for track, why in (("256", "un numéro de piste va de 0 à 255"), ("-1", "un numéro de piste va de 0 à 255"),
                           ("trois", "Type incompatible"), ("40000", "Dépassement de capacité")):
            path = self.file()
            self.call("tag", "ecrire", path, "--piste", track, status=1)
            self.assertIn(why, self.error)
            self.assertEqual(path.read_bytes(), frames(), track)

    def test_refuses_a_character_without_a_byte(self):
        path = self.file()
        for option in ("--titre", "--artiste", "--album", "--annee", "--commentaire", "--genre"):
            self.call("tag", "ecrire", path, option, "Rive 日", status=1)
            self.assertIn("Rive 日 : Le caractère « 日 » n'existe pas en Windows-1252", self.error)
        self.assertEqual(path.read_bytes(), frames())

    def test_refuses_a_file_that_is_too_short(self):
        path = self.file(data=b"x" * 127)
        self.call("tag", "ecrire", path, "--titre", "Rive", status=1)
        self.assertIn(f"{path} : le tag n'est pas écrit : un fichier de moins de 128 octets ne peut pas avoir de tag",
                      self.error)
        self.assertEqual(path.read_bytes(), b"x" * 127)

    def test_refuses_a_missing_file_and_makes_none(self):
        self.call("tag", "ecrire", self.folder / "absent.mp3", "--titre", "Rive", status=1)
        self.assertIn(f"{self.folder}/absent.mp3 : Fichier introuvable", self.error)
        self.assertFalse((self.folder / "absent.mp3").exists())

    def test_refuses_a_folder(self):
        self.call("tag", "ecrire", self.folder, "--titre", "Rive", status=1)
        self.assertIn(str(self.folder), self.error)

    def test_writes_one_file_a_call(self):
        path = self.file()
        self.call("tag", "ecrire", path, path, "--titre", "Rive", status=2)
        self.assertEqual(path.read_bytes(), frames())

    def test_reads_back_what_it_wrote(self):
        path = self.file()
        self.call("tag", "ecrire", path, "--titre", "Rive", "--genre", "(4)", "--piste", "255")
        self.assertEqual(self.tags(path)[0]["filtre"],
                         {"artiste": "", "album": "", "piste": 255, "titre": "Rive", "genre": 4, "annee": "",
                          "commentaire": ""})

    def test_keeps_the_rights_of_the_file(self):
        for mode in (0o600, 0o640, 0o755, 0o664):
            path = self.file()
            path.chmod(mode)
            self.call("tag", "ecrire", path, "--titre", "Rive")
            self.assertEqual(stat.S_IMODE(path.stat().st_mode), mode)

    def test_keeps_the_owner_where_it_may(self):
        path = self.file()
        owner = (12345, 23456) if os.geteuid() == 0 else (os.geteuid(), os.getegid())
        os.chown(path, *owner)
        self.call("tag", "ecrire", path, "--titre", "Rive")
        self.assertEqual((path.stat().st_uid, path.stat().st_gid), owner)

    def test_writes_through_a_link(self):
        path = self.file()
        link = self.folder / "lien.mp3"
        link.symlink_to(path)
        self.call("tag", "ecrire", link, "--titre", "Rive")
        self.assertTrue(link.is_symlink())
        self.assertEqual(path.read_bytes(), frames() + tag(b"Rive"))

    def test_leaves_nothing_beside(self):
        self.call("tag", "ecrire", self.file(), "--titre", "Rive")
        self.assertEqual([path.name for path in self.folder.glob("*.mp3*")] +
                         [path.name for path in self.folder.glob(".a*")], ["a.mp3"])


class FullDisk(Tool):
    """The limit of a file's length stands for a disk that is full."""

    def write_with_room(self, path, room, status):
        self.call("tag", "ecrire", path, "--titre", "Rive", status=status,
                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (room, room)))

    def test_leaves_the_old_file_and_says_why(self):
        data = frames() + tag(b"Vieux")
        path = self.file(data=data)
        for room in (100, 1000, len(data) - TAG_SIZE, len(data) - 1):
            self.write_with_room(path, room, status=1)
            self.assertIn(f"{path} : le tag n'est pas écrit : Taille de fichier limitée", self.error)
            self.assertEqual(path.read_bytes(), data, room)
            self.assertEqual(sorted(entry.name for entry in self.folder.iterdir() if "a.mp3" in entry.name), ["a.mp3"])

    def test_writes_where_it_just_fits(self):
        path = self.file(data=frames() + tag(b"Vieux"))
        self.write_with_room(path, len(frames()) + TAG_SIZE, status=0)
        self.assertEqual(path.read_bytes(), frames() + tag(b"Rive"))


class Removing(Tool):
    def test_leaves_the_audio(self):
        path = self.file(data=frames() + tag(b"Rive"))
        self.call("tag", "effacer", path)
        self.assertEqual(path.read_bytes(), frames())

    def test_leaves_a_file_without_a_tag_as_it_is(self):
        path = self.file()
        self.call("tag", "effacer", path)
        self.assertEqual(path.read_bytes(), frames())

    def test_leaves_an_empty_file_where_a_tag_was_all(self):
        path = self.file(data=tag(b"Rive"))
        self.call("tag", "effacer", path)
        self.assertEqual(path.read_bytes(), b"")

    def test_removes_one_tag_at_a_time(self):
        path = self.file(data=frames() + tag(b"Rive") + tag(b"Nuit"))
        self.call("tag", "effacer", path)
        self.assertEqual(path.read_bytes(), frames() + tag(b"Rive"))

    def test_refuses_a_missing_file(self):
        self.call("tag", "effacer", self.folder / "absent.mp3", status=1)
        self.assertIn("Fichier introuvable", self.error)

    def test_needs_a_file(self):
        self.call("tag", "effacer", status=2)


class Genres(Tool):
    def name(self, code, status=0):
        return self.call("genre", "nom", code, status=status)

    def code(self, name, status=0):
        return self.call("genre", "numero", name, status=status)

    def test_names_a_code(self):
        self.assertEqual([self.name(code) for code in (0, 17, 43, 146, 147)],
                         ["Divers\n", "Rock\n", "Punk\n", "JPop\n", "Divers_autres\n"])

    def test_has_no_name_for_other_codes(self):
        self.assertEqual([self.name(code) for code in (148, 255, 1000)], ["\n"] * 3)

    def test_numbers_a_name(self):
        self.assertEqual([self.code(name) for name in ("Rock", "rOcK", "Divers", "Punk", "Drum Solo", "Soul")],
                         ["17\n", "17\n", "0\n", "42\n", "121\n", "255\n"])

    def test_numbers_a_code_in_words(self):
        self.assertEqual([self.code(word) for word in ("(13)", "(17)Rock", "((13", "(abc", "13", "146", "147", "abc")],
                         ["13\n", "17\n", "255\n", "0\n", "13\n", "146\n", "255\n", "255\n"])

    def test_has_no_number_for_an_empty_name(self):
        self.assertEqual(self.code(""), "255\n")

    def test_refuses_what_is_no_code(self):
        self.name("rock", status=1)
        self.assertIn("rock : Type incompatible", self.error)
        self.name("40000", status=1)
        self.assertIn("40000 : Dépassement de capacité", self.error)
        self.code("(40000", status=1)
        self.assertIn("(40000 : Dépassement de capacité", self.error)

    def test_refuses_a_character_without_a_byte(self):
        self.code("日", status=1)
        self.assertIn("Le caractère « 日 » n'existe pas en Windows-1252", self.error)

    def test_needs_one_word(self):
        self.call("genre", "nom", status=2)
        self.call("genre", "nom", "1", "2", status=2)
        self.call("genre", "numero", status=2)


class Headers(Tool):
    def headers(self, *words, status=0):
        words = [words[0], "--json", *words[1:]]
        return [json.loads(line) for line in self.call("entete", *words, status=status).splitlines()]

    def test_tells_eighteen_properties_in_order(self):
        header = self.headers(self.file())[0]
        self.assertEqual(list(header.items()), [
            ("Valide", True), ("Taille", 8340), ("EntetePos", 0), ("Duree", 0), ("Mpeg", "1.0"), ("Layer", "III"),
            ("CRC", False), ("BitRate", 128), ("Frequence", 44100), ("Padded", False), ("Frames", 20),
            ("PrivateBit", False), ("Mode", "Stereo"), ("ModeExt", ""), ("Copyright", False), ("Original", False),
            ("Emphasis", "Aucun"), ("Vbr", "")])

    def test_reads_every_flag(self):
        header = self.headers(self.file(data=frames(header=b"\xff\xfa\x93\x7d")))[0]
        self.assertEqual([header[key] for key in ("CRC", "Padded", "PrivateBit", "Mode", "ModeExt", "Copyright",
                                                  "Original", "Emphasis")],
                         [True, True, True, "Joint Stereo", "Stereo : ON - MS Stereo : ON", True, True, "50/15 ms"])

    def test_has_nothing_of_a_file_without_a_frame(self):
        header = self.headers(self.file(data=b"x" * 1000))[0]
        self.assertEqual(set(header.values()), {False, 0, ""})
        self.assertEqual(header["Taille"], 0)

    def test_has_nothing_of_an_empty_file(self):
        self.assertFalse(self.headers(self.file(data=b""))[0]["Valide"])

    def test_strict_refuses_mpeg_2_of_constant_rate(self):
        path = self.file(data=frames(header=b"\xff\xf3\x90\x00", length=261))
        self.assertEqual([self.headers(path)[0]["Mpeg"], self.headers(path, "--strict")[0]["Valide"]], ["2.0", False])

    def test_strict_refuses_layer_i(self):
        path = self.file(data=frames(header=b"\xff\xff\x90\x00"))
        self.assertEqual([self.headers(path)[0]["Layer"], self.headers(path, "--strict")[0]["Valide"]], ["I", False])

    def test_strict_takes_layer_iii(self):
        self.assertTrue(self.headers(self.file(), "--strict")[0]["Valide"])

    def test_reads_several_files_in_order(self):
        files = [self.file(f"{count}.mp3", frames(count)) for count in (30, 10, 20)]
        self.assertEqual([header["Frames"] for header in self.headers(*files)], [30, 10, 20])

    def test_names_a_missing_file_and_reads_the_others(self):
        found = self.headers(self.folder / "absent.mp3", self.file(), status=1)
        self.assertEqual([header["Frames"] for header in found], [20])
        self.assertIn("absent.mp3 : Fichier introuvable", self.error)

    def test_keeps_a_result_that_is_not_valid_but_filled_in(self):
        block = b"\xff\xfb\x90\x00".ljust(36, b"\0") + b"Xing" + b"\0\0\0\0"
        header = self.headers(self.file(data=block + frames()))[0]
        self.assertEqual([header["Valide"], header["Vbr"], header["Mpeg"]], [False, "VBR", "1.0"])

    def test_shows_a_header_to_people(self):
        self.assertIn("BitRate : 128\n", self.call("entete", self.file()))

    def test_changes_nothing(self):
        path = self.file()
        before = path.stat()
        self.headers(path)
        self.assertEqual((path.read_bytes(), path.stat().st_mtime_ns), (frames(), before.st_mtime_ns))

    def test_needs_a_file(self):
        self.call("entete", status=2)


if __name__ == "__main__":
    sys.exit(unittest.main())
