"""Statistics by the command line, against sums over the rows of the same store."""

import csv
import io
import json
import random
import sqlite3
import unittest
import uuid
from collections import defaultdict
from datetime import datetime, timedelta
from zoneinfo import ZoneInfo

from support.application import DesktopTestCase

ZONE = ZoneInfo("Europe/Paris")
DAYS_BACK = {"today": 0, "week": 7, "month": 30, "year": 365}
APPLICATIONS = [(f"org.example.App{i}", f"App, {i}", f"category_{name}") for i, name in enumerate(
    ("development", "other", "development", "utilities", "other", "development", "other", "utilities", "other", "music"))]


def local(milliseconds):
    return datetime.fromtimestamp(milliseconds / 1000, ZONE)


def start_of(day):
    return datetime(day.year, day.month, day.day, tzinfo=ZONE).timestamp() * 1000


class Statistics(DesktopTestCase):
    desktop_options = {"window_manager": False, "notifications": False, "login": False}

    def setUp(self):
        super().setUp()
        self.desktop.environment["TZ"] = ZONE.key
        self.app.launch("--hidden")
        self.app.process.terminate()
        self.app.process.wait(15)
        self.write_records()
        self.app.launch("--hidden")

    def write_records(self):
        chance = random.Random(5)
        now = datetime.now(ZONE)
        sessions, usage = [], []
        for back in [*range(-1, 40), 90, 200, 364, 365, 366, 500]:
            day = now.date() - timedelta(days=back)
            for _ in range(chance.randrange(1, 5)):
                start = int(start_of(day)) + chance.randrange(23 * 3600) * 1000
                sessions.append((uuid.uuid4().bytes, start, chance.randrange(1, 60), chance.randrange(10) > 0, None,
                                 chance.choice([None, 2.5, 7.25, 10.0]), 0, 0, 0, 0, 0))
                for _ in range(4):
                    begin = start + chance.randrange(600_000)
                    seconds = chance.randrange(1, 1500)
                    usage.append((uuid.uuid4().bytes, chance.randrange(1, len(APPLICATIONS) + 1), begin,
                                  begin + seconds * 1000, seconds))
        with sqlite3.connect(self.app.store_file) as store:
            store.executemany("INSERT INTO Session VALUES (?,?,?,?,?,?,?,?,?,?,?)", sessions)
            store.executemany("INSERT INTO AppUsageSource VALUES (?,?,?,?)",
                              [(i, *source) for i, source in enumerate(APPLICATIONS, 1)])
            store.executemany("INSERT INTO AppUsageSession VALUES (?,?,?,?,?)", usage)
        store.close()

    def report(self, *arguments):
        """What is printed, and by which day it counts, however near midnight is."""
        report = json.loads(self.app.do("stats", "--json", *arguments))
        self.assertEqual(report["timeZone"], ZONE.key)
        return report, datetime.fromisoformat(report["date"]).date()

    def rows_between(self, begin, end):
        within = [row for row in self.app.sessions() if begin <= row["startTime"] < end and row["completed"]]
        used = [row for row in self.app.intervals() if begin <= row["startTime"] < end]
        return within, used

    def check_figures(self, report, sessions, usage, top):
        self.assertEqual(report["sessions"], len(sessions))
        self.assertEqual(report["focusMinutes"], sum(row["durationMinutes"] for row in sessions))
        scores = [row["score"] for row in sessions if row["score"] is not None]
        self.assertAlmostEqual(report["averageScore"], sum(scores) / len(scores) if scores else 0)
        categories, applications = defaultdict(int), defaultdict(int)
        for row in usage:
            categories[row["category"]] += row["durationSeconds"]
            applications[row["bundleID"]] += row["durationSeconds"]
        listed = {total["category"]: total["seconds"] for total in report["categories"]}
        self.assertEqual(listed, dict(categories))
        seconds = [total["seconds"] for total in report["topApplications"]]
        self.assertEqual(seconds, sorted(applications.values(), reverse=True)[:top])
        for total in report["topApplications"]:
            self.assertEqual(total["seconds"], applications[total["bundleId"]])
            self.assertAlmostEqual(total["share"], total["seconds"] / sum(applications.values()))

    def test_figures_are_sums_over_the_rows(self):
        report, day = self.report()
        sessions, usage = self.rows_between(start_of(day), start_of(day + timedelta(days=1)))
        self.check_figures(report, sessions, usage, 5)
        self.assertEqual(report["applicationMinutes"], sum(row["durationSeconds"] for row in usage) // 60)
        hours = [0] * 24
        for row in sessions:
            hours[local(row["startTime"]).hour] += row["durationMinutes"]
        self.assertEqual(report["hours"], hours)
        self.assertEqual([uuid.UUID(row["id"]).bytes for row in report["sessionList"]],
                         [row["id"] for row in sessions])
        worked = {local(row["startTime"]).date() for row in self.app.sessions() if row["completed"]}
        streak = 0
        while day - timedelta(days=streak) in worked:
            streak += 1
        self.assertEqual(report["streakDays"], streak)

        for period in ("today", "week", "month", "year", "all"):
            with self.subTest(period=period):
                report, day = self.report("--period", period)
                back = DAYS_BACK.get(period)
                begin = float("-inf") if back is None else start_of(day - timedelta(days=back))
                sessions, usage = self.rows_between(begin, float("inf"))
                self.check_figures(report, sessions, usage, 8)
                self.assertEqual(report["usageSeconds"], sum(row["durationSeconds"] for row in usage))
                days, weekdays = defaultdict(int), [0] * 7
                for row in sessions:
                    start = local(row["startTime"])
                    days[start.date().isoformat()] += row["durationMinutes"]
                    weekdays[start.weekday()] += row["durationMinutes"]
                self.assertEqual(report["weekdays"], weekdays)
                best = report["bestDay"]
                self.assertEqual((best["minutes"], days[best["date"]]), (max(days.values()),) * 2)
                buckets = report["chart"]["buckets"]
                self.assertEqual(sum(bucket["minutes"] for bucket in buckets), report["focusMinutes"])
                if report["chart"]["unit"] == "day":
                    self.assertEqual({bucket["start"][:10]: bucket["minutes"] for bucket in buckets
                                      if bucket["minutes"]}, dict(days))
                self.assertEqual([uuid.UUID(row["id"]).bytes for row in report["sessionList"]],
                                 [row["id"] for row in reversed(sessions)][:10])

    def test_the_running_phase_counts_and_formats_agree(self):
        before, _ = self.report()
        self.app.do("start", "--minutes", "30")
        # Whole minutes, as soon as they have begun; the second that begins them comes with a tick.
        self.app.wait_for(lambda s: s["timeRemaining"] < 30 * 60, "the first second has passed")
        report, day = self.report("--period", "week")
        self.assertEqual(self.report()[0]["focusMinutes"], before["focusMinutes"] + 1)
        self.app.do("pause")
        self.assertEqual(self.report()[0]["focusMinutes"], before["focusMinutes"])
        self.app.do("resume")

        raw = self.app.do("stats", "--period", "week", "--csv")
        table = list(csv.reader(io.StringIO(raw, newline="")))
        self.assertEqual(table[0], ["section", "key", "name", "value", "unit"])
        values = {(section, key): float(value) for section, key, _, value, _ in table[1:]}
        self.assertEqual(values["figures", "sessions"], report["sessions"])
        self.assertEqual(values["figures", "focusMinutes"], report["focusMinutes"])
        for total in report["topApplications"]:
            self.assertEqual(values["applications", total["bundleId"]], total["seconds"])
        for bucket in report["chart"]["buckets"]:
            self.assertEqual(values["chart", bucket["start"]], bucket["minutes"])

        text = self.app.do("stats", "--period", "week")
        self.assertRegex(text, rf"\n  Sessions +{report['sessions']}\n")
        self.assertIn(str(day.year), text.splitlines()[0])
        self.assertIn("App, ", text)

    def test_refusals(self):
        self.assertEqual(self.app.command("stats", "--period", "decade")[0], 2)
        self.app.process.terminate()
        self.app.process.wait(15)
        self.assertEqual(self.app.command("stats")[0], 3)


if __name__ == "__main__":
    unittest.main(verbosity=2)
