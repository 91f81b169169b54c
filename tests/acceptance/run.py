#!/usr/bin/env python3
"""Runs the acceptance tests: run.py [--exe EXE] [--driver DRIVER] [--build FOLDER] [TEST...]

A TEST is a module (test_menu), a class (test_menu.DrawnMenu) or a test of one; without any, all modules run. Prints one
line a test and a closing line. Ends with 0 only if every test passed.
"""

import argparse
import os
import signal
import sys
import time
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))

from harness import Settings  # noqa: E402  (needs the path above)


class OneLineResult(unittest.TestResult):
    """Prints a line as each test ends, and what failed below it."""

    def __init__(self):
        super().__init__()
        self.passed = 0
        self.failed = 0
        self._began = 0.0

    def startTest(self, test):
        super().startTest(test)
        self._began = time.monotonic()

    def _say(self, word, test, details=""):
        print("%-6s %s (%.1f s)" % (word, test.id(), time.monotonic() - self._began))
        if details:
            print("    " + details.rstrip().replace("\n", "\n    "))
        sys.stdout.flush()

    def addSuccess(self, test):
        super().addSuccess(test)
        self.passed += 1
        self._say("ok", test)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self.failed += 1
        self._say("FAILED", test, self.failures[-1][1])

    def addError(self, test, err):
        super().addError(test, err)
        self.failed += 1
        self._say("ERROR", test, self.errors[-1][1])

    def addSkip(self, test, reason):
        # A test that didn't run proves nothing.
        super().addSkip(test, reason)
        self.failed += 1
        self._say("SKIPPED", test, reason)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--exe", help="the program under test")
    parser.add_argument("--driver", help="acceptance_driver.exe")
    parser.add_argument("--build", help="folder for the prefix template and pictures of failures")
    parser.add_argument("tests", nargs="*")
    arguments = parser.parse_args()
    for name, value in (("BURROWMARK_EXE", arguments.exe), ("ACCEPTANCE_DRIVER", arguments.driver),
                        ("ACCEPTANCE_BUILD", arguments.build)):
        if value:
            os.environ[name] = value
    settings = Settings.from_environment()
    for path in (settings.driver, settings.exe if arguments.exe else settings.driver):
        if not path.is_file():
            print("not there: %s" % path)
            return 2

    # A polite kill ends the run as Ctrl+C does, by way of the clean-up; unittest would take an exit for a failed test.
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    loader = unittest.defaultTestLoader
    suite = loader.loadTestsFromNames(arguments.tests) if arguments.tests else loader.discover(str(HERE))
    result = OneLineResult()
    suite.run(result)
    print("%d passed, %d failed" % (result.passed, result.failed))
    return 0 if result.passed and not result.failed else 1


if __name__ == "__main__":
    sys.exit(main())
