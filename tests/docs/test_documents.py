"""What the documents name exists: files, folders, and the functions of the walk through the code."""

import re
import unittest
from pathlib import Path
from urllib.parse import unquote

ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = [ROOT / "README.md", ROOT / "ARCHITECTURE.md", ROOT / "CONTRIBUTING.md", *sorted(ROOT.glob("docs/*.md"))]
FOLDERS = ["app", "model", "focus", "distraction", "sound", "planning", "stats", "services", "platform", "ui", "tests",
           "bench"]
FILE_NAME = re.compile(r"[\w.-]+\.(md|h|cpp|qml|txt|cmake|py|json|desktop|service|svg|png|ts)")
PATH = re.compile(r"(\./)?\.?\w[\w.+-]*(/[\w.+*-]+)*/?")


def without_code_blocks(text):
    return re.sub(r"^```.*?^```", "", text, flags=re.MULTILINE | re.DOTALL)


def named_paths(text):
    """Paths in links and in backticks, as they stand. Left out: addresses, anchors, variables, what a build makes."""
    for target in re.findall(r"\]\(([^)#\s]+)[^)]*\)", text):
        if "://" not in target:
            yield unquote(target)
    for code in re.findall(r"`([^`\n]+)`", without_code_blocks(text)):
        word = code.split()[0]
        is_path = word.startswith("./") or ("/" in word and " " not in code) or FILE_NAME.fullmatch(word)
        if is_path and PATH.fullmatch(word) and not word.startswith("build/"):
            yield word


class Documents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        sources = [path for folder in FOLDERS for path in (ROOT / folder).rglob("*") if path.is_file()]
        cls.names = {path.name for path in sources}
        cls.code = [path.read_text(encoding="utf-8") for path in sources if path.suffix in (".h", ".cpp")]

    def exists(self, document, path):
        if "/" not in path and path in self.names:
            return True
        return any(any(base.glob(path.removeprefix("./").rstrip("/"))) for base in (document.parent, ROOT))

    def declares(self, owner, function):
        defined = re.compile(rf"\b{owner}::{function}\b")
        has_owner = re.compile(rf"\b(class|struct|namespace|enum class) (\w+::)*{owner}\b")
        has_function = re.compile(rf"\b{function}\b")
        return any(defined.search(text) or (has_owner.search(text) and has_function.search(text))
                   for text in self.code)

    def test_every_path_exists(self):
        for document in DOCUMENTS:
            with self.subTest(document=document.name):
                paths = set(named_paths(document.read_text(encoding="utf-8")))
                self.assertEqual(sorted(path for path in paths if not self.exists(document, path)), [])

    def test_every_function_exists(self):
        for document in DOCUMENTS:
            text = document.read_text(encoding="utf-8")
            functions = set(re.findall(r"`(\w+)::(\w+)(?:\(\))?`", text))
            with self.subTest(document=document.name):
                unknown = [f"{owner}::{name}" for owner, name in functions if not self.declares(owner, name)]
                self.assertEqual(sorted(unknown), [])
            if document.name == "ARCHITECTURE.md":
                self.assertGreaterEqual(len(functions), 5, "the walk through the code names its functions")


if __name__ == "__main__":
    unittest.main(verbosity=2)
