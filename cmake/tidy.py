"""Runs clang-tidy over the sources that are named on standard input: tidy.py BUILD-DIRECTORY

Most of its time goes into the headers of Qt, which every file includes. So the sources of a folder are looked at in
batches, each as one file that includes them; they must not give the same name to different things. Tests may: each
stands in a namespace of its own there, after all that it includes."""

import json
import os
import re
import subprocess
import sys

BATCH = 12


def flags_of(entry):
    """The command that compiles a source, without what belongs to that source alone."""
    words = entry["command"].split()
    kept, skip = [], False
    for word in words:
        if skip:
            skip = False
        elif word in ("-o", "-MT", "-MF", "-c"):
            skip = True
        elif word not in ("-MD", entry["file"]) and not word.endswith("ccache"):
            kept.append(word)
    return tuple(kept)


INCLUDE = re.compile(r'^#include (?:<[^>]+>|"(?![^"]*\.moc")[^"]+")', re.MULTILINE)
# What has to stand where everybody sees it.
GLOBAL = re.compile(r"^(namespace [a-z]|Q_DECLARE_METATYPE|template <>|extern|int main)", re.MULTILINE)
OF_PLACES = ("-I", "-isystem", "-D")


def text_of(file):
    with open(file, encoding="utf-8") as source:
        return source.read()


def is_test(entry):
    return os.path.basename(entry["file"]).startswith("tst_") and not GLOBAL.search(text_of(entry["file"]))


def places_of(flags):
    """The flags that say where things are and what they are called, which tests of one folder may differ in."""
    places, words = [], iter(flags)
    for word in words:
        if word.startswith("-DQT_TESTCASE"):
            continue
        if word.startswith(OF_PLACES):
            places.append(word + " " + next(words) if word == "-isystem" else word)
    return places


def test_batches_of(entries):
    """Sources of whole batches of tests, with the flags that they are looked at with."""
    folders = {}
    for entry in entries:
        folders.setdefault(os.path.dirname(entry["file"]), []).append(entry)
    for tests in folders.values():
        for first in range(0, len(tests), BATCH):
            batch = tests[first:first + BATCH]
            words = batch[0]["command"].split()
            kept = [word for word in flags_of(batch[0]) if not word.startswith(OF_PLACES) and word in words
                    and not word.startswith("/")]
            places = dict.fromkeys(place for test in batch for place in places_of(flags_of(test)))
            includes = dict.fromkeys(line for test in batch for line in INCLUDE.findall(text_of(test["file"])))
            lines = ["#include <QtTest>", "#include <memory>", *includes]
            for macro in ("QTEST_MAIN", "QTEST_GUILESS_MAIN", "QTEST_APPLESS_MAIN"):
                lines += [f"#undef {macro}", f"#define {macro}(name)"]
            for number, test in enumerate(batch):
                lines += [f"namespace test_{number} {{", f'#include "{test["file"]}"', "}"]
            compiler = flags_of(batch[0])[0]
            yield (compiler, *kept, *places), batch[0]["directory"], "\n".join(lines) + "\n"


def batches_of(entries):
    """Lists of sources of one folder that are compiled alike."""
    alike = {}
    for entry in entries:
        folder = os.path.dirname(entry["file"])
        alike.setdefault((flags_of(entry), entry["directory"], folder), []).append(entry["file"])
    for (flags, directory, _), files in alike.items():
        for first in range(0, len(files), BATCH):
            yield flags, directory, files[first:first + BATCH]


def main():
    build = os.path.abspath(sys.argv[1])
    wanted = {os.path.abspath(line.strip()) for line in sys.stdin}
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = [entry for entry in json.load(file) if entry["file"] in wanted]
    missing = wanted - {entry["file"] for entry in entries}
    folder = os.path.join(build, "tidy")
    os.makedirs(folder, exist_ok=True)
    commands = []
    tests = [entry for entry in entries if is_test(entry)]
    others = [entry for entry in entries if not is_test(entry)]
    for number, (flags, directory, text) in enumerate(test_batches_of(tests)):
        source = os.path.join(folder, f"tests_{number}.cpp")
        with open(source, "w", encoding="utf-8") as batch:
            batch.write(text)
        commands.append({"directory": directory, "file": source,
                         "command": " ".join([*flags, "-Wno-shadow", "-c", source])})
    for number, (flags, directory, files) in enumerate(batches_of(others)):
        source = files[0]
        if len(files) > 1:
            source = os.path.join(folder, f"batch_{number}.cpp")
            with open(source, "w", encoding="utf-8") as batch:
                batch.writelines(f'#include "{file}"\n' for file in files)
            # A name of one file may be that of a parameter in the next.
            flags = (*flags, "-Wno-shadow")
        commands.append({"directory": directory, "file": source, "command": " ".join([*flags, "-c", source])})
    with open(os.path.join(folder, "compile_commands.json"), "w", encoding="utf-8") as file:
        json.dump(commands, file, indent=1)
    if missing:
        print("not compiled here, and so not looked at:", *sorted(missing), sep="\n  ")
    return subprocess.run(["run-clang-tidy", "-quiet", "-p", folder], check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
