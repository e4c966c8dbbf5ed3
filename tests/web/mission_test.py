#!/usr/bin/env python3
"""A whole mission in the page by real mouse and keys, what its journal says to the native program, and what is kept when the
browser is killed around the mission's end. SARNOTH_KILLS=50 kills it as often instead of three times."""
import contextlib
import os
import pathlib
import random
import shutil
import subprocess
import tempfile
import threading
import time
import unittest

from selenium.common.exceptions import WebDriverException

from game_page import GamePage, Keys, LEFT, RIGHT, ROOT, Server

LAB = ROOT / "build/release/tools/sarnoth-lab"
BUTTONS = {1: LEFT, 2: RIGHT}
KEYS = {13: Keys.ENTER, 27: Keys.ESCAPE, 32: Keys.SPACE}
# Presses that follow a hand-over sooner are taken for slips.
AFTER_HAND_OVER = 0.35


def shortest_victory(folder):
    """Seed and orders of the mission with the fewest events that the simple player wins."""
    best = None
    for seed in range(1, 21):
        recording = folder / f"{seed}.rec"
        told = subprocess.run([LAB, "mission", "--seed", str(seed), recording], capture_output=True, text=True, check=True).stdout
        events = [line.split()[3:] for line in recording.read_text().splitlines() if line.startswith("event ")]
        if told.startswith("Victory") and (best is None or len(events) < len(best[1])):
            best = seed, events
    return best


class Player:
    """Gives a recording's orders to the page as a person would: by pointer, wheel bars and keys."""

    def __init__(self, page):
        self.page = page
        self.soldier = ""

    def play(self, events):
        for event in events:
            if "Victory" in self.page.box():
                break
            self.give(event)

    def give(self, event, rest=True):
        kind, control, _, code, _, x, y = event
        if kind == "MouseDown" and control == "frmField.area":
            self.show(float(x), float(y))
            self.wait_after_hand_over()
            self.page.click(control, float(x), float(y), BUTTONS[int(code)], rest)
        elif kind == "KeyDown":
            self.wait_after_hand_over()
            self.page.keys(KEYS[int(code)])
        elif kind == "Click" and control == "frmField.cmdNextTurn":
            self.wait_after_hand_over()
            self.page.click(control, 20, 10, rest=False)
            self.page.wait_for("return document.getElementById('box').open || document.getElementById('stage').ariaBusy === 'true'")
            if "End the turn?" in self.page.box():
                self.page.answer(1)
            self.page.rest(box=True, seconds=120)

    def wait_after_hand_over(self):
        soldier = self.page.selected()[0]
        if soldier != self.soldier:
            time.sleep(AFTER_HAND_OVER)
        self.soldier = soldier

    def show(self, x, y):
        """Moves the view by the mini map when the cell isn't in it."""
        left, top = self.page.run("""const shown = document.querySelector('[data-id="frmField"]').getBoundingClientRect();
            const field = document.querySelector('[data-id="frmField.area"]').getBoundingClientRect();
            const px = parseFloat(getComputedStyle(document.documentElement).getPropertyValue("--px"));
            return [(shown.left - field.left) / px, (shown.top - field.top) / px];""")
        if not (left + 22 <= x <= left + 778 and top + 32 <= y <= top + 488):
            self.page.click("frmField.picAreaMap", x / 10, y / 10)


class MissionTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.server = Server()
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.seed, cls.events = shortest_victory(cls.folder)
        cls.last = max(number for number, event in enumerate(cls.events) if event[0] == "MouseDown")
        cls.ready = cls.folder / "ready"
        page = GamePage(cls.server.address, profile=cls.ready, seed=cls.seed)
        Player(page).play(cls.events[:cls.last])
        page.close()

    @classmethod
    def tearDownClass(cls):
        cls.server.close()
        shutil.rmtree(cls.folder)

    def replay(self, journal):
        file = self.folder / "journal.txt"
        file.write_bytes(bytes(journal))
        replayed = subprocess.run([LAB, "replay", file], capture_output=True, text=True)
        self.assertEqual(replayed.returncode, 0, replayed.stdout + replayed.stderr)
        return replayed.stdout

    def before_the_last_order(self, name):
        """The page in a profile of that name, the mission continued."""
        profile = self.folder / name
        shutil.copytree(self.ready, profile, symlinks=True)
        page = GamePage(self.server.address, profile=profile)
        self.addCleanup(page.close)
        page.answer(0)
        return page, profile

    def read_to_the_end(self, page):
        """Reads the boxes of the end; gives the mission's journal as it is kept when it is over."""
        for text in ("Enemies killed: 3 of 3", "Victory. The end.", "The mission is over."):
            page.wait_for("return document.getElementById('box').innerText.includes(arguments[0])", 60, text)
            journal = page.kept("journal/finished-1.txt")
            page.answer(0)
        return journal

    def test_a_mission_is_won_and_replays_natively(self):
        page, _ = self.before_the_last_order("won")
        Player(page).play(self.events[self.last:])
        page.wait_for("return document.getElementById('box').open")
        page.driver.save_screenshot(str(ROOT / "build/web/page-debriefing.png"))
        journal = self.read_to_the_end(page)
        self.assertIsNotNone(journal)
        self.assertIn("all as recorded", self.replay(journal))
        self.assertEqual(page.complaints(), [])

    def test_the_store_is_whole_when_the_browser_is_killed_around_the_end(self):
        page, _ = self.before_the_last_order("whole")
        before = page.kept("dat/apc.dat")
        Player(page).play(self.events[self.last:])
        self.read_to_the_end(page)
        after = page.kept("dat/apc.dat")
        self.assertNotEqual(before, after)
        page.close()
        kills = int(os.environ.get("SARNOTH_KILLS", "3"))
        chance = random.Random(7)
        whole = 0
        for number in range(kills):
            page, profile = self.before_the_last_order(f"killed{number}")
            # The store is kept within the first tenths of a second; the pauses for effects come after it.
            delay = chance.uniform(0, 1)
            killing = threading.Timer(delay, subprocess.run, (["pkill", "-9", "-f", f"user-data-dir={profile}"],))
            place = self.events[self.last]
            player = Player(page)
            player.show(float(place[5]), float(place[6]))
            player.wait_after_hand_over()
            killing.start()
            with contextlib.suppress(WebDriverException):  # the browser may be gone before the press has its answer
                player.give(place, rest=False)
            killing.join()
            page.close()
            page = GamePage(self.server.address, profile=profile)
            kept = page.kept("dat/apc.dat")
            page.close()
            self.assertTrue(kept in (before, after), f"killed after {delay:.3f} s")
            whole += kept == after
            shutil.rmtree(profile, ignore_errors=True)
        print(f"killed {kills} times around the end: {kills - whole} times the store of before, {whole} times that of after")


if __name__ == "__main__":
    unittest.main()
