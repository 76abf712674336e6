#!/usr/bin/env python3
"""The word `antenne` of sonarelle-outil where things go wrong around it: readers, terminals, folders, settings."""
import fcntl
import json
import os
import signal
import subprocess
import time
import unittest

from outil_air import Air, record

SET_PIPE_SIZE = 1031


def full_pipe():
    """A pipe that takes nothing more, since nobody reads it."""
    reader, writer = os.pipe()
    fcntl.fcntl(writer, SET_PIPE_SIZE, 4096)
    os.set_blocking(writer, False)
    try:
        while True:
            os.write(writer, b"\n" * 512)
    except BlockingIOError:
        os.set_blocking(writer, True)
    return reader, writer


class Unattended(Air):
    def setUp(self):
        super().setUp()
        self.make_list(100, 100)
        self.station = self.folder / "station"

    def go_on_air(self, *words, environment=None, **pipes):
        air = subprocess.Popen(self.words("antenne", self.list, "--sortie", "aucune", *words), env=environment,
                               stderr=subprocess.PIPE, **pipes)
        self.addCleanup(air.wait)
        self.addCleanup(air.kill)
        self.addCleanup(air.stderr.close)
        return air

    def journal(self):
        file = self.station / "journal.doc"
        return file.read_bytes().decode("cp1252") if file.exists() else ""

    def wait_for_journal(self, text):
        for _ in range(500):
            if text in self.journal():
                return
            time.sleep(0.02)
        self.fail(f"no line with {text}: {self.journal()}")

    def events(self, *words, status=0):
        said = self.call("antenne", self.list, "--sortie", "aucune", "--duree", "00:00:01", *words, status=status)
        return [json.loads(line) for line in said.splitlines()]

    def warnings(self, events):
        return [event["texte"] for event in events if event["evenement"] == "avertissement"]


class Readers(Unattended):
    def test_that_end_leave_the_station_on_the_air(self):
        reader, writer = os.pipe()
        os.close(reader)
        air = self.go_on_air("--duree", "00:00:02", stdout=writer)
        os.close(writer)
        air.wait()
        self.assertEqual(air.returncode, 1, "its lines found no reader")
        self.assertIn(" Arrét lecture liste a ", self.journal().splitlines()[-1])
        self.assertIn("lignes que personne n'a lues", self.journal())

    def test_that_do_not_read_leave_the_station_on_the_air(self):
        reader, writer = full_pipe()
        air = self.go_on_air("--duree", "00:00:02", stdout=writer)
        air.wait()
        os.close(reader)
        os.close(writer)
        self.assertIn(" Arrét lecture liste a ", self.journal())

    def test_that_do_not_read_keep_no_signal_from_ending_it(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            reader, writer = full_pipe()
            air = self.go_on_air(stdout=writer)
            self.wait_for_journal("Lecture de")
            air.send_signal(number)
            air.wait()
            os.close(reader)
            os.close(writer)
            self.assertIn(" Arrét lecture liste a ", self.journal())
            (self.station / "journal.doc").unlink()

    def test_of_the_journal_get_one_line_for_each_of_its_lines(self):
        odd = self.folder / "a\nb\x1b[31m.wav"
        (self.folder / "1.wav").rename(odd)
        self.list.write_bytes(record(self.station_path(odd), 100) * 2)
        said = self.call("antenne", self.list, "--sortie", "aucune", "--duree", "00:00:01", "--journal")
        self.assertIn("a·b·[31m.wav", said)
        self.assertIn("a·b·[31m.wav", self.journal())


class Signals(Unattended):
    def test_of_a_closed_terminal_end_it_cleanly(self):
        air = self.go_on_air(stdout=subprocess.PIPE)
        self.addCleanup(air.stdout.close)
        self.wait_for_journal("Lecture de")
        air.send_signal(signal.SIGHUP)
        said = air.stdout.read().decode()
        self.assertEqual(air.wait(), 0)
        self.assertEqual(json.loads(said.splitlines()[-1])["evenement"], "bilan")
        self.assertIn(" Arrét lecture liste a ", self.journal())

    def test_of_a_closed_terminal_that_nohup_ignores_are_ignored(self):
        air = self.go_on_air("--duree", "00:00:02", stdout=subprocess.DEVNULL,
                             preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN))
        self.wait_for_journal("Lecture de")
        air.send_signal(signal.SIGHUP)
        self.assertEqual(air.wait(), 0)


class Starts(Unattended):
    def spoil(self, name, text):
        self.station.mkdir(exist_ok=True)
        (self.station / name).write_text(text)

    def assert_holds_the_first_values(self, settings):
        values = json.loads(settings.read_text())["Sonarelle V6"]["Config"]
        self.assertEqual((values["Mix_audio"], values["Mix_audio_vitesse"]), ("10", "35"))

    def test_with_damaged_settings_are_told_and_play(self):
        self.spoil("reglages.json", '{"sonarelle":5')
        events = self.events()
        self.assertEqual(events[-1]["departs"], 1)
        self.assertIn("Fichier de réglages abîmé", "".join(self.warnings(events)))
        self.assertIn("Fichier de réglages abîmé", self.journal())
        self.assertEqual((self.station / "reglages.json.abime").read_text(), '{"sonarelle":5')
        self.assert_holds_the_first_values(self.station / "reglages.json")

    def test_without_settings_play_by_the_first_ones(self):
        self.assertEqual(self.events()[-1]["departs"], 1)
        self.assert_holds_the_first_values(self.station / "reglages.json")

    def test_with_a_damaged_drive_table_are_told_and_play(self):
        self.spoil("lecteurs.json", '{"D":5}')
        events = self.events()
        self.assertEqual(events[-1]["departs"], 1)
        self.assertIn("Table des lecteurs abîmée", "".join(self.warnings(events)))
        self.assertEqual((self.station / "lecteurs.json.abime").read_text(), '{"D":5}')

    def test_with_endless_settings_are_told_and_play(self):
        self.station.mkdir()
        (self.station / "reglages.json").symlink_to("/dev/zero")
        events = self.events()
        self.assertEqual(events[-1]["departs"], 1)
        self.assertIn("pas un fichier ordinaire", "".join(self.warnings(events)))

    def test_without_a_home_are_told_and_play(self):
        temporary = self.folder / "temporaire"
        temporary.mkdir()
        environment = {**os.environ, "HOME": "/dev/null", "XDG_DATA_HOME": "", "XDG_CONFIG_HOME": "",
                       "TMPDIR": str(temporary)}
        run = subprocess.run([*self.words("antenne", self.list)[:3], "--sortie", "aucune", "--duree", "00:00:01"],
                             env=environment, capture_output=True, check=False)
        self.assertEqual(run.returncode, 0, run.stderr.decode())
        events = [json.loads(line) for line in run.stdout.splitlines()]
        self.assertEqual(events[-1]["departs"], 1)
        self.assertIn("n'est pas accessible", "".join(self.warnings(events)))
        self.assert_holds_the_first_values(next(temporary.glob("*/reglages.json")))
        journal = next(temporary.glob("*/journal.doc")).read_bytes().decode("cp1252")
        self.assertIn("Lecture de", journal)

    def test_from_a_folder_under_a_share_are_refused_by_name(self):
        self.spoil("lecteurs.json", json.dumps({"C": "/", "\\\\serveur\\partage": str(self.station)}))
        self.assertEqual(self.events(status=1), [])
        self.assertIn(str(self.station), self.error)
        self.assertIn("\\\\serveur\\partage", self.error)
        self.assertEqual(self.error.count("\n"), 1)

    def test_with_values_that_make_no_sense_are_refused_in_both_words(self):
        for value in ("Mix=abc", "Mix=-5", "Mix=1e99", "Valeur_vitesse_timer=0", "Valeur_vitesse_timer=65536",
                      "Valeur_vitesse_timer=-1", "Mix_audio=", "coul_label=9999999999"):
            for word in ("repetition", "antenne"):
                self.assertEqual(self.call(word, self.list, "--reglage", value, status=2), "")
                self.assertIn(value.split("=")[0] + " attend un nombre entier", self.error)


if __name__ == "__main__":
    unittest.main()
