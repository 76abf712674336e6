#!/usr/bin/env python3
"""Counts the gaps that a busy machine makes in 20 s on the air: a sine through PulseAudio into a null sink, recorded
from its monitor, beside four busy loops.

  bench/gaps.py [MS]...   server buffers in ms; 43 is one block of the card; without: the station's own
"""
import array
import os
import subprocess
import sys
import tempfile
import time
from contextlib import ExitStack, contextmanager
from pathlib import Path

TOOL = Path(__file__).resolve().parent.parent / "build/bin/sonarelle-outil"
BUSY_LOOPS = 4
SETTLED, LENGTH = 3, 20  # seconds
LEAST_GAP = 48  # frames; a sine isn't silent for so long


@contextmanager
def running(words, **options):
    process = subprocess.Popen([str(word) for word in words], stderr=subprocess.DEVNULL, **{"stdout": subprocess.DEVNULL, **options})
    try:
        yield process
    finally:
        process.kill()
        process.wait()


def server(folder, environment):
    return running(["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--high-priority=no",
                    "-L", f"module-native-protocol-unix auth-anonymous=1 socket={folder}/native",
                    "-L", "module-null-sink norewinds=1 sink_name=air format=float32le rate=48000 channels=2"], env=environment)


def wait_until_it_answers(environment):
    while subprocess.run(["pactl", "info"], env=environment, capture_output=True).returncode != 0:
        time.sleep(0.05)


def make_list(folder):
    sine, path = Path(folder) / "sinus.wav", Path(folder) / "essai.dfm"
    subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-f", "lavfi", "-i", "sine=440:r=48000:d=60", "-ac", "2", str(sine)],
                   check=True)
    subprocess.run([TOOL, "liste", "ajouter", path, sine, "--dossier", folder], check=True, stdout=subprocess.DEVNULL)
    return path


def lengths_of_silence(recording):
    """In ms, between the first and the last sound."""
    samples = array.array("f")
    samples.frombytes(recording[:len(recording) // 8 * 8])
    gaps, silent = [], None
    for sample in samples[::2]:
        if sample != 0:
            if silent is not None and silent >= LEAST_GAP:
                gaps.append(silent / 48)
            silent = 0
        elif silent is not None:
            silent += 1
    if silent is None:
        raise SystemExit("nothing was heard")
    return gaps


def record(buffer):
    with tempfile.TemporaryDirectory() as folder, ExitStack() as stack:
        environment = {**os.environ, "XDG_RUNTIME_DIR": folder, "XDG_CONFIG_HOME": folder, "HOME": folder,
                       "PULSE_SERVER": f"unix:{folder}/native", "SDL_AUDIODRIVER": "pulseaudio"}
        environment.pop("PULSE_LATENCY_MSEC", None)
        player = environment if buffer is None else {**environment, "PULSE_LATENCY_MSEC": buffer}
        path = make_list(folder)
        stack.enter_context(server(folder, environment))
        wait_until_it_answers(environment)
        stack.enter_context(running([TOOL, "antenne", path, "--dossier", folder], env=player))
        time.sleep(SETTLED)
        for _ in range(BUSY_LOOPS):
            stack.enter_context(running([sys.executable, "-c", "while True: pass"]))
        recording = Path(folder) / "air.raw"
        with open(recording, "wb") as file, running(["parec", "-d", "air.monitor", "--format=float32le", "--rate=48000", "--channels=2",
                                                     "--raw", "--latency-msec=1000"], env=environment, stdout=file):
            time.sleep(LENGTH)
        return recording.read_bytes()


def main():
    for buffer in sys.argv[1:] or [None]:
        gaps = lengths_of_silence(record(buffer))
        print(f"buffer {buffer or 'of the station'}: {len(gaps)} gaps in {LENGTH} s, {sum(gaps):.0f} ms in all, the longest {max(gaps, default=0):.0f} ms",
              flush=True)


if __name__ == "__main__":
    main()
