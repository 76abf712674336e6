"""Fails on a test, scenario, fuzzer or benchmark that no target builds or runs: nobody would see it break.

SONARELLE_REGISTERED_FILES names the list that CMake wrote while it made the targets.
"""

import os
import sys
import tempfile
from pathlib import Path

# Helpers, linked or called by what is registered.
HELPERS = ["tests/support", "tests/scripts/support"]
TEST_MACROS = ("TEST(", "TEST_F(", "TEST_P(", "TYPED_TEST(")


def holds_tests(path):
    lines = path.read_text(encoding="utf-8").splitlines()
    return any(line.startswith(TEST_MACROS) for line in lines)


def is_wanted(root, path):
    """Whether a target must have this file."""
    name = path.relative_to(root).as_posix()
    if any(name.startswith(helper + "/") for helper in HELPERS) or "__pycache__" in name:
        return False
    if name.startswith("tests/scripts/"):
        return True
    if path.suffix != ".cpp":
        return False
    if name.startswith("tests/"):
        return path.name.endswith("_test.cpp") or holds_tests(path)
    return True


def unregistered(root, registered):
    files = [path for top in ("tests", "bench", "fuzz") for path in sorted((root / top).rglob("*")) if path.is_file()]
    return [name for path in files if is_wanted(root, path)
            and not path.is_relative_to(root / "fuzz/corpus")
            and (name := path.relative_to(root).as_posix()) not in registered]


KNOWN = ["tests/a/x_test.cpp", "tests/scripts/y.py", "bench/z_bench.cpp", "fuzz/w_fuzz.cpp"]
QUIET = {"tests/a/bench.cpp": "int a;\n", "tests/support/s_test.cpp": "TEST(A, B) {}\n", "fuzz/corpus/w/seed": "x\n"}
LOUD = {"tests/a/forgotten.cpp": "TEST(A, B) {}\n", "tests/a/deep/y_test.cpp": "", "tests/z_test.cpp": "",
        "tests/scripts/y.pl": "", "bench/slow.cpp": "", "fuzz/list.cpp": ""}


def finds_the_forgotten_ones():
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name, text in {**dict.fromkeys(KNOWN, ""), **QUIET, **LOUD}.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text, encoding="utf-8")
        return set(unregistered(root, set(KNOWN))) == set(LOUD)


def main():
    root = Path(__file__).resolve().parents[2]
    registered = set(Path(os.environ["SONARELLE_REGISTERED_FILES"]).read_text(encoding="utf-8").split("\n"))
    faults = [f"{name}: no target has it" for name in unregistered(root, registered)]
    if not finds_the_forgotten_ones():
        faults.append("self-test: forgotten files were not found, or others were")
    print(*faults, f"{len(registered)} files registered, {len(faults)} faults", sep="\n")
    return 1 if faults else 0


sys.exit(main())
