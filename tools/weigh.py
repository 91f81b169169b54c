#!/usr/bin/env python3
"""What burrowmark.exe costs above a bare program of the tray: weigh.py [--runs N] [--exe EXE] [--maps]

Builds bare_tray.cpp and weigh.cpp beside this file, and runs both programs in turn on a desktop of the acceptance tests.
Prints the medians of the time from the process's start until its icon is seen, and of the private memory at rest after
the start and after the first opening and closing of the menu: the anonymous pages that the host's kernel counts
(RssAnon). --maps says which files' pages they are.
"""

import argparse
import collections
import re
import statistics
import subprocess
import sys
import time
from pathlib import Path

TOOLS = Path(__file__).resolve().parent
sys.path.insert(0, str(TOOLS.parent / "tests" / "acceptance"))

from burrowmark import EXE, Program  # noqa: E402  (needs the path above)
from harness import Desktop, Settings  # noqa: E402
from pictures import SAMPLE_FOLDERS, sample_tree  # noqa: E402

COMPILER = ["x86_64-w64-mingw32-g++-posix", "-std=c++20", "-Os", "-s", "-static", "-municode"]
ROUND = 4  # runs of one program before it is the other's turn


def compile_into(folder, name, *options):
    program = folder / (name + ".exe")
    subprocess.run(COMPILER + [str(TOOLS / (name + ".cpp")), "-o", str(program), *options], check=True)
    return "C:\\%s.exe" % name


def anonymous_kilobytes(desktop, program):
    process = desktop.processes(program.rsplit("\\")[-1])[-1]
    return int(re.search(r"RssAnon:\s+(\d+)", Path("/proc/%d/status" % process.pid).read_text())[1])


def weigh(desktop, program, runs):
    """Microseconds and twice kilobytes for each run."""
    rows = []
    with subprocess.Popen(["wine", "C:\\weigh.exe", program, str(runs)], env=desktop.prefix.environment, text=True,
                          stdin=subprocess.PIPE, stdout=subprocess.PIPE) as weigher:
        for line in weigher.stdout:
            if line.strip() != "rests":
                rows.append([int(line)])
                continue
            rows[-1].append(anonymous_kilobytes(desktop, program))
            weigher.stdin.write("\n")
            weigher.stdin.flush()
    if weigher.returncode != 0:
        sys.exit("%s: not weighed" % program)
    return rows


def show_maps(desktop, command):
    """The anonymous pages of a program at rest, by the file they belong to."""
    desktop.start(command)
    time.sleep(5)
    process = desktop.processes(command.rsplit("\\")[-1])[-1]
    pages = collections.Counter()
    name = ""
    for line in Path("/proc/%d/smaps" % process.pid).read_text().splitlines():
        head = re.match(r"[0-9a-f]+-[0-9a-f]+ \S+ \S+ \S+ \S+ *(.*)", line)
        if head:
            name = Path(head[1]).name or "no file"
        elif line.startswith("Anonymous:"):
            pages[name] += int(line.split()[1])
    print("%s, KB: %s" % (command, ", ".join("%s %d" % row for row in pages.most_common() if row[1])))
    desktop.start(command, "/EXIT").wait(20)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--runs", type=int, default=20)
    parser.add_argument("--exe", type=Path)
    parser.add_argument("--maps", action="store_true")
    arguments = parser.parse_args()
    settings = Settings.from_environment()
    with Desktop(settings) as desktop:
        bare = compile_into(desktop.prefix.drive_c, "bare_tray", "-mwindows")
        compile_into(desktop.prefix.drive_c, "weigh", "-lgdi32")
        program = Program(desktop, (arguments.exe or settings.exe).resolve())
        program.make_folders(*SAMPLE_FOLDERS)
        program.write_tree(*sample_tree())
        if arguments.maps:
            show_maps(desktop, bare)
            show_maps(desktop, EXE)
        rows = {bare: [], EXE: []}
        for command in rows:
            weigh(desktop, command, 1)  # the first finds nothing in the caches
        while len(rows[EXE]) < arguments.runs:
            for command, found in rows.items():
                found.extend(weigh(desktop, command, ROUND))
        print("%-30s %12s %16s %16s" % ("median of %d runs" % len(rows[EXE]), "icon, ms", "at start, KB", "after menu, KB"))
        medians = {command: [statistics.median(column) for column in zip(*found)] for command, found in rows.items()}
        for command, (start, first, second) in medians.items():
            print("%-30s %12.1f %16.0f %16.0f" % (command, start / 1000, first, second))
        print("%-30s %12.2f %16.2f %16.2f" % ("times the bare one", *[ours / theirs for ours, theirs in
                                                                      zip(medians[EXE], medians[bare])]))


if __name__ == "__main__":
    main()
