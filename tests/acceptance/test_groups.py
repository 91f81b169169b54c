"""What the program makes by itself: the first start's tree, the drives, the system folders; and the hot keys."""

import struct

import bwmk
from burrowmark import ROOT, ProgramTest
from harness import wait_for


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


class FirstStart(ProgramTest):
    def test_recent_documents_bring_their_folders(self):
        self.program.make_folders("C:\\Work\\Letters", "C:\\Work\\Plans")
        (self.desktop.prefix.host_path("C:\\Work\\Letters") / "a.txt").write_text("a")
        recent = self.desktop.prefix.user_folder("AppData\\Roaming\\Microsoft\\Windows\\Recent")
        for name, target in (("a", "Work\\Letters\\a.txt"), ("b", "Work\\Plans"), ("c", "Gone\\x.txt")):
            link = recent / (name + ".lnk")
            link.write_bytes(shell_link("C:\\" + target))
            self.addCleanup(link.unlink)
        self.program.file.write_bytes(b"")  # as good as none
        tray = self.program.start()
        self.assertEqual(sorted(bwmk.captions(self.program.file)), ["Letters", "Plans"])
        before = self.program.file.read_bytes()
        self.program.end()
        tray = self.program.start()
        self.open_personal(tray).wait_texts(bwmk.captions(self.program.file))
        self.assertEqual(self.program.file.read_bytes(), before, "a start leaves a good file as it was")

    def test_without_recent_documents_the_folders_of_the_drives_come(self):
        self.assertFalse(self.program.file.exists())
        self.open_root(self.program.start())
        captions = bwmk.captions(self.program.file)
        self.assertIn("C_Burrowmark", captions)
        self.assertIn("C_windows", captions)
        self.assertLessEqual(len(captions), 25)


class SystemFolders(ProgramTest):
    def test_the_group_stands_in_menu_and_file(self):
        self.program.set_option("AC0", True)
        root = self.program.open_menu(self.program.start())
        texts = [entry.text for entry in wait_for(root.entries, "the entries") if not entry.separator]
        self.assertEqual([text for text in texts if text in ROOT], ROOT)
        self.assertEqual(len(texts), 5)
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


class Drives(ProgramTest):
    def wait_drives(self, tray, texts):
        root = self.program.open_menu(tray)
        entries = [entry for entry in wait_for(root.entries, "the entries") if entry.group]
        root.open_level(entries[1]).wait_texts(texts)
        self.close_menu()

    def test_every_kind_of_drive_has_its_entry_and_drives_come_and_go(self):
        self.program.set_option("AC1", True)
        tray = self.start_with(bwmk.folder("One", "C:\\One"))
        drives = ["A: (3.5-Inch Floppy Disk)", "C:", "D:", "E: (Holiday)", "N:", "U: (Removable Disk)",
                  "V: (Removable Disk)", "Z:"]
        self.wait_drives(tray, drives)
        folder = self.desktop.prefix.folder / "drive_q"
        folder.mkdir()
        self.desktop.driver("add-drive", "q", folder)
        try:
            self.wait_drives(tray, drives[:5] + ["Q:"] + drives[5:])
        finally:
            self.desktop.driver("remove-drive", "q")
        self.wait_drives(tray, drives)


class HotKeys(ProgramTest):
    def test_shift_ctrl_digit_opens_every_item_of_its_code_while_another_program_has_the_focus(self):
        self.program.set_option("ADVC7", True)
        self.program.make_folders("C:\\Five", "C:\\Other", "C:\\Six")
        self.start_with(bwmk.folder("Five", "C:\\Five", hot_key=53), bwmk.folder("Six", "C:\\Six", hot_key=54),
                        bwmk.folder("Other", "C:\\Other", hot_key=53))
        self.start_notepad()
        self.desktop.keys("ctrl+6")
        self.desktop.keys("shift+ctrl+5")
        self.wait_commands("C:\\Five", "C:\\Other")
