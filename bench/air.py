#!/usr/bin/env python3
"""Measures whole runs of sonarelle-outil beside their yardsticks: medians of five, in pairs.

  bench/air.py            all of it; the files are made once, in build/bench
"""
import os
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TOOL = ROOT / "build/bin/sonarelle-outil"
PLAIN = ROOT / "build/release/bench/plain_render_bench"
MUSIC = ROOT / "build/bench/music"
RUNS = 5


def run(words, **options):
    """CPU seconds, wall seconds and peak memory (MB) of one process."""
    begin = time.monotonic()
    process = subprocess.Popen([str(word) for word in words], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    if status != 0:
        raise SystemExit(f"failed: {words}")
    return usage.ru_utime + usage.ru_stime, time.monotonic() - begin, usage.ru_maxrss / 1024


def medians(measure):
    return [statistics.median(column) for column in zip(*(measure() for _ in range(RUNS)))]


def make_music():
    """60 tracks of a minute each: CBR and VBR in turn, chords that change, so that frames differ."""
    MUSIC.mkdir(parents=True, exist_ok=True)
    files = []
    for number in range(60):
        file = MUSIC / f"titre {number:02}.mp3"
        files.append(file)
        if file.exists():
            continue
        tone = 110 + 7 * number
        quality = ["-b:a", "128k"] if number % 2 else ["-q:a", "4"]
        subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-f", "lavfi", "-i",
                        f"aevalsrc='0.3*sin({tone}*2*PI*t)*(1+sin(3*t))/2+0.1*random(0)|0.3*sin({tone * 1.26}*2*PI*t)':s=44100:d=60",
                        "-c:a", "libmp3lame", *quality, str(file)], check=True)
    return files


def make_list(folder, files):
    path = Path(folder) / "essai.dfm"
    subprocess.run([TOOL, "liste", "ajouter", path, *files, "--dossier", folder], check=True)
    return path


def rehearsal_against_ffmpeg(files):
    with tempfile.TemporaryDirectory() as folder:
        path = make_list(folder, files)
        ours = medians(lambda: run([TOOL, "repetition", path, "--dossier", folder]))
        script = 'for f in "$@"; do ffmpeg -nostdin -loglevel error -threads 1 -i "$f" -ar 48000 -f f32le -y /dev/null; done'
        theirs = medians(lambda: run(["bash", "-c", script, "-", *files]))
    print(f"rehearsal of 60 tracks with sound: {ours[0]:.2f} s of CPU, {ours[2]:.0f} MB; "
          f"ffmpeg decoding the same {theirs[0]:.2f} s; ratio {ours[0] / theirs[0]:.2f}")


def rendering_against_plain_ffmpeg(files):
    """In turn, so that whatever else the machine does falls on both; needs `cmake --build --preset bench`."""
    with tempfile.TemporaryDirectory() as folder:
        path, air = make_list(folder, files), Path(folder) / "air"
        length = 54 * len(files) + 6  # of a minute each, with overlaps of six seconds
        words = [TOOL, "repetition", path, "--rendu", air, "--dossier", folder, "--duree",
                 f"{length // 3600:02}:{length // 60 % 60:02}:{length % 60:02}"]
        pairs = [(run(words)[0], run([PLAIN, air, *files])[0]) for _ in range(RUNS)]
    ours, theirs = (statistics.median(column) for column in zip(*pairs))
    ratio = statistics.median(mine / other for mine, other in pairs)
    print(f"rendering of 60 tracks: {ours:.2f} s of CPU; FFmpeg's libraries in one process {theirs:.2f} s; ratio {ratio:.2f}")


def day_without_sound(files):
    with tempfile.TemporaryDirectory() as folder:
        path = make_list(folder, files)
        ours = medians(lambda: run([TOOL, "repetition", path, "--sans-son", "--duree", "24:00:00", "--dossier", folder]))
    print(f"24 hours without sound: {ours[1]:.2f} s, {ours[2]:.0f} MB")


def live_cost(files):
    """A row of long overlaps: two decks sound for most of the minute. The sound goes into a file at the card's pace."""
    with tempfile.TemporaryDirectory() as folder:
        path = make_list(folder, files[:4])
        environment = {**os.environ, "SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": "/dev/null"}
        ours = run([TOOL, "antenne", path, "--duree", "00:01:00", "--reglage", "Mix=20", "--dossier", folder], env=environment)
    print(f"live, two decks overlapping, 60 s: {100 * ours[0] / ours[1]:.2f} % of a core, {ours[2]:.0f} MB")


def first_sound(files):
    """From the start of the process to the first frame that isn't silent, as the card gets it."""
    with tempfile.TemporaryDirectory() as folder:
        path = make_list(folder, files[:2])
        fifo = Path(folder) / "carte"
        os.mkfifo(fifo)
        environment = {**os.environ, "SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": str(fifo)}
        times = []
        for _ in range(2 * RUNS):
            begin = time.monotonic()
            process = subprocess.Popen([TOOL, "antenne", path, "--duree", "00:00:02", "--dossier", folder], env=environment,
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            with open(fifo, "rb", buffering=0) as card:
                while chunk := card.read(4096):
                    if any(chunk):
                        times.append(1000 * (time.monotonic() - begin))
                        while card.read(65536):
                            pass
                        break
            process.wait()
    print(f"process start to the first sound: median {statistics.median(times):.0f} ms, greatest {max(times):.0f} ms")


def main():
    files = make_music()
    rehearsal_against_ffmpeg(files)
    rendering_against_plain_ffmpeg(files)
    day_without_sound(files)
    live_cost(files)
    first_sound(files)


if __name__ == "__main__":
    main()
