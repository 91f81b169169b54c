#!/usr/bin/env bash
# Sets up, builds and runs every test: native under sanitizers, as a Windows build under Wine, lint, fuzz targets. What
# hasn't changed since it passed isn't run again; "./test.sh --all" runs everything.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

stamps=build/passed
[ "${1:-}" = --all ] && rm -rf "$stamps"
mkdir -p "$stamps"

# unless_passed NAME FILE... -- COMMAND... : runs the command unless it passed with these files as they are.
unless_passed() {
  local name=$1 files=()
  shift
  while [ "$1" != -- ]; do files+=("$1"); shift; done
  shift
  local sum
  sum=$(cat "${files[@]}" | sha256sum)
  if [ "$(cat "$stamps/$name" 2>/dev/null)" = "$sum" ]; then
    say "$name: unchanged since it passed"
    return 0
  fi
  say "$name"
  "$@"
  printf '%s' "$sum" >"$stamps/$name"
}

check_format() {
  local found
  if ! found=$(git ls-files -co --exclude-standard -- '*.cpp' '*.h' | xargs clang-format --dry-run --Werror 2>&1); then
    grep -E '^[a-z].*: error' <<<"$found" | head -20
    say "not as clang-format has it: git ls-files '*.cpp' '*.h' | xargs clang-format -i"
    return 1
  fi
}

# At least 200,000 fresh inputs, after the seeds and what earlier runs found worth keeping.
run_fuzz() {
  local log=build/fuzz/$2.log
  timeout 1800 nice -n 19 "$1" -runs=200000 -max_len=2048 -artifact_prefix="build/fuzz/found-$2-" \
    "build/fuzz/corpus/$2" "tests/fuzz/seeds/$2" >"$log" 2>&1 &
  trap "kill $!; exit 1" TERM
  if ! wait $!; then
    tail -40 "$log"
    return 1
  fi
  tail -1 "$log"
}

# A Wine prefix of our own, its home folder beside it; ended and removed when the script ends.
wine_home=
start_wine() {
  [ -n "$wine_home" ] && return 0
  wine_home=$(mktemp -d)
  export HOME=$wine_home/home WINEPREFIX=$wine_home/prefix WINEARCH=win64 WINEDEBUG=-all
  export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
  mkdir -p "$HOME"
  say "making a Wine prefix"
  timeout 180 wineboot -i >/dev/null 2>&1
  # Windows are made but never drawn on a screen, so none is needed.
  timeout 60 wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /t REG_SZ /d null /f >/dev/null 2>&1
  timeout 60 wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
  # A desktop that the prefix's making left behind has another driver.
  timeout 30 wineserver -k || true
  timeout 30 wineserver -w || true
}
end_wine() {
  [ -z "$wine_home" ] && return 0
  timeout 30 wineserver -k || true
  timeout 30 wineserver -w || true
  rm -rf "$wine_home"
}
fuzzing=()
end_all() {
  [ ${#fuzzing[@]} -eq 0 ] || kill "${fuzzing[@]}" 2>/dev/null || true
  end_wine
}
trap end_all EXIT
under_wine() {
  start_wine
  timeout 900 wine "$@"
}

need_packages "${BUILD_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}" "${WINE_PACKAGES[@]}" "${PACKING_PACKAGES[@]}" \
  googletest libbenchmark-dev clang llvm clang-format clang-tidy libclang-rt-14-dev libchm-bin

say "checking the format"
check_format

say "checking the rooms"
tools/check_rooms.py

say "checking the help"
tools/check_help.py

# The benchmarks are built with it, so that they stay right; their figures come from the release build.
cmake --preset native -DBURROWMARK_BENCH=ON >/dev/null
build native

# They take what processor time the others leave.
for target in reader link date; do
  fuzz=build/native/tests/fuzz/fuzz_$target
  mkdir -p "build/fuzz/corpus/$target"
  unless_passed "fuzz-$target" "$fuzz" tests/fuzz/seeds/"$target"/* -- \
    run_fuzz "$fuzz" "$target" &
  fuzzing+=($!)
done

unless_passed native-unit-tests build/native/tests/unit_tests -- build/native/tests/unit_tests --gtest_brief=1
unless_passed native-contract-tests build/native/tests/contract_tests tests/contract/fixtures/* -- \
  build/native/tests/contract_tests --gtest_brief=1
unless_passed native-stress build/native/tests/stress_tests -- build/native/tests/stress_tests

build windows
unless_passed windows-unit-tests build/windows/tests/unit_tests.exe -- \
  under_wine build/windows/tests/unit_tests.exe --gtest_brief=1
unless_passed windows-contract-tests build/windows/tests/contract_tests.exe tests/contract/fixtures/* -- \
  under_wine build/windows/tests/contract_tests.exe --gtest_brief=1

# What a user's machine asks of the program files: size, libraries, hardening.
programs=build/windows/src/app
unless_passed program-file "$programs/burrowmark.exe" tools/check_program.sh -- tools/check_program.sh \
  "$programs/burrowmark.exe" 1500000 Microsoft.Windows.Common-Controls asInvoker PerMonitorV2 supportedOS
unless_passed copy-address-file "$programs/CopyAddress.exe" tools/check_program.sh -- tools/check_program.sh \
  "$programs/CopyAddress.exe" 60000 asInvoker

acceptance_tests() { ./package.sh set-up && python3 -B tests/acceptance/run.py; }
mapfile -t acceptance_files < <(git ls-files -co --exclude-standard -- tests/acceptance/'*.py' tests/acceptance/'*.c' \
  assets/icons/'*.ico' packaging package.sh)
unless_passed acceptance "$programs/burrowmark.exe" "$programs/CopyAddress.exe" "${acceptance_files[@]}" src/app/icons.rc \
  build/windows/tests/acceptance/driver/acceptance_driver.exe -- acceptance_tests

say "waiting for the fuzz targets"
for one in "${fuzzing[@]}"; do wait "$one"; done

# What each source file passed with is kept.
say "lint"
python3 tools/lint.py

say "all tests passed"
