#!/usr/bin/env python3
"""Compares headers and tags as sonarelle-outil reads them with what other readers say of the same files.

  bench/agreement.py [--tous]      --tous lists every difference, not only how many there are by rule

The files come from ffmpeg and, where it is there, lame: constant and variable rate, MPEG 1, 2 and 2.5, Layer II and III,
one channel and two, with tags in front and behind. The others are ffprobe, mediainfo, exiftool and mp3info, as far as
this machine has them. A difference that the station's rules make on purpose is listed under its rule; any other ends
the script with status 1.
"""
import collections
import itertools
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TOOL = os.environ.get("SONARELLE_OUTIL", str(ROOT / "build/bin/sonarelle-outil"))
SECONDS = 7.4
TAG = {"title": "Rive", "artist": "Les Oiseaux de la nuit du grand lac", "album": "Ailes", "date": "1999",
       "comment": "Vu ici", "track": "7", "genre": "Rock"}
RATES = {"1.0": (48000, 44100, 32000), "2.0": (24000, 22050, 16000), "2.5": (12000, 11025, 8000)}


def run(*words, check=True):
    return subprocess.run([str(word) for word in words], capture_output=True, check=check).stdout.decode(errors="replace")


def encode(path, rate, channels, options, tag, seconds=SECONDS):
    music = f"aevalsrc='0.4*sin(2*PI*(300+40*sin(3*t))*t)|0.3*sin(2*PI*440*t)':s={rate}:d={seconds}"
    words = [f"{key}={value}" for key, value in tag.items()]
    run("ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-f", "lavfi", "-i", music, "-ac", channels,
        *itertools.chain.from_iterable(("-metadata", word) for word in words), *options, path)


def tag_options(version, behind):
    return ("-id3v2_version", version, "-write_id3v1", int(behind))


def make_by_ffmpeg(folder):
    """Constant and variable rate in all versions; tags of each kind; files without a block in their first frame."""
    for (version, rates), channels, (kind, quality) in itertools.product(
            RATES.items(), (1, 2), (("cbr", ("-b:a", "64k")), ("vbr", ("-q:a", "4")))):
        for rate in rates:
            yield folder / f"{kind} {rate} {channels}.mp3", rate, channels, (*quality, *tag_options(0, False)), {}
    for number, (v2, v1, block, joint) in enumerate(itertools.product((0, 3, 4), (False, True), (0, 1), (0, 1))):
        yield (folder / f"tags {number}.mp3", 44100, 2,
               ("-b:a", "128k", "-write_xing", block, "-joint_stereo", joint, *tag_options(v2, v1)), TAG)
    yield folder / "accents.mp3", 44100, 2, ("-b:a", "128k", *tag_options(3, False)), {"title": "Été"}
    for rate, bits in ((48000, "192k"), (44100, "128k"), (22050, "64k")):
        yield folder / f"layer 2 {rate}.mp2", rate, 2, ("-c:a", "mp2", "-b:a", bits, "-f", "mp2"), {}


def make_by_lame(folder):
    sound = folder / "son.wav"
    encode(sound, 44100, 2, (), {})
    for number, options in enumerate((("-p", "-c", "-e", "5", "-b", "96"), ("-m", "d", "-b", "160"), ("-o", "-b", "320"),
                                      ("-t", "-m", "f", "-e", "c"), ("-V", "2", "-m", "s"), ("--abr", "140"))):
        path = folder / f"lame {number}.mp3"
        run("lame", "--quiet", *options, sound, path)
        yield path


def make_files(folder):
    files = []
    for path, *how in make_by_ffmpeg(folder):
        encode(path, *how)
        files.append(path)
    if shutil.which("lame"):
        files += make_by_lame(folder)
    return files


def by_ffprobe(path):
    read = json.loads(run("ffprobe", "-v", "error", "-print_format", "json", "-show_format", "-show_streams", path))
    stream = read["streams"][0]
    return {"Layer": {"mp3": "III", "mp2": "II", "mp1": "I"}[stream["codec_name"]],
            "Frequence": int(stream["sample_rate"]), "mono": stream["channels"] == 1,
            "Duree": float(stream["duration"]), "BitRate": int(stream["bit_rate"]) / 1000,
            "Taille": int(read["format"]["size"])}


def by_mediainfo(path):
    tracks = json.loads(run("mediainfo", "--Output=JSON", path))["media"]["track"]
    audio = next(track for track in tracks if track["@type"] == "Audio")
    said = {"Mpeg": {"1": "1.0", "2": "2.0", "2.5": "2.5"}[audio["Format_Version"]],
            "Layer": {"Layer 3": "III", "Layer 2": "II", "Layer 1": "I"}[audio["Format_Profile"]],
            "Frequence": int(audio["SamplingRate"]), "mono": audio["Channels"] == "1",
            "Duree": float(audio["Duration"]), "Taille": int(tracks[0]["FileSize"])}
    if "BitRate" in audio:
        said["BitRate"] = int(audio["BitRate"]) / 1000
    if "FrameCount" in audio:
        said["Frames"] = int(audio["FrameCount"])
    return said


def by_exiftool(path):
    read = json.loads(run("exiftool", "-json", "-MPEG:all", "-File:FileSize#", path, check=False))[0]
    said = {"Taille": read["FileSize"]}  # It knows nothing more of a file that it doesn't take for MP3.
    if "MPEGAudioVersion" in read:
        said |= {"Mpeg": f"{float(read['MPEGAudioVersion'])}", "Layer": "I" * read["AudioLayer"],
                 "Frequence": read["SampleRate"], "Copyright": read["CopyrightFlag"], "Original": read["OriginalMedia"],
                 "Emphasis": {"None": "Aucun", "50/15 ms": "50/15 ms", "CCIT J.17": "CCIT J.17"}[read["Emphasis"]],
                 "Mode": {"Stereo": "Stereo", "Joint Stereo": "Joint Stereo", "Dual Channel": "Double Cha",
                          "Single Channel": "Mono"}[read["ChannelMode"]]}
        if said["Layer"] == "III" and said["Mode"] == "Joint Stereo":
            words = (read["IntensityStereo"].upper(), read["MSStereo"].upper())
            said["ModeExt"] = "Stereo : {} - MS Stereo : {}".format(*words)
        bits = str(read.get("AudioBitrate", "")).split()
        if bits:
            said["BitRate"] = float(bits[0]) * (1 if bits[1] == "kbps" else 0.001)
    return said


def by_mp3info(path):
    said = run("mp3info", "-x", "-p", "%v|%L|%Q|%o|%E|%C|%O", path, check=False)
    if said.startswith("|") or not said:  # It reads Layer III alone.
        return {}
    version, layer, rate, mode, crc, copyrighted, original = said.split("|")
    return {"Mpeg": f"{float(version)}", "Layer": layer, "Frequence": int(rate), "CRC": crc == "Yes",
            "Copyright": copyrighted == "Yes", "Original": original == "Yes",
            "Mode": {"stereo": "Stereo", "joint stereo": "Joint Stereo", "dual channel": "Double Cha",
                     "mono": "Mono"}[mode]}


def tag_by_exiftool(path):
    read = json.loads(run("exiftool", "-json", "-ID3v1:all", path, check=False))[0]
    said = {"titre": "Title", "artiste": "Artist", "album": "Album", "annee": "Year", "commentaire": "Comment"}
    return {ours: str(read.get(theirs, "")) for ours, theirs in said.items()} | {"piste": read.get("Track", 0)}


def tag_by_mp3info(path):
    title, artist, album, year, comment, track = run("mp3info", "-p", "%t|%a|%l|%y|%c|%n", path, check=False).split("|")
    return {"titre": title, "artiste": artist, "album": album, "annee": year, "commentaire": comment,
            "piste": int(track or 0)}


HEADER_READERS = {"ffprobe": by_ffprobe, "mediainfo": by_mediainfo, "exiftool": by_exiftool, "mp3info": by_mp3info}
TAG_READERS = {"exiftool": tag_by_exiftool, "mp3info": tag_by_mp3info}


def length_of_tag_in_front(data):
    if data[:3] != b"ID3":
        return 0
    size = 0
    for byte in data[6:10]:
        size = size * 128 + byte
    return 10 + size


def rule_for(field, ours, theirs, data):
    """The rule that makes a difference, or nothing."""
    if ours["EntetePos"] < length_of_tag_in_front(data):
        return "the first believable frame counts, in a tag's text too (strict reading is for such files)"
    if ours["Vbr"] == "VBR" and field == "Frequence" and ours["Mpeg"] != "1.0":
        return "behind a Xing block the frequency comes from the row of MPEG 1"
    if ours["Vbr"] and field in ("BitRate", "Duree"):
        return "variable rate counts 38 frames a second"
    if field == "Duree" and abs(ours["Duree"] - theirs) <= 1:
        return "durations are whole seconds, cut off, of all bytes behind the header"
    first = data[ours["EntetePos"]:ours["EntetePos"] + 40]
    if field in ("BitRate", "Duree", "Frames") and b"Info" in first:
        return "a block marked Info is none: rate and frames are those of its own frame"
    if field in ("Mode", "Original") and (b"Info" in first or b"Xing" in first):
        return "flags are those of the first frame, though it holds a block and no sound"
    if field == "Frames" and not ours["Vbr"]:
        return "frames are counted in whole bytes over the whole file"
    if field == "BitRate" and abs(ours["BitRate"] - theirs) <= 1:
        return "rates are whole kilobits"
    return None


def is_same(field, ours, theirs):
    if field == "mono":
        return (ours["Mode"] == "Mono") == theirs
    return ours[field] == theirs


def compare_headers(files, readers):
    lines = run(TOOL, "entete", *files, "--json").splitlines()
    for path, line in zip(files, lines, strict=True):
        ours = json.loads(line)
        data = path.read_bytes()
        for name in readers:
            for field, theirs in HEADER_READERS[name](path).items():
                mine = ours["Mode"] if field == "mono" else ours[field]
                rule = "" if is_same(field, ours, theirs) else rule_for(field, ours, theirs, data) or "NO RULE"
                yield rule, f"{path.name}: {field} is {mine!r} here, {theirs!r} for {name}"


def compare_tags(files, readers):
    lines = run(TOOL, "tag", "lire", *files, "--json").splitlines()
    for path, line in zip(files, lines, strict=True):
        tag = json.loads(line)
        if tag["valide"] != (path.read_bytes()[-128:-125] == b"TAG"):
            yield "NO RULE", f"{path.name}: a tag is found: {tag['valide']}"
        if not tag["valide"]:
            continue
        for name in readers:
            for field, theirs in TAG_READERS[name](path).items():
                yield ("" if tag["brut"][field] == theirs else "NO RULE",
                       f"{path.name}: {field} is {tag['brut'][field]!r} here, {theirs!r} for {name}")


def main():
    with tempfile.TemporaryDirectory() as name:
        files = make_files(Path(name))
        header_readers = [reader for reader in HEADER_READERS if shutil.which(reader)]
        tag_readers = [reader for reader in TAG_READERS if shutil.which(reader)]
        found = collections.defaultdict(list)
        for rule, text in itertools.chain(compare_headers(files, header_readers), compare_tags(files, tag_readers)):
            found[rule].append(text)
    print(f"{len(files)} files; headers beside {', '.join(header_readers)}; tags beside {', '.join(tag_readers)}")
    print(f"{len(found.pop('', []))} fields agree")
    for rule, texts in sorted(found.items()):
        print(f"\n{len(texts)} differ: {rule}")
        for text in texts if "--tous" in sys.argv or rule == "NO RULE" else texts[:2]:
            print(f"  {text}")
    return 1 if "NO RULE" in found else 0


if __name__ == "__main__":
    sys.exit(main())
