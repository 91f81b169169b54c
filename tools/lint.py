#!/usr/bin/env python3
"""Runs clang-tidy over every source file, as many at a time as there are processors. A file that passed isn't looked at
again until it, a header of ours that it includes, its flags or the checks change."""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PASSED = ROOT / "build" / "lint"
INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)


def databases():
    """The preset and the compile command of each source file: the Windows build's where the native one leaves it out or
    finds nothing in it."""
    found = {}
    for preset in ("windows", "native", "fuzz"):
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
        elif word in ("-o", "-MT", "-MF", "-include"):
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


def lint(file, flags):
    told = subprocess.run(["clang-tidy", "--quiet", str(file), "--"] + flags, cwd=ROOT, capture_output=True, text=True)
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
            due.append((file, flags, stamp, mark))
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for (file, _, stamp, mark), (passed, told) in zip(due, pool.map(lambda row: lint(row[0], row[1]), due)):
            if passed:
                stamp.write_text(mark)
            else:
                failed += 1
                print(told)
    print(f"lint: {len(due)} files looked at, {failed} with findings")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
