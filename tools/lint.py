#!/usr/bin/env python3
"""Runs clang-tidy over every source file, on all processors. Files that share no name of their own are looked at in one go,
because most of the time goes into the headers of the standard library. A file that passed isn't looked at again until it, a
header of ours that it includes, its flags or the checks change."""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
from typing import NamedTuple

ROOT = pathlib.Path(__file__).resolve().parent.parent
PASSED = ROOT / "build" / "lint"
GROUP = 12  # files at most in one go
INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)
# What a file declares at its outermost level, where one name may stand once in a go.
DECLARED = re.compile(r"^(?:(?:struct|class|enum|enum class|using) (\w+)|[\w(][^;={\n]*?(?<!::)\b(\w+)(?:\[\w*\])*(?:\(|\{| = |;))",
                      re.MULTILINE)


class Due(NamedTuple):
    file: pathlib.Path
    flags: list
    stamp: pathlib.Path
    mark: str


class Group(NamedTuple):
    rows: list
    names: set


def databases():
    """The preset and the compile command of each source file: the Windows build's where the native one leaves it out or
    finds nothing in it."""
    found = {}
    for preset in ("windows", "native"):
        path = ROOT / "build" / preset / "compile_commands.json"
        for entry in json.loads(path.read_text()) if path.exists() else []:
            file = pathlib.Path(entry["file"])
            ours = file.suffix == ".cpp" and file.is_relative_to(ROOT) and not file.is_relative_to(ROOT / "build")
            if ours and not (file in found and "win32" in str(file.relative_to(ROOT))):
                found[file] = (preset, entry)
    return found


def windows_flags():
    """What makes clang read the headers of the Windows compiler."""
    compiler = "x86_64-w64-mingw32-g++-posix"
    told = subprocess.run([compiler, "-xc++", "-E", "-v", "-"], stdin=subprocess.DEVNULL, capture_output=True, text=True)
    listed = told.stderr.split("#include <...> search starts here:")[1].split("End of search list.")[0].split()
    kept = [path for path in listed if "/c++" in path or "mingw32/include" in path.split("/../")[-1]]
    return ["--target=x86_64-w64-mingw32", "-nostdinc++"] + [f"-isystem{path}" for path in kept]


def command_of(entry, extra):
    words = shlex.split(entry["command"])
    if words[0].endswith("ccache"):
        words = words[1:]
    kept, skip = [], False
    for word in words[1:]:
        if skip:
            skip = False
        elif word in ("-o", "-MT", "-MF", "-include", "-Xclang"):
            skip = True
        elif word not in ("-c", "-MD", "-Winvalid-pch", entry["file"]) and not word.startswith("-fsanitize=fuzzer"):
            kept.append(word)
    return kept + extra


def headers_of(file, seen):
    """The file and all headers of ours below it."""
    if file in seen:
        return
    seen.add(file)
    for name in INCLUDE.findall(file.read_text(encoding="utf-8", errors="replace")):
        for folder in (ROOT / "src", ROOT, file.parent):
            if (folder / name).is_file():
                headers_of((folder / name).resolve(), seen)
                break


def mark_of(file, flags):
    seen = set()
    headers_of(file, seen)
    mark = hashlib.sha256((ROOT / ".clang-tidy").read_bytes() + " ".join(flags).encode())
    for path in sorted(seen):
        mark.update(path.read_bytes())
    return mark.hexdigest()


def declared_by(file):
    text = file.read_text(encoding="utf-8", errors="replace")
    return {name for names in DECLARED.findall(text) for name in names if name} - {"TEST", "TEST_F", "TEST_P", "BENCHMARK"}


def groups_of(due):
    """Files with the same flags, such that no two of a group declare the same name."""
    groups = []
    most = max(1, min(GROUP, len(due) // (2 * os.cpu_count())))
    for row in due:
        names = declared_by(row.file)
        for group in groups:
            if len(group.rows) < most and group.rows[0].flags == row.flags and not names & group.names:
                break
        else:
            group = Group([], set())
            groups.append(group)
        group.rows.append(row)
        group.names.update(names)
    return groups


def lint(rows):
    """Whether the files passed, and what was said. Files that can't stand beside each other are looked at one by one."""
    first, rest = rows[0], rows[1:]
    others = [word for row in rest for word in ("-include", str(row.file))]
    ours = ["--checks=-bugprone-suspicious-include"] if rest else []  # it would be what we do here
    told = subprocess.run(["clang-tidy", "--quiet", *ours, str(first.file), "--", *first.flags, *others], cwd=ROOT,
                          capture_output=True, text=True)
    if rest and told.returncode != 0:
        results = [lint([row]) for row in rows]
        return all(passed for passed, _ in results), "".join(text for _, text in results)
    return told.returncode == 0, told.stdout


def main():
    PASSED.mkdir(parents=True, exist_ok=True)
    windows = windows_flags()
    due = []
    for file, (preset, entry) in sorted(databases().items()):
        flags = command_of(entry, windows if preset == "windows" else [])
        stamp = PASSED / str(file.relative_to(ROOT)).replace("/", "!")
        mark = mark_of(file, flags)
        if not stamp.exists() or stamp.read_text() != mark:
            due.append(Due(file, flags, stamp, mark))
    failed = 0
    groups = groups_of(due)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for group, (passed, told) in zip(groups, pool.map(lambda group: lint(group.rows), groups)):
            if passed:
                for row in group.rows:
                    row.stamp.write_text(row.mark)
            else:
                failed += 1
                print(told)
    print(f"lint: {len(due)} files looked at in {len(groups)} goes, {failed} with findings")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
