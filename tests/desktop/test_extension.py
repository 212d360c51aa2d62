"""What the extension tells of real browsers, and what it closes in them."""

import time
import unittest

from support.application import DesktopTestCase
from support.desktop import UNLISTED
from support.extension import ChromiumWithExtension, ExtensionEnd, FirefoxWithExtension
from support.pages import ASKS_BEFORE_LEAVING, Pages
from support.processes import wait_until

GOES_TO_THE_GAME = """addEventListener("keydown", event => {
    if (event.key === "g")
        location = "http://play.games.example/";
});"""


class ExtensionTestCase:
    """One test is one life of a browser: they are slow to start."""

    kind = None

    def setUp(self):
        super().setUp()
        self.pages = Pages()
        self.addCleanup(self.pages.close)
        self.work = self.pages.add("http://work.example/", "Work page", script=GOES_TO_THE_GAME)
        self.news = self.pages.add("http://www.news.example/today", "News page")
        self.game = self.pages.add("http://play.games.example/", "Game page")
        self.end = ExtensionEnd(self.desktop)
        self.addCleanup(lambda: self.end.stop())
        self.browser = self.kind(self.desktop, self.pages)
        self.browser.install(self.end)
        self.addCleanup(self.browser.close)
        self.browser.start(self.work, title="Work page")
        self.end.wait_for_page(self.browser, "work.example")

    def wait_for(self, domain, focused=True):
        self.end.wait_for_page(self.browser, domain, focused)

    def close(self, domain):
        return self.end.close(self.browser, domain)

    def close_in_time(self, domain):
        """Has the front tab closed. On a busy machine the browser may close it and say so too late, or come too late
        for closing it; only then it is asked again."""
        before = self.pages.open()

        def is_closed():
            answer = self.close(domain)
            self.assertIn(answer, ("closed", "notAnswering"))
            if answer == "closed":
                return True
            late = time.monotonic() + 3
            while time.monotonic() < late and self.pages.open() == before:
                time.sleep(0.05)
            return self.pages.open() != before

        wait_until(is_closed, f"the browser closes {domain}", 60)

    def test_it_tells_which_page_is_in_front(self):
        self.browser.open(self.news, title="News page")
        self.wait_for("www.news.example")
        self.browser.show_tab(1, "Work page")
        self.wait_for("work.example")
        self.browser.press("g")
        self.wait_for("play.games.example")
        self.browser.press("alt+Left")
        self.wait_for("work.example")
        # The browser tells of the new page before it has let go of the old one, which must not be counted.
        self.pages.wait_until_open(self.work, self.news)
        self.browser.open(self.game, self.browser.NEW_WINDOW, title="Game page")
        self.wait_for("play.games.example")
        self.browser.bring_to_front("Work page")
        self.wait_for("work.example")
        self.browser.press("ctrl+t")
        self.wait_for(None)
        self.browser.show_tab(1, "Work page")
        self.wait_for("work.example")

        # Nothing is told twice, and nothing at all about what did not change.
        changes = [(change["domain"], change["focused"]) for change in self.end.changes() if "domain" in change]
        for earlier, later in zip(changes, changes[1:]):
            self.assertNotEqual(earlier, later)

    def test_a_private_window_is_not_known(self):
        self.browser.open(self.game, self.browser.PRIVATE_WINDOW, title="Game page")
        wait_until(lambda: not self.end.page(self.browser)[1], "no page that may be seen is in front")
        self.assertNotIn("play.games.example", [change.get("domain") for change in self.end.changes()])
        self.assertNotEqual(self.close("play.games.example"), "closed")
        self.pages.wait_until_open(self.work, self.game)

    def test_it_closes_that_tab_and_no_other(self):
        self.browser.open(self.news, title="News page")
        self.browser.open(self.news, self.browser.NEW_WINDOW, title="News page")
        self.browser.open(self.game, title="Game page")
        self.wait_for("play.games.example")
        self.assertEqual(self.close("work.example"), "otherPage")
        self.assertEqual(self.close("games.example"), "otherPage")
        self.pages.wait_until_open(self.work, self.news, self.news, self.game)

        self.close_in_time("play.games.example")
        self.pages.wait_until_open(self.work, self.news, self.news)
        self.wait_for("www.news.example")
        self.assertEqual(self.close("play.games.example"), "otherPage")
        self.close_in_time("news.example")
        # The front page of the window that is left is news too: each call closes one tab.
        self.pages.wait_until_open(self.work, self.news)
        self.pages.stay_open(self.work, self.news, seconds=1)

    def test_a_browser_that_stood_still_does_not_close_late(self):
        self.browser.open(self.game, title="Game page")
        self.wait_for("play.games.example")
        self.browser.pause()
        self.assertEqual(self.close("play.games.example"), "notAnswering")
        asked = self.end.ask("close", self.browser.pid, "play.games.example")
        self.assertEqual(asked["result"], "notAnswering")
        # The request is old by the time it is read.
        self.pages.stay_open(self.work, self.game, seconds=0.5)
        self.browser.resume()
        self.browser.show_tab(1, "Work page")
        self.wait_for("work.example")
        self.pages.stay_open(self.work, self.game, seconds=0.5)
        self.browser.show_tab(2, "Game page")
        self.wait_for("play.games.example")
        self.close_in_time("play.games.example")
        self.pages.wait_until_open(self.work)

    def test_both_sides_find_each_other_again(self):
        self.end.kill_host(self.browser)
        wait_until(lambda: self.end.page(self.browser) is None, "the host is gone")
        self.wait_for("work.example")

        self.end.kill()
        self.browser.open(self.news, title="News page")
        self.end.start()
        self.wait_for("www.news.example")
        self.end.stop()
        self.end.start()
        self.wait_for("www.news.example")


class InFirefox(ExtensionTestCase, DesktopTestCase):
    kind = FirefoxWithExtension

    def test_another_program_in_front_is_noticed(self):
        self.desktop.start_program(UNLISTED)
        self.wait_for("work.example", focused=False)
        self.browser.bring_to_front("Work page")
        self.wait_for("work.example")

    def test_a_pinned_tab_is_left_alone(self):
        self.browser.pin_first_tab()
        wait_until(lambda: self.close("work.example") == "notClosable", "a pinned tab is not closed")
        self.pages.stay_open(self.work, seconds=0.5)


class InChromium(ExtensionTestCase, DesktopTestCase):
    kind = ChromiumWithExtension

    def test_a_page_that_asks_to_be_kept_is_not_closed(self):
        asking = self.pages.add("http://play.games.example/draft", "Draft page", script=ASKS_BEFORE_LEAVING,
                                body="<textarea autofocus></textarea>")
        self.browser.open(asking, title="Draft page")
        self.wait_for("play.games.example")
        self.browser.press("a")
        wait_until(lambda: self.close("play.games.example") == "failed", "it says that the page is still there")
        self.pages.stay_open(self.work, asking, seconds=0.5)

    def test_it_is_taken_out_with_what_it_brought(self):
        self.end.ask("remove", "chromium")
        self.browser.close()
        self.browser.start(self.work, title="Work page")
        self.pages.stay_open(self.work, seconds=2)
        self.assertEqual(self.end.hosts(self.browser), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
