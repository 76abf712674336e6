#!/usr/bin/env python3
"""The word `mesure` of sonarelle-outil on files that have lost their end: the sound that is there, or a refusal."""
import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
SECONDS = 20
PERCENTS = (1, 10, 50, 99)
MUSIC = (f"aevalsrc='0.4*sin(2*PI*(300+40*sin(3*t))*t)+0.1*random(0)|0.3*sin(2*PI*440*t)+0.1*random(1)'"
         f":s=44100:d={SECONDS}")


def decoded_seconds(file):
    samples = subprocess.run(["ffmpeg", "-v", "quiet", "-i", str(file), "-f", "s16le", "-ac", "1", "-ar", "48000", "-"],
                             capture_output=True, check=False).stdout
    return len(samples) / 2 / 48000


def with_vbri(frames, count):
    """The frames, of 128 kbit/s, behind one with a length header as variable bit rates have it."""
    header = bytearray(417)
    header[:4] = frames[:4]
    header[2] &= ~2
    header[36:40] = b"VBRI"
    header[46:50] = (len(header) + len(frames)).to_bytes(4, "big")
    header[50:54] = count.to_bytes(4, "big")
    return bytes(header) + frames


class CutFiles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name).resolve()

    def made(self, name, *options):
        file = self.folder / name
        subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", MUSIC, "-id3v2_version", "0", *options, str(file)],
                       check=True)
        return file.read_bytes()

    def check(self, ending, data, least=PERCENTS):
        """`least`: the parts that must be measured; the others may be refused."""
        files = {}
        for percent in PERCENTS:
            files[percent] = self.folder / f"{percent}.{ending}"
            files[percent].write_bytes(data[:len(data) * percent // 100])
        run = subprocess.run([TOOL, "mesure", *map(str, files.values()), "--json", "--dossier", str(self.folder / "s")],
                             capture_output=True, text=True, check=False)
        for (percent, file), line in zip(files.items(), run.stdout.splitlines(), strict=True):
            measure = json.loads(line)
            with self.subTest(ending=ending, percent=percent):
                if "duree" in measure or percent in least:
                    self.assertAlmostEqual(measure["duree"], decoded_seconds(file), delta=0.06)
                else:
                    self.assertIn(f"{file} : ", run.stderr)

    def test_mp3_with_xing(self):
        data = self.made("a.mp3", "-q:a", "2")
        self.assertIn(b"Xing", data)
        self.check("mp3", data.replace(b"Lavc", b"    ", 1))

    def test_mp3_with_lame(self):
        self.check("mp3", self.made("a.mp3", "-b:a", "128k").replace(b"Lavc", b"LAME", 1))

    def test_mp3_with_vbri(self):
        frames = self.made("a.mp3", "-b:a", "128k", "-write_xing", "0")
        self.check("mp3", with_vbri(frames, SECONDS * 44100 // 1152 + 1))

    def test_mp3_without_a_length_header(self):
        self.check("mp3", self.made("a.mp3", "-b:a", "128k", "-write_xing", "0"))

    def test_flac(self):
        self.check("flac", self.made("a.flac"), least=(10, 50, 99))

    def test_ogg(self):
        self.check("ogg", self.made("a.ogg", "-c:a", "libvorbis"), least=(10, 50, 99))

    def test_wav(self):
        self.check("wav", self.made("a.wav"))

    def test_wma(self):
        self.check("wma", self.made("a.wma", "-b:a", "128k"), least=(10, 50, 99))

    def test_m4a_that_begins_with_its_index(self):
        self.check("m4a", self.made("a.m4a", "-c:a", "aac", "-movflags", "faststart"), least=(10, 50, 99))

    def test_m4a_that_ends_with_its_index(self):
        self.check("m4a", self.made("a.m4a", "-c:a", "aac"), least=())

    def test_avi(self):
        self.check("avi", self.made("a.avi", "-c:a", "libmp3lame"), least=(10, 50, 99))


if __name__ == "__main__":
    unittest.main()
