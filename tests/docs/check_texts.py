"""Small things in the texts of the project that no compiler and no formatter looks at. Prints each and fails."""

import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BINARY = {".png", ".ico", ".ttf", ".wav", ".oga"}


def project_files():
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=ROOT, check=True,
                            capture_output=True, text=True).stdout
    return [ROOT / line for line in listed.splitlines() if (ROOT / line).is_file()]


def faults_of(path):
    text = path.read_bytes().decode("utf-8", errors="replace")
    if "\ufffd" in text:
        yield "is not UTF-8"
    if "\r" in text:
        yield "has carriage returns"
    if text and not text.endswith("\n"):
        yield "does not end with a line end"
    for number, line in enumerate(text.splitlines(), 1):
        if line != line.rstrip() and path.suffix != ".md":
            yield f"line {number} ends with a blank"
        if "\t" in line:
            yield f"line {number} has a tab"
        if path.suffix in (".h", ".cpp") and re.match(r".*\S.*\bQ_(OBJECT|GADGET)\b", line) and "//" not in line:
            yield f"line {number}: Q_OBJECT has to begin its line, or the class is skipped"
    if path.suffix == ".h" and not text.startswith("#pragma once\n"):
        yield "does not begin with #pragma once"


def translation_faults():
    """Every text exists in every language, finished."""
    texts = {}
    for path in sorted((ROOT / "i18n").glob("*.ts")):
        texts[path] = {}
        for message in ElementTree.parse(path).getroot().iter("message"):
            translation = message.find("translation")
            texts[path][message.get("id")] = "".join(translation.itertext()).strip()
            if translation.get("type") == "unfinished" or not texts[path][message.get("id")]:
                yield path, f"'{message.get('id')}' is not translated"
    known = set().union(*texts.values()) if texts else set()
    for path, own in texts.items():
        for missing in sorted(known - set(own)):
            yield path, f"'{missing}' is missing"


def main():
    faults = [(path, fault) for path in project_files() if path.suffix not in BINARY for fault in faults_of(path)]
    faults += translation_faults()
    for path, fault in faults:
        print(f"{path.relative_to(ROOT)}: {fault}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
