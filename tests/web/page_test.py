#!/usr/bin/env python3
"""The game's page in a real browser: what a player does by mouse and keys, what is kept, and what happens without a
network, in two tabs, and where the browser keeps nothing."""
import json
import subprocess
import tempfile
import time
import unittest

from game_page import CELL, GamePage, Keys, LEFT, RIGHT, ROOT, SITE, Server

STAND, CROUCH = 2, 1
SEED = 7


class PageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.server = Server()

    @classmethod
    def tearDownClass(cls):
        cls.server.close()

    def page(self, **how):
        page = GamePage(self.server.address, seed=SEED, **how)
        self.addCleanup(page.close)
        return page

    def assertPlays(self, page):
        first, whole = page.selected()
        page.keys(Keys.ARROW_RIGHT)
        page.keys(Keys.ARROW_RIGHT)
        self.assertEqual(page.selected()[0], first)
        self.assertLess(page.selected()[1], whole)

    def test_play_by_mouse(self):
        page = self.page()
        first, whole = page.selected()
        page.click_cell(1, 1)
        self.assertEqual(page.selected(), (first, whole))
        page.click_cell(5, 3)
        page.click_cell(5, 3)  # the first one turned him
        name, left = page.selected()
        self.assertEqual(name, first)
        self.assertLess(left, whole)
        page.click(f"frmField.imgStance#{CROUCH}")
        self.assertIn("Crouching", page.caption("frmReadout"))
        before = page.selected()[1]
        page.click_cell(9, 3, RIGHT)
        page.click_cell(9, 3, RIGHT)
        self.assertLess(page.selected()[1], before, "a shot costs time")
        page.click("frmField.cmdNextTurn", 20, 10)
        self.assertIn("End the turn?", page.box())
        page.answer(1)
        page.rest(seconds=120)
        self.assertEqual(page.selected(), (first, whole), "the squad's turn again")
        self.assertEqual(page.complaints(), [])

    def test_an_order_in_the_middle_of_a_walk_ends_it(self):
        page = self.page()
        page.click_cell(1, 1)
        page.click_cell(9, 2)
        page.click_cell(9, 2, rest=False)
        time.sleep(0.5)
        page.click_cell(9, 4, RIGHT)
        far = page.run("return document.querySelector('[data-id=\"frmField\"]').ariaLabel")
        self.assertIsNotNone(far)
        self.assertGreater(page.selected()[1], 30, "he didn't walk to the end")

    def test_lists_and_scroll_bars(self):
        page = self.page()
        modes = page.element("frmField.comboMode")
        page.run("arguments[0].selectedIndex = 1; arguments[0].dispatchEvent(new Event('change'))", modes)
        page.rest()
        chosen = page.run("return arguments[0].selectedOptions[0].text", modes)
        self.assertIn(chosen, page.run("return document.querySelector('.embedded').innerText") + chosen)
        bar = page.element("frmField.HScrollArea")
        place = page.element("frmField.area").rect["x"]
        page.run("arguments[0].value = 300; for (const kind of ['input', 'change']) arguments[0].dispatchEvent(new Event(kind))",
                 bar)
        page.rest()
        self.assertLess(page.element("frmField.area").rect["x"], place)
        thumb = page.run("return getComputedStyle(arguments[0]).getPropertyValue('--thumb')", bar)
        self.assertNotEqual(thumb, "", "a thumb that is seen")

    def test_keys_alone(self):
        page = self.page()
        first = page.selected()[0]
        page.keys(Keys.SPACE)
        second, before = page.selected()
        self.assertNotEqual(first, second)
        page.keys(Keys.ARROW_RIGHT)
        page.keys(Keys.ARROW_RIGHT)
        self.assertLess(page.selected()[1], before, "a turn or a step")
        page.keys(Keys.ENTER)
        self.assertTrue(page.file_is_open())
        page.keys(Keys.ENTER)
        self.assertFalse(page.file_is_open())
        page.keys(Keys.TAB)
        page.keys(Keys.TAB)
        self.assertTrue(page.run("return document.activeElement.classList.contains('control')"))
        self.assertFalse(page.run("return document.querySelector('.form > .frame').hidden"), "a frame around the stop")
        page.with_alt("e")
        self.assertIn("End the turn?", page.box())
        page.keys(Keys.ESCAPE)
        self.assertEqual(page.box(), "")
        page.with_alt("i")
        self.assertTrue(page.file_is_open(), "by the menu's letter")
        page.keys(Keys.ENTER)
        page.keys(Keys.F6)
        self.assertTrue(page.run("return document.activeElement.closest('#bar') !== null"))

    def test_every_stop_has_a_name_for_a_screen_reader(self):
        page = self.page()
        unnamed = page.run("""return [...document.querySelectorAll("[tabindex='0'], button, select, input")]
            .filter(part => part.closest(".form") && !part.ariaLabel).map(part => part.dataset.id)""")
        self.assertEqual(unnamed, [])

    def test_a_thing_is_dragged_in_the_file(self):
        page = self.page()
        page.keys(Keys.ENTER)
        self.assertTrue(page.file_is_open())
        before = page.driver.get_screenshot_as_png()
        [pocket, *_] = page.controls_called("Pocket 1")
        [ground, *_] = page.controls_called("Ground 1")
        page.mouse(("move", pocket, 10, 10), ("down", LEFT), ("move", pocket, 30, 14), ("move", ground, 20, 20),
                   ("up", LEFT))
        page.rest()
        self.assertNotEqual(page.driver.get_screenshot_as_png(), before)
        self.assertEqual(page.complaints(), [])

    def test_a_game_goes_on_after_the_browser_was_closed(self):
        with tempfile.TemporaryDirectory() as profile:
            page = GamePage(self.server.address, profile=profile, seed=SEED)
            page.click_cell(1, 1)
            page.click_cell(4, 2)
            page.click_cell(4, 2)
            there = page.selected()
            page.close()
            page = GamePage(self.server.address, profile=profile)
            self.addCleanup(page.close)
            self.assertIn("broken off in turn 1", page.box())
            page.answer(0)
            self.assertEqual(page.selected(), there)

    def test_without_storage_play_goes_on(self):
        refuse = "Object.defineProperty(globalThis, 'indexedDB', {value: undefined});"
        page = self.page(before=refuse)
        self.assertPlays(page)

    def test_a_storage_that_fails_in_the_middle_is_shown(self):
        page = self.page(before="""const put = IDBObjectStore.prototype.put;
            IDBObjectStore.prototype.put = function(...given) {
                if (globalThis.isFull) this.transaction.abort();
                return put.apply(this, given);
            };""")
        page.run("globalThis.isFull = true")
        page.keys(Keys.SPACE)
        self.assertPlays(page)
        page.run("[...document.getElementById('gameMenu').children].at(-1).click()")
        boxes = []
        while not boxes or "New mission" not in boxes[-1]:
            page.wait_for("return document.getElementById('box').open && document.getElementById('box').innerText !== arguments[0]",
                          20, boxes[-1] if boxes else "")
            boxes.append(page.run("return document.getElementById('box').innerText"))
            page.run("""const buttons = [...document.querySelectorAll('#box button')];
                (buttons.find(button => button.textContent.includes('Leave')) ?? buttons[0]).click();""")
        self.assertTrue(any("File can't be written" in box for box in boxes), boxes)

    def test_a_second_tab_is_refused(self):
        page = self.page()
        first = page.driver.current_window_handle
        page.driver.switch_to.new_window("tab")
        page.driver.get(self.server.address)
        page.wait_for("return document.body.innerText.includes('runs in another tab')")
        page.driver.switch_to.window(first)
        self.assertPlays(page)

    def test_without_a_network(self):
        server = Server()
        page = GamePage(server.address, seed=SEED)
        self.addCleanup(page.close)
        page.wait_for("return navigator.serviceWorker.controller !== null")
        page.driver.execute_async_script("const done = arguments[0]; navigator.serviceWorker.ready.then(() => done(1))")
        time.sleep(1)
        server.close()
        page.open(server.address)
        self.assertIn("Continue", page.box() or "Continue")

    def test_one_file(self):
        page = GamePage((ROOT / "build/web/sarnoth.html").as_uri(), seed=SEED)
        self.addCleanup(page.close)
        self.assertPlays(page)
        self.assertEqual(page.complaints(), [])

    def test_sounds_have_the_levels_that_were_asked(self):
        page = self.page()
        levels = page.driver.execute_async_script("""
            const done = arguments[0];
            (async () => {
                const {Sounds} = await import("./sound.js");
                const {loadBytes, unpack} = await import("./files.js");
                const pack = new Map(unpack(await loadBytes("sounds.pack")).map(([name, bytes, rate]) => [name, {bytes, rate}]));
                const measure = async (left, right) => {
                    const context = new OfflineAudioContext(2, 44100, 44100);
                    const sounds = new Sounds(Promise.resolve(pack), context);
                    sounds.prepare();
                    await sounds.play({slot: 1, file: "wav/click.wav", left, right, rate: pack.get("wav/click.wav").rate});
                    const heard = await context.startRendering();
                    return [0, 1].map(side => Math.sqrt(heard.getChannelData(side).reduce((sum, one) => sum + one * one, 0)));
                };
                return {whole: await measure(1, 1), half: await measure(1, 0.5), soft: await measure(0.1, 0.1)};
            })().then(done, error => done({error: error.message}));""")
        self.assertNotIn("error", levels, levels)
        self.assertGreater(levels["whole"][0], 0)
        self.assertAlmostEqual(levels["half"][1] / levels["half"][0], 0.5, delta=0.01)
        self.assertAlmostEqual(levels["soft"][0] / levels["whole"][0], 0.1, delta=0.005)

    def test_a_store_is_put_away_and_taken_back(self):
        page = self.page()
        result = page.driver.execute_async_script("""
            const done = arguments[0];
            (async () => {
                const {readExported} = await import("./store.js");
                const mark = new TextEncoder().encode("sarnoth store 1\\n");
                const faults = [];
                for (const bad of [new Uint8Array(), new Uint8Array([1, 2, 3]), new Uint8Array([...mark, 65, 10, 57, 10, 1])]) {
                    try { readExported(bad.buffer); faults.push(""); } catch (error) { faults.push(error.message); }
                }
                return faults;
            })().then(done, error => done([error.message]));""")
        self.assertEqual(len(result), 3)
        for fault in result:
            self.assertIn("byte", fault)

    def test_sharp_at_the_device_s_pixels(self):
        for ratio, size in ((1, (1280, 880)), (1.5, (1280, 880)), (2, (1100, 800))):
            page = self.page(ratio=ratio, size=size)
            css = float(page.run("return getComputedStyle(document.documentElement).getPropertyValue('--px')").strip()[:-2])
            self.assertEqual((css * ratio * 2) % 1, 0, f"{css} at {ratio}")
            page.driver.save_screenshot(str(ROOT / f"build/web/page-{ratio}.png"))


if __name__ == "__main__":
    unittest.main()
