"""The editor on a desktop: opening, moving about by mouse and keyboard, what closing leaves behind."""

import os
import stat
import time

import bwmk
from burrowmark import KEY
from editor import FORM, Editor
from harness import BOX_CLASS, wait_for
from test_menu import MenuTest

TREE, LIST, TOOLBAR, STATUS = "SysTreeView32", "SysListView32", "ToolbarWindow32", "msctls_statusbar32"
LAYOUT = KEY + "\\frmOrg"
ROOT, PERSONAL = "Organized Folders", "Personal"


class OrganizeTest(MenuTest):
    """A test case with the editor open over a small tree."""

    def setUp(self):
        super().setUp()
        self.program.make_folders("C:\\Letters", "C:\\Photos", "C:\\Garden")
        self.program.write_tree(bwmk.group("Home", bwmk.folder("Garden", "C:\\Garden")),
                                bwmk.folder("Letters", "C:\\Letters"), bwmk.folder("Photos", "C:\\Photos", True))
        self.tray = self.program.start()
        self.editor = Editor.open(self.program)

    def rename(self, old, new):
        self.editor.click_row(old)
        self.desktop.keys("F2")
        self.desktop.keys("ctrl+a", "text:" + new, "Return")
        wait_for(lambda: new in self.editor.titles(), "the row's new title", 10)

    def close(self):
        self.editor.close()
        self.editor.wait_closed()


class Panes(OrganizeTest):
    def test_the_tree_and_the_list_show_the_groups_and_shortcuts(self):
        self.assertEqual(self.editor.tree(), [(0, ROOT), (1, PERSONAL), (2, "Home"), (3, "Garden"), (2, "Letters"),
                                              (2, "Photos")])
        rows = self.editor.rows()
        self.assertEqual([row[0] for row in rows], ["Home", "Letters", "Photos"])
        self.assertEqual([row[3] for row in rows], ["", "C:\\Letters", "C:\\Photos"])

    def test_the_mouse_goes_down_and_up_and_sorts(self):
        self.editor.click_node(ROOT)
        self.editor.wait_titles([PERSONAL])
        self.editor.click_row(PERSONAL, "double")
        self.editor.wait_titles(["Home", "Letters", "Photos"])
        self.editor.click_row("Home", "double")
        self.editor.wait_titles(["Garden"])
        self.editor.click_node(PERSONAL)
        self.editor.wait_titles(["Home", "Letters", "Photos"])
        left, top, _, bottom = self.editor.child("SysHeader32").rectangle
        header = (left + 40, (top + bottom) // 2)
        self.desktop.click(header)
        time.sleep(0.7)  # two clicks, no double click
        self.desktop.click(header)
        self.editor.wait_titles(["Photos", "Letters", "Home"])

    def test_the_keyboard_alone_is_enough(self):
        self.desktop.driver("activate", self.editor.window.handle)
        wait_for(lambda: self.editor.has_focus(TREE), "the focus in the tree")
        self.desktop.keys("F6")
        wait_for(lambda: self.editor.has_focus(LIST), "the focus in the list")
        self.desktop.keys("Home", "Return")
        self.editor.wait_titles(["Garden"])
        self.desktop.keys("Backspace")
        self.editor.wait_titles(["Home", "Letters", "Photos"])
        self.desktop.keys("alt+v", "o", "n")  # View, Arrange Icons, by Name
        self.desktop.keys("alt+v", "o", "n")
        self.editor.wait_titles(["Photos", "Letters", "Home"])
        self.desktop.keys("F6", "F6", "End", "Apps")
        popup = self.editor.wait_popup()
        self.desktop.keys("Esc")
        self.desktop.wait_gone(popup)

    def test_a_double_click_on_a_shortcut_opens_its_folder(self):
        self.editor.click_row("Photos", "double")
        self.wait_one_command(r"/e,C:\\Photos")

    def test_a_second_command_and_a_click_on_the_tray_bring_the_window_forward(self):
        self.desktop.start("notepad.exe")
        notepad = self.desktop.wait_window("Notepad")
        self.addCleanup(lambda: self.desktop.driver("close", notepad.handle))

        def in_front():
            return next(window.handle for window in self.desktop.windows() if window.class_name in (FORM, "Notepad"))
        wait_for(lambda: in_front() == notepad.handle, "the other window in front")
        self.desktop.click(self.tray)
        wait_for(lambda: in_front() == self.editor.window.handle, "the editor in front")
        self.assertEqual(len(self.desktop.windows(FORM)), 1)


class Closing(OrganizeTest):
    def test_a_change_reaches_the_file_the_menu_and_the_desktop(self):
        self.program.set_option("ADVC2", True)
        self.close()
        self.program.end()
        self.program.set_option("ADVC6", True)
        folder = next(self.desktop.prefix.drive_c.glob("users/*/Desktop")) / "Organized Folders"
        folder.mkdir(parents=True, exist_ok=True)
        self.tray = self.program.start()
        self.editor = Editor.open(self.program)
        self.rename("Letters", "Post")
        self.assertIn("Letters", bwmk.captions(self.program.file))
        self.close()
        self.assertEqual(bwmk.captions(self.program.file), ["Home", "Post", "Photos"])
        wait_for(lambda: (folder / "Post.lnk").exists(), "the link on the Desktop", 10)
        self.assertTrue((folder / "Home" / "Garden.lnk").exists())
        self.assertFalse((folder / "Letters.lnk").exists())
        level = self.open_personal(self.tray)
        entries = level.wait_entries([2, 3, 4])
        self.assertTrue(level.shows_text(entries[1], "Post"))
        self.close_menu()

    def test_a_read_only_file_keeps_the_window(self):
        self.rename("Letters", "Post")
        os.chmod(self.program.file, stat.S_IREAD)
        self.addCleanup(lambda: os.chmod(self.program.file, stat.S_IREAD | stat.S_IWRITE))
        self.editor.close()
        box = self.program.wait_box()
        self.assertIn("File is read-only.", " ".join(self.texts_of(box)))
        self.desktop.keys("Return")
        self.desktop.wait_gone(box)
        self.assertEqual(len(self.desktop.windows(FORM)), 1)
        self.assertIn("Post", self.editor.titles())
        self.assertIn("Letters", bwmk.captions(self.program.file))
        os.chmod(self.program.file, stat.S_IREAD | stat.S_IWRITE)
        self.close()
        self.assertIn("Post", bwmk.captions(self.program.file))

    def test_discarded_changes_are_gone(self):
        self.rename("Letters", "Post")
        self.desktop.keys("alt+f", "c")
        box = self.desktop.wait_window(BOX_CLASS, "Exit Discarding Changes", 10)
        self.desktop.press(box, 6)
        self.editor.wait_closed()
        self.assertIn("Letters", bwmk.captions(self.program.file))

    def test_the_layout_comes_back(self):
        self.desktop.keys("alt+v", "g")  # Large Icons
        self.desktop.keys("alt+v", "s")  # Status Bar
        wait_for(lambda: not self.editor.child(STATUS).visible, "the end of the status bar")
        self.close()
        self.assertEqual(self.desktop.registry_text(LAYOUT, "I2"), "keyViewsIcoLarge")
        before = self.editor.window.rectangle
        self.editor = Editor.open(self.program)
        self.assertEqual(self.editor.window.rectangle, before)
        self.assertFalse(self.editor.child(STATUS).visible)
        self.assertFalse(any(child.class_name == "SysHeader32" and child.visible
                             for child in self.desktop.children(self.editor.window)))
