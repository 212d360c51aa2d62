"""Real browsers, read and closed over the accessibility bus."""

import unittest

from support.browser_driver import BrowserDriver
from support.browsers import Accessibility, Chromium, Firefox
from support.desktop import Desktop
from support.pages import ASKS_BEFORE_LEAVING, Pages
from support.processes import wait_until

NEWS, VIDEO, SECRET = "http://news.example.org/", "http://video.example.com/watch?v=1", "http://secret.example.net/"


class Case(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(notifications=False, login=False)
        self.addCleanup(self.desktop.close)
        self.pages = Pages()
        self.addCleanup(self.pages.close)
        self.pages.add(NEWS, "Morning news")
        self.pages.add(VIDEO, "Funny videos")
        self.pages.add(SECRET, "Secret")
        self.accessibility = Accessibility(self.desktop)

    def start(self, kind, enabled=True):
        """A browser that shows the news, in services that are switched on or off, and the reader beside it."""
        self.accessibility.start(enabled)
        self.addCleanup(self.accessibility.stop)
        self.driver = BrowserDriver(self.desktop)
        self.addCleanup(self.driver.close)
        self.browser = kind(self.desktop, self.pages)
        self.addCleanup(self.browser.close)
        self.browser.start(NEWS, title="Morning news")

    def close_in_time(self, url):
        """Asks until the browser answers in time, which a busy machine may keep it from."""
        answers = []

        def is_answered():
            answers.append(self.driver.close_tab(self.browser, url))
            return answers[-1] != "failed"

        wait_until(is_answered, "the browser answers", 30, interval=0.2)
        return answers[-1]

    def assert_reads(self, url):
        self.driver.wait_for(self.browser, "readable", url)


class Reading:
    """What holds for each browser."""

    kind = None

    def test_the_page_in_front_is_read(self):
        self.start(self.kind)
        self.assert_reads(NEWS)
        self.browser.open(VIDEO, title="Funny videos")
        self.assert_reads(VIDEO)
        self.browser.show_tab(1, "Morning news")
        self.assert_reads(NEWS)
        self.browser.open(SECRET, self.kind.PRIVATE_WINDOW, title="Secret")
        self.assert_reads(SECRET)
        self.assertEqual(self.driver.walk(self.browser)["url"], SECRET)
        self.browser.bring_to_front("Morning news")
        self.assert_reads(NEWS)

        self.browser.pause()
        self.driver.wait_for(self.browser, "notAnswering")
        self.browser.resume()
        self.assert_reads(NEWS)

    def test_the_tab_in_front_is_closed_and_no_other(self):
        self.start(self.kind)
        self.browser.open(VIDEO, title="Funny videos")
        self.browser.open(SECRET, self.kind.NEW_WINDOW, title="Secret")
        self.assert_reads(SECRET)
        self.assertEqual(self.close_in_time("http://video"), "otherPage")
        self.pages.stay_open(NEWS, SECRET, VIDEO)
        self.browser.bring_to_front("Funny videos")
        self.assert_reads(VIDEO)
        # A call that came back too late may have closed it, which leaves another page for the next one.
        self.assertIn(self.close_in_time("http://video"), ("closed", "otherPage"))
        self.pages.wait_until_open(NEWS, SECRET)
        self.pages.stay_open(NEWS, SECRET)

    def test_a_page_that_asks_before_it_is_left_is_not_closable(self):
        self.pages.add(VIDEO, "Funny videos", script=ASKS_BEFORE_LEAVING)
        self.start(self.kind)
        self.browser.open(VIDEO, title="Funny videos")
        self.assert_reads(VIDEO)
        self.desktop.run("xdotool", "mousemove", "--window", str(self.desktop.active_window()), "500", "500",
                         "click", "1", check=True)
        self.close_in_time("http://video")
        self.pages.stay_open(NEWS, VIDEO)
        self.assertEqual(self.close_in_time("http://video"), "notClosable")


@unittest.skipUnless(Firefox.is_installed(), "Firefox is not installed")
class InFirefox(Reading, Case):
    kind = Firefox

    def test_a_pinned_tab_is_not_closable(self):
        self.start(Firefox)
        self.browser.open(VIDEO, title="Funny videos")
        self.browser.show_tab(1, "Morning news")
        self.browser.pin_first_tab()
        self.assert_reads(NEWS)
        self.assertEqual(self.close_in_time(NEWS), "notClosable")
        self.pages.stay_open(NEWS, VIDEO)

    def test_it_appears_when_the_switch_is_turned(self):
        self.start(Firefox, enabled=False)
        self.driver.wait_for(self.browser, "accessibilityOff")
        self.driver.ask("turn", "on")
        self.assert_reads(NEWS)
        self.assertTrue(self.accessibility.is_enabled())


@unittest.skipUnless(Chromium.is_installed(), "Chromium is not installed")
class InChromium(Reading, Case):
    kind = Chromium

    def test_it_has_to_be_started_after_the_switch_was_turned(self):
        self.start(Chromium, enabled=False)
        self.driver.ask("turn", "on")
        self.driver.wait_for(self.browser, "notOnBus")
        self.browser.close()
        self.browser.start(NEWS, title="Morning news")
        self.assert_reads(NEWS)


if __name__ == "__main__":
    unittest.main(verbosity=2)
