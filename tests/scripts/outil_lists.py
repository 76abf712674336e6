#!/usr/bin/env python3
"""The words `liste …` of sonarelle-outil, as scripts of operators use them."""
import json
import math
import os
import resource
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
RECORD = struct.Struct("<200s100s100shd8s")
OLD_RECORD = struct.Struct("<200s100s100sh8s")


def record(path=b"C:\\a.mp3", end=b"200.00", genre=b"Rock", volume=100, start=0.1, duration=b"00:03:20"):
    return RECORD.pack(path.ljust(200), end.ljust(100), genre.ljust(100), volume, start, duration.ljust(8))


def old_record(path=b"C:\\a.mp3", end=b"200", genre=b"Rock", volume=80, duration=b"00:03:20"):
    return OLD_RECORD.pack(path.ljust(200), end.ljust(100), genre.ljust(100), volume, duration.ljust(8))


class Tool(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def call(self, *words, stdin="", status=0):
        run = subprocess.run([TOOL, *map(str, words), "--dossier", str(self.folder / "station")],
                             input=stdin.encode() if isinstance(stdin, str) else stdin, capture_output=True, check=False)
        return self.result(run, status)

    def call_by_shell(self, command, *words, status=0, **more):
        """Runs `command` of a shell, in which "$@" is the tool with its words."""
        run = subprocess.run(["sh", "-c", command, "sh", TOOL, *map(str, words), "--dossier",
                              str(self.folder / "station")], capture_output=True, check=False, **more)
        return self.result(run, status)

    def result(self, run, status):
        self.assertEqual(run.returncode, status, run.stderr.decode())
        if status == 1:
            self.assertEqual(run.stderr.decode().count("\n"), 1, run.stderr.decode())
        self.error = run.stderr.decode()
        return run.stdout.decode()

    def file(self, name, data=None):
        path = self.folder / name
        if data is not None:
            path.write_bytes(data)
        return path

    def view(self, path):
        return json.loads(self.call("liste", "voir", path, "--json"))


class Viewing(Tool):
    def test_tells_the_fields_of_a_record(self):
        path = self.file("a.dfm", record(b"C:\\\xc9t\xe9.mp3", b"200.00", b"Rock", 100, 0.1))
        self.assertEqual(self.view(path), {
            "fichier": str(path), "taille": 418, "reste": 0,
            "enregistrements": [{"numero": 1, "chemin": "C:\\Été.mp3", "debut_lecture": 0.1, "fin_lecture": "200.00",
                                 "genre": "Rock", "volume": 100, "duree_piste": "00:03:20"}]})

    def test_keeps_the_order_of_the_keys(self):
        text = self.call("liste", "voir", self.file("a.dfm", record()), "--json")
        keys = ["fichier", "taille", "reste", "enregistrements", "numero", "chemin", "debut_lecture", "fin_lecture",
                "genre", "volume", "duree_piste"]
        self.assertEqual(sorted(keys, key=lambda key: text.index(f'"{key}"')), keys)

    def test_trims_texts_on_the_right_only(self):
        row = self.view(self.file("a.dfm", record(b"  C:\\a.mp3  ")))["enregistrements"][0]
        self.assertEqual(row["chemin"], "  C:\\a.mp3")

    def test_counts_the_bytes_behind_the_last_record(self):
        listed = self.view(self.file("a.dfm", record() + b"x"))
        self.assertEqual((listed["taille"], listed["reste"], len(listed["enregistrements"])), (419, 1, 1))

    def test_finds_no_record_in_417_bytes(self):
        listed = self.view(self.file("a.dfm", b"x" * 417))
        self.assertEqual((listed["reste"], listed["enregistrements"]), (417, []))

    def test_finds_no_record_in_an_empty_file(self):
        self.assertEqual(self.view(self.file("a.dfm", b""))["enregistrements"], [])

    def test_tells_a_start_that_is_no_finite_number_in_words(self):
        data = b"".join(record(start=start) for start in (math.nan, math.inf, -math.inf))
        rows = self.view(self.file("a.dfm", data))["enregistrements"]
        self.assertEqual([row["debut_lecture"] for row in rows], ["nan", "inf", "-inf"])

    def test_has_no_start_for_an_old_list(self):
        row = self.view(self.file("a.rfm", old_record()))["enregistrements"][0]
        self.assertIsNone(row["debut_lecture"])
        self.assertEqual((row["volume"], row["fin_lecture"]), (80, "200"))

    def test_takes_the_kind_of_list_from_the_ending_in_any_case(self):
        self.assertEqual(len(self.view(self.file("A.RFM", old_record()))["enregistrements"]), 1)

    def test_shows_a_list_to_people(self):
        self.assertIn("C:\\a.mp3", self.call("liste", "voir", self.file("a.dfm", record())))

    def test_shows_control_characters_as_points(self):
        shown = self.call("liste", "voir", self.file("a.dfm", record(b"C:\\a\x1b[2J\n\x90.mp3")))
        self.assertIn("C:\\a·[2J··.mp3", shown)

    def test_tells_one_byte_from_several(self):
        self.assertIn("et 1 octet de reste", self.call("liste", "voir", self.file("a.dfm", record() + b"x")))
        self.assertIn("et 2 octets de reste", self.call("liste", "voir", self.file("b.dfm", record() + b"xx")))

    def test_reads_exactly_the_name_that_was_typed(self):
        self.file("b.dfm", record())
        self.call("liste", "voir", self.folder / "B.dfm", status=1)
        self.assertIn(f"{self.folder}/B.dfm : Fichier introuvable", self.error)

    def test_leaves_nothing_behind(self):
        self.call("liste", "voir", self.file("a.dfm", record()))
        self.assertEqual([path.name for path in self.folder.iterdir()], ["a.dfm"])

    def test_says_that_its_output_is_closed(self):
        self.call_by_shell('exec "$@" >&-', "liste", "voir", self.file("a.dfm", record()), status=1)
        self.assertIn("sortie standard : écriture impossible", self.error)

    def test_says_that_its_outputs_disk_is_full(self):
        self.call_by_shell('exec "$@" >/dev/full', "liste", "voir", self.file("a.dfm", record()), status=1)
        self.assertIn("sortie standard : Disque plein", self.error)

    def test_refuses_a_list_that_is_not_there(self):
        self.call("liste", "voir", self.folder / "absente.dfm", status=1)
        self.assertIn("absente.dfm", self.error)
        self.assertFalse((self.folder / "absente.dfm").exists())

    def test_refuses_another_kind_of_file(self):
        self.call("liste", "voir", self.file("a.txt", b""), status=1)
        self.assertIn("a.txt : un fichier .dfm ou .rfm est attendu", self.error)

    def test_refuses_a_folder(self):
        (self.folder / "x.dfm").mkdir()
        self.call("liste", "voir", self.folder / "x.dfm", status=1)
        self.assertIn("x.dfm", self.error)

    def test_wants_a_file(self):
        self.call("liste", "voir", status=2)
        self.assertIn("liste voir", self.error)

    def test_refuses_an_option_that_it_does_not_know(self):
        self.call("liste", "voir", self.file("a.dfm", b""), "--xml", status=2)

    def test_names_a_list_without_rights(self):
        path = self.file("a.dfm", record())
        path.chmod(0)
        self.folder.chmod(0o777)
        drop = {"user": 65534} if os.geteuid() == 0 else {}
        # Nobody may not look into root's home, where the tree may lie; nor may the sanitizers for their suppressions.
        tool = shutil.copy(TOOL, self.folder)
        kept = {name: value for name, value in os.environ.items() if not name.endswith("SAN_OPTIONS")}
        run = subprocess.run([tool, "liste", "voir", str(path), "--dossier", str(self.folder / "autre")],
                             capture_output=True, check=False, env=kept, cwd=self.folder, **drop)
        self.assertEqual(run.returncode, 1)
        self.assertIn("a.dfm", run.stderr.decode())


class Writing(Tool):
    def test_gives_back_the_same_bytes(self):
        data = b"".join(record(b"C:\\%d.mp3" % number, b"%d" % number, volume=number) for number in range(5))
        text = self.call("liste", "voir", self.file("a.dfm", data), "--json")
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=text)
        self.assertEqual(self.file("b.dfm").read_bytes(), data)

    def test_carries_every_byte_of_a_text(self):
        every_byte = bytes(range(1, 256)).replace(b" ", b"")
        data = record(every_byte[:200].ljust(200, b"z"), every_byte[154:254])
        text = self.call("liste", "voir", self.file("a.dfm", data), "--json")
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=text)
        self.assertEqual(self.file("b.dfm").read_bytes(), data)

    def test_carries_a_start_that_is_no_finite_number(self):
        data = record(start=math.inf) + record(start=-math.inf)
        text = self.call("liste", "voir", self.file("a.dfm", data), "--json")
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=text)
        self.assertEqual(self.file("b.dfm").read_bytes(), data)

    def test_writes_exactly_the_name_that_was_typed(self):
        self.file("b.dfm", b"ancien")
        self.call("liste", "ecrire", self.folder / "B.dfm", stdin="[]")
        self.assertEqual((self.file("b.dfm").read_bytes(), self.file("B.dfm").read_bytes()), (b"ancien", b""))

    def test_takes_a_name_that_begins_with_two_dashes_behind_two_dashes(self):
        station = str(self.folder / "station")
        run = subprocess.run([TOOL, "liste", "ecrire", "--dossier", station, "--", "--b.dfm"], input=b"[]",
                             cwd=self.folder, capture_output=True, check=False)
        self.assertEqual(run.returncode, 0, run.stderr.decode())
        self.assertEqual(self.file("--b.dfm").read_bytes(), b"")

    def test_takes_the_array_alone_and_ignores_the_numbers(self):
        rows = self.view(self.file("a.dfm", record(b"x") + record(b"y")))["enregistrements"]
        rows[0]["numero"] = 99
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=json.dumps(rows))
        self.assertEqual(self.file("b.dfm").read_bytes(), record(b"x") + record(b"y"))

    def test_gives_an_old_record_the_start_of_a_new_row(self):
        text = self.call("liste", "voir", self.file("a.rfm", old_record()), "--json")
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=text)
        self.assertEqual(self.view(self.file("b.dfm"))["enregistrements"][0]["debut_lecture"], 0.1)

    def test_cuts_texts_at_their_width(self):
        row = {"chemin": "p" * 201, "debut_lecture": 0, "fin_lecture": "1", "genre": "", "volume": 1, "duree_piste": "123456789"}
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=json.dumps([row]))
        written = self.view(self.file("b.dfm"))["enregistrements"][0]
        self.assertEqual((written["chemin"], written["duree_piste"]), ("p" * 200, "12345678"))

    def refused(self, row, words):
        self.file("b.dfm", b"ancien")
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=json.dumps([row]), status=1)
        self.assertIn(words, self.error)
        self.assertEqual(self.file("b.dfm").read_bytes(), b"ancien")

    def row(self, **fields):
        return {"chemin": "a", "debut_lecture": 0, "fin_lecture": "1", "genre": "", "volume": 1, "duree_piste": "", **fields}

    def test_refuses_a_character_outside_windows_1252_by_name(self):
        self.refused(self.row(chemin="C:\\日本.mp3"), "日")

    def test_refuses_a_volume_that_does_not_fit(self):
        for volume in (32768, -32769, 2**63, 2**64 - 1, 2**64, -2**63, 1.5):
            self.refused(self.row(volume=volume), "volume")

    def test_carries_the_ends_of_a_volume(self):
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=json.dumps([self.row(volume=v) for v in (32767, -32768, -1)]))
        self.assertEqual([row["volume"] for row in self.view(self.file("b.dfm"))["enregistrements"]], [32767, -32768, -1])

    def test_refuses_a_standard_input_that_cannot_be_read(self):
        self.call_by_shell('exec "$@" <&-', "liste", "ecrire", self.file("b.dfm"), status=1)
        self.assertIn("entrée standard : lecture impossible", self.error)
        self.call_by_shell('exec "$@" </', "liste", "ecrire", self.file("b.dfm"), status=1)
        self.assertIn("entrée standard : lecture impossible", self.error)
        self.assertFalse(self.file("b.dfm").exists())

    def test_refuses_a_list_that_may_not_grow_so_long(self):
        self.file("b.dfm", b"ancien")
        rows = json.dumps([self.row()] * 20)
        self.call_by_shell('exec "$@"', "liste", "ecrire", self.file("b.dfm"), input=rows.encode(), status=1,
                           preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096)))
        self.assertIn("b.dfm : Taille de fichier limitée", self.error)
        self.assertEqual(self.file("b.dfm").read_bytes(), b"ancien")

    def test_refuses_a_start_that_is_no_number(self):
        self.refused(self.row(debut_lecture="tôt"), "debut_lecture")

    def test_refuses_a_record_without_a_path(self):
        row = self.row()
        del row["chemin"]
        self.refused(row, "chemin")

    def test_names_the_record_that_it_refuses(self):
        self.call("liste", "ecrire", self.file("b.dfm"), stdin=json.dumps([self.row(), self.row(volume=1.5)]), status=1)
        self.assertIn("enregistrement 2 ", self.error)

    def test_refuses_what_is_no_json(self):
        self.call("liste", "ecrire", self.file("b.dfm"), stdin="[{", status=1)
        self.assertFalse(self.file("b.dfm").exists())

    def test_refuses_a_list_in_a_folder_that_is_not_there(self):
        self.call("liste", "ecrire", self.folder / "absent" / "b.dfm", stdin="[]", status=1)

    def test_refuses_a_name_outside_windows_1252(self):
        self.call("liste", "ecrire", self.folder / "日.dfm", stdin="[]", status=1)
        self.assertIn("日", self.error)

    def test_refuses_a_name_that_no_station_can_write(self):
        self.call("liste", "ecrire", self.folder / "a?.dfm", stdin="[]", status=1)
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_refuses_a_path_that_is_too_long(self):
        self.call("liste", "ecrire", self.folder / ("x" * 300 + ".dfm"), stdin="[]", status=1)


class Converting(Tool):
    def test_writes_an_old_list_in_the_new_form(self):
        self.call("liste", "convertir", self.file("a.rfm", old_record()), self.file("B.dfm"))
        self.assertEqual(self.file("B.dfm").read_bytes(), record(volume=80))

    def test_puts_an_x_where_a_duration_is_missing(self):
        self.call("liste", "convertir", self.file("a.rfm", old_record(duration=b"")), self.file("b.dfm"))
        self.assertEqual(self.view(self.file("b.dfm"))["enregistrements"][0]["duree_piste"], "X")

    def test_takes_409_bytes_for_an_empty_list(self):
        self.call("liste", "convertir", self.file("a.rfm", b"x" * 409), self.file("b.dfm"))
        self.assertEqual(self.file("b.dfm").read_bytes(), b"")

    def test_refuses_a_missing_list_and_writes_nothing(self):
        self.call("liste", "convertir", self.folder / "absente.rfm", self.file("b.dfm"), status=1)
        self.assertFalse(self.file("b.dfm").exists())


class MeanwhileWritten(Tool):
    def test_lists_are_not_written_over(self):
        path = self.file("a.dfm", record())
        run = subprocess.Popen([TOOL, "liste", "ecrire", str(path), "--dossier", str(self.folder / "station")],
                               stdin=subprocess.PIPE, stderr=subprocess.PIPE)
        while not any(file.name.startswith(".a.dfm") for file in self.folder.iterdir()):
            self.assertIsNone(run.poll())
            time.sleep(0.01)
        path.write_bytes(record() * 2)
        error = run.communicate(b"[]")[1].decode()
        self.assertEqual(run.returncode, 1)
        self.assertIn("a.dfm : un autre programme a changé ce fichier entre-temps", error)
        self.assertEqual(path.read_bytes(), record() * 2)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
