"""Sessions with real browsers in front: what is read, counted, and closed."""

import unittest

from support.application import DesktopTestCase
from support.browsers import Accessibility, Chromium, Firefox
from support.extension import ChromiumWithExtension, ExtensionEnd, FirefoxWithExtension
from support.pages import Pages
from support.processes import wait_until

IDENTIFIERS = {"firefox": "org.mozilla.firefox", "chromium": "com.google.Chrome"}


class BrowserTestCase(DesktopTestCase):
    """Pages to work and to play on, a browser that has both, and the program that knows which is which."""

    def setUp(self):
        super().setUp()
        self.pages = Pages()
        self.addCleanup(self.pages.close)
        self.work = self.pages.add("http://work.example/", "Work page")
        self.news = self.pages.add("http://www.news.example/today", "News page")
        self.game = self.pages.add("http://play.games.example/", "Game page")
        self.accessibility = Accessibility(self.desktop)

    def start_browser(self, kind, url, title):
        browser = kind(self.desktop, self.pages)
        self.addCleanup(browser.close)
        self.prepare(browser)
        return browser.start(url, title=title)

    def prepare(self, browser):
        """What is done to a browser before it starts."""

    def start_session(self, kind):
        identifier = IDENTIFIERS[kind.name]
        self.app.launch("--hidden")
        self.app.do("allow", "--app", identifier)
        self.app.do("block", "--site", "games.example", "--browser", identifier)
        self.app.do("start")

    def wait_for_domain(self, domain):
        self.app.wait_for(lambda s: s["activity"]["domain"] == domain, f"{domain} is in front")

    def wait_for_attempts(self, count):
        self.app.wait_for(lambda s: s["blockedSiteAttemptsCount"] == count, f"{count} attempts are counted")

    def report(self):
        return self.app.command("doctor")[1]

    def alert_is_shown(self):
        return bool(self.app.overlays())

    def open_unwaited(self, browser, url, how=None):
        """Opens a page that may be closed before anybody sees it."""
        how = browser.NEW_TAB if how is None else how
        self.desktop.run(browser.program, *browser.arguments(), *how, url)

    def assert_seconds_add_up(self):
        """What was counted by domain is what was recorded of the browser."""
        counted = [int(line.rsplit("+", 1)[1].rstrip("s)"))
                   for line in self.app.log().splitlines() if "AppUsageService: CLOSE" in line]
        recorded = sum(row["durationSeconds"] for row in self.app.intervals()
                       if row["category"] == "category_navigation")
        self.assertGreater(recorded, 3)
        # Each stay in the browser may lose a part of a second at its end, and none is counted twice.
        stays = self.app.log().count("[Browser] polling started")
        self.assertLessEqual(abs(sum(counted) - recorded), stays)

    def work_and_play(self, kind):
        """A session in which a blocked page is opened beside two others."""
        browser = self.start_browser(kind, self.work, "Work page")
        self.start_session(kind)
        self.wait_for_domain("work.example")
        browser.open(self.news, title="News page")
        self.wait_for_domain("news.example")
        browser.show_tab(1, "Work page")
        self.wait_for_domain("work.example")

        self.open_unwaited(browser, self.game)
        wait_until(self.alert_is_shown, "the alert is shown", interval=0.05)
        self.wait_for_attempts(1)
        self.pages.wait_until_open(self.work, self.news)
        wait_until(lambda: not self.alert_is_shown(), "the alert goes with the page")
        self.assertTrue(browser.is_in_front())
        self.pages.stay_open(self.work, self.news)
        return browser


class ByAccessibility(BrowserTestCase):
    """Nothing is installed in the browsers."""

    def setUp(self):
        super().setUp()
        self.accessibility.start()

    def test_firefox_keeps_all_tabs_but_the_blocked_one(self):
        browser = self.work_and_play(Firefox)
        self.visit_other_windows(browser)

    def test_chromium_keeps_all_tabs_but_the_blocked_one(self):
        browser = self.work_and_play(Chromium)
        self.visit_other_windows(browser)

    def visit_other_windows(self, browser):
        browser.open(self.news, browser.PRIVATE_WINDOW, title="News page")
        self.wait_for_domain("news.example")
        other = self.pages.add("http://other.example/", "Other page")
        browser.open(other, browser.NEW_WINDOW, title="Other page")
        self.wait_for_domain("other.example")
        # A blocked page in another window than the front one is not touched, and touches nothing.
        kept = self.pages.open()
        self.open_unwaited(browser, self.game)
        self.wait_for_attempts(2)
        self.pages.wait_until_open(*kept)
        self.app.do("stop")
        self.assert_seconds_add_up()

    def test_a_pinned_tab_costs_the_browser(self):
        browser = self.start_browser(Firefox, self.game, "Game page")
        browser.pin_first_tab()
        window = self.desktop.active_window()
        self.start_session(Firefox)
        wait_until(lambda: self.desktop.is_iconified(window), "the browser is hidden")
        wait_until(self.app.is_in_front, "the own window is in front")
        self.wait_for_attempts(1)
        self.assertEqual(self.pages.open(), [self.game])
        self.desktop.activate(window)
        self.wait_for_attempts(2)
        wait_until(lambda: self.desktop.is_iconified(window), "the browser is hidden again")
        self.assertEqual(self.pages.open(), [self.game])

    def test_a_browser_that_hangs_holds_up_nothing(self):
        browser = self.start_browser(Chromium, self.work, "Work page")
        self.start_session(Chromium)
        self.wait_for_domain("work.example")
        browser.pause()
        self.app.wait_for(lambda s: s["activity"]["domain"] is None, "no domain is known any more")
        before = self.app.status()["timeRemaining"]
        self.app.wait_for(lambda s: s["timeRemaining"] <= before - 3, "the time goes on")
        self.assertIn("does not answer", self.report())
        browser.resume()
        self.app.wait_for(lambda s: s["activity"]["domain"] == "work.example", "it is asked again", 90)


class ByExtension(BrowserTestCase):
    """There are no accessibility services; the extension is installed as the health screen does it."""

    def prepare(self, browser):
        end = ExtensionEnd(self.desktop)
        self.end = end
        browser.install(end)
        end.stop()

    def outlive_the_host(self, browser):
        """The connection breaks, and comes back by itself."""
        self.end.kill_host(browser)
        self.wait_for_domain(None)
        self.wait_for_domain("work.example" if browser.is_in_front("Work page") else "news.example")
        self.app.do("stop")
        self.assert_seconds_add_up()

    def test_firefox_keeps_all_tabs_but_the_blocked_one(self):
        self.outlive_the_host(self.work_and_play(FirefoxWithExtension))

    def test_chromium_keeps_all_tabs_but_the_blocked_one(self):
        self.outlive_the_host(self.work_and_play(ChromiumWithExtension))


class Consent(BrowserTestCase):
    """Accessibility is off when the browser starts, and turned on later."""

    def test_accessibility_off_is_told_and_firefox_follows_at_once(self):
        self.accessibility.start(enabled=False)
        self.start_browser(Firefox, self.work, "Work page")
        self.start_session(Firefox)
        self.app.wait_for(lambda s: s["activity"]["kind"] == "legitimate", "the benefit of the doubt is given")
        self.assertIn("cannot tell which site", self.report())
        self.accessibility.enable()
        self.wait_for_domain("work.example")
        self.assertNotIn("cannot tell which site", self.report())

    def test_chromium_has_to_be_started_anew(self):
        self.accessibility.start(enabled=False)
        self.start_browser(Chromium, self.work, "Work page")
        self.start_session(Chromium)
        self.accessibility.enable()
        wait_until(lambda: "was opened before accessibility was on" in self.report(), "a restart is asked for")


if __name__ == "__main__":
    unittest.main(verbosity=2)
