"""Fails on a part of a window that the code calls by its control's number: in the code a part has a word for what it
shows, and its control's name is a text.

First it tries itself on a line of each kind.
"""

import re
import sys
from pathlib import Path

NUMBERED = re.compile(
    r"\b(?:Label|label|Image|Text|Option|Timer|Combo|Check|Command|coche|UpDown|ListView|AnyButton|ProgressBar|Shape)\d+\w*")
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)

TRIALS = {
    'window.Label5.caption = "0";': ["Label5"],
    "void Timer1_tick();": ["Timer1_tick"],
    'Label remaining{*this, "Label4"}; ///< Not Label4.': [],
    "constexpr Timer timer12h{};": [],
}


def numbered(text):
    blanked = COMMENT_OR_TEXT.sub(lambda found: "\n" * found.group().count("\n"), text)
    for found in NUMBERED.finditer(blanked):
        yield blanked.count("\n", 0, found.start()) + 1, found.group()


def main():
    for line, names in TRIALS.items():
        if [name for _, name in numbered(line)] != names:
            print("self-test:", line)
            return 1
    root = Path(__file__).resolve().parents[2]
    files = sorted(path for folder in ("src", "tests", "bench", "fuzz") for path in (root / folder).rglob("*")
                   if path.suffix in {".h", ".cpp"})
    faults = [f"{path.relative_to(root)}:{line}: {name}" for path in files
              for line, name in numbered(path.read_text(encoding="utf-8"))]
    print(*faults, f"{len(files)} files read, {len(faults)} numbered names", sep="\n")
    return 1 if faults else 0


sys.exit(main())
