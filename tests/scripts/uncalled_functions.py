"""Fails on a function of src/ that nobody calls: a door that leads nowhere is read, kept and renamed for nothing.

By name alone: a function counts as used when its name stands anywhere in the tree, tests among it, beside its
declarations and definitions. First it tries itself on a small source with one dead door.
"""

import re
import sys
from collections import Counter
from pathlib import Path

# What others call: the programs' main, the standard library, Qt and its signals by name.
CALLED_FROM_OUTSIDE = {"main", "begin", "end", "operator"}

COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"', re.DOTALL)
NAME = re.compile(r"[^\W\d]\w*")
# A declaration or definition: a type, the name, and a bracket. What stands behind these words is a call.
NO_TYPE = r"(?:return|else|throw|case|co_return|new|delete|not|and|or|if|while|for|switch|using|goto)\b"
DECLARED = re.compile(
    rf"(?:^|[;{{}}\]]|\w:(?!:))\s*(?!{NO_TYPE})(?:\w(?:[\w>,&*\s]|(?<!\s)<|::)*?[\s&*>])(?:\w+::)*([^\W\d]\w*)\((?P<rest>[^;{{]*)",
    re.MULTILINE)


def text_of(path):
    return COMMENT_OR_TEXT.sub(" ", path.read_text(encoding="utf-8"))


def uncalled(headers, sources):
    """The names that headers declare and that stand nowhere else than in declarations and definitions."""
    used, declared, kept = Counter(), Counter(), set(CALLED_FROM_OUTSIDE)
    in_headers = set()
    for text in [*headers, *sources]:
        used.update(NAME.findall(text))
        for found in DECLARED.finditer(text):
            declared[found[1]] += 1
            if text in headers:
                in_headers.add(found[1])
            if re.search(r"\boverride\b", found["rest"]):
                kept.add(found[1])
    return sorted(name for name in in_headers - kept if used[name] <= declared[name])


TRIAL = ["""
class Door {
public:
    void open();
    void dead() { open(); }
    [[nodiscard]] bool never_asked(int hour) const;
};
""", """
void Door::open() {}
bool Door::never_asked(int hour) const { return hour > 0; }
void pass(Door& door) { door.open(); }
int main() { Door door; pass(door); }
"""]


def main():
    trial = uncalled(TRIAL[:1], TRIAL[1:])
    if trial != ["dead", "never_asked"]:
        print("self-test: found", trial)
        return 1
    root = Path(__file__).resolve().parents[2]
    files = sorted(path for folder in ("src", "tests", "bench", "fuzz") for path in (root / folder).rglob("*")
                   if path.suffix in {".h", ".cpp"})
    texts = {path: text_of(path) for path in files}
    headers = [path for path in files if path.suffix == ".h" and path.is_relative_to(root / "src")]
    dead = uncalled([texts[path] for path in headers], [texts[path] for path in files if path not in headers])
    print(*dead, f"{len(files)} files read, {len(dead)} functions that nobody calls", sep="\n")
    return 1 if dead else 0


sys.exit(main())
