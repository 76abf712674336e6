#!/usr/bin/env python3
"""The word `antenne` of sonarelle-outil on a sound server of the test's own, whose output is recorded."""
import array
import json
import os
import signal
import struct
import subprocess
import tempfile
import time
import unittest
import wave
from pathlib import Path

TOOL = os.environ["SONARELLE_OUTIL"]
RECORD = struct.Struct("<200s100s100shd8s")
RATE = 48000
LOUD = 8000  # of a square wave; two of them stay below the limiter
FRAME_BYTES = 8  # recorded: two floats
# Short tracks that fade and are cut all the same: starts at 0, 7 and 14, cuts at 11 and 18.
SETTINGS = ["--reglage", "Mix=3", "--reglage", "Mix_audio_vitesse=40", "--reglage", "Préchargement=2", "--reglage", "Mix_audio=4",
            "--reglage", "valeur_max_jingles=6"]


def write_tone(path, side, seconds):
    """A square wave of 1 kHz on one side, without a silent frame."""
    levels = [LOUD] * 24 + [-LOUD] * 24
    period = b"".join(struct.pack("<hh", *((level, 0) if side == 0 else (0, level))) for level in levels)
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(2)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(period * (seconds * RATE // 48))
    return path


def record(path):
    station_path = "C:" + str(path).replace("/", "\\")
    return RECORD.pack(station_path.encode("cp1252").ljust(200), b"10".ljust(100), b"".ljust(100), 100, 0.0,
                       b"00:00:10")


class SoundServer:
    """PulseAudio with one sink that leads nowhere and can be recorded."""

    def __init__(self, folder):
        folder.mkdir()
        self.socket = folder / "native"
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": str(folder), "XDG_CONFIG_HOME": str(folder),
                            "HOME": str(folder), "PULSE_SERVER": f"unix:{self.socket}",
                            "SDL_AUDIODRIVER": "pulseaudio"}
        self.server = self.recorder = None

    def start(self):
        self.socket.unlink(missing_ok=True)
        self.server = self.run("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                               "--high-priority=no",
                               "-L", f"module-native-protocol-unix auth-anonymous=1 socket={self.socket}",
                               "-L", "module-null-sink norewinds=1 sink_name=air"
                               " format=float32le rate=48000 channels=2")
        while self.run("pactl", "info").wait() != 0:
            if self.server.poll() is not None:
                raise AssertionError("the sound server doesn't start")
            time.sleep(0.05)

    def run(self, *words, output=subprocess.DEVNULL):
        return subprocess.Popen(words, env=self.environment, stdout=output, stderr=subprocess.DEVNULL)

    def record(self, file):
        with open(file, "wb") as output:
            self.recorder = self.run("parec", "-d", "air.monitor", "--format=float32le", "--rate=48000", "--channels=2",
                                     "--raw", "--latency-msec=200", output=output)
        while file.stat().st_size == 0:
            time.sleep(0.02)

    def stop_recording(self):
        self.end(self.recorder, signal.SIGTERM)
        self.recorder = None

    def kill(self):
        self.end(self.server, signal.SIGKILL)
        self.server = None

    def stop(self):
        self.stop_recording()
        self.kill()

    @staticmethod
    def end(process, how):
        if process is not None:
            process.send_signal(how)
            process.wait()


class OnTheAir(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name).resolve()
        self.list = self.folder / "liste.dfm"
        self.list.write_bytes(b"".join(record(write_tone(self.folder / f"{side}.wav", side, 30)) for side in (0, 1)))
        self.server = SoundServer(self.folder / "pulse")
        self.addCleanup(self.server.stop)
        self.server.start()
        self.recording = self.folder / "air.raw"

    def words(self, word, length):
        return [TOOL, word, str(self.list), *SETTINGS, "--duree", f"00:00:{length}", "--dossier",
                str(self.folder / "station")]

    def rehearse(self, length):
        rendering = self.folder / "air.wav"
        run = subprocess.run([*self.words("repetition", length), "--rendu", str(rendering)], capture_output=True,
                             check=True)
        with wave.open(str(rendering), "rb") as sound:
            return self.events(run.stdout), array.array("h", sound.readframes(sound.getnframes()))

    def go_on_air(self, length, *words):
        self.said = self.folder / "dit.txt"
        with open(self.said, "wb") as output:
            air = subprocess.Popen([*self.words("antenne", length), *words], env=self.server.environment, stdout=output,
                                   stderr=subprocess.PIPE)
        self.addCleanup(air.wait)
        self.addCleanup(air.kill)
        self.addCleanup(air.stderr.close)
        return air

    def expect_done(self, air):
        self.assertEqual(air.wait(), 0, air.stderr.read().decode())

    def wait_for_event(self, air, text, count=1):
        while self.said.read_text(encoding="utf-8").count(text) < count:
            self.assertIsNone(air.poll(), f"ended without {text}")
            time.sleep(0.02)

    @staticmethod
    def events(said):
        return [json.loads(line) for line in said.splitlines()]

    @staticmethod
    def chain(events):
        return [(event["t"], event["evenement"], event["lecteur"]) for event in events
                if event["evenement"] in ("chargement", "depart", "fondu", "coupe")]

    def recorded(self, first_byte=0):
        data = self.recording.read_bytes()[first_byte:]
        return array.array("f", data[:len(data) // FRAME_BYTES * FRAME_BYTES])

    def sounding(self, samples):
        """What was recorded without the delay of the way, and without the silence that a server puts in between when
        it comes late: the programme itself has no silent frame."""
        kept = array.array("f")
        begin = None
        for i in range(0, len(samples), 2):
            silent = samples[i] == 0 and samples[i + 1] == 0
            if not silent and begin is None:
                begin = i
            elif silent and begin is not None:
                kept.extend(samples[begin:i])
                begin = None
        if begin is not None:
            kept.extend(samples[begin:])
        return kept

    def test_sounds_as_its_rehearsal_sample_for_sample(self):
        rehearsed, rendering = self.rehearse(19)
        self.assertEqual([t for t, kind, _ in self.chain(rehearsed) if kind == "depart"], [0, 7, 14])
        self.assertEqual([t for t, kind, _ in self.chain(rehearsed) if kind == "coupe"], [11, 18])
        self.server.record(self.recording)
        air = self.go_on_air(20)
        self.expect_done(air)
        self.server.stop_recording()

        aired = self.events(self.said.read_bytes())
        self.assertEqual(self.chain(aired), self.chain(rehearsed))
        heard = self.sounding(self.recorded())
        self.assertGreaterEqual(len(heard), len(rendering))
        for i, (live, virtual) in enumerate(zip(heard, rendering)):
            if abs(live * 32767 - virtual) > 1:
                self.fail(f"frame {i // 2}: {live * 32767} instead of {virtual}")

    def test_goes_on_while_the_server_is_dead_and_is_heard_on_the_next_one(self):
        rehearsed, _ = self.rehearse(19)
        air = self.go_on_air(20)
        self.wait_for_event(air, "la carte son joue")
        self.wait_for_event(air, '"coupe"')
        self.server.kill()
        self.wait_for_event(air, "aucune carte son")
        self.wait_for_event(air, '"depart"', 3)
        self.server.start()
        self.server.record(self.recording)
        self.wait_for_event(air, "la carte son joue", 2)
        self.expect_done(air)
        self.server.stop_recording()

        self.assertEqual(self.chain(self.events(self.said.read_bytes())), self.chain(rehearsed))
        silence = next(i for i, sample in enumerate(self.recorded()) if sample != 0) // 2
        self.assertLess(silence, 5 * RATE, "sound comes back within 5 s of what the new server plays")

    def test_tells_that_the_chosen_card_is_not_there(self):
        self.expect_done(self.go_on_air(10, "--sortie", "carte inexistante"))
        warnings = [event["texte"] for event in self.events(self.said.read_bytes())
                    if event["evenement"] == "avertissement"]
        self.assertIn("sortie : la carte « carte inexistante » est introuvable, la carte par défaut la remplace",
                      warnings)


if __name__ == "__main__":
    unittest.main()
