"""The game's page in a real browser, for tests that play it by mouse and keys."""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

ROOT = pathlib.Path(__file__).resolve().parents[2]
SITE = ROOT / "build/web/site"
CELL = 20
LEFT, MIDDLE, RIGHT = 0, 1, 2

# The game takes its seed from the clock. The page's files keep their true times.
FIXED_CLOCK = """const now = Date.now.bind(Date);
Date.now = () => /clock_gettime|clock_time_get|date_now/.test(new Error().stack) ? SEED : now();"""


class Server:
    """The site on the loopback interface, until close()."""

    def __init__(self):
        self.process = subprocess.Popen([sys.executable, ROOT / "scripts/serve_web.py", SITE], stdout=subprocess.PIPE,
                                        text=True)
        self.address = self.process.stdout.readline().strip()

    def close(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()


class GamePage:
    """A browser with the page open, in a profile of its own unless one is given."""

    def __init__(self, address, profile=None, size=(1280, 880), ratio=1, seed=None, before="", open_card=False):
        self.own = None if profile else tempfile.mkdtemp()
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for argument in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage", "--disable-gpu",
                         f"--window-size={size[0]},{size[1]}", f"--force-device-scale-factor={ratio}",
                         f"--user-data-dir={profile or self.own}"):
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(120)
        if seed is not None:
            before += FIXED_CLOCK.replace("SEED", str(seed))
        if before:
            self.driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": before})
        self.open(address, open_card)

    def open(self, address, open_card=False):
        self.driver.get(address)
        self.wait_for("return document.querySelectorAll('.control').length > 50")
        self.rest(box=True)
        if not open_card and self.run("return document.getElementById('pages').open"):
            self.run("document.querySelector('#pages h1 button').click()")
            self.rest()

    def close(self):
        self.driver.quit()
        if self.own:
            shutil.rmtree(self.own, ignore_errors=True)

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def wait_for(self, script, seconds=60, *arguments):
        """Waits until the script gives something true, which is the result."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            result = self.run(script, *arguments)
            if result:
                return result
            time.sleep(0.02)
        raise AssertionError(f"not within {seconds} s: {script}; {self.complaints()}")

    def rest(self, box=False, seconds=60):
        """Waits until the game waits for its player, or for an answer."""
        time.sleep(0.03)
        self.wait_for("return document.getElementById('stage').ariaBusy === 'false'" +
                      (" || document.getElementById('box').open" if box else ""), seconds)

    def complaints(self):
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] == "SEVERE"]

    def element(self, name):
        return self.driver.find_element("css selector", f'[data-id="{name}"]')

    def place(self, name, x, y):
        """Where a pixel of a control lies in the window."""
        left, top, scale = self.run("""const box = document.querySelector(`[data-id="${arguments[0]}"]`).getBoundingClientRect();
            const px = parseFloat(getComputedStyle(document.documentElement).getPropertyValue("--px"));
            return [box.left, box.top, px];""", name)
        return round(left + x * scale), round(top + y * scale)

    def mouse(self, *steps):
        """Steps of (what, control, x, y, button): move, down, up."""
        chain = ActionChains(self.driver, duration=10)
        pointer = chain.w3c_actions.pointer_action
        for what, *rest in steps:
            if what == "move":
                pointer.move_to_location(*self.place(*rest))
            elif what == "down":
                pointer.pointer_down(button=rest[0])
            else:
                pointer.pointer_up(button=rest[0])
        chain.perform()

    def click(self, name, x=4, y=4, button=LEFT, rest=True):
        self.mouse(("move", name, x, y), ("down", button), ("up", button))
        if rest:
            self.rest(box=True)

    def click_cell(self, column, row, button=LEFT, rest=True):
        self.click("frmField.area", column * CELL + CELL // 2, row * CELL + CELL // 2, button, rest)

    def keys(self, *keys, rest=True):
        ActionChains(self.driver).send_keys(*keys).perform()
        if rest:
            self.rest(box=True)

    def with_alt(self, letter):
        ActionChains(self.driver).key_down(Keys.ALT).send_keys(letter).key_up(Keys.ALT).perform()
        self.rest(box=True)

    def answer(self, number):
        """Presses a button of the box that is open."""
        self.wait_for("return document.getElementById('box').open")
        self.run("document.querySelectorAll('#box form button')[arguments[0]].click()", number)
        time.sleep(0.05)
        self.rest(box=True)

    def box(self):
        return self.run("const box = document.getElementById('box'); return box.open ? box.innerText : ''")

    def caption(self, name):
        return self.run("return document.querySelector(`[data-id=\"${arguments[0]}\"]`).innerText", name)

    def file_is_open(self):
        return self.run("return document.querySelector('[data-id=frmInfo]')?.closest('dialog').open ?? false")

    def controls_called(self, name):
        """The stops whose names for a screen reader begin so."""
        return self.run("""return [...document.querySelectorAll(".control")].filter(part => part.offsetParent !== null &&
            part.ariaLabel?.startsWith(arguments[0])).map(part => part.dataset.id)""", name)

    def selected(self):
        """Name and time left of the selected soldier, as the squad's list has them."""
        spoken = self.run("return document.querySelector('#rows button[aria-pressed=true]').ariaLabel")
        return spoken.split(",")[0], int(spoken.split("time ")[1].split(" ")[0])

    def kept(self, name):
        """A file of the player's folder as the browser's storage has it; None for none."""
        return self.driver.execute_async_script("""
            const [name, done] = arguments;
            const asked = indexedDB.open("/player");
            asked.onerror = () => done(null);
            asked.onsuccess = () => {
                const database = asked.result;
                if (!database.objectStoreNames.contains("FILE_DATA")) return done(null);
                const got = database.transaction("FILE_DATA").objectStore("FILE_DATA").get("/player/" + name);
                got.onsuccess = () => {
                    database.close();
                    done(got.result ? Array.from(got.result.contents) : null);
                };
            };""", name)


__all__ = ["CELL", "GamePage", "Keys", "LEFT", "RIGHT", "ROOT", "SITE", "Server"]
