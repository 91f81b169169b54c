"""The editor's window on a desktop, as a user finds it."""

from harness import wait_for

FORM = "BurrowmarkForm"
MENU = "#32768"
TITLE = "Organize Folders"


class Editor:
    """The open window, found by its class and title."""

    def __init__(self, program, title=TITLE):
        self.desktop = program.desktop
        self.program = program
        self.window = self.desktop.wait_window(FORM, title)
        # The tree is filled before the window shows, the rest of its life comes by messages.
        wait_for(lambda: self.tree(), "the nodes of the tree")

    @classmethod
    def open(cls, program):
        """Opens it by a second process, as another program would."""
        # Its end tells that the window has come forward: a click before that would be lost.
        program.desktop.exit_code(program.start_second("/OF"))
        return cls(program)

    def child(self, class_name):
        return next(child for child in self.desktop.children(self.window) if child.class_name == class_name)

    def has_focus(self, class_name):
        return self.child(class_name).focus

    # What it shows

    def tree(self):
        """The nodes that are there, as (depth, text)."""
        return [(line["depth"], line["text"])
                for line in self.desktop.driver("tree", self.child("SysTreeView32").handle)]

    def rows(self):
        """The rows, as lists of their columns' texts."""
        return [[line["text%d" % column] for column in range(sum(key.startswith("text") for key in line))]
                for line in self.desktop.driver("list", self.child("SysListView32").handle)]

    def titles(self):
        return [row[0] for row in self.rows()]

    # What the user does

    def node_place(self, text):
        for line in self.desktop.driver("tree", self.child("SysTreeView32").handle):
            if line["text"] == text:
                return self._middle(line["rectangle"])
        raise AssertionError("no node %r" % text)

    def row_place(self, text):
        for line in self.desktop.driver("list", self.child("SysListView32").handle):
            if line["text0"] == text:
                left, top, _, bottom = line["rectangle"]
                return left + 40 * self.desktop.dpi // 96, (top + bottom) // 2
        raise AssertionError("no row %r" % text)

    @staticmethod
    def _middle(rectangle):
        left, top, right, bottom = rectangle
        return (left + right) // 2, (top + bottom) // 2

    def click_node(self, text, button="left"):
        self.desktop.click(self.node_place(text), button)

    def click_row(self, text, button="left"):
        self.desktop.click(self.row_place(text), button)

    def wait_titles(self, titles):
        seen = [None]

        def shown():
            seen[0] = self.titles()
            return seen[0] == list(titles)
        try:
            wait_for(shown, "the rows", 10)
        except AssertionError:
            raise AssertionError("the list shows %r, not %r" % (seen[0], list(titles)))

    def wait_popup(self):
        return self.desktop.wait_window(MENU, limit=10)

    def close(self):
        self.desktop.driver("close", self.window.handle)

    def wait_closed(self):
        self.desktop.wait_gone(self.window)
