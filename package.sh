#!/usr/bin/env bash
# Sets up, builds and packs what people get, into dist/: the set-up, a portable copy, and the tests for a real Windows.
# The same commit gives the same bytes. "./package.sh set-up" makes the set-up alone.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

most_bytes=2621440

need_packages "${BUILD_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}" "${PACKING_PACKAGES[@]}"
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH TZ=UTC

if [ "${1:-}" = set-up ]; then build windows burrowmark CopyAddress; else
  need_packages googletest
  build windows burrowmark CopyAddress unit_tests contract_tests
fi
built=build/windows version=
version=$(sed -n 's/^#define BURROWMARK_VERSION "\(.*\)"$/\1/p' $built/src/core/product.h)
numbers=$(sed -n 's/^#define BURROWMARK_VERSION_NUMBERS \(.*\)$/\1/p' $built/src/core/product.h)

# gather FOLDER FILE... : a folder with copies of just these files, all as old as the commit.
gather() {
  local folder=$1
  shift
  rm -rf "$folder"
  mkdir -p "$folder"
  cp "$@" "$folder"
  find "$folder" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
}

programs=("$built/src/app/burrowmark.exe" "$built/src/app/CopyAddress.exe")
beside=(assets/TIPOFDAY.TXT assets/folder_report.css assets/filecopy.avi assets/icons/BWMK.ico assets/help/Burrowmark.chm)

rm -rf build/packing
[ "${1:-}" = set-up ] || rm -rf dist
mkdir -p dist build/packing/pictures
python3 -B packaging/pictures/pictures.py bitmaps build/packing/pictures
gather build/packing/setup "${programs[@]}" "${beside[@]}"
touch -d "@$SOURCE_DATE_EPOCH" build/packing/pictures/*
say "packing the set-up"
makensis -V2 -WX -DVERSION="$version" -DVERSION_NUMBERS="$(sed 's/, */./g' <<<"$numbers")" \
  -DSTAGE="$PWD/build/packing/setup" -DPICTURES="$PWD/build/packing/pictures" -DICON="$PWD/assets/icons/burrowmark.ico" \
  -DSIZE="$(($(cat build/packing/setup/* | wc -c) / 1024))" -DOUTPUT="$PWD/dist/burrowmark-setup.exe" packaging/burrowmark.nsi
[ "${1:-}" = set-up ] && exit 0

say "packing the portable copy and the tests"
gather build/packing/portable/Burrowmark "${programs[@]}" "${beside[@]}" packaging/README.txt
gather build/packing/tests/burrowmark-tests "${programs[@]}" "${beside[@]}" packaging/check.cmd \
  $built/tests/unit_tests.exe $built/tests/contract_tests.exe
gather build/packing/tests/burrowmark-tests/fixtures tests/contract/fixtures/*
x86_64-w64-mingw32-strip build/packing/tests/burrowmark-tests/*_tests.exe
python3 -B packaging/make_zip.py "dist/burrowmark-$version-portable.zip" build/packing/portable
python3 -B packaging/make_zip.py "dist/burrowmark-$version-tests.zip" build/packing/tests

bytes=$(cat dist/burrowmark-setup.exe dist/*-portable.zip | wc -c)
[ "$bytes" -le $most_bytes ] || { say "the set-up and the portable copy have $bytes bytes, more than $most_bytes"; exit 1; }
(cd dist && sha256sum -- *)
say "in dist: set-up and portable copy of $bytes bytes, and the tests"
