"""What screen readers hear of the program's windows, asked of the system as they ask it."""

from editor import FORM
from harness import wait_for
from test_organize import OrganizeTest


class Names(OrganizeTest):
    def names(self, window):
        return {(line["class_name"], line["name"]) for line in self.desktop.driver("names", window.handle)}

    def test_fields_are_called_by_their_labels_and_buttons_by_their_captions(self):
        self.desktop.keys("ctrl+n")
        dialog = self.desktop.wait_window(FORM, "New Item", 10)
        heard = wait_for(lambda: self.names(dialog), "names", 10)
        for name in (("Edit", "Name:"), ("Edit", "Location:"), ("Button", "Reset"), ("Button", "Target Location")):
            self.assertIn(name, heard)
        self.assertNotIn(("Edit", ""), heard)
        self.desktop.keys("Esc")
        self.desktop.wait_gone(dialog)
