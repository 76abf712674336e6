#!/usr/bin/python3
"""Rehearsals in random order and with rows that are inserted by draw, as scripts call them."""
import unittest

from outil_air import Air, record, write_wav


class Drawn(Air):
    def put_source(self, name, count, length):
        """A list of so many files of its own; its path."""
        records = b""
        for number in range(1, count + 1):
            records += record(self.station_path(write_wav(self.folder / f"{name} {number}.wav", length)), length)
        path = self.folder / f"{name}.dfm"
        path.write_bytes(records)
        return path

    @staticmethod
    def of(events, kind):
        return [event for event in events if event["evenement"] == kind]


class RandomOrder(Drawn):
    def test_plays_each_row_once_in_a_cycle(self):
        self.make_list(*[60] * 6)
        events = self.rehearse("--mode", "aleatoire", "--sans-son", "--duree", "00:05:00")
        self.assertEqual(sorted(event["index"] for event in self.of(events, "depart")), [1, 2, 3, 4, 5, 6])

    def test_tells_each_draw_with_what_was_passed_over(self):
        self.make_list(*[60] * 6)
        events = self.rehearse("--mode", "aleatoire", "--sans-son", "--duree", "00:05:00")
        draws = self.of(events, "tirage")
        self.assertEqual(len(draws), 5)
        played = [1]
        for draw in draws:
            self.assertEqual(draw["parmi"], 6)
            self.assertNotIn(draw["index"], played)
            for passed in draw["ecartes"]:
                self.assertEqual(passed["raison"], "déjà tiré")
                self.assertIn(passed["numero"], played)
            played.append(draw["index"])

    def test_is_the_same_with_the_same_seed_and_another_with_another(self):
        self.make_list(*[60] * 12)
        words = ("--mode", "aleatoire", "--sans-son", "--duree", "00:10:00", "--graine")
        self.assertEqual(self.rehearse(*words, "5"), self.rehearse(*words, "5"))
        self.assertNotEqual(self.times(self.rehearse(*words, "5"), "depart", "index"),
                            self.times(self.rehearse(*words, "6"), "depart", "index"))

    def test_keeps_artists_apart(self):
        paths = [write_wav(self.folder / f"{name}.wav", 60)
                 for name in ("Ana - un", "Ana - deux", "Ana - trois", "Bob - un", "Cy - un", "Dan - un")]
        self.list.write_bytes(b"".join(record(self.station_path(path), 60) for path in paths))
        events = self.rehearse("--mode", "aleatoire", "--sans-son", "--duree", "02:00:00", "--reglage",
                               "Ecart_artiste=1")
        self.assertTrue([passed for draw in self.of(events, "tirage") for passed in draw["ecartes"]
                         if passed["raison"] == "même artiste"])

    def test_a_zap_goes_to_a_drawn_row(self):
        self.make_list(*[100] * 8)
        gestures = self.folder / "gestes.txt"
        gestures.write_text("40 zap 1\n")
        events = self.rehearse("--mode", "aleatoire", "--sans-son", "--duree", "00:01:00", "--gestes", gestures)
        draw, = self.of(events, "tirage")
        self.assertEqual(self.times(events, "depart", "index"), [(0, 1), (40, draw["index"])])


class Insertions(Drawn):
    def test_jingles_come_after_so_many_tracks(self):
        self.make_list(*[60] * 6)
        jingles = self.put_source("jingle", 4, 10)
        events = self.rehearse("--jingles", jingles, "--tous", "3", "--sans-son", "--duree", "00:05:00")
        self.assertEqual(self.times(events, "insertion", "index"), [(109, 4), (226, 7)])
        self.assertEqual([event["parmi"] for event in self.of(events, "insertion")], [4, 4])
        self.assertTrue(self.of(events, "depart")[3]["chemin"].endswith(".wav"))
        self.assertIn("jingle", self.of(events, "depart")[3]["chemin"])

    def test_items_come_at_each_start_in_random_order(self):
        self.make_list(60, 60)
        items = self.put_source("musique", 6, 60)
        events = self.rehearse("--mode", "aleatoire", "--fichiers", items, "--tous1", "1", "--sans-son", "--duree",
                               "00:04:00")
        self.assertEqual(self.times(events, "insertion"), [1, 55, 109, 163, 217])
        self.assertTrue(all("musique" in event["chemin"] for event in self.of(events, "depart")[1:]))

    def test_never_change_the_list_that_is_named(self):
        self.make_list(60, 60)
        before = self.list.read_bytes()
        self.rehearse("--jingles", self.put_source("jingle", 4, 10), "--tous", "1", "--sans-son", "--duree", "00:03:00")
        self.assertEqual(self.list.read_bytes(), before)

    def test_want_list_and_number_together(self):
        self.make_list(60)
        jingles = self.put_source("jingle", 4, 10)
        for words in (("--jingles", jingles), ("--tous", "3"), ("--fichiers", jingles), ("--tous1", "2"),
                      ("--jingles", jingles, "--tous", "0"), ("--jingles", jingles, "--tous", "x"),
                      ("--jingles", jingles, "--tous", "3", "--mode", "lecteur")):
            self.call("repetition", self.list, *words, status=2)

    def test_want_no_number_beyond_the_stations(self):
        self.make_list(60)
        jingles = self.put_source("jingle", 4, 10)
        for words in (("--jingles", jingles, "--tous"), ("--fichiers", jingles, "--tous1")):
            self.call("repetition", self.list, *words, "32768", status=2)

    def test_refuse_what_is_no_list(self):
        self.make_list(60)
        self.call("repetition", self.list, "--jingles", self.folder / "absent.dfm", "--tous", "1", status=1)
        other = write_wav(self.folder / "titre.wav", 10)
        self.call("repetition", self.list, "--jingles", other, "--tous", "1", status=1)

    def test_refuse_items_of_a_list_that_is_not_there(self):
        self.make_list(60)
        self.call("repetition", self.list, "--mode", "aleatoire", "--fichiers", self.folder / "absent.dfm", "--tous1", "1",
                  status=1)

    def test_a_rendering_never_takes_the_place_of_a_list(self):
        self.make_list(60)
        jingles = self.put_source("jingle", 4, 10)
        before = jingles.read_bytes()
        self.call("repetition", self.list, "--jingles", jingles, "--tous", "1", "--rendu", jingles, status=1)
        self.assertEqual(jingles.read_bytes(), before)

    def test_a_rendering_never_takes_the_place_of_a_list_of_items(self):
        self.make_list(60)
        items = self.put_source("musique", 4, 10)
        before = items.read_bytes()
        self.call("repetition", self.list, "--fichiers", items, "--tous1", "1", "--rendu", items, status=1)
        self.assertEqual(items.read_bytes(), before)


if __name__ == "__main__":
    unittest.main()
