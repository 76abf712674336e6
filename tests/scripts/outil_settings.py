#!/usr/bin/env python3
"""The words `calcul …`, `reglages …` and `lecteurs …` of sonarelle-outil, and what all words have in common."""
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]


class Tool(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.station = Path(folder.name) / "station"

    def start(self, *words):
        return self.start_words(*words, "--dossier", str(self.station))

    def start_words(self, *words):
        return subprocess.Popen([TOOL, *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def call(self, *words, status=0):
        return self.result(self.start(*words), status)

    def run_words(self, *words, status=0):
        return self.result(self.start_words(*words), status)

    def result(self, run, status):
        out, error = run.communicate()
        self.assertEqual(run.returncode, status, error.decode())
        self.error = error.decode()
        return out.decode()


class Words(Tool):
    def test_that_are_unknown_are_named_and_help_is_shown_the_way_to(self):
        self.run_words("danser", status=2)
        self.assertEqual(self.error, "sonarelle-outil : commande inconnue : danser\n"
                                     "Usage : sonarelle-outil COMMANDE... (sonarelle-outil --aide les montre toutes)\n")

    def test_that_are_wrong_show_the_usage_of_their_command_alone(self):
        self.call("calcul", "heure", status=2)
        self.assertEqual(self.error, "sonarelle-outil : il manque : SECONDES\n"
                                     "Usage : sonarelle-outil calcul heure SECONDES...\n")

    def test_that_are_cut_short_show_the_commands_that_begin_with_them(self):
        self.run_words("calcul", status=2)
        self.assertEqual([line.split()[2:5] for line in self.error.splitlines()[1:]],
                         [["sonarelle-outil", "calcul", word] for word in ("heure", "duree", "mix")])

    def test_ask_for_help_on_all_or_on_one(self):
        self.assertIn("sonarelle-outil liste voir FICHIER", self.run_words("--aide"))
        for words in (("calcul", "heure", "--aide"), ("--aide", "calcul", "heure")):
            said = self.run_words(*words)
            self.assertIn("sonarelle-outil calcul heure SECONDES...\n", said)
            self.assertNotIn("calcul duree", said)
        self.run_words("danser", "--aide", status=2)

    def test_answer_status_2_without_a_command(self):
        self.assertEqual(subprocess.run([TOOL], capture_output=True, check=False).returncode, 2)

    def test_with_a_character_outside_windows_1252_are_refused_by_name(self):
        self.call("reglages", "ecrire", "Config", "Nom_antenne_fm", "日", status=1)
        self.assertIn("日", self.error)
        self.call("reglages", "lire", "Config", "Nom_antenne_fm", status=1)

    def test_that_are_no_utf_8_are_refused_without_their_bytes(self):
        self.call("reglages", "lire", b"Config\xe9", "Mix", status=1)
        self.assertIn("Config\ufffd : Ce texte n'est pas écrit en UTF-8", self.error)

    def test_behind_two_dashes_are_no_options(self):
        self.run_words("reglages", "ecrire", "--dossier", self.station, "--", "Config", "Nom_antenne_fm", "--radio--")
        self.assertEqual(self.call("reglages", "lire", "Config", "Nom_antenne_fm"), "--radio--\n")

    def test_name_a_folder_that_is_not_empty(self):
        self.run_words("reglages", "--dossier", "", status=2)
        self.assertIn("--dossier", self.error)

    def test_know_the_form_of_a_drive_everywhere(self):
        for drive in ("M", "M=", "MM=/srv", "=/srv"):
            self.call("calcul", "heure", "1", "--lecteur", drive, status=2)
        self.assertEqual(self.call("calcul", "heure", "1", "--lecteur", "M=/srv"), "00:00:01\n")

    def test_that_look_make_no_folder(self):
        self.call("reglages")
        self.call("lecteurs")
        self.assertFalse(self.station.exists())

    def test_write_into_no_folder_that_is_a_file(self):
        self.station.write_text("ici")
        self.call("reglages", "ecrire", "Config", "Mix", "6", status=1)
        self.assertIn(str(self.station), self.error)


class Durations(Tool):
    def test_of_the_title_line(self):
        self.assertEqual(self.call("calcul", "heure", "200.03", "59", "61", "3600", "32767").split(),
                         ["00:03:20", "00:00:59", "00:01:01", "01:00:00", "09:06:07"])

    def test_of_the_file_manager(self):
        self.assertEqual(self.call("calcul", "duree", "61", "100", "0").split(), ["00:01:01", "00:01:40", "00:00:01"])

    def test_beyond_16_bits_are_refused(self):
        self.call("calcul", "heure", "32768", status=1)
        self.assertIn("32768", self.error)

    def test_that_are_no_numbers_are_refused_and_nothing_is_printed(self):
        self.assertEqual(self.call("calcul", "heure", "12", "abc", status=1), "")

    def test_that_are_empty_are_named_all_the_same(self):
        self.call("calcul", "heure", "", status=1)
        self.assertIn("« » : Type incompatible", self.error)

    def test_want_a_number(self):
        self.call("calcul", "heure", status=2)


class SettingsWords(Tool):
    def test_write_and_read_a_value(self):
        self.call("reglages", "ecrire", "Config", "Nom_antenne_fm", "Radio Été")
        self.assertEqual(self.call("reglages", "lire", "config", "NOM_ANTENNE_FM"), "Radio Été\n")

    def test_show_no_control_characters(self):
        self.call("reglages", "ecrire", "Essai", "k\x1b[31m", "v\x1b]0;x\x07\nfaux\u009d")
        self.assertEqual(self.call("reglages"), "Essai\tk·[31m\tv·]0;x··faux·\n")
        self.assertEqual(self.call("reglages", "lire", "Essai", "k\x1b[31m"), "v·]0;x··faux·\n")
        said = self.call("reglages", "--json")
        self.assertIn("faux\\u009d", said)
        self.assertEqual(json.loads(said)["valeur"], "v\x1b]0;x\x07\nfaux\u009d")

    def test_name_a_file_that_is_no_plain_one(self):
        self.station.mkdir()
        (self.station / "reglages.json").symlink_to("/dev/zero")
        self.call("reglages", status=1)
        self.assertIn("reglages.json : Ce n'est pas un fichier ordinaire", self.error)

    def test_name_a_file_that_is_far_too_long(self):
        self.station.mkdir()
        with open(self.station / "reglages.json", "wb") as file:
            file.truncate(1 << 30)
        self.call("reglages", status=1)
        self.assertIn("trop grand", self.error)

    def test_of_many_keys_are_found_by_any_case(self):
        self.station.mkdir()
        keys = {f"Cle{number}": str(number) for number in range(60000)}
        (self.station / "reglages.json").write_text(json.dumps({"Sonarelle V6": {"Essai": keys}}))
        self.assertEqual(self.call("reglages", "lire", "essai", "CLE59999"), "59999\n")

    def test_are_locked_by_no_link_to_elsewhere(self):
        self.station.mkdir()
        (self.station / ".reglages.verrou").symlink_to(self.station / "ailleurs")
        self.call("reglages", "ecrire", "Config", "Mix", "6", status=1)
        self.assertFalse((self.station / "ailleurs").exists())

    def test_refuse_a_key_without_a_value(self):
        self.call("reglages", "lire", "Config", "Mix", status=1)

    def test_list_section_key_and_value(self):
        self.call("reglages", "premier")
        self.assertIn("Config\tMix_audio\t10", self.call("reglages").splitlines())

    def test_list_one_json_value_a_line(self):
        self.call("reglages", "premier")
        rows = [json.loads(line) for line in self.call("reglages", "--json").splitlines()]
        self.assertIn({"section": "Config", "cle": "Mix_audio_vitesse", "valeur": "35"}, rows)

    def test_name_a_damaged_file(self):
        self.call("reglages", "premier")
        (self.station / "reglages.json").write_text("{ abîmé")
        self.call("reglages", status=1)
        self.assertIn("reglages.json", self.error)

    def test_set_a_damaged_file_aside_before_they_write(self):
        self.station.mkdir()
        (self.station / "reglages.json").write_text("{ abîmé")
        self.call("reglages", "ecrire", "Config", "Mix", "6")
        self.assertEqual((self.station / "reglages.json.abime").read_text(), "{ abîmé")
        self.assertEqual(self.call("reglages", "lire", "Config", "Mix"), "6\n")

    def test_of_many_programs_at_once_lose_nothing(self):
        runs = [self.start("reglages", "ecrire", "Config", f"Cle{number}", str(number)) for number in range(40)]
        for run in runs:
            run.communicate()
            self.assertEqual(run.returncode, 0)
        for number in range(40):
            self.assertEqual(self.call("reglages", "lire", "Config", f"Cle{number}"), f"{number}\n")


class Drives(Tool):
    def test_begin_with_the_machines_root_as_c(self):
        self.assertEqual(self.call("lecteurs"), "C\t/\n")

    def test_are_set_and_removed(self):
        self.call("lecteurs", "d", "/srv/musique")
        self.assertEqual(self.call("lecteurs"), "C\t/\nD\t/srv/musique\n")
        self.call("lecteurs", "D", "--oter")
        self.assertEqual(self.call("lecteurs"), "C\t/\n")

    def test_hold_a_share(self):
        self.call("lecteurs", "\\\\serveur\\partage", "/mnt/partage")
        self.assertIn("\\\\serveur\\partage\t/mnt/partage\n", self.call("lecteurs"))

    def test_of_one_call_are_not_kept(self):
        self.assertIn("M\t/media\n", self.call("lecteurs", "--lecteur", "M=/media"))
        self.assertEqual(self.call("lecteurs"), "C\t/\n")

    def test_refuse_what_is_no_drive(self):
        self.call("lecteurs", "DD", "/srv", status=1)

    def test_want_a_letter_and_a_folder_that_are_not_empty(self):
        self.call("lecteurs", "M", "", status=2)
        self.call("lecteurs", "", "/srv", status=2)
        self.assertEqual(self.call("lecteurs"), "C\t/\n")

    def test_that_are_not_there_are_not_removed(self):
        self.call("lecteurs", "Q", "--oter", status=1)
        self.assertIn("Q : Ce lecteur n'est pas dans la table", self.error)

    def damage_the_table(self):
        self.station.mkdir()
        (self.station / "lecteurs.json").write_text("{ abîmé")

    def test_show_no_control_characters(self):
        self.call("lecteurs", "D", "/srv/\x1b[31m\nE\t/faux")
        self.assertEqual(self.call("lecteurs"), "C\t/\nD\t/srv/·[31m·E·/faux\n")

    def test_whose_folder_is_no_utf_8_are_shown_all_the_same(self):
        self.station.mkdir()
        odd = os.path.join(os.fsencode(self.station), b"x\xe9")
        os.mkdir(odd)
        run = subprocess.run([TOOL, "lecteurs", "--lecteur", "D=y", "--json", "--dossier", str(self.station)], cwd=odd,
                             capture_output=True, check=False)
        self.assertEqual(run.returncode, 0, run.stderr.decode())
        self.assertTrue(json.loads(run.stdout.splitlines()[-1])["dossier"].endswith("x\ufffd/y"))

    def test_of_a_damaged_table_are_named_by_its_file(self):
        self.damage_the_table()
        self.call("lecteurs", status=1)
        self.assertIn("lecteurs.json : Table des lecteurs abîmée", self.error)

    def test_of_a_damaged_table_stop_no_word_that_needs_none(self):
        self.damage_the_table()
        self.call("reglages", "ecrire", "Config", "Mix", "6")
        self.assertEqual(self.call("reglages", "lire", "Config", "Mix"), "6\n")

    def test_of_a_damaged_table_can_be_set_anew(self):
        self.damage_the_table()
        self.call("lecteurs", "D", "/srv")
        self.assertEqual(self.call("lecteurs"), "C\t/\nD\t/srv\n")
        self.assertEqual((self.station / "lecteurs.json.abime").read_text(), "{ abîmé")

    def test_of_one_call_want_a_letter_and_a_folder(self):
        self.call("lecteurs", "--lecteur", "M", status=2)

    def test_that_reach_nothing_refuse_a_file_by_name(self):
        self.call("lecteurs", "C", "--oter")
        self.call("liste", "voir", str(self.station / "absente.dfm"), status=1)
        self.assertIn("absente.dfm", self.error)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
