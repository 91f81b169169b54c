#!/usr/bin/env bash
# Sets up, builds and starts Burrowmark under Wine with a sample tree: on the screen, or on a virtual one with pictures of
# the menu and the editor saved under build/pictures.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}" "${WINE_PACKAGES[@]}"
build windows burrowmark acceptance_driver

if [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1; then
  say "starting on the screen; end it by closing the window, or with Ctrl+C here"
  exec python3 tools/pictures/on_screen.py build/windows/src/app/burrowmark.exe build/run
fi
say "no screen: starting on a virtual one"
python3 tools/pictures/pictures.py
say "the pictures are in build/pictures"
