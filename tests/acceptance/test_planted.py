"""A portable copy lies in a folder that anybody may have put files into: no library is taken from there."""

import re
import shutil
import subprocess

from burrowmark import ProgramTest
from editor import FORM
from harness import REPOSITORY, wait_for

CROSS = "x86_64-w64-mingw32-"
# Wine's own shell library asks for it before the program runs; Windows knows it (KnownDLLs). That it is taken here
# shows that a planted library can be.
CONTROL = "shcore.dll"


def libraries_loaded_later(*programs):
    """What the sources name and the programs don't import; what these import is held by tools/check_program.sh."""
    imports = subprocess.run([CROSS + "objdump", "-p", *programs], check=True, capture_output=True, text=True).stdout
    sources = "".join(path.read_text() for path in (REPOSITORY / "src/platform/win32").rglob("*.[ch]*"))
    imported = {name.lower() for name in re.findall(r"DLL Name: (\S+)", imports)}
    return set(re.findall(r'L"(\w+\.(?:dll|ocx))"', sources)) - imported


class PlantedLibraries(ProgramTest):
    def test_no_library_beside_the_programs_is_taken(self):
        folder, taken = self.program.folder, self.desktop.prefix.drive_c / "taken"
        names = libraries_loaded_later(folder / "burrowmark.exe", folder / "CopyAddress.exe")
        self.assertLessEqual({"mpr.dll", "winmm.dll", "netapi32.dll", CONTROL}, names)
        planted = self.desktop.prefix.folder / "planted.dll"
        subprocess.run([CROSS + "gcc", "-shared", "-nostdlib", "-s", "-Wl,-eDllMain", "-o", planted,
                        REPOSITORY / "tests/acceptance/planted.c", "-lkernel32"], check=True)
        for name in names:
            shutil.copy(planted, folder / name)
        # Left to itself Wine prefers its own; Windows takes what it finds first.
        environment = self.desktop.prefix.environment
        self.addCleanup(environment.update, WINEDLLOVERRIDES=environment["WINEDLLOVERRIDES"])
        late = ",".join(name.removesuffix(".dll") for name in sorted(names - {CONTROL}))
        environment["WINEDLLOVERRIDES"] += ";" + late + "=n,b"
        taken.mkdir()
        self.addCleanup(shutil.rmtree, taken)
        self.start_with()
        for keys, title in (("n", "Network Drives"), ("p", "Personal Network Info")):
            self.desktop.exit_code(self.program.start_second("/OF"))
            self.desktop.wait_window(FORM, "Organize Folders")
            self.desktop.keys("alt+t", keys)
            window = self.desktop.wait_window(FORM, title)
            self.desktop.driver("close", window.handle)
            self.desktop.wait_gone(window)
        copy = self.desktop.start("C:\\Burrowmark\\CopyAddress.exe", "C:\\Some folder")
        self.assertEqual(self.desktop.exit_code(copy), 0)
        self.program.end()
        self.assertEqual({path.name.lower() for path in taken.iterdir()}, {CONTROL})
