"""Building and rearranging the tree in the editor, and what the file and the menu hold afterwards."""

import time

import bwmk
from editor import FORM, LIST, TREE, ListWindow
from harness import BOX_CLASS, wait_for
from test_organize import TITLES, OrganizeTest

YES = 6


class EditTest(OrganizeTest):
    def keys(self, *words):
        self.desktop.keys(*words)

    def dialog(self, title):
        return self.desktop.wait_window(FORM, title, 10)

    def select(self, row):
        self.editor.click_row(row)
        wait_for(lambda: row in self.editor.selected(), "the row %r selected" % row, 10)

    def show(self, group):
        self.editor.click_node(group)
        self.desktop.wait_focus(self.editor.window, TREE)

    def take_back(self, *titles):
        self.keys("ctrl+z")
        self.editor.wait_titles(*titles)

    def file_after_closing(self, owner="MIT_GROUP_USER"):
        self.editor.close_and_wait()
        return bwmk.captions(self.program.file, owner)


class ByKeyboard(EditTest):
    def test_a_shortcut_and_a_group_are_made_and_found_in_the_menu(self):
        self.show("Personal")
        self.keys("ctrl+n")
        dialog = self.dialog("New Item")
        self.desktop.wait_focus(dialog, "Edit")
        self.keys("text:C:\\Garden", "alt+c", "Down", "Down", "alt+d", "text:Where it grows", "Return")
        self.desktop.wait_gone(dialog)
        self.editor.wait_titles("Home", "Letters", "Photos", "Garden")
        self.assertEqual(self.editor.rows()[-1][2:5], ["Shift+Ctrl+1", "C:\\Garden", "Where it grows"])
        self.keys("Insert")
        dialog = self.dialog("New Item")
        self.desktop.wait_focus(dialog, "Edit")
        self.keys("alt+t", "Home", "alt+n", "text:Work", "alt+d", "Return")
        self.desktop.wait_gone(dialog)
        self.editor.wait_titles("Home", "Letters", "Photos", "Garden", "Work")
        self.assertEqual(self.file_after_closing(), ["Home", "Work", "Garden", "Letters", "Photos"])
        self.assertEqual([record.keyboard_code for record in bwmk.read(self.program.file)
                          if record.caption == "Garden" and record.owner == "MIT_GROUP_USER"], ["49"])
        self.open_personal(self.tray).wait_texts(["Home", "Work", "Garden", "Letters", "Photos"])

    def test_the_picker_gives_a_folder(self):
        self.show("Personal")
        self.keys("ctrl+n")
        dialog = self.dialog("New Item")
        self.desktop.wait_focus(dialog, "Edit")
        self.keys("alt+b")
        picker = self.dialog("Browse for Target Location")
        self.desktop.wait_focus(picker, TREE)
        self.keys("alt+f", "ctrl+a", "text:C:\\Nowhere", "Return")
        box = self.desktop.wait_window(BOX_CLASS, "Burrowmark", 10)
        self.assertIn("The specified path does not exist.", self.texts_of(box))
        self.keys("Return")
        self.desktop.wait_gone(box)
        self.keys("ctrl+a", "text:C:\\Garden", "Return")
        self.desktop.wait_gone(picker)
        self.keys("alt+d", "Return")
        self.desktop.wait_gone(dialog)
        self.editor.wait_titles("Home", "Letters", "Photos", "Garden")

    def test_a_shortcut_becomes_a_group_that_can_be_entered(self):
        self.select("Letters")
        self.keys("F4")
        dialog = self.dialog("Change Shortcut Letters")
        self.desktop.wait_focus(dialog, "Edit")
        self.keys("alt+t", "Home", "alt+d", "Return")
        self.desktop.wait_gone(dialog)
        wait_for(lambda: self.editor.titles() == ["Home", "Photos", "Letters"], "the group at the end of the rows", 10)
        self.keys("Return")
        self.editor.wait_titles()
        self.show("Personal")
        self.editor.wait_titles("Home", "Letters", "Photos")
        self.keys("ctrl+z")
        wait_for(lambda: [row[3] for row in self.editor.rows()] == ["", "C:\\Letters", "C:\\Photos"],
                 "the shortcut with its folder", 10)


class Carrying(EditTest):
    def test_what_is_cut_is_in_the_file_once(self):
        self.select("Letters")
        self.keys("ctrl+x")
        self.show("Home")
        self.keys("ctrl+v")
        self.editor.wait_titles("Garden", "Letters")
        self.take_back("Garden")
        self.show("Personal")
        self.editor.wait_titles(*TITLES)
        self.select("Letters")
        self.keys("ctrl+x")
        self.show("Home")
        self.keys("ctrl+v")
        self.editor.wait_titles("Garden", "Letters")
        self.assertEqual(self.file_after_closing(), ["Home", "Photos"])
        self.assertEqual(self.file_captions().count("Letters"), 1)

    def file_captions(self):
        return [record.caption for record in bwmk.read(self.program.file)]

    def test_copies_have_titles_of_their_own_and_a_clash_is_asked_about(self):
        self.select("Letters")
        self.keys("ctrl+c", "ctrl+v", "ctrl+v")
        self.editor.wait_titles("Home", "Letters", "Photos", "Copy of Letters", "Copy (1) of Letters")
        self.show("Home")
        self.keys("ctrl+v")
        self.editor.wait_titles("Garden", "Letters")
        for key, titles in (("Esc", ("Garden", "Letters")), ("Return", ("Garden", "Letters", "Letters2")),
                            ("alt+r", ("Garden", "Letters2", "Letters"))):
            self.keys("ctrl+v")
            dialog = self.dialog("Replace or Rename Existing Item")
            self.keys(key)
            self.desktop.wait_gone(dialog)
            self.editor.wait_titles(*titles)

    def test_deleting_asks_unless_that_is_off(self):
        self.select("Photos")
        self.keys("Delete")
        self.desktop.press(self.desktop.wait_window(BOX_CLASS, "Confirm Delete", 10), YES)
        self.editor.wait_titles("Home", "Letters")
        self.take_back("Home", "Letters", "Photos")
        self.editor.close_and_wait()
        self.program.end()
        self.program.set_option("GC0", False)
        self.reopen()
        self.show("Personal")
        self.keys("F6")
        self.desktop.wait_focus(self.editor.window, LIST)
        self.keys("ctrl+a", "Delete")
        self.editor.wait_titles()
        self.take_back("Home", "Letters", "Photos")

    def test_targets_are_copied_for_other_programs(self):
        self.select("Letters")
        for entry in ("a", "c"):
            self.keys("alt+e", "l", entry)
            wait_for(lambda: self.desktop.driver("clipboard")[0]["text"] == "C:\\Letters\r\n", "the path", 10)
            self.editor.click_node("Personal")
            self.select("Letters")

    def test_a_hot_key_given_in_the_properties_works_at_once(self):
        self.editor.close_and_wait()
        self.program.end()
        self.program.set_option("ADVC7", True)
        self.reopen()
        self.select("Photos")
        self.keys("alt+Return")
        properties = self.dialog("Properties")
        self.keys("alt+h")
        change = self.dialog("Change Shortcut Photos")
        self.keys("alt+c", "Down", "Down", "Down", "alt+d", "Return")
        self.desktop.wait_gone(change)
        self.keys("alt+a")
        self.keys("shift+ctrl+2")
        self.wait_commands("/e,C:\\Photos")
        self.desktop.driver("close", properties.handle)
        self.desktop.wait_gone(properties)
        self.assertEqual(next(row[2] for row in self.editor.rows() if row[0] == "Photos"), "Shift+Ctrl+2")


class ByMouse(EditTest):
    CONTROL, ESCAPE = 37, 9  # keys by the numbers that the screen has for them

    def drag(self, row, node, **options):
        self.desktop.drag(self.editor.place_of_row(row), self.editor.place_of_node(node), **options)

    def press(self, key):
        for pressed in (1, 0):
            self.desktop.pointer.key(key, pressed)
        time.sleep(0.3)  # the drag looks at its keys now and then

    def test_rows_are_moved_copied_and_left_where_they_are(self):
        self.drag("Photos", "Home", before_end=lambda: self.press(self.ESCAPE))
        self.drag("Letters", "Home")
        self.editor.wait_titles("Home", "Photos")
        self.take_back(*TITLES)
        self.desktop.pointer.key(self.CONTROL, 1)
        self.drag("Letters", "Home")
        self.desktop.pointer.key(self.CONTROL, 0)
        wait_for(lambda: (3, "Letters") in self.editor.tree(), "a copy in the group", 10)
        self.editor.wait_titles(*TITLES)
        self.assertEqual(self.file_after_closing(), list(TITLES))

    def test_a_folder_comes_from_the_file_manager(self):
        self.desktop.start("explorer", "/root,C:\\")
        folders = ListWindow(self.desktop, None, class_name="ExplorerWClass")
        wait_for(lambda: "Garden" in folders.titles(), "the folders", 20)
        left, _, _, bottom = self.editor.child(LIST).rectangle
        start = folders.place_of_row("Garden")
        self.desktop.drag(start, (start[0] + 20, start[1] + 20), (left + 40, bottom - 40))
        dialog = self.desktop.wait_window(FORM, "New Item", 10)
        self.assertIn("C:\\Garden", self.texts_of(dialog))
