#!/usr/bin/env python3
"""Starts the program on the user's own screen and stays until it ends: on_screen.py EXE FOLDER

The prefix in FOLDER is kept, and with it the tree as the user leaves it; the first start gets the sample tree. The desktop
is a window of its own, so that its task bar with the tray icon is there whatever the user's desktop is.
"""

import os
import subprocess
import sys
from pathlib import Path

import sample  # first: it finds the modules below
import bwmk
from burrowmark import install
from harness import Prefix

PROGRAM = "C:\\Burrowmark"


def main():
    prefix = Prefix(Path(sys.argv[2]).resolve())
    prefix.environment.update({name: os.environ[name] for name in ("DISPLAY", "XAUTHORITY") if name in os.environ})
    prefix.make((1024, 768))
    program = prefix.host_path(PROGRAM)
    install(Path(sys.argv[1]), program)
    sample.make_folders(prefix)
    if not (program / "default.bwmk").exists():
        bwmk.write(program / "default.bwmk", sample.tree())
    try:
        return subprocess.call(["wine", PROGRAM + "\\burrowmark.exe"], env=prefix.environment)
    except KeyboardInterrupt:
        return 0
    finally:
        prefix.end_server()


if __name__ == "__main__":
    sys.exit(main())
