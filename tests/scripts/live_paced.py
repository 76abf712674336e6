#!/usr/bin/env python3
"""The word `antenne` of sonarelle-outil without a sound card, at the pace of the clock."""
import json
import signal
import subprocess
import unittest

from outil_air import Air, write_wav


class PacedByTheClock(Air):
    def events_of(self, text):
        return [json.loads(line) for line in text.splitlines()]

    def test_runs_for_its_length_and_ends_with_the_account(self):
        self.make_list(100, 100)
        events = self.events_of(self.call("antenne", self.list, "--sortie", "aucune", "--duree", "00:00:05"))
        self.assertEqual(self.times(events, "depart", "lecteur", "index"), [(0, 1, 1)])
        self.assertEqual(events[-1], {"t": 5.0, "evenement": "bilan", "departs": 1, "silence_total": 0.0,
                                      "charge_max_ms": events[-1]["charge_max_ms"]})
        self.assertEqual(self.error, "")

    def test_starts_as_the_rehearsal_does(self):
        self.make_list(8, 8, 8)
        words = ["--duree", "00:00:16", "--reglage", "Mix=3", "--reglage", "Préchargement=2",
                 "--reglage", "valeur_max_jingles=4"]
        aired = self.events_of(self.call("antenne", self.list, "--sortie", "aucune", *words))
        rehearsed = self.rehearse(*words)
        for kind in ("chargement", "depart", "fondu", "coupe"):
            self.assertEqual(self.times(aired, kind, "lecteur"), self.times(rehearsed, kind, "lecteur"))
        self.assertGreater(len(self.times(aired, "depart")), 2)

    def test_ends_at_once_by_the_interrupt_key(self):
        self.make_list(100, 100)
        before = self.list.read_bytes()
        air = subprocess.Popen(self.words("antenne", self.list, "--sortie", "aucune"), stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE, text=True)
        self.addCleanup(air.stderr.close)
        self.addCleanup(air.stdout.close)
        self.addCleanup(air.kill)
        while '"depart"' not in air.stdout.readline():
            pass
        air.send_signal(signal.SIGINT)
        said = air.stdout.read()
        self.assertEqual(air.wait(), 0, air.stderr.read())
        events = self.events_of(said)
        self.assertEqual([event["evenement"] for event in events[-2:]], ["arret", "bilan"])
        self.assertEqual(events[-1]["departs"], 1)
        journal = (self.folder / "station/journal.doc").read_bytes().decode("cp1252")
        self.assertIn("Lecture de " + self.station_path(self.folder / "1.wav"), journal)
        self.assertIn(" Arrét lecture liste a ", journal.splitlines()[-1])
        self.assertTrue(journal.endswith("\r\n"))
        self.assertEqual(self.list.read_bytes(), before)

    def test_shows_the_journal_in_place_of_the_events(self):
        self.make_list(100, 100)
        said = self.call("antenne", self.list, "--sortie", "aucune", "--duree", "00:00:01", "--journal")
        self.assertIn("Lecture de " + self.station_path(self.folder / "1.wav"), said)
        self.assertNotIn('"depart"', said)

    def test_keeps_the_settings_of_the_store(self):
        self.make_list(100, 100)
        self.call("reglages", "premier")
        before = self.call("reglages", "--json")
        self.call("antenne", self.list, "--sortie", "aucune", "--duree", "00:00:01", "--reglage", "Mix=9")
        self.assertEqual(self.call("reglages", "--json"), before)

    def test_ticks_as_the_rehearsal_does(self):
        self.make_list(6, 6)
        words = ["--duree", "00:00:08", "--reglage", "Mix=3", "--reglage", "valeur_max_jingles=2",
                 "--reglage", "Valeur_vitesse_timer=700"]
        rehearsed = self.times(self.rehearse(*words), "depart")
        self.assertEqual(rehearsed, [0, 5.6])
        aired = self.events_of(self.call("antenne", self.list, "--sortie", "aucune", *words))
        self.assertEqual(self.times(aired, "depart"), rehearsed)

    def test_tells_silence_that_a_file_holds(self):
        write_wav(self.make_list(100, 100)[0], 100, period=bytes([128]))
        events = self.events_of(self.call("antenne", self.list, "--sortie", "aucune", "--duree", "00:00:04"))
        self.assertEqual(self.times(events, "silence"), [2])
        self.assertGreater(events[-1]["silence_total"], 3.5)

    def test_refuses_wrong_words(self):
        self.make_list(100, 100)
        self.call("antenne", status=2)
        self.call("antenne", "", status=2)
        self.call("antenne", self.list, "--duree", "5", status=2)

    def test_refuses_a_list_without_rows(self):
        self.list.write_bytes(b"")
        self.call("antenne", self.list, "--sortie", "aucune", status=1)
        self.assertIn(str(self.list), self.error)


if __name__ == "__main__":
    unittest.main()
