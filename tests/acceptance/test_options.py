"""The Options dialog by keyboard, what follows from it outside the program, and what its verbs start."""

import bwmk
from burrowmark import EXE, FOLDER, KEY, ROOT, ProgramTest
from editor import FORM, TREE
from harness import wait_for

RUN = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
COPY_ADDRESS = FOLDER + "\\CopyAddress.exe"
TABS = "SysTabControl32"


class OptionsTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program.make_folders("C:\\Letters")
        self.tray = self.start_with(bwmk.folder("Letters", "C:\\Letters", hot_key=53))

    def open_options(self):
        root, entries = self.open_root(self.tray)
        root.click(next(entry for entry in entries if entry.text == "Options"))
        return self.desktop.wait_window(FORM, "Options", 10)

    def show_tab(self, dialog, steps):
        """Goes on by so many tabs, and into the tree there."""
        self.desktop.wait_focus(dialog, TABS)
        self.desktop.keys(*["ctrl+Tab"] * steps, "Tab")
        self.desktop.wait_focus(dialog, TREE)

    def setting(self, name):
        return self.desktop.registry_text(KEY + "\\Settings", name)

    def command_of(self, verb):
        """Of a verb of the file manager, as its registry holds it; none without the verb."""
        asked = self.desktop.prefix.run("wine", "reg", "query", "HKCR\\%s\\command" % verb, "/ve", limit=30)
        lines = [line for line in asked.stdout.decode().splitlines() if "REG_SZ" in line]
        return lines[0].split("REG_SZ")[1].strip() if lines else None


class ByKeyboard(OptionsTest):
    def test_what_is_switched_shows_in_the_menu_and_the_system_and_goes_again(self):
        dialog = self.open_options()
        self.show_tab(dialog, 1)
        self.desktop.keys("Down", "Down", "Space", "alt+a")
        wait_for(lambda: self.setting("AC2") == "0", "the setting of the menu's help", 10)
        self.desktop.keys("alt+d", "Esc")
        self.desktop.wait_gone(dialog)
        self.assertEqual(self.setting("AC1"), "0")
        self.open_root(self.tray, ROOT[1:])
        self.close_menu()

        for on in (True, False):
            root = self.program.open_menu(self.tray)
            root.click(root.wait_texts(ROOT[1:])[1])
            dialog = self.desktop.wait_window(FORM, "Options", 10)
            self.show_tab(dialog, 2)
            self.desktop.keys("Home", "Space", "Down", "Space", "Down", "Space", "End", "Space", "Return")
            self.desktop.wait_gone(dialog)
            self.assertEqual(self.desktop.registry_text(RUN, "Burrowmark"), '"%s"' % EXE if on else None)
            self.assertEqual(self.command_of("Directory\\shell\\Folder Report"), '"%s" /FR %%L' % EXE if on else None)
            self.assertEqual(self.command_of("*\\shell\\Copy Address"), '"%s" %%L' % COPY_ADDRESS if on else None)
            link = self.desktop.prefix.user_folder("Desktop\\Organized Folders\\Letters.lnk")
            self.assertEqual(link.exists(), on)
            self.desktop.keys("shift+ctrl+5")
            self.wait_commands("C:\\Letters")  # off: no second one comes
            self.program.wait_folder_window("Letters")  # which takes the focus


class Verbs(OptionsTest):
    """What the file manager's menus start, by the words that stand in the registry."""

    PATHS = ("C:\\My Letters & more", "C:\\It's 'here' %L", "C:\\\u041e\u0431\u043c\u0435\u043d \u6587\u66f8")

    def start_verb(self, verb, path):
        program, line = self.command_of(verb)[1:].split('" ', 1)
        # Words without blanks come as they are, with a blank between them.
        return self.desktop.start(program, *line.replace("%L", path, 1).split(" "))

    def test_each_verb_takes_its_path_whole(self):
        self.program.make_folders(*self.PATHS)
        dialog = self.open_options()
        self.show_tab(dialog, 2)
        self.desktop.keys("Home", "Down", "Space", "Return")
        self.desktop.wait_gone(dialog)
        for path in self.PATHS:
            self.assertEqual(self.desktop.exit_code(self.start_verb("Directory\\shell\\Copy Address", path)), 0)
            self.assertEqual(self.desktop.driver("clipboard")[0]["text"], path)
            self.start_verb("Directory\\shell\\Folder Report", path)
            wizard = self.desktop.wait_window(FORM, path[3:] + " - Folder Report", 10)
            self.desktop.keys("Esc")
            self.desktop.wait_gone(wizard)
        self.start_verb("Directory\\shell\\Organize Folder", self.PATHS[0])
        dialog = self.desktop.wait_window(FORM, "New Item", 10)
        self.assertIn(self.PATHS[0], self.texts_of(dialog))


class CopyAddress(OptionsTest):
    def copy(self, *words):
        return self.desktop.exit_code(self.desktop.start(COPY_ADDRESS, *words))

    def copied(self):
        return self.desktop.driver("clipboard")[0]["text"]

    def test_a_path_comes_to_the_clipboard_as_it_is(self):
        # Words come one by one, with a blank between them; a word with blanks comes in quotes.
        for words, path in (((r"C:\Letters",), r"C:\Letters"), ((r"C:\My", "Letters", "2"), r"C:\My Letters 2"),
                            ((r"C:\It's here",), r"C:\It's here"), ((r"\\server\Обмен", "文書"), r"\\server\Обмен 文書"),
                            (("C:\\",), "C:\\"), (("C:\\" + "x" * 400,), "C:\\" + "x" * 400)):
            self.assertEqual(self.copy(*words), 0)
            self.assertEqual(self.copied(), path)
        self.assertEqual(self.copy(), 1)
        self.assertEqual(self.copied(), "C:\\" + "x" * 400)

    def test_another_program_that_holds_the_clipboard_is_waited_for(self):
        self.copy("C:\\first")
        self.desktop.driver("hold-clipboard", 250)
        self.assertEqual(self.copy("C:\\second"), 0)
        self.assertEqual(self.copied(), "C:\\second")
        self.desktop.driver("hold-clipboard", 2500)
        self.assertEqual(self.copy("C:\\third"), 1)
        wait_for(lambda: self.clipboard_or_none() == "C:\\second", "the clipboard as it was", 10)

    def clipboard_or_none(self):
        try:
            return self.copied()
        except Exception:  # still held
            return None
