"""Projects and tasks by the command line: what is asked for is in the store, in files, and comes back from them."""

import json
import os
import unittest
from datetime import date, timedelta

from support.application import DesktopTestCase

PROJECT = "5f3a9c21-0000-4000-8000-000000000001"


def planning_file(**lists):
    content = {"format": "norvin-focus-planning", "version": 1, "projects": [], "phases": [], "tasks": [],
               "resources": []}
    return json.dumps(content | lists)


class Planning(DesktopTestCase):
    desktop_options = {"window_manager": False, "notifications": False, "login": False}

    def setUp(self):
        super().setUp()
        self.app.launch("--hidden")

    def write(self, name, text):
        path = self.desktop.path(name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def refusal(self, *arguments):
        code, output, errors = self.app.command(*arguments)
        self.assertEqual((code, output), (1, ""), errors)
        return errors

    def agenda(self, *arguments):
        return json.loads(self.app.do("agenda", "--json", *arguments))

    def import_project(self):
        project = {"id": PROJECT, "name": "Thèse", "projectDescription": "", "colorHex": "#7c3aed", "emoji": "🎯",
                   "createdAt": "2025-03-10T09:00:00.000Z"}
        path = self.write("project.json", planning_file(projects=[project]))
        self.assertEqual(self.app.do("import", path), "Imported: 1 project.\n")

    def test_tasks_are_added_listed_and_ticked_off(self):
        self.assertIn("there are none yet", self.refusal("add", "Lost", "--project", "thesis"))
        self.import_project()
        tomorrow = (date.today() + timedelta(days=1)).isoformat()
        self.app.do("add", "Read")
        self.app.do("add", "Write", "--project", "THESE", "--priority", "high", "--date", "today")
        self.app.do("add", "Print", "--project", PROJECT[:4], "--date", "tomorrow")
        self.assertIn("Thèse (5f3a9c21)", self.refusal("add", "Lost", "--project", "Thesis"))

        today = self.agenda()
        self.assertEqual([(task["title"], task["priority"], task["project"]) for task in today["tasks"]],
                         [("Write", "high", "Thèse"), ("Read", "medium", None)])
        self.assertEqual([task["title"] for task in self.agenda("--date", tomorrow)["tasks"]], ["Print"])
        self.assertEqual([task["title"] for task in self.app.status()["queue"]], ["Read", "Write"])

        # In a session the task counts, and its end comes with the last one of the queue.
        self.app.do("start")
        write, read = (task["id"] for task in today["tasks"])
        self.assertEqual(self.app.do("done", write[:12]), "Done: Write\n")
        self.app.wait_for(lambda s: s["completedTasksCount"] == 1, "the task counts")
        self.assertIn("done already", self.refusal("done", write))
        self.assertEqual(self.app.do("done", read.upper()), "Done: Read\n")
        self.app.wait_for(lambda s: s["state"] == "completed", "the session ends with its tasks")
        self.assertIn("begins with", self.refusal("done", "0123456789abcdef"))
        (project,) = json.loads(self.app.do("projects", "--json"))
        self.assertEqual((project["name"], project["open"], project["done"], project["progress"]),
                         ("Thèse", 1, 1, 0.5))
        self.assertEqual(self.app.do("projects"), "5f3a9c21  🎯 Thèse: 1 open, 1 done, 50 %\n")
        rows = self.app.rows("SELECT title, statusValue, priorityValue FROM TaskItem ORDER BY rowid")
        self.assertEqual([tuple(row) for row in rows], [("Read", "Done", 1), ("Write", "Done", 2), ("Print", "To Do", 1)])

    def test_files_hold_everything_and_come_back(self):
        self.import_project()
        self.app.do("add", "Write +1", "--project", "thèse", "--priority", "low")
        self.app.do("add", "Read")
        files = {suffix: self.desktop.path(f"plan.{suffix}") for suffix in ("json", "txt", "ics")}
        for path in files.values():
            self.assertIn(path, self.app.do("export", path))
            self.assertIn("exists already", self.refusal("export", path))
        self.app.do("export", "--force", files["json"])
        kept = {}
        for suffix, path in files.items():
            with open(path, "rb") as file:
                kept[suffix] = file.read()
            self.assertIn("Already here", self.app.do("import", path))

        # The same files into a store that has nothing yet.
        for suffix, path in files.items():
            with self.subTest(suffix=suffix):
                self.app.process.terminate()
                self.app.process.wait(15)
                os.remove(self.app.store_file)
                self.app.launch("--hidden")
                self.assertIn("2 tasks", self.app.do("import", path))
                again = self.desktop.path(f"again.{suffix}")
                self.app.do("export", again)
                with open(again, "rb") as file:
                    self.assertEqual(file.read(), kept[suffix])

    def test_a_bad_file_is_refused_with_its_line(self):
        bad = self.write("bad.txt", "Good\nBad due:2025-02-30\n")
        self.assertIn("Line 2: “due” takes a day", self.refusal("import", bad))
        self.assertIn("cannot be read", self.refusal("import", self.desktop.path("missing.ics")))
        self.assertIn(".json, .txt or .ics", self.refusal("import", self.write("list.doc", "")))
        self.assertEqual(self.agenda()["tasks"], [])
        self.assertEqual(self.app.rows("SELECT * FROM TaskItem"), [])
        # A file is named from where the caller stands.
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(self.desktop.path("."))
        self.app.do("add", "Read")
        self.app.do("export", "here.json")
        self.assertTrue(os.path.exists(self.desktop.path("here.json")))


if __name__ == "__main__":
    unittest.main(verbosity=2)
