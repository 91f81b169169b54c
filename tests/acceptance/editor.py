"""The editor and other windows with a list on a desktop, as a user finds them."""

from harness import MENU_CLASS, wait_for

FORM = "BurrowmarkForm"
TITLE = "Organize Folders"
TREE, LIST, HEADER, STATUS = "SysTreeView32", "SysListView32", "SysHeader32", "msctls_statusbar32"


class ListWindow:
    """An open window with a list in it, found by its title."""

    def __init__(self, desktop, title, limit=20.0, class_name=FORM):
        self.desktop = desktop
        self.window = desktop.wait_window(class_name, title, limit)

    def child(self, class_name):
        return next(child for child in self.desktop.children(self.window) if child.class_name == class_name)

    def _lines(self, verb, class_name):
        return self.desktop.driver(verb, self.child(class_name).handle)

    def rows(self):
        """The rows, as lists of their columns' texts."""
        return [[line["text%d" % column] for column in range(sum(key.startswith("text") for key in line))]
                for line in self._lines("list", LIST)]

    def titles(self):
        return [row[0] for row in self.rows()]

    def selected(self):
        """Titles of the selected rows."""
        return [line["text0"] for line in self._lines("list", LIST) if line["selected"]]

    def wait_titles(self, *titles):
        wait_for(lambda: self.titles() == list(titles), lambda: "rows %r; they are %r" % (titles, self.titles()), 10)

    def _place(self, verb, class_name, key, text):
        for line in self._lines(verb, class_name):
            if line[key] == text:
                left, top, _, bottom = line["rectangle"]
                return left + 20 * self.desktop.dpi // 96, (top + bottom) // 2
        raise AssertionError("nothing with the text %r" % text)

    def place_of_row(self, text):
        return self._place("list", LIST, "text0", text)

    def click_row(self, text, button="left"):
        self.desktop.click(self._place("list", LIST, "text0", text), button)

    def rename(self, old, new):
        self.click_row(old)
        wait_for(lambda: any(line["text0"] == old and line["selected"] for line in self._lines("list", LIST)),
                 "the row %r selected" % old)
        self.desktop.wait_focus(self.window, LIST)
        self.desktop.keys("F2")
        self.desktop.wait_focus(self.window, "Edit")
        self.desktop.keys("ctrl+a", "text:" + new, "Return")
        wait_for(lambda: new in self.titles(), "the row's new title", 10)

    def click_first_header(self):
        left, top, _, bottom = self.child(HEADER).rectangle
        self.desktop.click((left + 40, (top + bottom) // 2))

    def close(self):
        self.desktop.driver("close", self.window.handle)

    def close_and_wait(self):
        self.close()
        self.desktop.wait_gone(self.window)


class Editor(ListWindow):
    """The open editor."""

    def __init__(self, program, limit=20.0):
        super().__init__(program.desktop, TITLE, limit)
        # The tree is filled before the window shows, the rest of its life comes by messages.
        wait_for(self.tree, "the nodes of the tree")

    @classmethod
    def open(cls, program):
        """Opens it by a second process, as another program would."""
        # Its end tells that the window has come forward: a click before that would be lost.
        program.desktop.exit_code(program.start_second("/OF"))
        return cls(program)

    # What it shows

    def tree(self):
        """The nodes that are there, as (depth, text)."""
        return [(line["depth"], line["text"]) for line in self._lines("tree", TREE)]

    # What the user does

    def place_of_node(self, text):
        return self._place("tree", TREE, "text", text)

    def click_node(self, text, button="left"):
        self.desktop.click(self._place("tree", TREE, "text", text), button)

    def wait_popup(self):
        return self.desktop.wait_window(MENU_CLASS, limit=10)
