"""The tools of the editor on a desktop."""

import bwmk
from editor import LIST, ListWindow
from harness import wait_for
from test_organize import OK, YES, OrganizeTest


class ShortcutsList(OrganizeTest):
    def test_a_renamed_one_stays_the_dead_go_and_the_menu_follows(self):
        self.desktop.prefix.host_path("C:\\Photos").rmdir()
        self.desktop.keys("alt+t", "v")
        shown = ListWindow(self.desktop, "Folder Shortcuts List", 10)
        wait_for(lambda: [row[:2] for row in shown.rows()] ==
                 [["Garden", "Valid"], ["Letters", "Valid"], ["Photos", "Invalid"]], "what each folder is", 10)
        shown.click_first_header()
        shown.wait_titles("Photos", "Letters", "Garden")
        shown.rename("Letters", "Post")
        self.desktop.wait_focus(shown.window, LIST)
        self.desktop.keys("ctrl+f")
        self.answer("Do you want to delete all folder shortcuts with invalid target locations?", YES)
        self.answer("All folder shortcuts with invalid target locations have been deleted.", OK)
        shown.wait_titles("Post", "Garden")
        self.desktop.keys("Esc")
        self.desktop.wait_gone(shown.window)
        self.editor.wait_titles("Home", "Post")
        self.editor.close_and_wait()
        self.assertEqual(bwmk.captions(self.program.file), ["Home", "Post"])
        self.open_personal(self.tray).wait_texts(["Home", "Post"])
