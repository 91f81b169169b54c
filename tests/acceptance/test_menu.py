"""The roads that begin at the tray icon: the drawn menu, its actions, the keyboard, hand-over from other processes."""

import bwmk
from burrowmark import (DOUBLE, ENTRY_HEIGHT, GROUP, HELP, KEY, OPTIONS, ORGANIZE, ROOT, SEPARATOR_HEIGHT, ProgramTest)
from harness import BOX_CLASS, LAST, MENU_CLASS, wait_for

OK, YES, NO, CANCEL = 1, 6, 7, 2


def question(path):
    return ("Path '%s' does not exist or is not a directory. Do you want to delete the shortcut from the list?" % path)


class DrawnMenu(ProgramTest):
    def test_a_click_on_the_tray_icon_opens_a_menu_with_the_entries_of_the_file(self):
        tray = self.start_with(bwmk.group("Nested", bwmk.folder("Deep", "C:\\Deep", True)), bwmk.open_all(),
                               bwmk.folder("Single", "C:\\One"), bwmk.folder("Double café", "C:\\Two", True))
        self.desktop.pointer.move((1, 1))  # it may be there already
        self.desktop.pointer.move(tray)
        self.desktop.wait_window("tooltips_class32", "Burrowmark")
        root, _ = self.open_root(tray)
        self.assertEqual([bool(entry.separator) for entry in root.entries()], [False, True, False, True, False, False])
        self.close_menu()
        root = self.program.open_menu(tray, "right")
        level = root.open_level(root.wait_texts(ROOT)[1])
        entries = level.wait_texts(["Nested", "Open-All", "Single", "Double café"])
        self.assertEqual([entry.group for entry in entries], [True, False, False, False])
        level.open_level(entries[0]).wait_texts(["Deep"])

    def check_drawing(self):
        """Every entry has its height on this desktop, and its icon and a text in the picture of the screen."""
        tray = self.start_with(bwmk.folder("One", "C:\\One"))
        root, entries = self.open_root(tray)
        self.desktop.pointer.move((5, 5))
        wait_for(lambda: not any(entry.selected for entry in root.entries()), "no entry selected")
        for entry, number in zip(entries, (HELP, GROUP, OPTIONS, ORGANIZE)):
            wait_for(lambda: root.icon_place(self.desktop.picture(), entry, number), "the icon of " + entry.text, 10)
            wait_for(lambda: root.shows_text(self.desktop.picture(), entry), "the text of " + entry.text, 10)
        for entry in root.entries():
            height = SEPARATOR_HEIGHT if entry.separator else ENTRY_HEIGHT
            drawn = entry.rectangle[3] - entry.rectangle[1]
            self.assertLessEqual(abs(drawn - height * self.dpi / 96), 0.5, entry)
        self.assertIsNone(root.icon_place(self.desktop.picture(), entries[0], DOUBLE))

    def test_the_menu_is_drawn(self):
        self.check_drawing()


class ScaledMenu(DrawnMenu):
    turn = LAST
    size = (1536, 1152)
    dpi = 144
    test_a_click_on_the_tray_icon_opens_a_menu_with_the_entries_of_the_file = None


class Actions(ProgramTest):
    def test_a_click_on_a_shortcut_opens_its_folder(self):
        self.program.make_folders("C:\\Work\\Plans", "C:\\Work\\Letters")
        tray = self.start_with(bwmk.folder("My plans", "C:\\Work\\Plans"),
                               bwmk.folder("My letters", "C:\\Work\\Letters", True))
        level = self.open_personal(tray)
        entries = level.wait_texts(["My plans", "My letters"])
        level.click(entries[0], "right")
        # A left click behind it is answered after it: had the right one opened the folder too, there would be two.
        self.assertIn(level.window.handle, [window.handle for window in self.desktop.windows(MENU_CLASS)])
        level.click(entries[0])
        self.program.wait_folder_window("Plans")
        level = self.open_personal(tray)
        level.click(level.wait_texts(["My plans", "My letters"])[1])
        self.program.wait_folder_window("Letters")
        self.wait_commands("C:\\Work\\Plans", "/e,C:\\Work\\Letters")

    def test_a_dead_shortcut_goes_from_menu_and_file_only_after_yes(self):
        tray = self.start_with(bwmk.folder("Gone", "C:\\Gone"), bwmk.folder("Other", "C:\\Other", True))
        before = self.program.file.read_bytes()
        for answer in (NO, CANCEL, YES):
            level = self.open_personal(tray)
            entries = level.wait_texts(["Gone", "Other"])
            self.assertEqual(self.program.file.read_bytes(), before)
            level.click(entries[0])
            self.answer(question("C:\\Gone"), answer)
        self.wait_file(["Other"])
        self.open_personal(tray).wait_texts(["Other"])
        self.assertEqual(self.program.folder_commands(), [])

    def test_open_all_opens_the_living_and_removes_the_dead(self):
        self.program.make_folders("C:\\Alpha", "C:\\Beta")
        tray = self.start_with(
            bwmk.open_all(), bwmk.folder("Alpha", "C:\\Alpha"), bwmk.folder("Dead 1", "C:\\Dead1"),
            bwmk.folder("Beta", "C:\\Beta", True), bwmk.folder("Dead 2", "C:\\Dead2"),
            bwmk.group("Nested", bwmk.folder("Deep", "C:\\Deep")))
        level = self.open_personal(tray)
        level.click(level.wait_texts(["Open-All", "Alpha", "Dead 1", "Beta", "Dead 2", "Nested"])[0])
        for path in ("C:\\Dead1", "C:\\Dead2"):
            self.answer(question(path), YES)
        self.program.wait_folder_window("Alpha")
        self.program.wait_folder_window("Beta")
        living = ["Open-All", "Alpha", "Beta", "Nested"]
        self.wait_file(living)
        self.wait_commands("C:\\Alpha", "/e,C:\\Beta")
        self.open_personal(tray).wait_texts(living)


class Keyboard(ProgramTest):
    def test_keys_move_open_and_close(self):
        self.program.make_folders("C:\\Bee")
        tray = self.start_with(bwmk.folder("Ant", "C:\\Ant"), bwmk.folder("Bear", "C:\\Bear"),
                               bwmk.folder("Bee", "C:\\Bee"))
        root, _ = self.open_root(tray)
        for text in ROOT:  # separators are stepped over
            self.desktop.keys("Down")
            root.wait_selected(text)
        self.desktop.keys("Up", "Up")
        root.wait_selected("Personal")
        self.desktop.keys("Right")
        level = root.wait_level()
        self.desktop.keys("Esc")
        self.desktop.wait_gone(level.window)
        self.assertEqual(len(self.desktop.windows(MENU_CLASS)), 1)
        self.desktop.keys("Esc")
        self.program.wait_no_menu()
        # By first letters.
        root, _ = self.open_root(tray)
        self.desktop.keys("p")
        root.wait_selected("Personal")
        self.desktop.keys("Return")
        level = root.wait_level()
        level.wait_selected("Ant")
        for text in ("Bear", "Bee"):
            self.desktop.keys("b")
            level.wait_selected(text)
        self.desktop.keys("Return")
        self.program.wait_folder_window("Bee")


class HandOver(ProgramTest):
    def test_commands_of_other_processes_arrive_and_exit_ends_both(self):
        tray = self.start_with()
        self.assertEqual(self.desktop.exit_code(self.program.start_second()), 0)
        self.assertIsNone(self.desktop.registry_text(KEY, "TRANSFER"), "without a command nothing is handed over")
        self.desktop.exit_code(self.program.start_second("/exit"))  # known in its own letters only
        wait_for(lambda: self.desktop.registry_text(KEY, "TRANSFER") == "/exit", "the handed-over text")
        # A menu that opens now was asked for behind the command, so that one has been dealt with.
        self.open_root(tray)
        self.close_menu()
        names = ["one.bwmk", "two.bwmk", "three.bwmk"]
        for second in [self.program.start_second("/OPEN", "C:\\" + name) for name in names]:
            self.assertEqual(self.desktop.exit_code(second), 0)
        # Each names a file that isn't there, and the editor says so of each.
        told = ""
        for _ in names:  # one box after the other
            wait_for(lambda: len(self.desktop.windows(BOX_CLASS)) == 1, "a box")
            box = self.desktop.windows(BOX_CLASS)[0]
            told += self.texts_of(box)
            self.desktop.press(box, OK)
            self.desktop.wait_gone(box)
        for name in names:
            self.assertIn("Error opening configuration file " + name, told)
        self.assertEqual(len(self.desktop.prefix.processes("burrowmark.exe")), 1)
        self.assertEqual(self.desktop.exit_code(self.program.start_second("/EXIT")), 0)
        self.assertEqual(self.desktop.exit_code(self.program.process), 0)
        wait_for(lambda: self.desktop.find_tray_icon() is None, "the task bar without the icon")
