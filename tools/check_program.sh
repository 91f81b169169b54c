#!/usr/bin/env bash
# Checks a program file: its size, hardening flags, a manifest, and that it imports only libraries that Windows takes
# from its own folder whatever lies beside the program: those it knows (KnownDLLs), and COMCTL32, which the manifest names.
# Usage: FILE MOST_BYTES WORD_OF_MANIFEST...
set -euo pipefail
exe=$1 most=$2
shift 2
name=$(basename "$exe")
bad=0
complain() { printf '%s: %s\n' "$name" "$*"; bad=1; }

size=$(stat -c %s "$exe")
[ "$size" -le "$most" ] || complain "$size bytes, more than $most"

facts=$(x86_64-w64-mingw32-objdump -p "$exe")
system='^(ADVAPI32|COMCTL32|GDI32|KERNEL32|msvcrt|ole32|OLEAUT32|SHELL32|SHLWAPI|USER32|WS2_32)\.dll$'
foreign=$(sed -n 's/.*DLL Name: //p' <<<"$facts" | grep -viE "$system" || true)
[ -z "$foreign" ] || complain "needs $foreign"

for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do
  grep -q "$flag" <<<"$facts" || complain "without $flag"
done

for word in "$@"; do
  grep -qaF "$word" "$exe" || complain "its manifest doesn't say $word"
done
[ $bad -eq 0 ] && printf '%s: %d bytes, system libraries alone, hardened, with its manifest\n' "$name" "$size"
exit $bad
