"""What the file says about itself, and groups that are made anew."""

import bwmk
from harness import BOX_CLASS, wait_for
from test_edits import EditTest
from test_organize import TITLES

INTERNATIONAL = "Control Panel\\International"


class Information(EditTest):
    def open(self):
        self.keys("alt+f", "i")
        return self.dialog("Information")

    def test_texts_are_in_the_file_at_once_and_come_back(self):
        records = bwmk.read(self.program.file)
        dialog = self.open()
        size = self.program.file.stat().st_size
        texts = [child.title for child in self.desktop.children(dialog)]
        self.assertIn(self.program.file.name, texts)
        self.assertTrue(any(text.endswith("(%s bytes)" % format(size, ",")) for text in texts), texts)
        self.assertTrue(any("~" in text and text.upper().endswith(".BWM") for text in texts), texts)
        self.keys("Right", "alt+t", "text:My folders", "alt+o", "text:one", "Return", "text:two", "Esc")
        self.desktop.wait_gone(dialog)
        content = self.program.file.read_bytes()
        self.assertIn(b"[SUMMARY_TITLE:]\0My folders\0[END:]\0", content)
        self.assertIn(b"[SUMMARY_COMMENTS:]\0one\r\ntwo\0[END:]\0", content)
        self.assertEqual(bwmk.read(self.program.file), records)
        self.editor.close_and_wait()
        self.program.end()
        self.reopen()
        dialog = self.open()
        self.keys("Right")
        edits = [child.title for child in self.desktop.children(dialog) if child.class_name == "Edit"]
        self.assertEqual(edits, ["My folders", "", "", "", "one\r\ntwo"])
        self.keys("Esc")
        self.desktop.wait_gone(dialog)
        self.assertEqual(self.program.file.read_bytes(), content)


class Properties(EditTest):
    def set_form(self, **values):
        """Settings of the user's own form of dates and times, until the end of the test."""
        for name, text in values.items():
            before = self.desktop.registry_text(INTERNATIONAL, name) or ""
            self.addCleanup(self.desktop.driver, "write-value", INTERNATIONAL, name, before)
            self.desktop.driver("write-value", INTERNATIONAL, name, text)

    def test_times_show_in_the_users_own_form(self):
        self.editor.close_and_wait()
        self.program.end()
        self.set_form(sLongDate="yyyy d MMMM", sTimeFormat="HH.mm.ss", sTime=".", iTime="1", iTLZero="1", s2359="nachm.")
        self.reopen()
        self.select("Photos")
        self.keys("alt+Return")
        properties = self.dialog("Properties")
        self.assertIn("2003 5 November 14.07.09 nachm.", [child.title for child in self.desktop.children(properties)])
        self.keys("Esc")
        self.desktop.wait_gone(properties)


class Restore(EditTest):
    def restore(self, *choice):
        self.keys("alt+t", "t", "p")
        wizard = self.dialog("Restore Personal Group Wizard")
        self.keys(*choice, "Return")
        box = self.desktop.wait_window(BOX_CLASS, "Burrowmark", 10)
        self.assertIn("The content of Personal group has been successfully restored.", self.texts_of(box))
        self.keys("Return")
        self.desktop.wait_gone(wizard)

    def test_a_restored_group_is_in_the_file_unless_it_is_taken_back(self):
        self.show("Personal")
        self.restore("alt+b")
        self.editor.wait_titles()
        self.take_back(*TITLES)
        self.restore("alt+d")
        wait_for(lambda: "C:" in " ".join(self.editor.titles()) or "C" in self.editor.titles(), "the group of drive C", 10)
        self.take_back(*TITLES)
        self.restore("alt+s")
        self.editor.wait_titles("My Group", "My Documents")
        self.assertEqual(self.file_after_closing(), ["My Group", "My Documents"])
        self.open_personal(self.tray).wait_texts(["My Group", "My Documents"])
