"""The folder report: the wizard's road to its four destinations, and what readers that aren't ours find in them."""

import csv
import os
import time
from html.parser import HTMLParser

from burrowmark import ProgramTest
from editor import FORM
from harness import wait_for

FOLDER = "C:\\Reported"
TITLE = "Reported - Folder Report"
COLUMNS = ["Name", "Short Name", "Type", "Size", "Date Last Modified", "Date Created", "Date Last Accessed", "Path"]
FILES = {"a & b.txt": 1, "it's 'quoted' \u65e5\u672c.csv": 1024, "large.bin": 5 << 30, "empty": 0, "caf\u00e9.x.y": 999424}
WRITTEN = 994248123  # 4 July 2001, 12:02:03


class Page(HTMLParser):
    """The rows of a page with their classes, and the text that isn't in a table."""

    def __init__(self, text):
        super().__init__()
        self.rows, self.classes, self.sheets = [], [], []
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if tag == "tr":
            self.rows.append([])
            self.classes.append(values.get("class"))
        elif tag == "td":
            self.rows[-1].append("")
        elif tag == "link":
            self.sheets.append(values["href"])

    def handle_data(self, data):
        if self.rows and self.rows[-1]:
            self.rows[-1][-1] += data.strip("\r\n")


def size_text(size):
    if size < 1024:
        return "%d bytes" % size
    return "{:,} KB".format(int(size / 1024 + 0.5))


def moment_text(moment):
    parts = time.gmtime(moment)
    return "%d/%d/%d %d:%s" % (parts.tm_mon, parts.tm_mday, parts.tm_year, parts.tm_hour % 12 or 12,
                               time.strftime("%M:%S %p", parts))


class Wizard(ProgramTest):
    def setUp(self):
        super().setUp()
        self.place = self.desktop.prefix.host_path(FOLDER)
        (self.place / "Sub \u00e9").mkdir(parents=True, exist_ok=True)
        for name, size in FILES.items():
            with open(self.place / name, "wb") as file:
                file.truncate(size)
            os.utime(self.place / name, (WRITTEN, WRITTEN))

    def open_last_page(self, *words):
        """The wizard with all columns, on its last page."""
        self.program.start_second("/FR", *words)
        wizard = self.desktop.wait_window(FORM, TITLE)
        self.desktop.wait_focus(wizard, "ComboBox")
        self.desktop.keys("alt+n")
        self.desktop.keys("alt+a")
        self.desktop.keys("alt+n")
        self.desktop.keys("alt+s")
        self.desktop.keys("alt+n")
        wait_for(lambda: any(child.title == "&Finish" for child in self.desktop.children(wizard)), "the last page")
        return wizard

    def save(self, name):
        """By the keyboard alone; gives the file's bytes."""
        wizard = self.open_last_page(FOLDER)
        [box] = [child for child in self.desktop.children(wizard) if child.class_name == "Edit" and child.visible]
        self.desktop.click(box.middle)
        self.desktop.wait_focus(wizard, "Edit")
        self.desktop.keys("ctrl+a", "text:C:\\" + name)
        self.desktop.keys("alt+f")
        self.answer("successfully saved", 1)
        self.desktop.wait_gone(wizard)
        return self.desktop.prefix.host_path("C:\\" + name).read_bytes()

    def check_rows(self, rows):
        """Rows of all columns against the disk itself."""
        self.assertEqual(rows[0], COLUMNS)
        listed = {row[0]: dict(zip(COLUMNS, row)) for row in rows[1:]}
        self.assertEqual(len(listed), len(rows) - 1)
        self.assertEqual(sorted(listed), sorted(os.listdir(self.place)))
        self.assertIn("Sub \u00e9", rows[1][0], "folders come first")
        for name, row in listed.items():
            facts = os.stat(self.place / name)
            self.assertEqual(row["Path"], FOLDER + "\\" + name)
            self.assertTrue(row["Type"], name)
            self.assertTrue(row["Date Created"] and row["Date Last Accessed"], name)
            self.assertEqual(row["Date Last Modified"], moment_text(facts.st_mtime), name)
            self.assertEqual(row["Size"].strip("\u00a0"), size_text(facts.st_size) if name in FILES else "", name)

    def test_a_page_a_text_and_the_clipboard(self):
        self.program.start()
        page = Page(self.save("report.html").decode("ascii"))
        data = [kind is not None and kind.startswith("data_") for kind in page.classes]
        self.check_rows([row for row, counts in zip(page.rows, data) if counts])
        self.assertEqual([kind for kind in page.classes if kind][1:5], ["data_row2", "data_row1"] * 2)
        self.assertEqual(page.sheets, ["folder_report.css"])
        self.assertTrue(self.desktop.prefix.host_path("C:\\folder_report.css").exists())

        text = self.save("report.csv").decode("utf-8-sig")
        lines = list(csv.reader(text.splitlines(), delimiter=";", quoting=csv.QUOTE_NONE))
        self.assertEqual(lines[0], [FOLDER, ""])
        self.check_rows([line[:-1] for line in lines[2:-5]])
        self.assertEqual(lines[-3], ["5", "File(s)", "5,243,857.00 KB", ""])

        wizard = self.open_last_page(FOLDER)
        self.desktop.keys("alt+c", "alt+f")
        self.answer("successfully copied to the Clipboard", 1)
        self.desktop.wait_gone(wizard)
        notepad = self.start_notepad()
        self.desktop.keys("ctrl+v")
        def pasted():
            return next(child.title for child in self.desktop.children(notepad) if child.class_name == "Edit")
        rows = list(csv.reader(wait_for(pasted, "the text").splitlines(), delimiter=";", quoting=csv.QUOTE_NONE))
        self.check_rows([row[:-1] for row in rows[3:-4]])

    def test_the_wizard_alone_a_preview_and_the_end(self):
        self.desktop.prefix.run("wine", "reg", "add", "HKCR\\.txt", "/ve", "/d", "txtfile", "/f", limit=30)
        self.program.start()
        wizard = self.open_last_page(FOLDER)
        self.desktop.keys("alt+p")

        def ours():
            return list(self.desktop.prefix.drive_c.glob("users/**/Burrowmark report *"))
        folders = wait_for(ours, "the preview's folder")
        wait_for(lambda: [file.name for file in folders[0].iterdir()] == ["temp.txt"], "the preview")
        notepad = self.desktop.wait_window("Notepad")
        wait_for(lambda: self.desktop.windows("Notepad")[0].title.startswith("temp.txt"), "the text in it")
        self.desktop.driver("close", notepad.handle)
        self.program.start_second("/EXIT")
        self.desktop.wait_gone(wizard)
        self.desktop.exit_code(self.program.process)
        self.assertEqual(ours(), [])
