#!/usr/bin/env python3
"""The words `repetition` and `antenne` of sonarelle-outil: a programme in virtual time, and one paced by the clock."""
import array
import json
import math
import os
import signal
import struct
import subprocess
import tempfile
import unittest
import wave
import xml.etree.ElementTree
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
RECORD = struct.Struct("<200s100s100shd8s")
RATE = 48000
LOUD = 8000  # of a square wave; two of them stay below the limiter


def write_wav(path, seconds, rate=8000, channels=1, width=1, period=bytes([96]) * 20 + bytes([160]) * 20):
    frames = round(seconds * rate)
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(channels)
        sound.setsampwidth(width)
        sound.setframerate(rate)
        size = frames * channels * width
        sound.writeframes((period * (size // len(period) + 1))[:size])
    return path


def one_sided_period(side):
    """A square wave of 1 kHz on one side, which is loud from its very first frame."""
    frames = [LOUD] * 24 + [-LOUD] * 24
    return b"".join(struct.pack("<hh", *((level, 0) if side == 0 else (0, level))) for level in frames)


def record(path, end, start=0.0, volume=100):
    return RECORD.pack(path.encode("cp1252", "surrogateescape").ljust(200), str(end).encode().ljust(100), b"Rock".ljust(100), volume, start,
                       b"00:01:40")


class Air(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name).resolve()
        self.list = self.folder / "liste.dfm"

    def station_path(self, file):
        return "C:" + str(file).replace("/", "\\")

    def make_list(self, *ends, length=None, start=0.0):
        """Rows of these ends, each with a file of its own."""
        files = [write_wav(self.folder / f"{number}.wav", length or end) for number, end in enumerate(ends, 1)]
        self.list.write_bytes(b"".join(record(self.station_path(file), end, start)
                                       for file, end in zip(files, ends, strict=True)))
        return files

    def make_list_with_a_lost_folder(self):
        """Three rows, the second of which lies in a folder that isn't there."""
        files = self.make_list(40, 40, 40)
        second = self.folder / "parti" / files[1].name
        self.list.write_bytes(b"".join(record(self.station_path(file), 40) for file in (files[0], second, files[2])))
        return files

    def words(self, *words):
        return [TOOL, *map(str, words), "--dossier", str(self.folder / "station")]

    def call(self, *words, status=0):
        run = subprocess.run(self.words(*words), capture_output=True, check=False)
        self.error = run.stderr.decode()
        self.assertEqual(run.returncode, status, self.error)
        return run.stdout.decode()

    def rehearse(self, *words, status=0):
        return [json.loads(line) for line in self.call("repetition", self.list, *words, status=status).splitlines()]

    def rehearse_gestures(self, script, *words):
        gestures = self.folder / "gestes.txt"
        gestures.write_text(script, encoding="utf-8")
        return self.rehearse("--sans-son", "--gestes", gestures, *words)

    def times(self, events, kind, *fields):
        return [tuple([event["t"], *(event[field] for field in fields)]) if fields else event["t"]
                for event in events if event["evenement"] == kind]


class Chaining(Air):
    def test_loads_thirteen_and_starts_six_seconds_before_the_end(self):
        self.make_list(100, 100, 100)
        events = self.rehearse("--duree", "00:04:30")
        self.assertEqual(self.times(events, "chargement", "lecteur"), [(0, 1), (87, 2), (181, 3)])
        self.assertEqual(self.times(events, "depart", "lecteur", "index"), [(0, 1, 1), (94, 2, 2), (188, 3, 3)])

    def test_tells_a_start_with_all_its_fields(self):
        file, *_ = self.make_list(100, 100)
        loaded, started = self.rehearse("--duree", "00:00:01")[:2]
        self.assertEqual(loaded, {"t": 0.0, "evenement": "chargement", "lecteur": 1, "index": 1,
                                  "chemin": self.station_path(file), "fin": "100"})
        self.assertEqual(started, {"t": 0.0, "evenement": "depart", "lecteur": 1, "index": 1,
                                   "chemin": self.station_path(file), "mix_courant": 6, "prechargement": 7})

    def test_escapes_control_characters_that_terminals_obey(self):
        odd = write_wav(self.folder / "c\u009d0;o\u007f.wav", 100)
        self.list.write_bytes(record(self.station_path(odd).replace("\u009d", "\udc9d"), 100))
        said = self.call("repetition", self.list, "--sans-son", "--duree", "00:00:01")
        self.assertIn("c\\u009d0;o\\u007f.wav", said)

    def test_writes_times_with_three_decimals(self):
        self.make_list(100, 100)
        self.assertTrue(self.call("repetition", self.list, "--duree", "00:00:01").startswith('{"t":0.000,"evenement":'))

    def test_fades_ends_and_cuts_the_outgoing_deck(self):
        self.make_list(100, 100, 100)
        events = self.rehearse("--duree", "00:02:00")
        self.assertEqual(self.times(events, "fondu", "lecteur"), [(94.04, 1)])
        self.assertEqual(self.times(events, "fin_fichier", "lecteur"), [(100, 1)])
        self.assertEqual(self.times(events, "coupe", "lecteur"), [(107, 1)])

    def test_starts_alike_with_a_start_position_of_a_tenth(self):
        self.make_list(100, 100, 100, start=0.1)
        events = self.rehearse("--duree", "00:04:30")
        self.assertEqual(self.times(events, "depart"), [0, 94, 188])
        self.assertEqual(self.times(events, "fin_fichier"), [99.9, 193.9])

    def test_goes_round_the_list_until_its_length_is_over(self):
        self.make_list(100, 100)
        events = self.rehearse()
        self.assertEqual(self.times(events, "depart", "index"), [(0, 1), (94, 2), (188, 1)])
        self.assertEqual(events[-1], {"t": 200.0, "evenement": "bilan", "departs": 3, "silence_total": 0.0,
                                      "charge_max_ms": events[-1]["charge_max_ms"]})

    def test_follows_a_short_item_without_a_fade(self):
        self.make_list(100, 20, 100)
        events = self.rehearse("--duree", "00:02:10")
        self.assertEqual(self.times(events, "depart"), [0, 94, 113])
        self.assertEqual([event["mix_courant"] for event in events if event["evenement"] == "depart"], [6, 1, 6])

    def test_plays_to_the_stored_end_in_list_mode_and_the_whole_file_in_full_mode(self):
        self.make_list(60, 60, 60, length=100)
        self.assertEqual(self.times(self.rehearse("--duree", "00:03:00"), "depart"), [0, 54, 108, 162])
        self.assertEqual(self.times(self.rehearse("--duree", "00:03:00", "--mode", "pleine"), "depart"), [0, 94])

    def test_chains_the_decks_in_deck_mode(self):
        self.make_list(60, 60, 60, length=100)
        events = self.rehearse("--duree", "00:03:00", "--mode", "lecteur")
        self.assertEqual(self.times(events, "depart", "lecteur"), [(0, 1), (94, 2)])

    def test_takes_settings_for_the_call(self):
        self.make_list(100, 100)
        events = self.rehearse("--duree", "00:02:00", "--reglage", "Mix=10", "--reglage", "Préchargement=12",
                               "--reglage", "Mix_audio_vitesse=35")
        self.assertEqual(self.times(events, "chargement"), [0, 78])
        self.assertEqual(self.times(events, "depart"), [0, 90])
        self.assertEqual(self.times(events, "fondu"), [90.035])
        self.assertEqual(self.call("reglages", "--json"), "")

    def test_takes_the_settings_of_the_store(self):
        self.make_list(100, 100)
        self.call("reglages", "premier")
        self.call("reglages", "ecrire", "Config", "Mix", "20")
        self.assertEqual(self.times(self.rehearse("--duree", "00:01:30"), "depart"), [0, 80])

    def test_removes_the_row_of_a_missing_file(self):
        first, missing, last = self.make_list(100, 100, 100)
        missing.unlink()
        events = self.rehearse("--duree", "00:02:00")
        self.assertEqual(self.times(events, "retire", "index", "chemin"), [(87, 2, self.station_path(missing))])
        started = [event["chemin"] for event in events if event["evenement"] == "depart"]
        self.assertEqual(started, [self.station_path(first), self.station_path(last)])

    def test_tells_silence_after_two_seconds_of_it(self):
        write_wav(self.make_list(100, 100)[0], 100, period=bytes([128]))
        events = self.rehearse("--duree", "00:02:00")
        self.assertEqual(self.times(events, "silence"), [2])
        self.assertEqual(self.times(events, "fin_silence", "duree"), [(94, 94.0)])
        self.assertEqual(events[-1]["silence_total"], 94.0)

    def test_takes_the_list_up_again_behind_a_fault(self):
        files = self.make_list_with_a_lost_folder()
        events = self.rehearse("--duree", "00:01:30", "--reglage", "Veille_antenne=4")
        self.assertEqual(self.times(events, "arret"), [27])
        self.assertEqual(self.times(events, "silence"), [42])
        self.assertEqual(self.times(events, "reprise", "index", "chemin", "apres"),
                         [(44, 3, self.station_path(files[2]), 4.0)])
        self.assertEqual(self.times(events, "fin_silence", "duree"), [(44, 4.0)])

    def test_stays_silent_behind_a_fault_where_the_setting_says_so(self):
        self.make_list_with_a_lost_folder()
        events = self.rehearse("--duree", "00:01:30", "--reglage", "Veille_antenne=0")
        self.assertEqual(self.times(events, "reprise"), [])

    def test_never_changes_the_list(self):
        self.make_list(100, 100, 100)[1].unlink()
        before = self.list.read_bytes()
        self.rehearse_gestures("40 zap\n")
        self.assertEqual(self.list.read_bytes(), before)
        self.assertEqual(sorted(path.name for path in self.folder.glob("*.dfm")), ["liste.dfm"])


class Repeating(Air):
    def test_gives_the_same_bytes_for_the_same_words(self):
        self.make_list(30, 40, 30)
        runs = []
        for name in ("a.wav", "b.wav"):
            said = self.call("repetition", self.list, "--graine", "7", "--duree", "00:01:00", "--rendu",
                             self.folder / name)
            runs.append((said, (self.folder / name).read_bytes()))
        self.assertEqual(runs[0][0], runs[1][0])
        self.assertTrue(runs[0][1] == runs[1][1])

    def test_gives_the_same_events_without_sound(self):
        self.make_list(100, 40, 20, 100, start=0.1)
        self.assertEqual(self.rehearse(), self.rehearse("--sans-son"))


class Hands(Air):
    def setUp(self):
        super().setUp()
        self.files = self.make_list(100, 100, 100)

    def test_are_refused_a_zap_by_key_up_to_thirty_seconds(self):
        events = self.rehearse_gestures("30.999 zap\n", "--duree", "00:00:40")
        question, = [event for event in events if event["evenement"] == "question"]
        self.assertEqual(question["t"], 30.999)
        self.assertIn("30 secondes minimun sont demandées", question["texte"])
        self.assertEqual(question["reponse"], "ok")
        self.assertEqual(self.times(events, "depart"), [0])

    def test_zap_by_key_at_thirty_one_seconds(self):
        events = self.rehearse_gestures("31 zap\n", "--duree", "00:01:00")
        self.assertEqual(self.times(events, "depart", "lecteur"), [(0, 1), (31, 2)])
        self.assertEqual(self.times(events, "question"), [])
        self.assertEqual(self.times(events, "coupe"), [44])

    def test_zap_by_key_stores_the_new_end_in_the_list_of_the_run_alone(self):
        before = self.list.read_bytes()
        events = self.rehearse_gestures("50 zap\n", "--duree", "00:06:00")
        self.assertEqual(self.times(events, "depart", "index"), [(0, 1), (50, 2), (144, 3), (238, 1), (282, 2)])
        self.assertEqual(self.list.read_bytes(), before)

    def test_zap_by_a_decks_button_at_any_time(self):
        events = self.rehearse_gestures("5 zap 1\n", "--duree", "00:00:20")
        self.assertEqual(self.times(events, "depart", "lecteur"), [(0, 1), (5, 2)])

    def test_press_keys(self):
        events = self.rehearse_gestures("31 touche z\n", "--duree", "00:00:40")
        self.assertEqual(self.times(events, "depart"), [0, 31])

    def test_pause_and_resume_a_deck(self):
        events = self.rehearse_gestures("10 pause 1\n20 pause 1\n", "--duree", "00:02:00")
        self.assertEqual(self.times(events, "silence"), [], "the operator has asked for it")
        self.assertEqual(self.times(events, "depart"), [0, 104])
        self.assertEqual(events[-1]["silence_total"], 10.0)

    def test_answer_the_next_question(self):
        events = self.rehearse_gestures("5 repond ok\n5 zap\n6 zap\n", "--duree", "00:00:08")
        self.assertEqual(self.times(events, "question", "reponse"), [(5, "ok"), (6, "ok")])

    def test_stop_a_deck(self):
        events = self.rehearse_gestures("10 stop 1\n", "--duree", "00:00:30")
        self.assertEqual(self.times(events, "silence"), [], "the operator has asked for it")
        self.assertEqual(events[-1]["silence_total"], 20.0)

    def test_load_a_deck_and_play_it(self):
        for path in (self.files[2], self.station_path(self.files[2])):
            events = self.rehearse_gestures(f"10 charge 2 {path}\n12 play 2\n", "--duree", "00:00:20", "--mode", "lecteur")
            self.assertEqual(self.times(events, "depart", "lecteur", "chemin")[1:],
                             [(12, 2, self.station_path(self.files[2]))])

    def test_load_the_file_of_their_own_line(self):
        on_the_air, meant = self.files[0], self.files[2]
        events = self.rehearse_gestures(f"5 charge 1 {on_the_air}\n10 charge 2 {meant}\n12 play 2\n", "--duree",
                                        "00:00:20", "--mode", "lecteur")
        self.assertEqual(self.times(events, "depart", "lecteur", "chemin")[1:], [(12, 2, self.station_path(meant))])

    def test_may_be_written_out_of_order(self):
        events = self.rehearse_gestures("# la soirée\n\n40 pause 1\n31 zap\n", "--duree", "00:00:35")
        self.assertEqual(self.times(events, "depart"), [0, 31])

    def test_are_refused_with_the_line_named(self):
        for script, sentence in (("5 vol 1", "geste inconnu"), ("xx zap", "xx"), ("-5 zap", "négatif"),
                                 ("5 stop 4", "un lecteur est 1, 2 ou 3"), ("5 stop", "il manque un mot"),
                                 ("5", "il manque un mot"), ("5 stop 1 2", "un mot en trop"), ("5 volume 1", "manque")):
            gestures = self.folder / "gestes.txt"
            gestures.write_text("1 zap 1\n" + script + "\n", encoding="utf-8")
            self.call("repetition", self.list, "--sans-son", "--gestes", gestures, status=1)
            self.assertIn(f"{gestures}, ligne 2 : ", self.error)
            self.assertIn(sentence, self.error)

    def test_are_refused_when_their_script_is_missing(self):
        self.call("repetition", self.list, "--gestes", self.folder / "absent.txt", status=1)
        self.assertIn("absent.txt", self.error)


class Picture(Air):
    SVG = "{http://www.w3.org/2000/svg}"

    def draw(self, *words):
        picture = self.folder / "air.svg"
        self.rehearse("--sans-son", "--image", picture, *words)
        return xml.etree.ElementTree.parse(picture).getroot()

    def test_has_a_bar_with_row_and_name_for_each_played_track(self):
        self.make_list(100, 100, 100)
        drawing = self.draw("--duree", "00:04:30")
        self.assertEqual(len(drawing.findall(self.SVG + "polygon")), 3)
        labels = [text.text for text in drawing.findall(self.SVG + "text[@class='track']")]
        self.assertEqual(labels, ["1 1.wav", "2 2.wav", "3 3.wav"])

    def test_has_a_time_for_each_full_minute(self):
        self.make_list(100, 100)
        labels = [text.text for text in self.draw("--duree", "00:02:30").findall(self.SVG + "text")]
        self.assertEqual([label for label in labels if label.endswith(" min")], ["0 min", "1 min", "2 min"])

    def test_escapes_names(self):
        file = write_wav(self.folder / "a & b's.wav", 40)
        self.list.write_bytes(record(self.station_path(file), 40) * 2)
        self.assertIn("1 a & b's.wav", [text.text for text in self.draw("--duree", "00:00:10").iter()])

    def test_is_red_where_the_air_is_silent(self):
        self.make_list(100, 100)
        gestures = self.folder / "gestes.txt"
        gestures.write_text("25 pause 1\n50 pause 1\n", encoding="utf-8")
        red, = self.draw("--gestes", gestures, "--duree", "00:01:40").findall(self.SVG + "rect[@class='silence']")
        self.assertEqual((red.get("x"), red.get("width")), ("340.00", "300.00"))

    def test_that_cannot_be_written_is_named(self):
        self.make_list(100, 100)
        said = self.call("repetition", self.list, "--sans-son", "--image", self.folder / "absent/a.svg", status=1)
        self.assertIn("absent/a.svg", self.error)
        self.assertEqual(said, "")


class Outputs(Air):
    """What a rehearsal writes never takes the place of what it reads, nor of anything when it fails."""

    def refuse(self, *words):
        self.assertEqual(self.call("repetition", self.list, "--duree", "00:00:03", *words, status=1), "")
        self.assertEqual(self.error.count("\n"), 1, self.error)

    def test_are_not_the_list(self):
        self.make_list(20, 20)
        before = self.list.read_bytes()
        for words in (["--rendu", self.list], ["--sans-son", "--image", self.list]):
            self.refuse(*words)
            self.assertIn(f"{self.list} : ce fichier est la liste", self.error)
            self.assertEqual(self.list.read_bytes(), before)

    def test_are_not_the_list_under_another_name(self):
        self.make_list(20, 20)
        before = self.list.read_bytes()
        os.link(self.list, self.folder / "autre.wav")
        self.refuse("--rendu", self.folder / "autre.wav")
        self.assertEqual(self.list.read_bytes(), before)

    def test_are_no_track_of_the_list(self):
        track = self.make_list(20, 20)[1]
        before = track.read_bytes()
        for words in (["--rendu", track], ["--sans-son", "--image", track]):
            self.refuse(*words)
            self.assertIn(f"{track} : ce fichier est un titre de la liste", self.error)
            self.assertEqual(track.read_bytes(), before)

    def test_are_not_one_and_the_same(self):
        self.make_list(20, 20)
        self.refuse("--rendu", self.folder / "x.wav", "--image", self.folder / "./x.wav")
        self.assertFalse((self.folder / "x.wav").exists())

    def test_leave_what_is_there_when_the_run_is_refused(self):
        self.list.write_bytes(b"")
        kept = self.folder / "keep.wav"
        kept.write_text("précieux")
        self.refuse("--rendu", kept)
        self.assertEqual(kept.read_text(), "précieux")

    def test_are_plain_files(self):
        self.make_list(20, 20)
        pipe = self.folder / "tuyau"
        os.mkfifo(pipe)
        for words in (["--rendu", pipe], ["--sans-son", "--image", pipe], ["--sans-son", "--gestes", pipe],
                      ["--sans-son", "--gestes", "/dev/zero"], ["--sans-son", "--gestes", self.folder]):
            self.refuse(*words)
            self.assertIn(str(words[-1]), self.error)


class EndingEarly(Air):
    """A run that is interrupted, or whose reader ends, leaves nothing behind."""

    def setUp(self):
        super().setUp()
        self.make_list(100, 100)
        self.temporary = self.folder / "temporaire"
        self.temporary.mkdir()
        self.environment = {**os.environ, "TMPDIR": str(self.temporary)}

    def start(self, *words):
        run = subprocess.Popen(self.words("repetition", self.list, "--duree", "99:00:00", *words),
                               env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(run.wait)
        self.addCleanup(run.kill)
        self.addCleanup(run.stderr.close)
        self.addCleanup(run.stdout.close)
        return run

    def test_by_a_reader_that_ends(self):
        run = self.start("--sans-son")
        run.stdout.readline()
        run.stdout.close()
        self.assertEqual(run.wait(), 1)
        self.assertEqual(run.stderr.read().decode(), "sonarelle-outil : sortie standard : écriture impossible\n")
        self.assertEqual(list(self.temporary.iterdir()), [])

    def test_by_a_signal(self):
        rendering = self.folder / "air.wav"
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            run = subprocess.Popen(self.words("repetition", self.list, "--duree", "06:00:00", "--rendu", rendering),
                                   env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
            run.stdout.readline()
            run.send_signal(number)
            error = run.communicate()[1].decode()
            self.assertEqual(run.returncode, 1)
            self.assertIn("répétition interrompue", error)
            self.assertEqual(list(self.temporary.iterdir()), [])
            self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                             ["1.wav", "2.wav", "liste.dfm", "temporaire"])

    def test_by_a_kill_leaves_a_folder_that_the_next_run_sweeps(self):
        run = self.start("--sans-son")
        run.stdout.readline()
        run.kill()
        run.wait()
        left, = self.temporary.iterdir()
        old = 1_000_000_000
        os.utime(left, (old, old))
        subprocess.run(self.words("repetition", self.list, "--sans-son", "--duree", "00:00:01"), env=self.environment,
                       capture_output=True, check=True)
        self.assertEqual(list(self.temporary.iterdir()), [])

    def test_in_no_temporary_folder_names_it(self):
        self.environment["TMPDIR"] = str(self.folder / "absent")
        run = self.start("--sans-son")
        self.assertEqual(run.wait(), 1)
        self.assertIn(f"{self.folder}/absent : Chemin d'accès introuvable", run.stderr.read().decode())


class Words(Air):
    def test_of_a_length_may_have_four_digits_of_hours(self):
        self.make_list(100, 100)
        self.assertEqual(self.rehearse("--sans-son", "--duree", "0100:00:00")[-1]["t"], 360000)
        self.assertEqual(self.rehearse("--sans-son", "--duree", "100:00:00")[-1]["t"], 360000)

    def test_that_are_wrong(self):
        self.make_list(100)
        for words in ([], [""], [self.list, "x"], [self.list, "--duree", "10"], [self.list, "--duree", "0a:00:00"],
                      [self.list, "--duree", "10000:00:00"], [self.list, "--duree", "00:60:00"],
                      [self.list, "--duree", "00:00:60"], [self.list, "--duree", "1:00:00"],
                      [self.list, "--mode", "vite"], [self.list, "--graine", "x"], [self.list, "--reglage", "Mix"],
                      [self.list, "--reglage", "Inconnu=1"], [self.list, "--xyz"], [self.list, "--duree"],
                      [self.list, "--rendu", "a.wav", "--sans-son"]):
            self.assertEqual(self.call("repetition", *words, status=2), "")
            self.assertIn("Usage", self.error)

    def test_of_a_list_that_is_not_there(self):
        self.call("repetition", self.list, status=1)
        self.assertIn(f"{self.list} : Fichier introuvable", self.error)

    def test_of_a_file_that_is_no_list(self):
        file, *_ = self.make_list(100)
        for word in ("repetition", "antenne"):
            self.assertEqual(self.call(word, file, status=1), "")
            self.assertIn(".dfm est attendu", self.error)

    def test_of_a_list_without_rows(self):
        self.list.write_bytes(b"")
        self.assertEqual(self.call("repetition", self.list, status=1), "")
        self.assertIn(str(self.list), self.error)
        self.assertEqual(self.error.count("\n"), 1)

    def test_of_a_rendering_that_cannot_be_written(self):
        self.make_list(100, 100)
        self.call("repetition", self.list, "--rendu", self.folder / "absent/a.wav", status=1)
        self.assertIn("absent/a.wav", self.error)


class Rendering(Air):
    """Tracks that sound on one side each, in turns, so that each can be heard alone."""

    def render(self, *words, seconds):
        paths = [self.station_path(write_wav(self.folder / f"{side}.wav", 60, RATE, 2, 2, one_sided_period(side)))
                 for side in (0, 1)]
        self.list.write_bytes(b"".join(record(path, 40) for path in paths))
        rendering = self.folder / "air.wav"
        self.events = self.rehearse("--rendu", rendering, "--duree", f"00:00:{seconds}", *words)
        with wave.open(str(rendering), "rb") as sound:
            self.assertEqual((sound.getframerate(), sound.getnchannels(), sound.getsampwidth()), (RATE, 2, 2))
            frames = array.array("h", sound.readframes(sound.getnframes()))
        self.assertEqual(len(frames), seconds * RATE * 2)
        return frames[0::2], frames[1::2]

    def level(self, side, seconds):
        """In dB of full loudness, over the 10 ms before this time."""
        end = round(seconds * RATE)
        return 20 * math.log10(max(1, *map(abs, side[end - 480:end])) / LOUD)

    def check_fall(self, step, seconds):
        left, _ = self.render("--reglage", f"Mix_audio_vitesse={step}", seconds=seconds)
        self.assertEqual(self.times(self.events, "fondu"), [round(34 + step / 1000, 3)])
        for count in (0, 1, 10, 100, 300):
            self.assertAlmostEqual(self.level(left, 34 + (count + 1) * step / 1000), -0.1 * count, delta=0.03,
                                   msg=f"after {count} steps")

    def test_starts_on_the_very_frame(self):
        left, right = self.render(seconds=36)
        self.assertEqual(self.times(self.events, "depart"), [0, 34])
        self.assertEqual(next(i for i, sample in enumerate(left) if sample != 0), 0)
        self.assertEqual(next(i for i, sample in enumerate(right) if sample != 0), 34 * RATE)
        self.assertEqual(right[34 * RATE:34 * RATE + 48], array.array("h", [LOUD] * 24 + [-LOUD] * 24))

    def test_falls_by_a_tenth_of_a_decibel_every_40_ms(self):
        self.check_fall(40, 47)

    def test_falls_by_a_tenth_of_a_decibel_every_35_ms(self):
        self.check_fall(35, 47)

    def test_cuts_the_outgoing_deck_at_the_limit(self):
        left, _ = self.render(seconds=50)
        self.assertEqual(self.times(self.events, "coupe", "lecteur"), [(47, 1)])
        self.assertNotEqual(max(left[47 * RATE - 48:47 * RATE]), 0)
        self.assertEqual(set(left[47 * RATE + RATE // 100:]), {0})

    def test_is_heard_by_its_volume(self):
        path = self.station_path(write_wav(self.folder / "a.wav", 60, RATE, 2, 2, one_sided_period(0)))
        self.list.write_bytes(record(path, 60, volume=80) + record(path, 60))
        rendering = self.folder / "air.wav"
        self.rehearse("--rendu", rendering, "--duree", "00:00:02")
        with wave.open(str(rendering), "rb") as sound:
            left = array.array("h", sound.readframes(sound.getnframes()))[0::2]
        self.assertAlmostEqual(self.level(left, 1.0), -8.0, delta=0.03)


if __name__ == "__main__":
    unittest.main()
