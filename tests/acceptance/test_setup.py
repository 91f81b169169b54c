"""The set-up as a user meets it: installing, starting, upgrading, and what is left after removing it."""

import os
import shutil
import signal

import bwmk
from burrowmark import KEY
from editor import FORM, TITLE, ListWindow
from harness import REPOSITORY, DesktopTest, wait_for

SETUP = REPOSITORY / "dist/burrowmark-setup.exe"
CLASSES = "Software\\Classes\\"
RUN = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
SETTINGS = KEY + "\\Settings"
OWN_FILES = {"burrowmark.exe", "Burrowmark.chm", "CopyAddress.exe", "BWMK.ico", "TIPOFDAY.TXT", "filecopy.avi", "folder_report.css",
             "uninstall.exe"}
DESKTOP_INI = "[.ShellClassInfo]\r\nIconFile = \"%s\"\r\nIconIndex = 0\r\nConfirmFileOp = 0\r\nOriginalIcon = %%\r\n" \
              "InfoTip = Contains shortcuts to your favorite folders.\r\n"


class SetUp(DesktopTest):
    def setUp(self):
        self.prefix = self.desktop.prefix
        self.users = self.prefix.user_folder("")
        self.folder = self.users / "AppData/Local/Programs/Burrowmark"
        self.link = self.users / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Burrowmark.lnk"
        self.process = None
        shutil.copy(SETUP, self.prefix.drive_c / "setup.exe")
        self.desktop.driver("delete-key", "Software\\Kestrelan")
        self.addCleanup(self.end)
        self.assertEqual(self.install(), 0)

    def end(self):
        self.end_program()
        for copy in self.prefix.drive_c.rglob("uninstall.exe"):
            self.uninstall(copy.parent)
        for folder in (self.folder, self.prefix.drive_c / "Elsewhere", self.prefix.drive_c / "Trees"):
            shutil.rmtree(folder, ignore_errors=True)

    def windows_path(self, path):
        return "C:\\" + str(path.relative_to(self.prefix.drive_c)).replace("/", "\\")

    def install(self, *words):
        return self.desktop.exit_code(self.desktop.start("C:\\setup.exe", "/S", *words), 60)

    def uninstall(self, folder):
        """In place, so that its end can be waited for; then the one file that it can't delete so."""
        place = self.windows_path(folder)
        code = self.desktop.exit_code(self.desktop.start(place + "\\uninstall.exe", "/S", "_?=" + place), 60)
        (folder / "uninstall.exe").unlink(missing_ok=True)
        return code

    def names(self, folder):
        return {path.name for path in folder.iterdir()} if folder.exists() else set()

    def programs(self):
        return self.prefix.processes("burrowmark.exe")

    def wait_tray_icon(self):
        return wait_for(self.desktop.find_tray_icon, "the icon in the task bar", 20)

    def end_program(self):
        if self.programs():
            self.desktop.exit_code(self.desktop.start(self.windows_path(self.folder) + "\\burrowmark.exe", "/EXIT"))
        wait_for(lambda: not self.programs() and self.desktop.find_tray_icon() is None, "the end of the program")

    def text(self, key, name=""):
        return self.desktop.registry_text(key, name)

    def test_from_the_first_start_to_the_last_file(self):
        self.assertEqual(self.names(self.folder), OWN_FILES)
        self.assertEqual([self.text(SETTINGS, name) for name in ("AFTINST", "TIP", "ADVC0")], ["-1", "-1", None])
        self.assertIsNone(self.text(RUN, "Burrowmark"))
        self.desktop.driver("write-value", SETTINGS, "AC0", "0")  # the file below has no such group, and a box would say so
        self.desktop.start("start", self.windows_path(self.link))
        self.wait_tray_icon()
        tree = self.prefix.drive_c / "Trees/other.bwmk"
        tree.parent.mkdir()
        bwmk.write(tree, [bwmk.group("From elsewhere")])
        # Wine's shell doesn't look at a user's own classes, so the keys are followed here.
        command = self.text(CLASSES + self.text(CLASSES + ".bwmk") + "\\shell\\open\\command")
        exe, option, place = command.replace("%1", self.windows_path(tree)).rsplit(" ", 2)
        self.desktop.start(exe.strip('"'), option, place)
        tip = self.desktop.wait_window(FORM, "Tip of the Day")
        self.desktop.driver("close", tip.handle)
        self.desktop.wait_gone(tip)
        editor = ListWindow(self.desktop, TITLE + " - other.bwmk")
        editor.wait_titles("From elsewhere")
        old = self.programs()[0].pid
        self.assertEqual(self.install(), 0)
        wait_for(lambda: self.programs() and old not in [program.pid for program in self.programs()], "the new program")
        self.wait_tray_icon()
        kept = tree.read_bytes()
        self.assertEqual(self.uninstall(self.folder), 0)
        self.assertEqual(self.programs(), [])
        self.assertEqual(self.names(self.folder), {"default.bwmk"})
        self.assertEqual(tree.read_bytes(), kept)
        self.assertFalse(self.link.exists())
        for key, name in ((KEY, "HWND"), (SETTINGS, "TIP"), (CLASSES + ".bwmk", ""), (CLASSES + "Burrowmark", ""),
                          ("Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Burrowmark", "DisplayName")):
            self.assertIsNone(self.text(key, name), key)

    def test_a_program_that_does_not_end_stops_it_with_nothing_touched(self):
        self.desktop.start("start", self.windows_path(self.link))
        self.wait_tray_icon()
        (self.folder / "TIPOFDAY.TXT").write_text("as it was")
        process = self.programs()[0].pid
        os.kill(process, signal.SIGSTOP)
        try:
            self.assertEqual(self.install(), 3)
        finally:
            os.kill(process, signal.SIGCONT)
        self.assertEqual((self.folder / "TIPOFDAY.TXT").read_text(), "as it was")
        self.assertEqual(self.names(self.folder), OWN_FILES | {"default.bwmk"})

    def test_an_upgrade_into_another_folder_takes_along_what_is_on(self):
        (self.folder / "default.bwmk").write_text("the user's")
        for option in ("ADVC0", "ADVC1"):
            self.desktop.driver("write-value", SETTINGS, option, "-1")
        root = self.users / "Desktop/Organized Folders"
        root.mkdir()
        self.addCleanup(shutil.rmtree, root, ignore_errors=True)
        (root / "Desktop.ini").write_bytes((DESKTOP_INI % "C:\\Old\\burrowmark.exe").encode())
        self.assertEqual(self.install("/D=C:\\Elsewhere"), 0)
        exe = '"C:\\Elsewhere\\burrowmark.exe"'
        self.assertEqual(self.text(RUN, "Burrowmark"), exe)
        self.assertEqual(self.text(CLASSES + "Directory\\shell\\Organize Folder\\command"), exe + " /ADD %L")
        self.assertEqual(self.text(CLASSES + "*\\shell\\Copy Address\\command"), '"C:\\Elsewhere\\CopyAddress.exe" %L')
        self.assertEqual(self.text(CLASSES + "Burrowmark\\shell\\open\\command"), exe + " /OPEN %1")
        self.assertEqual((root / "Desktop.ini").read_bytes().decode(), DESKTOP_INI % exe.strip('"'))
        self.assertEqual(self.text(SETTINGS, "ConfigFile"), self.windows_path(self.folder) + "\\default.bwmk")
        self.assertEqual(self.names(self.folder), {"default.bwmk"})
        self.assertEqual(self.uninstall(self.prefix.drive_c / "Elsewhere"), 0)
        self.assertIsNone(self.text(RUN, "Burrowmark"))
        self.assertIsNone(self.text(CLASSES + "Directory\\shell\\Organize Folder\\command"))
        self.assertFalse(root.exists())

    def test_removing_it_leaves_what_others_put_in_its_places(self):
        self.desktop.driver("write-value", SETTINGS, "ADVC2", "-1")
        target = self.prefix.drive_c / "Trees/Target"
        target.mkdir(parents=True)
        bwmk.write(self.folder / "default.bwmk", [bwmk.group("G", bwmk.folder("S", "C:\\Trees\\Target"))])
        self.desktop.start("start", self.windows_path(self.link))
        self.wait_tray_icon()
        root = self.users / "Desktop/Organized Folders"
        self.addCleanup(shutil.rmtree, root, ignore_errors=True)
        self.assertTrue((root / "G/S.lnk").exists())
        shutil.copy(self.link, root / "G/mine.lnk")
        # Values that lead elsewhere: to a folder of another name, and to one of that name that isn't the program's.
        other, named = self.prefix.drive_c / "Trees/Other", self.prefix.drive_c / "Trees/Organized Folders"
        for folder, value in ((other, "DirSendTo"), (named, "DirFavorites")):
            folder.mkdir()
            shutil.copy(root / "G/S.lnk", folder)
            self.desktop.driver("write-value", SETTINGS, value, self.windows_path(folder))
        shutil.copy(root / "Desktop.ini", other)
        (named / "Desktop.ini").write_text("[.ShellClassInfo]\r\n")
        self.desktop.driver("write-value", RUN, "Burrowmark", '"C:\\Other\\burrowmark.exe"')
        self.desktop.driver("write-value", CLASSES + ".bwmk", "", "Other")
        (self.folder / "letter.txt").write_text("the user's")
        self.assertEqual(self.uninstall(self.folder), 0)
        self.assertEqual(self.names(self.folder), {"default.bwmk", "letter.txt"})
        self.assertEqual(sorted(path.name for path in root.rglob("*")), ["G", "mine.lnk"])
        self.assertEqual([self.names(folder) for folder in (other, named)], [{"S.lnk", "Desktop.ini"}] * 2)
        self.assertEqual(self.text(RUN, "Burrowmark"), '"C:\\Other\\burrowmark.exe"')
        self.assertEqual(self.text(CLASSES + ".bwmk"), "Other")
        self.desktop.driver("delete-key", CLASSES + ".bwmk")
