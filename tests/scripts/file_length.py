"""Fails on a source file of more than 400 lines: it holds more than one job."""

import sys
import tempfile
from pathlib import Path

LIMIT = 400


def too_long(src):
    for path in sorted(src.rglob("*")):
        if path.suffix in {".h", ".cpp"}:
            lines = path.read_bytes().count(b"\n")
            if lines > LIMIT:
                yield f"{path.relative_to(src.parent)}: {lines} lines, over {LIMIT}"


def finds_only_the_long_one():
    with tempfile.TemporaryDirectory() as folder:
        src = Path(folder) / "src"
        src.mkdir()
        (src / "right.cpp").write_text("\n" * LIMIT)
        (src / "long.cpp").write_text("\n" * (LIMIT + 1))
        return list(too_long(src)) == [f"src/long.cpp: {LIMIT + 1} lines, over {LIMIT}"]


def main():
    faults = list(too_long(Path(__file__).resolve().parents[2] / "src"))
    if not finds_only_the_long_one():
        faults.append("self-test: a file that is too long was not found, or another was")
    print(*faults, f"{len(faults)} faults", sep="\n")
    return 1 if faults else 0


sys.exit(main())
