"""Measures how long browsers are read and their tabs closed: bench_browsers.py BUILD-DIRECTORY

In each browser a small page and one of 20,000 elements is read, in turn with a bare round trip to the same browser, so
that what the machine does meanwhile meets both; then the same pages are closed by the extension, which tells of pages
without being asked. Nothing here passes or fails."""

import os
import statistics
import sys
import time
from pathlib import Path

os.environ["BUILD_UNDER_TEST"] = sys.argv[1]  # where the drivers are
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "desktop"))

from support.browser_driver import BrowserDriver  # noqa: E402
from support.browsers import Accessibility, Chromium, Firefox  # noqa: E402
from support.desktop import Desktop  # noqa: E402
from support.extension import ChromiumWithExtension, ExtensionEnd, FirefoxWithExtension  # noqa: E402
from support.pages import Pages  # noqa: E402

READS = 300
CLOSINGS = 10
NEWS, SMALL, LARGE = "http://news.example.org/", "http://small.example.com/", "http://large.example.com/"


def p95(values):
    return statistics.quantiles(values, n=20)[-1]


def row(what, values, trips=None):
    median = statistics.median(values)
    bare = statistics.median(trips) if trips else None
    compared = f"{bare:.3g} | {median / bare:.3g}" if bare else "– | –"
    print(f"| {what} | {median:.3g} | {p95(values):.3g} | {compared} |", flush=True)


def measure(kind, build):
    desktop, pages = Desktop(notifications=False, login=False), Pages()
    browser = kind(desktop, pages)
    driver = None
    try:
        pages.add(NEWS, "Morning news")
        pages.add(SMALL, "Small page")
        pages.add_large(LARGE, "Large page")
        Accessibility(desktop).start()
        driver = BrowserDriver(desktop, build / "bin" / "browser-driver")
        browser.start(NEWS, title="Morning news")
        driver.wait_for(browser, "readable", NEWS)
        for url, title in ((SMALL, "Small page"), (LARGE, "Large page")):
            browser.open(url, title=title)
            # A browser that still takes in a large page answers nobody for a while.
            driver.wait_for(browser, "readable", url, timeout=60)
            time.sleep(8)
            driver.wait_for(browser, "readable", url, timeout=60)
            answer = driver.ask("measure", READS, browser.pid, browser.front_title())
            reads = [value for value in answer["reads"] if value >= 0]
            row(f"{kind.__name__}: read, {title.lower()}, {len(reads)} of {READS}", reads, answer["trips"])
            closings, trips = [], answer["trips"]
            for closing in range(CLOSINGS):
                answer = driver.ask("close", browser.pid, url, browser.front_title())
                if answer["result"] == "closed":
                    closings.append(answer["ms"])
                else:
                    browser.press("ctrl+w")
                pages.wait_until_open(NEWS)
                browser.wait_for_title("Morning news")
                if closing < CLOSINGS - 1:
                    browser.open(url, title=title)
                    driver.wait_for(browser, "readable", url, timeout=60)
            row(f"{kind.__name__}: close, {title.lower()}, {len(closings)} of {CLOSINGS}", closings, trips)
    finally:
        if driver:
            driver.close()
        browser.close()
        pages.close()
        desktop.close()


def measure_extension(kind):
    """Rows of the other route: a read takes what is known already, a close asks the browser."""
    desktop, pages = Desktop(notifications=False, login=False), Pages()
    browser = kind(desktop, pages)
    end = ExtensionEnd(desktop)
    try:
        pages.add(NEWS, "Morning news")
        pages.add(SMALL, "Small page")
        pages.add_large(LARGE, "Large page")
        browser.install(end)
        browser.start(NEWS, title="Morning news")
        end.wait_for_page(browser, "news.example.org")
        for url, title in ((SMALL, "Small page"), (LARGE, "Large page")):
            domain = url.split("/")[2]
            reads, closings = [], []
            for _ in range(CLOSINGS):
                browser.open(url, title=title)
                end.wait_for_page(browser, domain, timeout=60)
                reads += [end.ask("page", browser.pid)["ms"] for _ in range(READS // CLOSINGS)]
                answer = end.ask("close", browser.pid, domain)
                if answer["result"] == "closed":
                    closings.append(answer["ms"])
                elif url in pages.open():
                    browser.press("ctrl+w")
                pages.wait_until_open(NEWS)
                end.wait_for_page(browser, "news.example.org", timeout=60)
            what = f"{browser.name} by extension"
            row(f"{what}: read, {title.lower()}", reads)
            row(f"{what}: close, {title.lower()}, {len(closings)} of {CLOSINGS}", closings)
    finally:
        browser.close()
        end.stop()
        pages.close()
        desktop.close()


def main():
    build = Path(sys.argv[1]).resolve()
    print("| what | median, ms | 95 %, ms | bare round trip, ms | ratio |\n| --- | --- | --- | --- | --- |")
    for kind in (Firefox, Chromium):
        measure(kind, build)
    for kind in (FirefoxWithExtension, ChromiumWithExtension):
        measure_extension(kind)


if __name__ == "__main__":
    main()
