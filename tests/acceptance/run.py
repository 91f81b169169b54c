#!/usr/bin/env python3
"""Runs the acceptance tests: run.py [--exe EXE] [--driver DRIVER] [--build FOLDER] [--jobs N] [TEST...]

A TEST is a module (test_menu), a class (test_menu.DrawnMenu) or a test of one; without any, all modules run. Two desktops
run at a time. Prints one line a test and a closing line. Ends with 0 only if every test passed.
"""

import argparse
import itertools
import multiprocessing
import queue
import signal
import sys
import time
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))

from harness import ALONE, ANY, Settings, end_shared_desktop, end_with_parent  # noqa: E402  (needs the path above)


class Report(unittest.TestResult):
    """Tells the result of each test as it ends. Anything but a success counts as a failure."""

    def __init__(self, tell):
        super().__init__()
        self._tell = tell
        self._began = 0.0
        self.broken = False

    def startTest(self, test):
        super().startTest(test)
        self._began = time.monotonic()

    def _end(self, word, test, details=""):
        self.broken = self.broken or word != "ok"
        text = "%-6s %s (%.1f s)" % (word, test.id(), time.monotonic() - self._began)
        self._tell((word, text + "".join("\n    " + line for line in details.splitlines())))

    def addSuccess(self, test):
        self._end("ok", test)

    def addFailure(self, test, err):
        self._end("FAILED", test, self._exc_info_to_string(err, test))

    def addError(self, test, err):
        self._end("ERROR", test, self._exc_info_to_string(err, test))

    def addSubTest(self, test, subtest, err):
        if err is not None:
            self._end("FAILED", subtest, self._exc_info_to_string(err, test))

    def addSkip(self, test, reason):
        self._end("SKIP", test, reason)  # a test that didn't run proves nothing


def work(tasks, results):
    """A worker: runs groups of tests on desktops of its own until none is left."""
    end_with_parent()
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    try:
        for group in iter(tasks.get, None):
            report = Report(results.put)
            unittest.defaultTestLoader.loadTestsFromNames(group).run(report)
            if report.broken:
                end_shared_desktop()  # whatever happened there, the next tests shall not suffer from it
    finally:
        end_shared_desktop()


def run_groups(groups, jobs):
    """Runs groups of tests by some workers and gives the number that passed, prints what is told."""
    tasks, results = multiprocessing.Queue(), multiprocessing.Queue()
    workers = [multiprocessing.Process(target=work, args=(tasks, results)) for _ in range(jobs)]
    for group in groups + [None] * jobs:
        tasks.put(group)
    passed = 0
    try:
        for worker in workers:
            worker.start()
        while True:
            running = any(worker.is_alive() for worker in workers)
            try:
                word, text = results.get(timeout=0.2)
                passed += word == "ok"
                print(text, flush=True)
            except queue.Empty:
                if not running:
                    return passed
    finally:
        for worker in workers:
            if worker.is_alive():
                worker.terminate()
            worker.join()


def tests_in(suite):
    for each in suite:
        if isinstance(each, unittest.TestSuite):
            yield from tests_in(each)
        else:
            yield each


def turn_of(test):
    return getattr(test, "turn", ANY)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    Settings.add_options(parser)
    parser.add_argument("--jobs", type=int, default=2, help="desktops at a time")
    parser.add_argument("tests", nargs="*")
    arguments = parser.parse_args()
    Settings.of(arguments)
    # A polite kill ends the run as Ctrl+C does, by way of the clean-up; unittest would take an exit for a failed test.
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    loader = unittest.defaultTestLoader
    suite = loader.loadTestsFromNames(arguments.tests) if arguments.tests else loader.discover(str(HERE))
    if loader.errors:
        print("\n".join(loader.errors))
        return 2
    tests = sorted(tests_in(suite), key=turn_of)
    groups = {ALONE: [], ANY: []}
    for (turn, _), group in itertools.groupby(tests, lambda test: (turn_of(test), type(test))):
        groups[ALONE if turn == ALONE else ANY].append([test.id() for test in group])
    began = time.monotonic()
    passed = run_groups(groups[ANY], arguments.jobs) + run_groups(groups[ALONE], 1)
    print("%d of %d passed in %.0f s" % (passed, len(tests), time.monotonic() - began))
    return 0 if tests and passed == len(tests) else 1


if __name__ == "__main__":
    sys.exit(main())
