"""Runs clang-tidy over the sources that are named on standard input: tidy.py BUILD-DIRECTORY

Most of its time goes into the headers of Qt, which every file includes. So the sources of a folder are looked at in
batches, each as one file that includes them; they must not give the same name to different things. Programs of one
file, as tests are, are looked at one by one."""

import json
import os
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
    for number, (flags, directory, files) in enumerate(batches_of(entries)):
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
