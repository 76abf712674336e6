#!/usr/bin/env python3
"""The pictures that scripts/pictures draws: that none is missing, and that one can read what stands on them."""
import colorsys
import functools
import json
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(os.environ["SONARELLE_SOURCE_DIR"])
SCRIPT = ROOT / "scripts/pictures"
TABLE = json.loads(subprocess.run([SCRIPT, "--table"], stdout=subprocess.PIPE, check=True).stdout)

NAME_IN_A_STRING = re.compile(r'"(?:[^"\n]*[}/\\])?([\w -]+\.(?:gif|jpg|swf))"')
COLOUR_COUNT = re.compile(r"(\d+): .*?#([0-9A-F]{6})")
READABLE = 4.5  # contrast of text
VISIBLE = 3.0  # contrast of a sign
PART = 0.05  # of a picture's pixels, its worst ground for text
SATURATED = 0.4
HUES = {"green": 147 / 360, "amber": 39 / 360}


def run(*words):
    return subprocess.run(words, stdout=subprocess.PIPE, check=True, text=True).stdout


def names_in(text):
    """The pictures that a source names; a movie of the banner has a picture beside it."""
    return {re.sub(r"\.swf$", ".gif", name) for name in NAME_IN_A_STRING.findall(text)}


def linear(level):
    return level / 12.92 if level <= 0.04045 else ((level + 0.055) / 1.055) ** 2.4


def channels(colour):
    return [int(colour[at:at + 2], 16) / 255 for at in (0, 2, 4)]


def luminance(colour):
    red, green, blue = map(linear, channels(colour))
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    return (max(one, other) + 0.05) / (min(one, other) + 0.05)


def mean(counted):
    return sum(count * value for count, value in counted) / sum(count for count, _ in counted)


def first_part(counted, part):
    """The mean of the first of the counted values that make this part of them all."""
    wanted = part * sum(count for count, _ in counted)
    taken = []
    for count, value in counted:
        taken.append((min(count, wanted), value))
        wanted -= taken[-1][0]
        if wanted <= 0:
            break
    return mean(taken)


@functools.cache
def colours(path, first_line=0):
    """Each colour below this line, with the number of its pixels. What lets the ground through stands on black."""
    cut = ["-crop", f"0x0+0+{first_line}", "+repage", "-background", "black", "-alpha", "remove"]
    listed = run("convert", f"{path}[0]", *cut, "-depth", "8", "-format", "%c", "histogram:info:-")
    return [(int(count), colour) for count, colour in COLOUR_COUNT.findall(listed)]


def luminances(path, first_line=0):
    return sorted((luminance(colour), count) for count, colour in colours(path, first_line))


def worst_contrast(path, text, first_line):
    """The smaller contrast of the text with the picture's mean and with the part of it that is nearest to the text."""
    counted = [(count, value) for value, count in luminances(path, first_line)]
    letters = luminance(text.lstrip("#"))
    nearest_first = sorted(counted, key=lambda entry: abs(entry[1] - letters))
    return min(contrast(letters, mean(counted)), contrast(letters, first_part(nearest_first, PART)))


def is_allowed(colour):
    hue, lightness, saturation = colorsys.rgb_to_hls(*channels(colour))
    chroma = saturation * (1 - abs(2 * lightness - 1))
    return chroma < SATURATED or any(abs(hue - allowed) < 0.05 for allowed in HUES.values())


class Names(unittest.TestCase):
    def test_are_found_in_sources(self):
        source = 'a("b1noir.jpg"); b = "{chemin}logo 1.gif"; c = "x\\\\bandeau.swf"; d = "*.jpg"; e = ".gif";'
        self.assertEqual(names_in(source), {"b1noir.jpg", "logo 1.gif", "bandeau.gif"})

    def test_that_sources_use_are_all_drawn(self):
        sources = [path for path in (ROOT / "src").rglob("*") if path.suffix in (".cpp", ".h")]
        used = set().union(*(names_in(path.read_text(encoding="utf-8")) for path in sources))
        self.assertIn("fond_noir1.jpg", used)
        self.assertEqual(used - {picture["name"] for picture in TABLE}, set())

    def test_stand_once_in_the_table(self):
        names = [picture["name"].lower() for picture in TABLE]
        self.assertEqual(len(names), len(set(names)))

    def test_that_are_unknown_are_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            words = [SCRIPT, folder, "nothing.gif"]
            self.assertEqual(subprocess.run(words, stderr=subprocess.DEVNULL, check=False).returncode, 2)


class Pictures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        subprocess.run([SCRIPT, cls.folder], check=True)

    def refused(self, measure, wanted=lambda picture: True):
        """The pictures of which this measure tells something, with what it tells."""
        told = ((picture["name"], measure(picture, self.folder / picture["name"])) for picture in filter(wanted, TABLE))
        return {name: fault for name, fault in told if fault}

    def test_are_the_table_and_nothing_else(self):
        self.assertEqual(sorted(os.listdir(self.folder)), sorted(picture["name"] for picture in TABLE))

    def test_open_in_the_form_and_size_of_the_table(self):
        names = [picture["name"] for picture in TABLE]
        shape = "%f %m %wx%h\n"
        seen = run("identify", "-format", shape, *(self.folder / name for name in names)).splitlines()
        forms = {".gif": "GIF", ".jpg": "JPEG", ".png": "PNG"}
        told = [f"{picture['name']} {forms[Path(picture['name']).suffix]} {picture['width']}x{picture['height']}"
                for picture in TABLE for _ in picture["styles"]]
        self.assertEqual(seen, told)

    def test_let_the_text_on_them_be_read(self):
        def fault(picture, path):
            reached = worst_contrast(path, picture["text"], picture["text_top"])
            return reached if reached < READABLE else None
        self.assertEqual(self.refused(fault, lambda picture: picture["text"]), {})

    def test_show_their_sign(self):
        def fault(_, path):
            darkest_first = [(count, value) for value, count in luminances(path)]
            ground = first_part(darkest_first, 0.5)
            reached = contrast(first_part(darkest_first[::-1], PART), ground)
            return reached if reached < VISIBLE else None
        self.assertEqual(self.refused(fault, lambda picture: picture["sign"]), {})

    def test_differ_between_the_faces_of_a_button(self):
        pixels = {}
        for picture in TABLE:
            if not picture["name"].startswith("bandeau"):
                pixels.setdefault((self.folder / picture["name"]).read_bytes(), []).append(picture["name"])
        self.assertEqual([names for names in pixels.values() if len(names) > 1], [])

    def test_are_green_amber_or_without_colour(self):
        self.assertEqual(self.refused(lambda _, path: [pair for pair in colours(path) if not is_allowed(pair[1])]), {})

    def test_come_out_the_same_each_time(self):
        names = ["main_.jpg", "bandeau.gif", "tplay_noir.gif", "sonarelle.png"]
        with tempfile.TemporaryDirectory() as again:
            subprocess.run([SCRIPT, again, *names], check=True)
            for name in names:
                self.assertEqual((Path(again) / name).read_bytes(), (self.folder / name).read_bytes(), name)


class Measures(unittest.TestCase):
    def test_of_contrast_reach_from_1_to_21(self):
        self.assertAlmostEqual(contrast(luminance("000000"), luminance("FFFFFF")), 21)
        self.assertAlmostEqual(contrast(luminance("767676"), luminance("FFFFFF")), 4.54, places=2)

    def test_find_red_and_blue_forbidden(self):
        allowed = [is_allowed(colour) for colour in ("E05D5D", "3060C0", "3DDC84", "D9A441", "38404A", "FFFFFF")]
        self.assertEqual(allowed, [False, False, True, True, True, True])

    def test_take_the_worst_part_of_a_picture(self):
        self.assertAlmostEqual(first_part([(5, 1.0), (95, 0.0)], 0.05), 1.0)
        self.assertAlmostEqual(first_part([(1, 1.0), (99, 0.0)], 0.05), 0.2)


unittest.main()
