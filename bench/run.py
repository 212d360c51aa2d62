"""Measures the program and prints ratios as a table: run.py BUILD-DIRECTORY

Whole processes are measured on a private virtual display, in turn with their neighbours, so that what the machine does
meanwhile meets both. The store holds ten years of a heavy user. Nothing here passes or fails."""

import json
import random
import re
import sqlite3
import statistics
import subprocess
import sys
import time
import uuid
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "desktop"))

from support.application import Application  # noqa: E402
from support.audio import PulseAudio  # noqa: E402
from support.browsers import Accessibility, Chromium, Firefox  # noqa: E402
from support.desktop import WORK, Desktop  # noqa: E402
from support.pages import Pages  # noqa: E402

START_PAIRS = 15
SAMPLE_SECONDS = 30
YEARS = 10
DAY = 86_400_000  # milliseconds


def fill_store(file):
    """200 projects, 20,000 tasks, 36,500 sessions and 1,500,000 intervals, the newest of today."""
    chance = random.Random(1)
    now = int(time.time() * 1000)
    first = now - YEARS * 365 * DAY
    connection = sqlite3.connect(file)
    connection.execute("PRAGMA synchronous = OFF")

    def identity():
        return uuid.UUID(int=chance.getrandbits(128)).bytes

    projects = [identity() for _ in range(200)]
    connection.executemany("INSERT INTO Project VALUES (?, ?, '', '#7c3aed', '', ?)",
                           ((key, f"Project {i}", first + i) for i, key in enumerate(projects)))
    connection.executemany(
        "INSERT INTO TaskItem VALUES (?, ?, '', ?, 1, NULL, ?, NULL, ?, NULL, NULL)",
        ((identity(), f"Task {i}", "Done" if i % 5 else "To Do", first + i, projects[i % 200]) for i in range(20_000)))
    connection.executemany(
        "INSERT INTO Session VALUES (?, ?, 25, 1, NULL, ?, 0, 0, 0, 1400, 100)",
        ((identity(), first + i * (YEARS * 365 * DAY // 36_500), chance.uniform(3, 10)) for i in range(36_500)))
    connection.executemany("INSERT INTO AppUsageSource VALUES (?, ?, ?, 'category_other')",
                           ((i, f"org.example.App{i}", f"App {i}") for i in range(1, 121)))
    step = YEARS * 365 * DAY // 1_500_000
    connection.executemany(
        "INSERT INTO AppUsageSession VALUES (?, ?, ?, ?, 60)",
        ((chance.randbytes(16), 1 + min(119, int(chance.paretovariate(1))), first + i * step, first + i * step + 60_000)
         for i in range(1_500_000)))
    connection.commit()
    connection.execute("PRAGMA wal_checkpoint(TRUNCATE)")
    connection.close()


def first_frame(command, environment):
    """Seconds from the start of a process to the line that announces its first frame."""
    begin = time.perf_counter()
    with subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL) as process:
        for line in process.stdout:
            if line.startswith(b"first frame"):
                elapsed = time.perf_counter() - begin
                process.communicate()
                return elapsed
    raise SystemExit(f"{command} showed no frame")


def measure_start(desktop, program, minimal_window):
    own, minimal = [], []
    for pair in range(START_PAIRS + 1):
        a = first_frame([program, "--measure-first-frame"], desktop.environment)
        b = first_frame([minimal_window], desktop.environment)
        if pair > 0:  # the first pair warms the caches
            own.append(a)
            minimal.append(b)
    return statistics.median(own), statistics.median(minimal)


def usage_of(pid):
    """CPU nanoseconds and voluntary context switches so far of each thread of a process."""
    usage = {}
    for task in Path(f"/proc/{pid}/task").iterdir():
        cpu = int((task / "schedstat").read_text().split()[0])
        switches = next(int(line.split()[1]) for line in (task / "status").read_text().splitlines()
                        if line.startswith("voluntary_ctxt_switches:"))
        usage[task.name] = (cpu, switches)
    return usage


def sample(*pids):
    """Of each process: per cent of a core, voluntary context switches a second, proportional set size in MB."""
    time.sleep(10)  # what was done just before settles: threads that were needed for it end, the coach is silent again
    begin = time.perf_counter()
    before = [usage_of(pid) for pid in pids]
    time.sleep(SAMPLE_SECONDS)
    after = [usage_of(pid) for pid in pids]
    seconds = time.perf_counter() - begin
    samples = []
    for pid, earlier, later in zip(pids, before, after):
        cpu, switches = (sum(now[i] - earlier.get(thread, (0, 0))[i] for thread, now in later.items())
                         for i in (0, 1))
        rollup = Path(f"/proc/{pid}/smaps_rollup").read_text()
        pss = next(int(line.split()[1]) for line in rollup.splitlines() if line.startswith("Pss:"))
        samples.append((cpu / seconds / 1e7, switches / seconds, pss / 1024))
    return samples


def measure_session(app, minimal_window):
    """Samples by the state of the program, and one of the neighbour that counts a time down at the same time."""
    desktop = app.desktop
    app.launch()
    app.do("allow", "--app", WORK)
    desktop.bring_to_front(app.windows()[0])
    result = {}
    (result["idle"],) = sample(app.process.pid)
    app.do("start", "--minutes", "60")
    neighbour = desktop.processes.start("minimal_window", [minimal_window, "tick"], desktop.environment)
    result["open"], beside = sample(app.process.pid, neighbour.pid)
    desktop.processes.stop(neighbour)
    desktop.start_program(WORK)
    app.close_windows()
    (result["hidden"],) = sample(app.process.pid)
    app.do("stop")
    (result["idle, hidden"],) = sample(app.process.pid)
    return result, beside


def measure_ticks(program):
    """Two samples taken at the same time of a session with its window closed: with ticks, and without."""
    desktops = []
    try:
        programs = []
        for ticks in ("true", "false"):
            desktops.append(Desktop())
            PulseAudio(desktops[-1]).start()
            app = Application(desktops[-1], program)
            app.write_preferences(tick_sound_enabled=ticks)
            app.launch("--hidden")
            app.do("start", "--minutes", "60")
            programs.append(app.process.pid)
        return sample(*programs)
    finally:
        for desktop in desktops:
            desktop.close()


def measure_browser(program, kind, identifier):
    """Of a session with a browser in front, window closed: own samples and those of the accessibility bus, with the
    browser looked into each second, and without."""
    desktop, pages = Desktop(), Pages()
    try:
        accessibility = Accessibility(desktop).start()
        launcher = accessibility.launcher.pid
        bus = int(Path(f"/proc/{launcher}/task/{launcher}/children").read_text().split()[0])
        browser = kind(desktop, pages)
        browser.start(pages.add("http://work.example/", "Work page"), title="Work page")
        app = Application(desktop, program)
        app.write_preferences(tick_sound_enabled="false")
        app.launch("--hidden")
        app.do("allow", "--app", identifier)
        app.do("start", "--minutes", "60")
        app.wait_for(lambda s: s["activity"]["domain"] == "work.example", "the page is known")
        asked = sample(app.process.pid, bus)
        app.do("allow", "--app", identifier, "--remove")
        silent = sample(app.process.pid, bus)
        browser.close()
        return asked, silent
    finally:
        desktop.close()
        pages.close()


def measure_scrolling(program):
    """Milliseconds of each frame drawn while a board of 500 cards a column is scrolled with the wheel."""
    desktop = Desktop()
    try:
        desktop.environment["QT_LOGGING_RULES"] = "qt.scenegraph.time.renderloop=true"
        app = Application(desktop, program)
        app.write_preferences(tick_sound_enabled="false")
        app.launch()
        desktop.bring_to_front(app.windows()[0])
        made = {"createdAt": "2026-01-01T00:00:00.000Z"}
        project = {"id": str(uuid.uuid4()), "name": "Board", "projectDescription": "", "colorHex": "#7c3aed",
                   "emoji": "📋", **made}
        tasks = [{"id": str(uuid.uuid4()), "title": f"Task {i} of a long board", "taskDescription": "",
                  "statusValue": ("To Do", "In Progress", "Done")[i % 3], "priorityValue": i % 3, "dueDate": None,
                  "plannedDate": None, "project": project["id"], "phase": None, "parentTask": None, **made}
                 for i in range(1500)]
        file = desktop.path("board.json")
        with open(file, "w", encoding="utf-8") as text:
            json.dump({"format": "norvin-focus-planning", "version": 1, "projects": [project], "phases": [],
                       "tasks": tasks, "resources": []}, text)
        app.do("import", file)
        desktop.run("xdotool", "key", "--delay", "500", "ctrl+3", "Return", "sleep", "2")
        before = len(app.log())
        desktop.run("xdotool", "mousemove", "500", "600")
        for _ in range(120):
            desktop.run("xdotool", "click", "5")
            time.sleep(0.016)
        return [int(length) for length in re.findall(r"rendered with .*? in (\d+)ms", app.log()[before:])]
    finally:
        desktop.close()


def run_benchmarks(program):
    output = subprocess.run([program, "--benchmark_format=json", "--benchmark_repetitions=3",
                             "--benchmark_enable_random_interleaving=true"],
                            check=True, capture_output=True, text=True).stdout
    runs = {}
    for run in json.loads(output)["benchmarks"]:
        if run["run_type"] == "iteration":
            name, *arguments = run["name"].split("/")
            size = [argument for argument in arguments if argument.isdigit()]
            runs.setdefault("/".join([name, *size]) if program.endswith("planning") else name, []).append(run)

    def median(name, key):
        return statistics.median(run[key] for run in runs[name])

    return median


def main():
    build = Path(sys.argv[1]).resolve()
    program = str(build / "bin" / "norvin-focus")
    minimal_window = str(build / "bin" / "bench_minimal_window")
    rows = []
    desktop = Desktop()
    try:
        app = Application(desktop, program)
        app.write_preferences(tick_sound_enabled="false")  # there is no sound server
        app.launch("--hidden")
        app.process.terminate()
        app.process.wait()
        for name in ("empty store", "ten years"):
            if name == "ten years":
                fill_store(app.store_file)
            own, minimal = measure_start(desktop, program, minimal_window)
            rows.append((f"start to first frame / that of a minimal Qt Quick window, {name}", f"{own / minimal:.2f}",
                         f"{own * 1000:.0f} / {minimal * 1000:.0f} ms", "2"))
        budgets = {"idle": ("–", "0.1", "60"), "open": ("0.2", "6", "60"), "hidden": ("0.05", "2", "60"),
                   "idle, hidden": ("–", "0.1", "60")}
        names = {"idle": "nothing running, window open", "open": "session running, window open",
                 "hidden": "session running, window closed", "idle, hidden": "nothing running, window closed"}
        samples, beside = measure_session(app, minimal_window)
        for state, (cpu, switches, pss) in samples.items():
            limits = budgets[state]
            rows.append((f"{names[state]}: CPU, % of a core", f"{cpu:.3f}", "", limits[0]))
            if state == "open":
                rows.append((f"{names[state]}: CPU / that of a minimal Qt Quick window that counts down beside it",
                             f"{cpu / beside[0]:.2f}", f"{cpu:.3f} / {beside[0]:.3f} %", "–"))
            rows.append((f"{names[state]}: voluntary context switches a second", f"{switches:.2f}", "", limits[1]))
            rows.append((f"{names[state]}: proportional set size, MB", f"{pss:.0f}", "", limits[2]))
    finally:
        desktop.close()

    ticking, silent = measure_ticks(program)
    rows.append(("session running, window closed: CPU with ticks / without", f"{ticking[0] / silent[0]:.2f}",
                 f"{ticking[0]:.3f} / {silent[0]:.3f} %", "–"))
    rows.append(("session running, window closed: voluntary context switches a second with ticks / without",
                 f"{ticking[1] / silent[1]:.2f}", f"{ticking[1]:.2f} / {silent[1]:.2f}", "–"))

    for kind, identifier in ((Firefox, "org.mozilla.firefox"), (Chromium, "com.google.Chrome")):
        asked, silent = measure_browser(program, kind, identifier)
        for what, with_it, without in (("own process", asked[0], silent[0]), ("accessibility bus", asked[1], silent[1])):
            rows.append((f"session, {kind.name} in front: CPU of the {what}, looked into / not",
                         f"{with_it[0] / max(without[0], 0.001):.2f}", f"{with_it[0]:.3f} / {without[0]:.3f} %", "–"))

    median = run_benchmarks(str(build / "bin" / "bench_store"))
    for percentile, budget in (("p50_us", "0.5 ms more"), ("p99_us", "2 ms more")):
        save, sqlite, flush = (median(name, percentile)
                               for name in ("saveThroughContext", "saveThroughSqlite", "flushBare"))
        name = percentile.removesuffix("_us")
        rows.append((f"save of one record, {name} / the same row through SQLite's C interface",
                     f"{save / sqlite:.2f}", f"{save:.0f} / {sqlite:.0f} µs", "–"))
        rows.append((f"save of one record, {name} / a bare fdatasync", f"{save / flush:.2f}",
                     f"{save:.0f} / {flush:.0f} µs", budget))
    load, scan = median("loadPlanningGraph", "real_time"), median("scanPlanningRows", "real_time")
    rows.append(("load of 200 projects and 20,000 tasks / a bare scan of their rows", f"{load / scan:.2f}",
                 f"{load / 1e6:.1f} / {scan / 1e6:.1f} ms", "–"))

    median = run_benchmarks(str(build / "bin" / "bench_planning"))
    for name, what in (("openAgenda", "the planning screens made, today listed"), ("switchDay", "another day shown"),
                       ("showMonth", "another month shown"), ("openBoard", "a board opened"),
                       ("moveCard", "a card moved and saved"), ("typeInSearch", "a letter typed in the search for tasks"),
                       ("searchProjects", "a letter typed in the search for projects")):
        few, many = median(f"{name}/20", "real_time"), median(f"{name}/20000", "real_time")
        rows.append((f"{what}, of 20,000 tasks in 200 projects / of 20 tasks", f"{many / few:.2f}",
                     f"{many:.0f} / {few:.0f} µs", "–"))
    frames = measure_scrolling(program)
    rows.append(("scrolling a board of 500 cards a column: longest frame / 16 ms", f"{max(frames) / 16:.2f}",
                 f"{max(frames)} ms, median {statistics.median(frames):.0f}, {len(frames)} frames", "1"))

    print("| what | measured | from | at most |\n| --- | --- | --- | --- |")
    for row in rows:
        print("| " + " | ".join(row) + " |")


if __name__ == "__main__":
    main()
