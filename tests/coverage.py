#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Which lines run in the tests: prints the share per folder, per part and in total, and the files that fall behind.

    coverage.py BUILD-FOLDER

Every source and header of the model, the platform and the windows counts, also one that no test ever entered. A source that
the compiler never saw stops the count: it would be missing from it. What the compiler makes no code of (declarations, tables
computed while compiling, inline functions that nobody calls) has no line to count.
"""

import json
import subprocess
import sys
from collections import defaultdict
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
ROOMS = ["access", "aids", "boards", "config", "core", "memwin", "platform", "program"]
BEHIND = 80


def part_of(name):
    """Model, platform or windows: what the file belongs to."""
    if name.startswith("platform/"):
        return "platform"
    return "windows" if "/views/" in name or name.startswith("program/") else "model"


def counted(build):
    """The lines of each file: how many there are, how many ran."""
    command = ["gcovr", "--root", str(ROOT), "--object-directory", str(build), "--json", "-", "-j", "2", str(build)]
    for room in ROOMS:
        command += ["--filter", str(ROOT / room) + "/"]
    report = json.loads(subprocess.run(command, check=True, capture_output=True, text=True).stdout)
    lines = {}
    for file in report["files"]:
        own = [line for line in file["lines"] if not line.get("gcovr/noncode", False)]
        if own and (ROOT / file["file"]).exists():  # else it is gone, and only its old counts are there
            lines[file["file"]] = (len(own), sum(line["count"] > 0 for line in own))
    return lines


def row(name, lines, ran):
    print(f"  {name:<44}{ran:>6} of {lines:>6}  {100 * ran / lines:5.1f} %")


def main():
    build = Path(sys.argv[1]).resolve()
    files = counted(build)
    sources = [str(source.relative_to(ROOT)) for room in ROOMS for source in (ROOT / room).rglob("*.cpp")]
    missing = [source for source in sources if not any(build.glob(f"CMakeFiles/*.dir/{source}.gcno"))]
    if missing:
        sys.exit("not built, so not counted: " + ", ".join(sorted(missing)))

    folders, parts = defaultdict(lambda: [0, 0]), defaultdict(lambda: [0, 0])
    for name, (lines, ran) in files.items():
        for sums in (folders[str(Path(name).parent)], parts[part_of(name)]):
            sums[0] += lines
            sums[1] += ran
    print("Lines that ran, by folder:")
    for folder in sorted(folders):
        row(folder + "/", *folders[folder])
    print("By part:")
    for part in ("model", "platform", "windows"):
        row(part, *parts[part])
    row("in total", sum(part[0] for part in parts.values()), sum(part[1] for part in parts.values()))
    behind = {name: both for name, both in files.items() if 100 * both[1] < BEHIND * both[0]}
    print(f"Files under {BEHIND} %:" if behind else f"No file is under {BEHIND} %.")
    for name in sorted(behind):
        row(name, *behind[name])


if __name__ == "__main__":
    main()
