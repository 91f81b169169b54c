"""A Windows desktop of its own for each test class: a virtual screen, a Wine prefix and the driver program within it.

    with Desktop(settings) as desktop:
        program = desktop.start("notepad.exe")
        window = desktop.wait_window(class_name="Notepad")

Every wait polls a condition and has a limit; whatever a desktop started ends with it, also after a failure.
"""

import atexit
import ctypes
import fcntl
import json
import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from dataclasses import dataclass
from pathlib import Path
from typing import List, Optional, Tuple

import pixels

REPOSITORY = Path(__file__).resolve().parents[2]
ICONS = REPOSITORY / "assets" / "icons"
TASK_BAR_HEIGHT = 20
MENU_CLASS = "#32768"
BOX_CLASS = "#32770"
POLL_SECONDS = 0.03


@dataclass
class Settings:
    """Where the programs and the build folder are."""
    exe: Optional[Path]
    driver: Path
    build: Path

    @classmethod
    def from_environment(cls):
        windows = REPOSITORY / "build" / "windows"
        exe = os.environ.get("BURROWMARK_EXE") or next(windows.rglob("burrowmark.exe"), None)
        driver = os.environ.get("ACCEPTANCE_DRIVER") or windows / "tests/acceptance/driver/acceptance_driver.exe"
        build = os.environ.get("ACCEPTANCE_BUILD") or REPOSITORY / "build" / "acceptance"
        return cls(Path(exe).resolve() if exe else None, Path(driver).resolve(), Path(build).resolve())


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
            raise NotInTime("not within %g s: %s" % (limit, what))
        time.sleep(POLL_SECONDS)


def icon_path(number):
    """The one file of icons with this number."""
    [path] = ICONS.glob("%02d-*.ico" % number)
    return path


@dataclass
class Window:
    """A top-level window or, with an id and a text, a window within one."""
    handle: int
    class_name: str
    title: str
    rectangle: Tuple[int, int, int, int]
    visible: bool
    enabled: bool
    owner: int = 0
    pid: int = 0
    id: int = 0
    focus: bool = False

    @property
    def width(self):
        return self.rectangle[2] - self.rectangle[0]

    @property
    def height(self):
        return self.rectangle[3] - self.rectangle[1]

    @property
    def middle(self):
        left, top, right, bottom = self.rectangle
        return (left + right) // 2, (top + bottom) // 2


@dataclass
class Process:
    """A process of the prefix as the host sees it."""
    pid: int
    command: str  # its words with a blank between them

    def ticks(self):
        """Processor time used so far, in clock ticks."""
        stat = Path("/proc/%d/stat" % self.pid).read_text()
        after_name = stat[stat.rindex(")") + 2:].split()
        return int(after_name[11]) + int(after_name[12])


def _end_with_parent():
    """Runs in a child: it is told to end if the test run is killed."""
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)


class Prefix:
    """A Wine prefix in a folder, with a scratch home beside it."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.path = self.folder / "prefix"
        self.home = self.folder / "home"
        self.drive_c = self.path / "drive_c"
        kept = ("PATH", "LD_LIBRARY_PATH")
        self.environment = {name: os.environ[name] for name in kept if name in os.environ}
        self.environment.update(
            HOME=str(self.home), WINEPREFIX=str(self.path), WINEARCH="win64", WINEDEBUG="-all", TZ="UTC",
            LC_ALL="C.UTF-8", WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d")

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
        """Ends every process of the prefix and waits until the last is gone."""
        self.run("wineserver", "-k", limit=30)
        self.run("wineserver", "-w", limit=30)

    def forget_server(self):
        """Removes the folder that the server leaves for its socket."""
        status = self.path.stat()
        folder = Path("/tmp/.wine-%d/server-%x-%x" % (os.getuid(), status.st_dev, status.st_ino))
        shutil.rmtree(folder, ignore_errors=True)

    def host_path(self, path):
        """The host's path of a path on drive C."""
        if not path.upper().startswith("C:\\"):
            raise ValueError("no path on drive C: " + path)
        return self.drive_c.joinpath(*path[3:].split("\\"))

    def add_registry(self, key, values, machine=False):
        """Writes values of the current user, or of the machine, while no server runs: texts and numbers."""
        lines = ["", "[%s]" % key.replace("\\", "\\\\")]
        for name, value in values.items():
            if isinstance(value, int):
                lines.append('"%s"=dword:%08x' % (name, value))
            else:
                lines.append('"%s"="%s"' % (name, value.replace("\\", "\\\\").replace('"', '\\"')))
        with open(self.path / ("system.reg" if machine else "user.reg"), "a", encoding="utf-8") as file:
            file.write("\n".join(lines) + "\n")


def _make_template(build):
    """A finished prefix, made once for a build folder. A lock keeps two test runs from making it together."""
    build.mkdir(parents=True, exist_ok=True)
    template = Prefix(build / "template")
    ready = template.folder / "ready"
    with open(build / "template.lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if ready.exists():
            return template
        shutil.rmtree(template.folder, ignore_errors=True)
        template.home.mkdir(parents=True)
        try:
            made = template.run("wineboot", "-i", limit=300)
            template.run("wineserver", "-w", limit=120)
        finally:
            template.end_server()
        if made.returncode != 0 or not (template.path / "user.reg").exists():
            raise RuntimeError("wineboot failed: " + made.stderr.decode(errors="replace"))
        template.add_registry("Software\\Wine\\WineDbg", {"ShowCrashDialog": 0})
        template.add_registry("Software\\Wine\\Drivers", {"Audio": ""})
        template.add_registry("Software\\Wine\\Explorer", {"Desktop": "shell"})
        template.forget_server()
        ready.write_text("finished\n")
    return template


def _copy_file(source, target):
    """System files are linked: no test writes to them. The registry and the like are copied."""
    if "/drive_c/windows/" in source:
        try:
            os.link(source, target)
            return target
        except OSError:
            pass
    return shutil.copy2(source, target)


def _copy_prefix(template, folder):
    prefix = Prefix(folder)
    shutil.copytree(template.path, prefix.path, symlinks=True, copy_function=_copy_file)
    shutil.copytree(template.home, prefix.home, symlinks=True)
    # The user's folders are links into the home that the template had.
    for link in prefix.drive_c.glob("users/*/*"):
        if link.is_symlink():
            target = os.readlink(link)
            if target.startswith(str(template.home)):
                link.unlink()
                link.symlink_to(str(prefix.home) + target[len(str(template.home)):])
                Path(os.readlink(link)).mkdir(parents=True, exist_ok=True)
    return prefix


class Desktop:
    """A running virtual screen with the Windows desktop of one prefix on it."""

    def __init__(self, settings, size=(1024, 768), dpi=96, prepare=None):
        """`prepare` is called with the desktop when its prefix is there and nothing runs in it yet."""
        self.settings = settings
        self._prepare = prepare
        self.size = size
        self.dpi = dpi
        self._folder = None
        self._screen = None
        self._holder = None
        self._programs: List[subprocess.Popen] = []
        self._colours = {}
        self.prefix = None

    def __enter__(self):
        self.start_desktop()
        return self

    def __exit__(self, *_):
        self.stop()

    # Life

    def start_desktop(self):
        template = _make_template(self.settings.build)
        runs = self.settings.build / "runs"
        runs.mkdir(exist_ok=True)
        self._folder = Path(tempfile.mkdtemp(dir=str(runs)))
        atexit.register(self.stop)  # for a run that is interrupted
        try:
            self.prefix = _copy_prefix(template, self._folder)
            self.prefix.add_registry("Software\\Wine\\Explorer\\Desktops", {"shell": "%dx%d" % self.size})
            if self.dpi != 96:
                self.prefix.add_registry("Control Panel\\Desktop", {"LogPixels": self.dpi})
                self.prefix.add_registry("Software\\Wine\\Fonts", {"LogPixels": self.dpi})
            shutil.copy(self.settings.driver, self.prefix.drive_c / "driver.exe")
            if self._prepare is not None:
                self._prepare(self)
            self._start_screen()
            # Keeps the task bar between two programs. Its input ends with this process, however that comes about.
            self._holder = self._launch("C:\\driver.exe", "hold-desktop", stdin=subprocess.PIPE)
            wait_for(self._task_bar, "the task bar", 60)
        except BaseException:
            self.stop()
            raise

    def _start_screen(self):
        reading, writing = os.pipe()
        try:
            # Without -noreset the screen starts over when its last program goes, and loses one that just comes.
            self._screen = subprocess.Popen(
                ["Xvfb", "-displayfd", str(writing), "-screen", "0", "%dx%dx24" % self.size, "-nolisten", "tcp",
                 "-noreset"],
                pass_fds=[writing], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                preexec_fn=_end_with_parent)
            os.close(writing)
            writing = None
            with os.fdopen(reading, "rb") as pipe:
                reading = None
                # To the end of the line, which comes apart from the number: the screen ends if nobody takes it.
                number = pipe.readline().strip()
            if not number:
                raise RuntimeError("the virtual screen didn't start")
        finally:
            for end in (reading, writing):
                if end is not None:
                    os.close(end)
        self.prefix.environment["DISPLAY"] = ":" + number.decode()

    def _task_bar(self):
        return self.find_window(class_name="Shell_TrayWnd")

    def stop(self):
        """Ends all programs, the server and the screen, and removes the folder. Every step is tried."""
        atexit.unregister(self.stop)
        steps = []
        if self.prefix is not None:
            steps += [self.prefix.end_server, self.prefix.forget_server]
        steps += [self._end_programs, self._end_screen]
        if self._folder is not None:
            steps.append(lambda: shutil.rmtree(self._folder))
        failure = None
        for step in steps:
            try:
                step()
            except Exception as error:  # the first is told once all steps were tried
                failure = failure or error
        self._folder = None
        self.prefix = None
        if failure is not None:
            raise failure

    def _end_programs(self):
        if self._holder is not None:
            self._holder.stdin.close()
            self._programs.append(self._holder)
            self._holder = None
        for program in self._programs:
            if program.poll() is None:
                program.terminate()
            program.wait(10)
        self._programs = []

    def _end_screen(self):
        if self._screen is not None:
            self._screen.terminate()
            self._screen.wait(10)
            self._screen = None

    # Programs

    def start(self, *words):
        """Starts a Windows program; its exit code is that of the object given back."""
        program = self._launch(*words, stdin=subprocess.DEVNULL)
        self._programs.append(program)
        return program

    def _launch(self, *words, stdin):
        return subprocess.Popen(["wine"] + list(words), env=self.prefix.environment, stdin=stdin,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def exit_code(self, program, limit=20.0):
        """Waits for a program's end."""
        wait_for(lambda: program.poll() is not None, "the program's end", limit)
        return program.returncode

    def processes(self, part=""):
        """The prefix's processes whose command holds a text, in any letter case."""
        mark = b"WINEPREFIX=" + os.fsencode(str(self.prefix.path))
        found = []
        for folder in Path("/proc").iterdir():
            if not folder.name.isdigit():
                continue
            try:
                if mark not in (folder / "environ").read_bytes().split(b"\0"):
                    continue
                words = (folder / "cmdline").read_bytes().rstrip(b"\0").split(b"\0")
            except OSError:  # ended meanwhile, or another user's
                continue
            command = b" ".join(words).decode("utf-8", "replace")
            if command and part.lower() in command.lower():
                found.append(Process(int(folder.name), command))
        return found

    # The driver

    def driver(self, verb, *words, limit=30):
        """Runs a verb of the driver and gives its lines."""
        # Once in a thousand calls or so the system ends with 1, without a word, ahead of the driver's first line: the
        # verb hasn't begun, so nothing is done twice.
        for _ in range(3):
            done = self.prefix.run("wine", "C:\\driver.exe", verb, *[str(word) for word in words], limit=limit)
            if done.returncode == 0 or done.stdout:
                break
        if done.returncode != 0:
            raise DriverFailure("%s: exit code %d, %s" % (verb, done.returncode,
                                                          done.stderr.decode(errors="replace").strip() or "no word"))
        return [json.loads(line) for line in done.stdout.decode().splitlines()[1:]]

    def windows(self, class_name=None, title=None, visible=True):
        found = []
        for line in self.driver("windows"):
            window = Window(line["handle"], line["class"], line["title"], tuple(line["rectangle"]), line["visible"],
                            line["enabled"], owner=line["owner"], pid=line["pid"])
            if (class_name in (None, window.class_name) and title in (None, window.title)
                    and (window.visible or not visible)):
                found.append(window)
        return found

    def find_window(self, class_name=None, title=None):
        return next(iter(self.windows(class_name, title)), None)

    def wait_window(self, class_name=None, title=None, limit=20.0):
        return wait_for(lambda: self.find_window(class_name, title), "a window %r %r" % (class_name, title), limit)

    def wait_gone(self, window, limit=20.0):
        wait_for(lambda: window.handle not in [each.handle for each in self.windows()],
                 "the end of the window %r" % window.title, limit)

    def children(self, window):
        return [Window(line["handle"], line["class"], line["text"], tuple(line["rectangle"]), line["visible"],
                       line["enabled"], owner=line["parent"], id=line["id"], focus=line["focus"])
                for line in self.driver("children", window.handle)]

    def move(self, place):
        self._pointer("mousemove", place[0], place[1])

    def click(self, place, button="left"):
        """By the screen's own pointer: one that a program moves is out of step with it for a moment."""
        press = ("--repeat", 2, "--delay", 60, 1) if button == "double" else ({"left": 1, "right": 3}[button],)
        self._pointer("mousemove", place[0], place[1], "sleep", 0.05, "click", *press)

    def _pointer(self, *words):
        done = self.prefix.run("xdotool", *[str(word) for word in words], limit=30)
        if done.returncode != 0:
            raise RuntimeError("the pointer doesn't move: " + done.stderr.decode(errors="replace"))

    def keys(self, *words):
        self.driver("keys", *words)

    def press(self, window, button_id):
        self.driver("press", window.handle, button_id)

    def time_click(self, place, button, seen, colour, limit_ms=5000):
        """Clicks and gives the microseconds from button-up until a popup menu covers the place `seen` ("opened") and
        until that place shows the colour ("drawn")."""
        return self.driver("time-click", *place, button, *seen, "%02x%02x%02x" % colour, limit_ms)[0]

    def screen_pid(self):
        return self._screen.pid

    def colour(self, index):
        """A system colour as a triple."""
        if not self._colours:
            self._colours = {line["index"]: pixels.hex_colour(line["colour"]) for line in self.driver("colours")}
        return self._colours[index]

    def registry_text(self, key, name):
        """A value of the current user, or None."""
        try:
            return self.driver("read-value", key, name)[0]["text"]
        except DriverFailure:
            return None

    # The screen

    def picture(self):
        """What the screen shows now."""
        done = self.prefix.run("import", "-silent", "-window", "root", "-depth", "8", "ppm:-", limit=30)
        if done.returncode != 0:
            raise RuntimeError("no picture: " + done.stderr.decode(errors="replace"))
        return pixels.Picture.from_ppm(done.stdout)

    def icon(self, number):
        """An icon of the program in the size that this desktop draws it."""
        return pixels.read_icon(icon_path(number), 16 * self.dpi // 96)

    def find_tray_icon(self):
        """The middle of the program's icon in the task bar, or None."""
        picture = self.picture()
        bar = self._task_bar()
        if bar is None:
            return None
        image = self.icon(1)
        # The tray is a window of its own at the bar's end; what lies under the icon is the colour to its left.
        left, top, right, bottom = bar.rectangle
        ground = picture.pixel(right - 2, top + 1)
        found = picture.find(image, ground, bar.rectangle)
        if not found:
            return None
        x, y = found[0]
        return x + image.width // 2, y + image.height // 2


class DesktopTest(unittest.TestCase):
    """Test case with a desktop for its class. A test that fails leaves a picture of the screen."""

    size = (1024, 768)
    dpi = 96
    prepare = None  # what is done to the prefix before the desktop starts
    desktop: Desktop

    @classmethod
    def setUpClass(cls):
        cls.settings = Settings.from_environment()
        cls.desktop = Desktop(cls.settings, cls.size, cls.dpi, cls.prepare)
        cls.desktop.start_desktop()
        cls.addClassCleanup(cls.desktop.stop)

    def run(self, result=None):
        # The picture has to be taken before the clean-up, which the usual hooks come too late for.
        for name in ("setUp", self._testMethodName):
            setattr(self, name, self._with_picture(getattr(self, name)))
        return super().run(result)

    def _with_picture(self, function):
        def call():
            try:
                function()
            except unittest.SkipTest:
                raise
            except Exception:
                self._keep_picture()
                raise
        return call

    def _keep_picture(self):
        folder = self.settings.build / "failures"
        folder.mkdir(parents=True, exist_ok=True)
        try:
            self.desktop.picture().save_png(folder / (self.id().split(".", 1)[-1] + ".png"))
        except Exception as error:  # must not hide the failure itself
            print("no picture of the failure: %s" % error)
