# Sourced by run.sh and test.sh: installs what is missing, says what it does, and finds a Wine prefix's surroundings.

say() { printf '== %s\n' "$*"; }

# need_packages PACKAGE... : installs Debian packages that aren't there yet, as root or through sudo.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "installing: ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
    >/dev/null
}

# build PRESET [TARGET...] : configures a preset where that is due and builds it.
build() {
  local preset=$1 log targets=()
  shift
  [ $# -gt 0 ] && targets=(--target "$@")
  say "building $preset"
  mkdir -p build
  log=build/$preset.log
  if ! { cmake --preset "$preset" && cmake --build --preset "$preset" "${targets[@]}"; } >"$log" 2>&1; then
    grep -E 'error|Error|warning: ' "$log" | head -40 || true
    tail -20 "$log"
    return 1
  fi
}

BUILD_PACKAGES=(g++ gcc cmake ninja-build git ca-certificates)
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64)
WINE_PACKAGES=(wine wine64 xvfb xdotool x11-utils x11-apps imagemagick python3)
PACKING_PACKAGES=(nsis python3)
