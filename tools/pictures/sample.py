"""What the program shows in pictures and on the user's own screen; importing this finds the tests' harness too."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tests" / "acceptance"))

import bwmk  # noqa: E402  (needs the path above)

GROUPS = ("Clients", "Finance", "Garden", "House", "Music", "Photos")
TOPICS = ("Archive", "Contracts", "Drafts", "Letters", "Plans")
FOLDERS = ["C:\\%s\\%s" % (group, topic) for group in GROUPS for topic in TOPICS] + ["C:\\Downloads", "C:\\Projects"]


def tree():
    """Forty items: six groups with five shortcuts each, and others beside them."""
    groups = [bwmk.group(name, *[bwmk.folder(topic, "C:\\%s\\%s" % (name, topic), number % 2 == 1)
                                 for number, topic in enumerate(TOPICS)]) for name in GROUPS]
    return groups + [bwmk.open_all(), bwmk.folder("Downloads", "C:\\Downloads"),
                     bwmk.folder("Projects", "C:\\Projects", True, hot_key=53),
                     bwmk.folder("Shared with everybody in the office on its third floor", "\\\\server\\share\\All")]


def make_folders(prefix):
    for path in FOLDERS:
        prefix.host_path(path).mkdir(parents=True, exist_ok=True)
