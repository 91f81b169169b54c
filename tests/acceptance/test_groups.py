"""What the program makes by itself: the first start's tree, the drives, the system folders; and the hot keys."""

import struct

import bwmk
from burrowmark import GROUP, HELP, OPTIONS, ORGANIZE
from harness import wait_for
from pictures import with_drives
from test_menu import MenuTest

FLOPPY, DISK, NETWORK, DISC, REMOVABLE = 8, 9, 10, 11, 13


def shell_link(target):
    """The bytes of a shortcut file that says no more than its target on a local disk."""
    volume = struct.pack("<IIII", 17, 3, 0, 16) + b"\0"
    path = target.encode("cp1252") + b"\0"
    head = 28
    size = head + len(volume) + len(path) + 1
    info = struct.pack("<IIIIIII", size, head, 1, head, head + len(volume), 0, head + len(volume) + len(path))
    class_id = bytes.fromhex("0114020000000000c000000000000046")
    header = struct.pack("<I", 76) + class_id + struct.pack("<II", 2, 16) + bytes(24) + struct.pack("<III", 0, 0, 1)
    return header + bytes(12) + info + volume + path + b"\0"


class FirstTree(MenuTest):
    def recent(self):
        return next(self.desktop.prefix.drive_c.glob("users/*/AppData/Roaming/Microsoft/Windows/Recent"))

    def captions(self):
        return [record.caption for record in bwmk.read(self.program.file) if record.owner == "MIT_GROUP_USER"]

    def test_recent_documents_bring_their_folders(self):
        self.program.make_folders("C:\\Work\\Letters", "C:\\Work\\Plans")
        (self.desktop.prefix.host_path("C:\\Work\\Letters") / "a.txt").write_text("a")
        links = {"a": "C:\\Work\\Letters\\a.txt", "b": "C:\\Work\\Plans", "c": "C:\\Gone\\x.txt"}
        for name, target in links.items():
            link = self.recent() / (name + ".lnk")
            link.write_bytes(shell_link(target))
            self.addCleanup(link.unlink)
        self.program.start()
        self.assertEqual(sorted(self.captions()), ["Letters", "Plans"])

    def test_without_recent_documents_the_folders_of_the_drives_come(self):
        self.program.start()
        captions = self.captions()
        self.assertIn("C_Burrowmark", captions)
        self.assertIn("C_windows", captions)
        self.assertLessEqual(len(captions), 25)


class SystemFolders(MenuTest):
    def test_the_group_stands_in_menu_and_file(self):
        self.program.set_option("AC0", True)
        tray = self.program.start()
        root = self.program.open_menu(tray)
        root.wait_entries([HELP, GROUP, GROUP, OPTIONS, ORGANIZE])
        records = bwmk.read(self.program.file)
        paths = {record.caption: record.folder for record in records if record.owner == "MIT_PATHS_SYSTEM_W"}
        self.assertEqual(paths.get("System32", "").lower(), "c:\\windows\\system32")
        self.assertIn("Fonts", paths)
        for path in paths.values():
            self.assertTrue(self.is_folder(path), path)

    def is_folder(self, path):
        """True if drive C has the folder, in whatever letter case."""
        place = self.desktop.prefix.drive_c
        for name in path.split("\\")[1:]:
            place = next((entry for entry in place.iterdir() if entry.name.lower() == name.lower()), None)
            if place is None:
                return False
        return place.is_dir()


def with_a_label_and_a_missing_medium(desktop):
    with_drives(desktop)
    (desktop.prefix.folder / "drive_e" / ".windows-label").write_text("Holiday\n")
    (desktop.prefix.path / "dosdevices" / "v:").symlink_to(desktop.prefix.folder / "not there")
    desktop.prefix.add_registry("Software\\Wine\\Drives", {"v:": "floppy"}, machine=True)


class Drives(MenuTest):
    prepare = staticmethod(with_a_label_and_a_missing_medium)

    def test_every_kind_of_drive_has_its_entry(self):
        self.program.set_option("AC1", True)
        self.program.write_tree(bwmk.folder("One", "C:\\One"))
        root = self.program.open_menu(self.program.start())
        drives = root.open_level(root.wait_entries([HELP, GROUP, GROUP, OPTIONS, ORGANIZE])[2])
        entries = drives.wait_entries([FLOPPY, DISK, DISK, DISC, NETWORK, REMOVABLE, REMOVABLE, DISK])
        texts = ("A: (3.5-Inch Floppy Disk)", "C:", "D:", "E: (Holiday)", "N:", "U: (Removable Disk)",
                 "V: (Removable Disk)", "Z:")
        for entry, text in zip(entries, texts):
            self.assertTrue(drives.shows_text(entry, text), text)


class ComingDrives(MenuTest):
    def drives(self, tray, icons):
        root = self.program.open_menu(tray)
        level = root.open_level(root.wait_entries([HELP, GROUP, GROUP, OPTIONS, ORGANIZE])[2])
        entries = level.wait_entries(icons)
        shown = [text for entry, text in zip(entries, self.texts) if level.shows_text(entry, text)]
        self.desktop.keys("Esc", "Esc")
        self.program.wait_no_menu()
        return shown

    def test_drives_come_and_go_between_two_openings(self):
        self.program.set_option("AC1", True)
        self.program.write_tree(bwmk.folder("One", "C:\\One"))
        tray = self.program.start()
        self.texts = ["C:", "Z:"]
        self.assertEqual(self.drives(tray, [DISK, DISK]), self.texts)
        folder = self.desktop.prefix.folder / "drive_q"
        folder.mkdir()
        self.desktop.driver("add-drive", "q", folder)
        self.texts = ["C:", "Q:", "Z:"]
        self.assertEqual(self.drives(tray, [DISK, DISK, DISK]), self.texts)
        self.desktop.driver("remove-drive", "q")
        self.texts = ["C:", "Z:"]
        self.assertEqual(self.drives(tray, [DISK, DISK]), self.texts)


class HotKeys(MenuTest):
    def start_with_hot_keys(self):
        self.program.set_option("ADVC7", True)
        self.program.make_folders("C:\\Five", "C:\\Other", "C:\\Six")
        self.program.write_tree(bwmk.folder("Five", "C:\\Five", hot_key=53), bwmk.folder("Six", "C:\\Six", hot_key=54),
                                bwmk.folder("Other", "C:\\Other", hot_key=53))
        self.program.start()

    def test_shift_ctrl_digit_opens_every_item_of_its_code_while_another_program_has_the_focus(self):
        self.start_with_hot_keys()
        self.desktop.start("notepad.exe")
        notepad = self.desktop.wait_window("Notepad")
        self.addCleanup(lambda: self.desktop.driver("close", notepad.handle))
        self.desktop.click(notepad.middle)
        self.desktop.keys("ctrl+6")
        self.desktop.keys("shift+ctrl+5")
        wait_for(lambda: len(self.program.folder_commands()) == 2, "two folder windows' processes")
        commands = " ".join(sorted(self.program.folder_commands()))
        self.assertIn("C:\\Five", commands)
        self.assertIn("C:\\Other", commands)
        self.assertNotIn("C:\\Six", commands)
