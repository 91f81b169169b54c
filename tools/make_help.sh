#!/usr/bin/env bash
# Makes assets/help/Burrowmark.chm from the pages beside it. The file is committed, so that neither command needs the
# compiler; tools/check_help.py says when it is older than its pages.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh

need_packages fp-utils
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
cp assets/help/* "$made"
rm -f "$made/Burrowmark.chm"
(cd "$made" && chmcmd Burrowmark.hhp) >"$made/log" 2>&1 || { cat "$made/log"; exit 1; }
cp "$made/Burrowmark.chm" assets/help/
tools/check_help.py
say "assets/help/Burrowmark.chm: $(stat -c %s assets/help/Burrowmark.chm) bytes"
