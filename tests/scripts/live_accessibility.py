#!/usr/bin/python3
"""The desk as who works it by screen reader and keyboard finds it, by a client of the accessibility bus."""
import os
import re
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import gi
from outil_air import TOOL, record, write_wav

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 60  # seconds: far more than a busy machine needs
TITLES = ("Aube", "Brise", "Colline")
LENGTH = 600  # seconds of each title, so that the list changes none by itself
ZAP_FROM = 40.0  # seconds: the titles begin where the list may be zapped at once
STATE = Atspi.StateType

DECK_STOPS = ("Position", "Ouvrir", "Lecture", "Stopper", "Pause", "Reculer", "Avancer", "Zapper", "Mixage", "Volume",
              "Moins fort", "Plus fort", "Garder le volume")
PANEL_STOPS = ("Mixer les titres", "Mixer une liste", "Top horaire", "Superposition moins", "Superposition de",
               "Superposition plus", "Préchargement", "Favoris", "Jingles")
MODES = ("Lecteur", "Lecture aléatoire", "Lecture durée définie", "Lecture durée piste")
LIST_STOPS = (*MODES, "Insertion de jingles", "Insertion d'une liste", "Liste", "lecture liste", "Zapper", "Stopper",
              "Position", "Fenètre principale", "Menu de la liste", "Suppr", "Ajouter", "Enreg", "Look", "Affichage",
              "Aide", "Fermer", "En cours index", "Zapping", "Recherche", "Sauvegarder la recherche")


class Part:
    """What a screen reader learns about one part of a window."""

    def __init__(self, seen):
        self.seen = seen
        self.name = seen.get_name()
        self.role = seen.get_role_name()

    def is_(self, *states):
        told = self.seen.get_state_set()
        return all(told.contains(state) for state in states)

    def takes_the_keyboard(self):
        return self.is_(STATE.FOCUSABLE, STATE.SHOWING)

    def can_be_pressed(self):
        return self.is_(STATE.SENSITIVE, STATE.ENABLED)

    def press(self):
        Atspi.Action.do_action(self.seen, 0)

    def value(self):
        return Atspi.Value.get_current_value(self.seen)

    def description(self):
        return self.seen.get_description()

    def parts(self):
        """All below it; the cells of a table are too many."""
        for place in range(0 if self.role == "table" else self.seen.get_child_count()):
            child = self.seen.get_child_at_index(place)
            if child is not None:
                part = Part(child)
                yield part
                yield from part.parts()


class Place:
    """A screen with a window manager, and a bus for screen readers, for programs of this process alone."""

    def __init__(self, folder):
        self.folder = folder
        self.running = []
        os.environ.update({"HOME": str(folder), "XDG_RUNTIME_DIR": str(folder), "SDL_AUDIODRIVER": "dummy",
                           "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                           **{f"XDG_{kind}_HOME": str(folder / kind) for kind in ("CONFIG", "DATA", "CACHE")}})

    def start(self, *words, **streams):
        process = subprocess.Popen(words, **{"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **streams})
        self.running.append(process)
        return process

    def start_and_read(self, *words):
        """Its first line: where it is to be found."""
        process = self.start(*words, stdout=subprocess.PIPE, text=True)
        with process.stdout as said:
            return said.readline().strip()

    def begin(self):
        os.environ["DISPLAY"] = ":" + self.start_and_read("Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24",
                                                          "-nolisten", "tcp", "-noreset")
        self.start("openbox", "--sm-disable")
        eventually("a window manager", lambda: "window id" in said_by("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
        said_by("xdotool", "key", "shift")  # whose first key makes the server announce a new keyboard
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.start_and_read(
            "dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={self.folder}/bus",
            "--print-address=1")
        Atspi.init()  # which has the bus for screen readers come
        Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)

    def end(self):
        for process in reversed(self.running):
            end(process)


def setUpModule():
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    place = Place(Path(folder.name).resolve())
    unittest.addModuleCleanup(place.end)
    place.begin()


def end(process):
    process.terminate()
    process.wait()


def eventually(what, so):
    """The first true value of `so`; parts come and go while it looks."""
    limit = time.monotonic() + PATIENCE
    while time.monotonic() < limit:
        try:
            if found := so():
                return found
        except GLib.Error:
            pass
        time.sleep(0.05)
    raise AssertionError(f"it did not come: {what}")


def station_path(file):
    return "C:" + str(file).replace("/", "\\")


def said_by(*words):
    return subprocess.run(words, capture_output=True, text=True, check=False).stdout


def windows():
    """Those of all programs on the bus, which is the desk's alone."""
    programs = Atspi.get_desktop(0)
    programs.clear_cache()
    for place in range(programs.get_child_count()):
        program = programs.get_child_at_index(place)
        program.set_cache_mask(Atspi.Cache.NONE)
        yield from (window for window in map(Part, map(program.get_child_at_index, range(program.get_child_count())))
                    if window.is_(STATE.SHOWING))


class DeskOnTheAir(unittest.TestCase):
    """A list is on the air, into which jingles may come: one of the list's switches is on, the other off."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.go_on_air(Path(folder.name).resolve())
        cls.desk = eventually("the desk", lambda: cls.window_with("Mixer une liste"))
        cls.list = eventually("the list", lambda: cls.window_with("Lecture aléatoire"))
        eventually("the first title", lambda: cls.texts(cls.desk, TITLES[0]))

    @classmethod
    def go_on_air(cls, folder):
        tracks = [write_wav(folder / f"{title}.wav", LENGTH) for title in TITLES]
        playlist = folder / "liste.dfm"
        playlist.write_bytes(b"".join(record(station_path(track), LENGTH, ZAP_FROM) for track in tracks))
        station = ("--dossier", folder / "station")
        subprocess.run([TOOL, "reglages", "premier", *station], check=True, stdout=subprocess.DEVNULL)
        for key, value in (("valide_fichier_aleatoire", "true"), ("Nb_fichier_aleatoire", "99"),
                           ("Chemin_fichier_aleatoire", station_path(playlist))):
            subprocess.run([TOOL, "reglages", "ecrire", "Config", key, value, *station], check=True)
        program = subprocess.Popen([Path(TOOL).with_name("sonarelle"), playlist, *station], stderr=subprocess.DEVNULL)
        cls.addClassCleanup(end, program)

    @staticmethod
    def window_with(control):
        return next((window for window in windows()
                     if any(part.name == control and part.takes_the_keyboard() for part in window.parts())), None)

    @staticmethod
    def stops(window, beginning=""):
        """What takes the keyboard and has a name that begins so."""
        return [part for part in window.parts() if part.takes_the_keyboard() and part.name.startswith(beginning)]

    def control(self, window, name):
        found = self.stops(window, name)
        self.assertEqual(len(found), 1, f"{name}: {[part.name for part in found]}")
        return found[0]

    @staticmethod
    def texts(window, beginning):
        return [part.name for part in window.parts()
                if part.role == "label" and part.is_(STATE.SHOWING) and part.name.startswith(beginning)]


class Reader(DeskOnTheAir):
    """What is read while nobody touches the desk."""

    def test_every_control_has_a_name_that_no_other_of_its_window_has(self):
        for window in (self.desk, self.list):
            told = [(part.role, part.name.strip()) for part in self.stops(window)]
            self.assertNotIn("", [name for _, name in told], told)
            self.assertEqual(sorted(told), sorted(set(told)))

    def test_each_control_of_a_deck_names_its_deck(self):
        names = [part.name for part in self.stops(self.desk)]
        for number in (1, 2, 3):
            of_deck = [name for name in names if name.endswith(f", lecteur {number}")]
            for stop in DECK_STOPS:
                if stop != "Volume":  # the slider may be hidden
                    self.assertEqual(sum(name.startswith(stop) for name in of_deck), 1, (stop, of_deck))

    def test_of_the_modes_only_the_one_that_is_on_is_checked(self):
        for window, on, others in ((self.desk, "Mixer une liste", ["Mixer les titres"]),
                                   (self.list, MODES[-1], MODES[:-1])):
            self.assertTrue(self.control(window, on).is_(STATE.CHECKED), on)
            for other in others:
                self.assertFalse(self.control(window, other).is_(STATE.CHECKED), other)

    def test_the_switches_of_the_list_tell_what_their_words_say(self):
        for name, words, on in (("Insertion de jingles", "Jingle On", True),
                                ("Insertion d'une liste", "liste Off", False)):
            told, = self.texts(self.list, words)
            self.assertTrue(told.startswith(words), told)  # a count may stand behind it
            switch = self.control(self.list, name)
            self.assertEqual(switch.role, "check box")
            self.assertEqual(switch.is_(STATE.CHECKED), on, words)

    def test_the_place_of_the_deck_on_the_air_goes_on_in_figures_and_words(self):
        places = [self.control(self.desk, f"Position, lecteur {number}") for number in (1, 2, 3)]
        before = [(place.value(), place.description()) for place in places]
        moved, (_, words) = eventually("a place that moves", lambda: next(
            ((place, old) for place, old in zip(places, before)
             if place.value() > old[0] and place.description() != old[1]), None))
        for told in (words, moved.description()):
            self.assertRegex(told, r"^\d\d:\d\d sur 10:00$")

    def test_the_remaining_time_can_be_read_and_goes_on(self):
        for window in (self.desk, self.list):
            before, = self.texts(window, "Temps restant")
            self.assertRegex(before, r"^Temps restant : 00:0\d:\d\d$")
            eventually("another remaining time", lambda: self.texts(window, "Temps restant") not in ([], [before]))


class Hands(DeskOnTheAir):
    """What a press by the screen reader does, and what is read then."""

    def test_the_checked_mode_follows_a_press(self):
        modes = [self.control(self.list, name) for name in MODES]
        for chosen in modes:  # back to the one that was on
            chosen.press()
            eventually(chosen.name, lambda: [mode.name for mode in modes if mode.is_(STATE.CHECKED)] == [chosen.name])

    def test_the_box_of_the_load_ahead_is_checked_where_it_has_seconds(self):
        self.assertTrue(self.control(self.desk, "Préchargement (7 s").is_(STATE.CHECKED))
        for seconds, checked in ((0, False), (7, True)):
            self.control(self.desk, "Préchargement").press()
            box, = eventually(f"{seconds} s", lambda: self.stops(self.desk, f"Préchargement ({seconds} s"))
            self.assertEqual(box.is_(STATE.CHECKED), checked)

    def test_a_button_that_cannot_be_pressed_says_so(self):
        play = self.control(self.list, "lecture liste")
        self.assertFalse(play.is_(STATE.SENSITIVE) or play.is_(STATE.ENABLED))
        self.control(self.list, "Stopper").press()
        eventually("a list that rests", play.can_be_pressed)
        play.press()
        eventually("a list that plays", lambda: not play.is_(STATE.SENSITIVE) and not play.is_(STATE.ENABLED))

    def title_on_the_air(self):
        """As the list tells it; the desk has those of the other decks as well."""
        return next((title for title in TITLES if title in self.texts(self.list, title)), None)

    def test_the_title_on_the_air_can_be_read_and_follows_the_list(self):
        before = eventually("a title", self.title_on_the_air)
        self.control(self.list, "Zapper").press()
        after = eventually("another title", lambda: title if (title := self.title_on_the_air()) != before else None)
        eventually(f"{after} on the desk", lambda: after in self.texts(self.desk, after)
                   and Part(self.desk.seen).name == f"Sonarelle : {after}")


class Keyboard(DeskOnTheAir):
    """The round of the tab key."""

    def activate(self, window):
        found = eventually(window.name, lambda: said_by("xdotool", "search", "--onlyvisible", "--name",
                                                        f"^{re.escape(window.seen.get_name())}$"))
        said_by("xdotool", "windowactivate", found.split()[-1])
        eventually(f"the keyboard in {window.name}", lambda: window.is_(STATE.ACTIVE))

    def stop_after(self, key, before, stops):
        """Where a key takes the keyboard."""
        said_by("xdotool", "key", key)
        return eventually(f"{key} after {before}", lambda: next(
            (part.name for part in stops if part.name != before and part.is_(STATE.FOCUSED)), None))

    def round_of(self, window, key):
        """The names of the stops from the first that a key takes the keyboard to, until it comes to one again."""
        stops = [part for part in self.stops(window) if part.can_be_pressed()]
        stop = next((part.name for part in stops if part.is_(STATE.FOCUSED)), None)
        visited = []
        while (stop := self.stop_after(key, stop, stops)) not in visited:
            visited.append(stop)
        self.assertEqual(stop, visited[0], visited)
        return visited

    def expect_rounds(self, window, order):
        """Each stop once in this order, and the other way round."""
        self.activate(window)
        # The keyboard of a box with a field is with the box.
        reachable = [part.name for part in self.stops(window)
                     if part.can_be_pressed() and part.name != "Texte à chercher"]
        expected = [name for stop in order for name in reachable if stop(name)]
        self.assertEqual(sorted(expected), sorted(reachable))
        for key, way in (("Tab", expected), ("shift+Tab", expected[::-1])):
            visited = self.round_of(window, key)
            begin = way.index(visited[0])
            self.assertEqual(visited, way[begin:] + way[:begin], key)

    def test_the_tab_key_goes_round_the_decks_and_the_panels(self):
        of_decks = [lambda name, stop=stop, number=number: name.startswith(stop) and name.endswith(f", lecteur {number}")
                    for number in (1, 2, 3) for stop in DECK_STOPS]
        of_panels = [lambda name, stop=stop: name.startswith(stop) for stop in PANEL_STOPS]
        self.expect_rounds(self.desk, of_decks + of_panels)

    def test_the_tab_key_goes_round_the_list(self):
        self.expect_rounds(self.list, [lambda name, stop=stop: name.startswith(stop) for stop in LIST_STOPS])


if __name__ == "__main__":
    unittest.main()
