"""Reads every #include of src/ and fails on one that points the wrong way, or on a cycle between files.

First it tries itself on small trees that it makes: each wrong arrow below must be found, and each right one let pass.
"""

import os
import re
import sys
import tempfile
from pathlib import Path

STANDARD = set("""
algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts condition_variable
coroutine deque exception execution filesystem forward_list fstream functional future initializer_list iomanip ios
iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric optional
ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span sstream stack
stdexcept stop_token streambuf string string_view strstream syncstream system_error thread tuple type_traits typeindex
typeinfo unordered_map unordered_set utility valarray variant vector version
cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib
cstring ctime cuchar cwchar cwctype
""".split())

POSIX = r"(sys|linux|net|netinet|arpa|scsi)/[\w./]+\.h|" + "|".join(
    name + r"\.h" for name in """aio dirent dlfcn fcntl fnmatch ftw getopt glob grp ifaddrs langinfo libgen locale mntent
    netdb poll pthread pwd sched semaphore signal spawn stdlib string strings syslog termios time unistd utime""".split())
JSON = r"nlohmann/[\w/]+\.hpp"
FFMPEG = r"lib(avformat|avcodec|avutil|swresample|swscale)/\w+\.h"
SDL = r"(SDL2/)?SDL\w*\.h"
QT = r"(Qt\w+/)?Q\w+"

# The staircase, from the ground up. Each folder may include those named here, which all stand before it.
STAIRS = {
    "platform": [],
    "state": ["platform"],
    "windows": ["platform"],
    "metadata": ["platform"],
    "playlist": ["platform", "state", "metadata"],
    "configuration": ["platform", "state", "windows", "playlist"],
    "playout": ["platform", "state", "windows", "metadata", "playlist", "configuration"],
    "accessories": ["platform", "state", "windows", "playlist", "configuration", "playout"],
    "station": ["platform", "state", "windows", "playlist", "configuration", "playout", "accessories"],
    "platform/audio": ["platform"],
    "platform/host": ["platform"],
    "platform/simulated": ["platform"],
    "desktop": ["platform", "windows", "playlist", "playout", "accessories"],
    "app/common": ["platform", "configuration", "platform/audio", "platform/host"],
    "app/outil": ["platform", "state", "metadata", "playlist", "configuration", "playout", "station", "platform/audio",
                  "platform/host", "platform/simulated", "app/common"],
    "app/bureau": ["platform", "station", "platform/audio", "platform/host", "desktop", "app/common"],
}

# The libraries that a folder knows beside the standard one.
LIBRARIES = {
    "platform/audio": [POSIX, FFMPEG, SDL],
    "platform/host": [POSIX, JSON],
    "desktop": [QT],
    "app/outil": [POSIX, JSON],
    "app/bureau": [POSIX, QT],
}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>|(\S.*))', re.MULTILINE)
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)


def blank_comments(text):
    """Comments become empty lines, so that line numbers hold."""
    return COMMENT.sub(lambda found: "\n" * found.group().count("\n"), text)


def includes_of(path):
    """Yields (line, quoted, angled, other) of each #include."""
    text = blank_comments(path.read_text(encoding="utf-8"))
    for found in INCLUDE.finditer(text):
        line = text.count("\n", 0, found.start(found.lastindex)) + 1
        yield (line, *found.groups())


def sources_of(src):
    return sorted(path for path in src.rglob("*") if path.suffix in {".h", ".cpp", ".hpp", ".inc"} and path.is_file())


def fault_of(src, folder, quoted, angled):
    """What is wrong with one #include of a file in that folder, or None."""
    folders, libraries = [folder, *STAIRS[folder]], LIBRARIES.get(folder, [])
    if angled is not None:
        known = angled in STANDARD or any(re.fullmatch(library, angled) for library in libraries)
        return None if known else f"<{angled}> is no header that {folder}/ may know"
    if quoted is None:
        return "an #include that can't be read"
    if ".." in Path(quoted).parts or not (src / quoted).is_file():
        return f'"{quoted}" is no file of src/; includes are named from there'
    target = str(Path(quoted).parent)
    return None if target in folders else f'{folder}/ may not include "{quoted}"'


def wrong_arrows(src):
    faults = []
    for path in sources_of(src):
        name = path.relative_to(src)
        folder = str(name.parent)
        if folder not in STAIRS:
            faults.append(f"{name}: {folder}/ is no folder of the layout")
            continue
        for line, quoted, angled, _ in includes_of(path):
            fault = fault_of(src, folder, quoted, angled)
            if fault:
                faults.append(f"{name}:{line}: {fault}")
    return faults


def include_graph(src):
    graph = {}
    for path in sources_of(src):
        quoted = [quoted for _, quoted, _, _ in includes_of(path) if quoted]
        graph[str(path.relative_to(src))] = [name for name in quoted if (src / name).is_file()]
    return graph


def cycles(src):
    """One line for each cycle that a walk along the includes runs into."""
    graph, done, faults = include_graph(src), set(), []

    def walk(name, road):
        if name in road:
            faults.append("cycle: " + " -> ".join(road[road.index(name):] + [name]))
        elif name not in done:
            for target in graph.get(name, []):
                walk(target, road + [name])
            done.add(name)

    for name in graph:
        walk(name, [])
    return faults


def broken_stairs():
    """Each folder stands on those before it, so no circle of folders can come about."""
    below = set()
    for folder, known in STAIRS.items():
        yield from (f"the staircase: {folder}/ stands below {name}/" for name in known if name not in below)
        below.add(folder)


def faults_of(src):
    return wrong_arrows(src) + cycles(src)


# File of a small tree, its text, and whether it must be let pass; each stands in a tree with GOOD.
GOOD = {
    "platform/disk.h": "#pragma once\n#include <string>\n",
    "platform/host/files.h": '#pragma once\n#include "platform/disk.h"\n#include <nlohmann/json.hpp>\n#include <sys/stat.h>\n',
    "platform/audio/bus.h": '#pragma once\nextern "C" {\n#include <libavcodec/avcodec.h>\n}\n#include <SDL.h>\n',
    "desktop/view.h": '#pragma once\n#include "playlist/list.h"\n#include <QWidget>\n',
    "platform/simulated/disk.h": '#pragma once\n#include "platform/disk.h"\n',
    "playlist/list.h": '#pragma once\n#include "platform/disk.h"\n#include <cstdint>\n',
    "playout/deck.h": '#pragma once\n#include "playlist/list.h"\n// #include <QWidget>\n/*\n#include <SDL.h>\n*/\n',
    "station/station.h": '#pragma once\n#include "playout/deck.h"\n',
    "app/outil/main.cpp": '#include "station/station.h"\n#include "platform/host/files.h"\n#include <iostream>\n',
}
TRIALS = [
    ("playout/a.cpp", '#include "playlist/list.h"\n', True),
    ("playout/a.cpp", "#include <QString>\n", False),
    ("playout/a.cpp", "#include <unistd.h>\n", False),
    ("playout/a.cpp", "#include <nlohmann/json.hpp>\n", False),
    ("playout/a.cpp", "  #  include <SDL2/SDL.h>\n", False),
    ("playout/a.cpp", '#include "platform/simulated/disk.h"\n', False),
    ("playout/a.cpp", '#include "station/station.h"\n', False),
    ("playlist/a.cpp", '#include "playout/deck.h"\n', False),
    ("playout/a.cpp", '#include "desktop/view.h"\n', False),
    ("desktop/a.cpp", '#include "playout/deck.h"\n', True),
    ("desktop/a.cpp", '#include "station/station.h"\n', False),
    ("playout/a.cpp", '#include "deck.h"\n', False),
    ("playout/a.cpp", '#include "../playout/deck.h"\n', False),
    ("playout/a.cpp", "#include HEADER\n", False),
    ("platform/a.h", '#include "playlist/list.h"\n', False),
    ("platform/a.h", '#include "platform/host/files.h"\n', False),
    ("platform/host/a.cpp", '#include "playlist/list.h"\n', False),
    ("platform/host/a.cpp", '#include "platform/audio/bus.h"\n', False),
    ("platform/audio/a.cpp", "#include <nlohmann/json.hpp>\n", False),
    ("platform/simulated/a.cpp", "#include <fcntl.h>\n", False),
    ("desktop/a.cpp", "#include <libavcodec/avcodec.h>\n", False),
    ("station/a.cpp", '#include "platform/host/files.h"\n', False),
    ("station/a.cpp", '#include "app/outil/words.h"\n', False),
    ("app/outil/a.cpp", '#include "desktop/view.h"\n', False),
    ("elsewhere/a.cpp", "#include <string>\n", False),
    ("playlist/list.h", '#include "playout/deck.h"\n', False),
    ("platform/disk.h", '#include "platform/disk.h"\n', False),
]


def faults_of_trial(file, text):
    with tempfile.TemporaryDirectory() as folder:
        src = Path(folder)
        for name, content in {**GOOD, file: text}.items():
            (src / name).parent.mkdir(parents=True, exist_ok=True)
            (src / name).write_text(content, encoding="utf-8")
        return faults_of(src)


def failed_trials():
    for file, text, right in TRIALS:
        faults = faults_of_trial(file, text)
        if right != (not faults):
            yield f"self-test: {file} with {text.strip()!r}: found {faults}"


def main():
    src = Path(__file__).resolve().parents[2] / "src"
    faults = [*failed_trials(), *broken_stairs(), *faults_of(src)]
    print(*faults, f"{len(sources_of(src))} files read, {len(faults)} faults", sep=os.linesep)
    return 1 if faults else 0


sys.exit(main())
