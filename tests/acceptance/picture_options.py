"""The options of the scripts that take pictures."""

import argparse
import os
import signal
import sys
from pathlib import Path

from harness import REPOSITORY, Settings


def parser_for(description):
    parser = argparse.ArgumentParser(description=description, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--exe")
    parser.add_argument("--driver")
    parser.add_argument("--build")
    parser.add_argument("--output", type=Path, default=REPOSITORY / "build" / "pictures")
    return parser


def settings_of(arguments):
    """What the options say; ends the script if there is no program to look at. The folder for the pictures is there
    afterwards, and a script that is ended from outside cleans up."""
    for name, value in (("BURROWMARK_EXE", arguments.exe), ("ACCEPTANCE_DRIVER", arguments.driver),
                        ("ACCEPTANCE_BUILD", arguments.build)):
        if value:
            os.environ[name] = value
    settings = Settings.from_environment()
    if settings.exe is None or not settings.exe.is_file():
        sys.exit("burrowmark.exe isn't there")
    arguments.output.mkdir(parents=True, exist_ok=True)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    return settings
