#!/usr/bin/env python3
"""Packs a folder's content: make_zip.py ZIP FOLDER. The same files give the same bytes: sorted, and all with the time
that SOURCE_DATE_EPOCH tells."""

import os
import sys
import time
import zipfile
from pathlib import Path


def main():
    target, folder = Path(sys.argv[1]), Path(sys.argv[2])
    moment = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    with zipfile.ZipFile(target, "w") as archive:
        for path in sorted(path for path in folder.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo(path.relative_to(folder).as_posix(), moment)
            entry.create_system = 0  # for a machine that knows no permissions
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, path.read_bytes(), compresslevel=9)


if __name__ == "__main__":
    main()
