"""A Windows desktop for the tests: a virtual screen, a Wine prefix and the driver program within it.

    with Desktop(settings) as desktop:
        program = desktop.start("notepad.exe")
        window = desktop.wait_window("Notepad")

Every wait polls a condition and has a limit; whatever a desktop started ends with it, also after a failure.
"""

import contextlib
import ctypes
import fcntl
import json
import os
import select
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from dataclasses import dataclass
from pathlib import Path
from typing import Optional, Tuple

import pixels

REPOSITORY = Path(__file__).resolve().parents[2]
MENU_CLASS = "#32768"
BOX_CLASS = "#32770"
TRAY_ICON = 1  # its number
POLL_SECONDS = 0.03
# When a test class runs: long ones begin, those with a desktop of their own kind end, and what measures time is alone.
FIRST, ANY, LAST, ALONE = range(4)
# The drives beside C and Z: letter, kind as the system's own settings call it, label. That of V has no medium.
DRIVES = (("a", "floppy", ""), ("d", "hd", ""), ("e", "cdrom", "Holiday"), ("n", "network", ""), ("u", "floppy", ""),
          ("v", "floppy", None))


@dataclass
class Settings:
    """Where the programs and the build folder are."""
    exe: Path
    driver: Path
    build: Path

    DEFAULTS = {"exe": "build/windows/src/app/burrowmark.exe", "build": "build/acceptance",
                "driver": "build/windows/tests/acceptance/driver/acceptance_driver.exe"}

    @classmethod
    def add_options(cls, parser):
        for name, path in cls.DEFAULTS.items():
            parser.add_argument("--" + name, type=Path, default=os.environ.get("ACCEPTANCE_" + name, REPOSITORY / path))

    @classmethod
    def of(cls, options):
        """What the options say; processes that are started from here get the same from their environment."""
        for name in cls.DEFAULTS:
            os.environ["ACCEPTANCE_" + name] = str(getattr(options, name).resolve())
        settings = cls.from_environment()
        for path in (settings.exe, settings.driver):
            if not path.is_file():
                raise SystemExit("not there: %s" % path)
        return settings

    @classmethod
    def from_environment(cls):
        return cls(**{name: Path(os.environ["ACCEPTANCE_" + name]) for name in cls.DEFAULTS})


class NotInTime(AssertionError):
    """A condition didn't come true within its limit."""


class DriverFailure(Exception):
    """The driver couldn't do what it was asked."""


def wait_for(condition, what, limit=20.0):
    """Polls until the condition gives something true, and returns that."""
    end = time.monotonic() + limit
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise NotInTime("not within %g s: %s" % (limit, what() if callable(what) else what))
        time.sleep(POLL_SECONDS)


@dataclass
class Window:
    """A top-level window, or one within it."""
    handle: int
    id: int
    class_name: str
    title: str
    rectangle: Tuple[int, int, int, int]
    visible: bool
    focus: bool

    @property
    def middle(self):
        left, top, right, bottom = self.rectangle
        return (left + right) // 2, (top + bottom) // 2


@dataclass
class Process:
    """A process of the prefix as the host sees it."""
    pid: int
    command: str  # its words with a blank between them

    def processor_time(self):
        """Nanoseconds used so far by all its threads."""
        return sum(int(path.read_text().split()[0]) for path in Path("/proc/%d/task" % self.pid).glob("*/schedstat"))

    def private_memory(self):
        """Bytes in use that no other process shares: those of the program, and those of Wine's own heap."""
        sizes = {False: 0, True: 0}
        for line in Path("/proc/%d/smaps" % self.pid).read_text(errors="replace").splitlines():
            words = line.split()
            if not words[0].endswith(":"):
                is_heap = words[-1] == "[heap]"
            elif words[0] == "Anonymous:":
                sizes[is_heap] += 1024 * int(words[1])
        return sizes[False], sizes[True]


def end_with_parent():
    """Called in a child: it is told to end when its parent goes."""
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)


class Prefix:
    """A Wine prefix in a folder, with a scratch home beside it."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.path = self.folder / "prefix"
        self.home = self.folder / "home"
        self.drive_c = self.path / "drive_c"
        self.environment = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH") if name in os.environ}
        self.environment.update(
            HOME=str(self.home), WINEPREFIX=str(self.path), WINEARCH="win64", WINEDEBUG="-all", TZ="UTC",
            LC_ALL="C.UTF-8", WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d")

    def make(self, desktop_size):
        """Makes it in its folder, unless it is there, for a desktop of that size."""
        ready = self.folder / "ready"
        if ready.exists():
            return
        shutil.rmtree(self.folder, ignore_errors=True)
        self.home.mkdir(parents=True)
        try:
            made = self.run("wineboot", "-i", limit=300)
            self.run("wineserver", "-w")
        finally:
            self.end_server()
        if made.returncode != 0 or not (self.path / "user.reg").exists():
            raise RuntimeError("wineboot failed: " + made.stderr.decode(errors="replace"))
        for link in self.drive_c.glob("users/*/*"):
            if link.is_symlink():  # into the home; a copy shall have folders of its own
                link.unlink()
                link.mkdir()
        self.add_registry("Software\\Wine\\WineDbg", {"ShowCrashDialog": 0})
        self.add_registry("Software\\Wine\\Drivers", {"Audio": ""})
        self.add_registry("Software\\Wine\\Explorer", {"Desktop": "shell"})
        self.add_registry("Software\\Wine\\Explorer\\Desktops", {"shell": "%dx%d" % desktop_size})
        ready.write_text("finished\n")

    def run(self, *words, limit=120):
        """Runs a host program in the prefix's environment to its end."""
        # Files, not pipes: a server that the program starts keeps its outputs open and would never let a pipe end.
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
            done = subprocess.run(words, env=self.environment, timeout=limit, stdin=subprocess.DEVNULL, stdout=output,
                                  stderr=errors)
            output.seek(0)
            errors.seek(0)
            return subprocess.CompletedProcess(words, done.returncode, output.read(), errors.read())

    def end_server(self):
        """Ends every process of the prefix, waits until the last is gone, and removes the folder of its socket."""
        self.run("wineserver", "-k", limit=30)
        self.run("wineserver", "-w", limit=30)
        status = self.path.stat()
        folder = "/tmp/.wine-%d/server-%x-%x" % (os.getuid(), status.st_dev, status.st_ino)
        shutil.rmtree(folder, ignore_errors=True)

    def host_path(self, path):
        """The host's path of a path on drive C."""
        assert path.upper().startswith("C:\\"), path
        return self.drive_c.joinpath(*path[3:].split("\\"))

    def user_folder(self, path):
        """A folder of the user's own, as of Wine's set-up."""
        return next(self.drive_c.glob("users/*/AppData")).parent.joinpath(*path.split("\\"))

    def add_registry(self, key, values, machine=False):
        """Writes values of the current user, or of the machine, while no server runs: texts and numbers."""
        lines = ["", "[%s]" % key.replace("\\", "\\\\")]
        for name, value in values.items():
            lines.append('"%s"=%s' % (name, "dword:%08x" % value if isinstance(value, int) else '"%s"' % value))
        with open(self.path / ("system.reg" if machine else "user.reg"), "a", encoding="utf-8") as file:
            file.write("\n".join(lines) + "\n")

    def add_drives(self):
        for letter, kind, label in DRIVES:
            drive = self.folder / ("drive_" + letter)
            if label is not None:
                drive.mkdir()
                (drive / ".windows-label").write_text(label + "\n")
            (self.path / "dosdevices" / (letter + ":")).symlink_to(drive)
            self.add_registry("Software\\Wine\\Drives", {letter + ":": kind}, machine=True)

    def processes(self, part=""):
        """The prefix's processes whose command holds a text, in any letter case."""
        mark = b"WINEPREFIX=" + os.fsencode(str(self.path))
        found = []
        for folder in Path("/proc").glob("[0-9]*"):
            try:
                if mark not in (folder / "environ").read_bytes().split(b"\0"):
                    continue
                command = (folder / "cmdline").read_bytes().rstrip(b"\0").replace(b"\0", b" ").decode(errors="replace")
            except OSError:  # ended meanwhile, or another user's
                continue
            if command and part.lower() in command.lower():
                found.append(Process(int(folder.name), command))
        return found


def _copy_file(source, target):
    """System files are linked: no test writes to them. The registry and the like are copied."""
    if "/drive_c/windows/" in source:
        try:
            os.link(source, target)
            return target
        except OSError:
            pass
    return shutil.copy2(source, target)


def _copy_template(build, folder):
    """A prefix like a template that is made once for a build folder."""
    build.mkdir(parents=True, exist_ok=True)
    template = Prefix(build / "template")
    with open(build / "template.lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)  # two test runs mustn't make it together
        template.make((1024, 768))
    prefix = Prefix(folder)
    shutil.copytree(template.path, prefix.path, symlinks=True, copy_function=_copy_file)
    prefix.home.mkdir()
    prefix.add_drives()
    return prefix


class Pointer:
    """The screen's own pointer: one that a program moves is out of step with it for a moment."""

    BUTTONS = {"left": (1, 1), "right": (3, 1), "double": (1, 2)}  # number, clicks

    def __init__(self, screen):
        self._library, self._test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self._library.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(self._library.XOpenDisplay(screen.encode()))
        if not self._display:
            raise RuntimeError("the screen isn't there")

    def close(self):
        self._library.XCloseDisplay(self._display)

    def move(self, place):
        self._test.XTestFakeMotionEvent(self._display, -1, *place, 0)
        self._library.XSync(self._display, 0)

    def click(self, place, button):
        number, clicks = self.BUTTONS[button]
        self.move(place)
        for _ in range(clicks):
            time.sleep(0.05)
            for pressed in (1, 0):
                self._test.XTestFakeButtonEvent(self._display, number, pressed, 0)
            self._library.XSync(self._display, 0)

    def key(self, number, pressed):
        self._test.XTestFakeKeyEvent(self._display, number, pressed, 0)
        self._library.XSync(self._display, 0)

    def button(self, pressed):
        self._test.XTestFakeButtonEvent(self._display, 1, pressed, 0)
        self._library.XSync(self._display, 0)

    def drag(self, places, rest, before_end):
        """Presses at the first place, goes to each of the others and rests there, and lets go at the last one."""
        self.move(places[0])
        time.sleep(0.1)
        self.button(1)
        try:
            for start, end in zip(places, places[1:]):
                for step in range(1, 11):
                    self.move(tuple(int(a + (b - a) * step / 10) for a, b in zip(start, end)))
                    time.sleep(0.02)
                time.sleep(rest)
            before_end()
        finally:
            self.button(0)


class Desktop:
    """A virtual screen with the Windows desktop of one prefix on it."""

    def __init__(self, settings, size=(1024, 768), dpi=96):
        self.settings, self.size, self.dpi = settings, size, dpi
        self._ends = contextlib.ExitStack()
        self._programs = []

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self._ends.close()
            raise
        return self

    def __exit__(self, *_):
        """Ends all programs, the server and the screen, and removes the folder. Every step is tried."""
        self._ends.close()

    def _start(self):
        runs = self.settings.build / "runs"
        runs.mkdir(parents=True, exist_ok=True)
        folder = tempfile.mkdtemp(dir=str(runs))
        self._ends.callback(shutil.rmtree, folder)
        self.prefix = _copy_template(self.settings.build, folder)
        self.prefix.add_registry("Software\\Wine\\Explorer\\Desktops", {"shell": "%dx%d" % self.size})
        self.prefix.add_registry("Control Panel\\Desktop", {"LogPixels": self.dpi})
        self.prefix.add_registry("Software\\Wine\\Fonts", {"LogPixels": self.dpi})
        shutil.copy(self.settings.driver, self.prefix.drive_c / "driver.exe")
        self._start_screen()
        self.pointer = Pointer(self.prefix.environment["DISPLAY"])
        self._ends.callback(self.pointer.close)
        self._ends.callback(self.prefix.end_server)
        # It keeps the desktop, and its input ends with this process, however that comes about.
        self._driver = self.start("C:\\driver.exe", stdin=subprocess.PIPE, stdout=subprocess.PIPE, bufsize=0)
        self.wait_window("Shell_TrayWnd", limit=60)

    def _start_screen(self):
        # Without -noreset the screen starts over when its last program goes, and loses one that just comes.
        screen = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "%dx%dx24" % self.size, "-nolisten", "tcp", "-noreset"],
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, preexec_fn=end_with_parent)
        self._end_later(screen)
        number = screen.stdout.readline().strip()
        if not number:
            raise RuntimeError("the virtual screen didn't start")
        self.prefix.environment["DISPLAY"] = ":" + number.decode()

    def _end_later(self, program):
        def end():
            program.terminate()
            program.wait(10)
            for stream in (program.stdin, program.stdout):
                if stream is not None:
                    stream.close()
        self._ends.callback(end)

    # Programs

    def start(self, *words, **streams):
        """Starts a Windows program; its exit code is that of the object given back."""
        streams = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, **streams}
        program = subprocess.Popen(["wine", *words], env=self.prefix.environment, stderr=subprocess.DEVNULL, **streams)
        self._end_later(program)
        return program

    def exit_code(self, program, limit=20.0):
        """Waits for a program's end."""
        wait_for(lambda: program.poll() is not None, "the program's end", limit)
        return program.returncode

    # The driver

    def driver(self, verb, *words, limit=30.0):
        """Runs a verb of the driver and gives its lines."""
        self._driver.stdin.write(("\t".join([verb, *map(str, words)]) + "\n").encode())
        output = self._driver.stdout.fileno()
        end = time.monotonic() + limit
        answer = b""
        while True:
            if not select.select([output], [], [], max(0, end - time.monotonic()))[0]:
                # What comes later must not be taken for the next verb's answer.
                self._driver.kill()
                raise DriverFailure("%s: no answer within %g s" % (verb, limit))
            part = os.read(output, 1 << 16)
            if not part:
                raise DriverFailure("%s: the driver ended" % verb)
            answer += part
            lines = [json.loads(line) for line in answer.splitlines()] if part.endswith(b"\n") else [{}]
            if "done" in lines[-1]:
                if not lines[-1]["done"]:
                    raise DriverFailure("%s: %s" % (verb, lines[-1]["failure"]))
                return lines[:-1]

    def windows(self, class_name=None, title=None, visible=True):
        """Top-level windows, front to back."""
        windows = [Window(**line) for line in self.driver("windows")]
        return [window for window in windows if class_name in (None, window.class_name)
                and title in (None, window.title) and (window.visible or not visible)]

    def wait_window(self, class_name=None, title=None, limit=20.0):
        return wait_for(lambda: self.windows(class_name, title), "a window %r %r" % (class_name, title), limit)[0]

    def wait_gone(self, window):
        wait_for(lambda: window.handle not in [each.handle for each in self.windows()],
                 "the end of the window %r" % window.title)

    def children(self, window):
        return [Window(**line) for line in self.driver("children", window.handle)]

    def wait_focus(self, window, class_name):
        """Waits until a child of that class has the keyboard."""
        wait_for(lambda: any(child.class_name == class_name and child.focus for child in self.children(window)),
                 "the focus in " + class_name)

    def click(self, place, button="left"):
        self.pointer.click(place, button)

    def drag(self, *places, rest=0.2, before_end=lambda: None):
        self.pointer.drag(places, rest, before_end)

    def keys(self, *words):
        self.driver("keys", *words)

    def press(self, window, button_id):
        self.driver("press", window.handle, button_id)

    def time_click(self, place, seen, colour, limit_ms=5000):
        """Clicks and gives the microseconds from button-up until a popup menu covers the place `seen` ("opened") and
        until that place shows the colour ("drawn")."""
        return self.driver("time-click", *place, *seen, *colour, limit_ms)[0]

    def registry_text(self, key, name):
        """A value of the current user, or None."""
        try:
            return self.driver("read-value", key, name)[0]["text"]
        except DriverFailure:
            return None

    # The screen

    def picture(self, rectangle=None):
        """What the screen, or a part of it, shows now."""
        left, top, right, bottom = rectangle or (0, 0, *self.size)
        part = "%dx%d+%d+%d" % (right - left, bottom - top, left, top)
        done = self.prefix.run("import", "-silent", "-window", "root", "-crop", part, "-depth", "8", "ppm:-", limit=30)
        if done.returncode != 0:
            raise RuntimeError("no picture: " + done.stderr.decode(errors="replace"))
        return pixels.Picture.from_ppm(done.stdout)

    def save_picture(self, path):
        self.prefix.run("import", "-silent", "-window", "root", str(path), limit=30)

    def icon(self, number):
        """An icon of the program in the size for this desktop."""
        return pixels.read_icon(pixels.icon_path(number), 16 * self.dpi // 96)

    def find_tray_icon(self):
        """The middle of the program's icon in the task bar, or None."""
        size = 22 * self.dpi // 96
        _, top, right, bottom = self.wait_window("Shell_TrayWnd").rectangle
        corner = self.picture((right - size, top, right, bottom))
        # The tray is a window of its own; its edge has the colour that lies under the icon too.
        ground = corner.pixel(corner.width - 2, 1)
        found = corner.find(self.icon(TRAY_ICON), ground, (0, 0, corner.width, corner.height))
        return (right - size // 2, (top + bottom) // 2) if found else None


_shared: Optional[Desktop] = None


def shared_desktop(size, dpi):
    """The desktop of this process that all tests of one size and resolution share, one after the other."""
    global _shared
    if _shared is None or (_shared.size, _shared.dpi) != (size, dpi):
        end_shared_desktop()
        _shared = Desktop(Settings.from_environment(), size, dpi).__enter__()
    return _shared


def end_shared_desktop():
    global _shared
    ended, _shared = _shared, None
    if ended is not None:
        ended.__exit__()


class DesktopTest(unittest.TestCase):
    """Test case on a shared desktop. A test that fails leaves a picture of the screen."""

    turn = ANY
    size = (1024, 768)
    dpi = 96

    @classmethod
    def setUpClass(cls):
        cls.desktop = shared_desktop(cls.size, cls.dpi)

    def _callTestMethod(self, method):
        # Here and not in a hook: before the clean-up changes the screen.
        try:
            super()._callTestMethod(method)
        except Exception:
            folder = self.desktop.settings.build / "failures"
            folder.mkdir(parents=True, exist_ok=True)
            self.desktop.save_picture(folder / (self.id() + ".png"))
            raise
