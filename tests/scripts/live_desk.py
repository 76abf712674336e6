#!/usr/bin/env python3
"""The desk, without a screen to be seen on, and the signals that it gets."""
import os
import signal
import subprocess
import time
import unittest
from pathlib import Path

from outil_air import TOOL, Air


class Desk(Air):
    def setUp(self):
        super().setUp()
        self.make_list(100, 100)
        self.call("reglages", "premier")

    def start(self):
        desk = subprocess.Popen([Path(TOOL).with_name("sonarelle"), self.list, "--dossier", self.folder / "station"],
                                env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, stderr=subprocess.DEVNULL)
        self.addCleanup(desk.wait)
        self.addCleanup(desk.kill)
        while not self.catches(desk, signal.SIGTERM):
            self.assertIsNone(desk.poll(), "the desk has ended")
            time.sleep(0.02)
        return desk

    def catches(self, desk, number):
        status = dict(line.split(":\t", 1) for line in Path(f"/proc/{desk.pid}/status").read_text().splitlines())
        return int(status["SigCgt"], 16) >> (number - 1) & 1

    def test_ends_cleanly_when_its_terminal_is_closed(self):
        desk = self.start()
        desk.send_signal(signal.SIGHUP)
        self.assertEqual(desk.wait(), 0)

    def test_outlives_who_read_its_messages(self):
        desk = self.start()
        desk.send_signal(signal.SIGPIPE)
        desk.send_signal(signal.SIGTERM)
        self.assertEqual(desk.wait(), 0)


if __name__ == "__main__":
    unittest.main()
