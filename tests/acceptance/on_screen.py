#!/usr/bin/env python3
"""Starts the program on the user's own screen and stays until it ends: on_screen.py EXE FOLDER

The prefix in FOLDER is kept, and with it the tree as the user leaves it; the first start gets the sample tree. The desktop
is a window of its own, so that its task bar with the tray icon is there whatever the user's desktop is.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

import bwmk  # noqa: E402  (needs the path above)
from burrowmark import install  # noqa: E402
from harness import Prefix  # noqa: E402
from pictures import SAMPLE_FOLDERS, sample_tree  # noqa: E402

DESKTOP_SIZE = "1024x768"
PROGRAM = "C:\\Burrowmark"


def make_prefix(folder):
    prefix = Prefix(folder)
    for name in ("DISPLAY", "XAUTHORITY"):
        if name in os.environ:
            prefix.environment[name] = os.environ[name]
    ready = prefix.folder / "ready"
    if ready.exists():
        return prefix
    shutil.rmtree(prefix.path, ignore_errors=True)
    prefix.home.mkdir(parents=True, exist_ok=True)
    prefix.run("wineboot", "-i", limit=300)
    prefix.end_server()
    prefix.add_registry("Software\\Wine\\Explorer", {"Desktop": "shell"})
    prefix.add_registry("Software\\Wine\\Explorer\\Desktops", {"shell": DESKTOP_SIZE})
    ready.write_text("finished\n")
    return prefix


def set_up(prefix, exe):
    program = prefix.host_path(PROGRAM)
    program.mkdir(exist_ok=True)
    install(exe, program)
    for path in SAMPLE_FOLDERS:
        prefix.host_path(path).mkdir(parents=True, exist_ok=True)
    tree = program / "default.bwmk"
    if not tree.exists():
        bwmk.write(tree, sample_tree())


def main():
    exe, folder = Path(sys.argv[1]), Path(sys.argv[2]).resolve()
    prefix = make_prefix(folder)
    set_up(prefix, exe)
    try:
        return subprocess.call(["wine", PROGRAM + "\\burrowmark.exe"], env=prefix.environment)
    except KeyboardInterrupt:
        return 0
    finally:
        prefix.end_server()


if __name__ == "__main__":
    sys.exit(main())
