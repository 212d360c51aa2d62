"""A short real session on a virtual display: demo.py PROGRAM DIRECTORY

Two programs are used in turn for a minute, one that counts as work and one that does not, and a blocked one is
tried. What the session recorded is printed from the store; a picture of the window is left in DIRECTORY."""

import os
import sys

from support.application import Application
from support.desktop import BLOCKED, UNLISTED, WORK, Desktop


def say(text):
    print(text, flush=True)


def table(rows, columns):
    cells = [columns] + [[format(row[column], ".2f") if isinstance(row[column], float) else str(row[column] or "–")
                          for column in columns] for row in rows]
    widths = [max(len(line[i]) for line in cells) for i in range(len(columns))]
    return "\n".join("  " + "  ".join(cell.ljust(width) for cell, width in zip(line, widths)) for line in cells)


def run_session(app, picture):
    desktop = app.desktop
    app.launch()
    app.do("allow", "--app", WORK)
    app.do("block", "--app", BLOCKED)
    windows = {"Logo": desktop.start_program(WORK), "Note": desktop.start_program(UNLISTED)}
    app.do("start", "--minutes", "1", "--task", "Try Norvin Focus")
    say("A work phase of one minute runs. In front, in turn:")
    for name, kind in (("Logo", "legitimate"), ("Note", "distracted"), ("Logo", "legitimate")):
        desktop.bring_to_front(windows[name])
        counted = app.wait_for_activity(kind, name)[f"{kind}Seconds"]
        say(f"  {name}, counted as {kind}")
        app.wait_for(lambda s: s[f"{kind}Seconds"] >= counted + 6, "its seconds are counted")
    desktop.open_program(BLOCKED)
    app.wait_for(lambda s: s["blockedAttemptsCount"] == 1, "the blocked application is hidden")
    say("  Calculator, which is blocked: hidden, and Norvin Focus is in front")
    app.wait_for(lambda s: s["activity"]["appName"] not in ("Logo", "Note"), "the own window is in front")
    desktop.screenshot(picture)
    app.wait_for(lambda s: s["state"] == "completed", "the phase ends", 90)


def main():
    program, directory = sys.argv[1:]
    os.makedirs(directory, exist_ok=True)
    picture = os.path.abspath(os.path.join(directory, "session.png"))
    desktop = Desktop()
    try:
        app = Application(desktop, program)
        run_session(app, picture)
        say("\nThe session as it is stored:")
        say(table(app.rows("SELECT * FROM SessionLog"),
                  ["start", "minutes", "completed", "task", "score", "legitimateSeconds", "distractedSeconds",
                   "blockedApplications"]))
        say("\nIts intervals:")
        say(table(app.rows("SELECT * FROM AppUsageLog"), ["start", "end", "seconds", "application", "category"]))
    finally:
        desktop.close()
    say(f"\nA picture of the window during the session: {picture}")


if __name__ == "__main__":
    main()
