"""The editor on a desktop: opening, moving about by mouse and keyboard, what closing leaves behind."""

import os
import stat

import bwmk
from burrowmark import KEY, ProgramTest
from editor import FORM, HEADER, LIST, STATUS, TREE, Editor
from harness import BOX_CLASS, wait_for

OK, YES = 1, 6
ROOT_NODE, PERSONAL = "Organized Folders", "Personal"
TITLES = ("Home", "Letters", "Photos")


class OrganizeTest(ProgramTest):
    """A test case with the editor open over a small tree."""

    def setUp(self):
        super().setUp()
        self.program.make_folders("C:\\Letters", "C:\\Photos", "C:\\Garden")
        self.tray = self.start_with(bwmk.group("Home", bwmk.folder("Garden", "C:\\Garden")),
                                    bwmk.folder("Letters", "C:\\Letters"), bwmk.folder("Photos", "C:\\Photos", True))
        self.editor = Editor.open(self.program)

    def reopen(self):
        """The program once more, and its editor."""
        self.tray = self.program.start()
        self.editor = Editor.open(self.program)


class Panes(OrganizeTest):
    def sort_by_keys(self):
        """View, Arrange Icons, by Name; the second time downwards."""
        self.desktop.keys("alt+v", "o", "n")
        self.desktop.keys("alt+v", "o", "n")
        self.editor.wait_titles(*reversed(TITLES))

    def test_the_mouse_goes_down_and_up_sorts_and_opens(self):
        self.assertEqual(self.editor.tree(), [(0, ROOT_NODE), (1, PERSONAL), (2, "Home"), (3, "Garden"),
                                              (2, "Letters"), (2, "Photos")])
        self.assertEqual([(row[0], row[3]) for row in self.editor.rows()],
                         [("Home", ""), ("Letters", "C:\\Letters"), ("Photos", "C:\\Photos")])
        self.editor.click_node(ROOT_NODE)
        self.editor.wait_titles(PERSONAL)
        self.editor.click_row(PERSONAL, "double")
        self.editor.wait_titles(*TITLES)
        self.editor.click_row("Home", "double")
        self.editor.wait_titles("Garden")
        self.editor.click_node(PERSONAL)
        self.editor.wait_titles(*TITLES)
        self.sort_by_keys()
        self.editor.click_first_header()
        self.editor.wait_titles(*TITLES)
        self.editor.click_row("Photos", "double")
        self.wait_commands("/e,C:\\Photos")

    def test_the_keyboard_alone_is_enough(self):
        self.desktop.driver("activate", self.editor.window.handle)
        self.desktop.wait_focus(self.editor.window, TREE)
        self.desktop.keys("F6")
        self.desktop.wait_focus(self.editor.window, LIST)
        self.desktop.keys("Home", "Return")
        self.editor.wait_titles("Garden")
        self.desktop.keys("Backspace")
        self.editor.wait_titles(*TITLES)
        self.sort_by_keys()
        self.desktop.keys("F6", "F6", "End", "Apps")
        popup = self.editor.wait_popup()
        self.desktop.keys("Esc")
        self.desktop.wait_gone(popup)

    def test_a_click_on_the_tray_icon_brings_the_window_forward(self):
        notepad = self.start_notepad()

        def in_front():
            return next(window.handle for window in self.desktop.windows() if window.class_name in (FORM, "Notepad"))
        wait_for(lambda: in_front() == notepad.handle, "the other window in front")
        self.desktop.click(self.tray)
        wait_for(lambda: in_front() == self.editor.window.handle, "the editor in front")
        self.assertEqual(len(self.desktop.windows(FORM)), 1)


class Closing(OrganizeTest):
    def test_a_change_reaches_the_file_the_menu_and_the_desktop(self):
        self.editor.close_and_wait()
        self.program.end()
        for option in ("ADVC2", "ADVC6"):
            self.program.set_option(option, True)
        folder = self.desktop.prefix.user_folder("Desktop\\Organized Folders")
        folder.mkdir(exist_ok=True)
        self.tray = self.program.start()
        self.editor = Editor.open(self.program)
        self.editor.rename("Letters", "Post")
        self.assertIn("Letters", bwmk.captions(self.program.file))
        self.editor.close_and_wait()
        self.assertEqual(bwmk.captions(self.program.file), ["Home", "Post", "Photos"])
        wait_for(lambda: (folder / "Post.lnk").exists(), "the link on the Desktop", 10)
        self.assertTrue((folder / "Home" / "Garden.lnk").exists())
        self.assertFalse((folder / "Letters.lnk").exists())
        self.open_personal(self.tray).wait_texts(["Home", "Post", "Photos"])

    def test_a_read_only_file_keeps_the_window_and_a_discarded_change_goes(self):
        self.editor.rename("Letters", "Post")
        os.chmod(self.program.file, stat.S_IREAD)
        self.editor.close()
        self.answer("File is read-only.", OK)
        os.chmod(self.program.file, stat.S_IREAD | stat.S_IWRITE)
        self.assertIn("Post", self.editor.titles())
        self.assertIn("Letters", bwmk.captions(self.program.file))
        self.editor.close_and_wait()
        self.assertIn("Post", bwmk.captions(self.program.file))
        self.editor = Editor.open(self.program)
        self.editor.rename("Post", "Mail")
        self.desktop.keys("alt+f", "c")
        self.desktop.press(self.desktop.wait_window(BOX_CLASS, "Exit Discarding Changes", 10), YES)
        self.desktop.wait_gone(self.editor.window)
        self.assertIn("Post", bwmk.captions(self.program.file))

    def test_the_layout_comes_back(self):
        self.desktop.keys("alt+v", "g")  # Large Icons
        self.desktop.keys("alt+v", "s")  # Status Bar
        wait_for(lambda: not self.editor.child(STATUS).visible, "the end of the status bar")
        self.editor.close_and_wait()
        self.assertEqual(self.desktop.registry_text(KEY + "\\frmOrg", "I2"), "keyViewsIcoLarge")
        before = self.editor.window.rectangle
        self.editor = Editor.open(self.program)
        self.assertEqual(self.editor.window.rectangle, before)
        self.assertFalse(self.editor.child(STATUS).visible)
        self.assertFalse(any(child.class_name == HEADER and child.visible
                             for child in self.desktop.children(self.editor.window)))
