"""Measures the program and prints ratios as a table: run.py BUILD-DIRECTORY [PART...]

Whole processes are measured on a private virtual display, in turn with their neighbours, so that what the machine does
meanwhile meets both. The store holds ten years of a heavy user. Nothing here passes or fails. All of it takes half an
hour; the parts are: processes, sounds, browsers, store, planning, statistics."""

import json
import re
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
SOUND_NAMES = ("rain", "wind", "waves", "stream", "fire", "white_noise", "pink_noise", "brown_noise", "grey_noise", "fan",
               "low_drone", "soft_pads", "singing_bowls", "air_tones")


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
            app.write_preferences(tick_sound_enabled=ticks, floating_timer_enabled="false")
            app.launch("--hidden")
            app.do("start", "--minutes", "60")
            programs.append(app.process.pid)
        return sample(*programs)
    finally:
        for desktop in desktops:
            desktop.close()


def measure_company(program):
    """Samples taken at the same time of a session with its window closed: alone, with rain, with the floating timer; and
    then of one whose window has sunk as deep as it can."""
    desktops = []

    def begin(*arguments, **preferences):
        desktops.append(Desktop())
        PulseAudio(desktops[-1]).start()
        app = Application(desktops[-1], program)
        app.write_preferences(**{"tick_sound_enabled": "false", "floating_timer_enabled": "false", **preferences})
        app.launch(*arguments)
        app.do("start", "--minutes", "60")
        return app.process.pid

    try:
        sinking = begin(immersion_depth="1")
        started = time.monotonic()
        quiet = begin("--hidden")
        rain = begin("--hidden", selected_ambient_sound="rain")
        floating = begin("--hidden", floating_timer_enabled="true")
        together = sample(quiet, rain, floating)
        time.sleep(max(0, started + 185 - time.monotonic()))
        return *together, *sample(sinking)
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
        app.write_preferences(tick_sound_enabled="false", floating_timer_enabled="false")
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


def frames_in(log):
    """Milliseconds of each frame that a program drew."""
    return [int(length) for length in re.findall(r"rendered with .*? in (\d+)ms", log)]


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
        return frames_in(app.log()[before:])
    finally:
        desktop.close()


def measure_statistics(program, fill_store):
    """Of the statistics page over ten years: the proportional set size before, with, and after it, MB; the frames while
    it is opened, scrolled and put to other periods; samples and frames of a session that runs with it in front."""
    desktop = Desktop()
    try:
        desktop.environment["QT_LOGGING_RULES"] = "qt.scenegraph.time.renderloop=true"
        app = Application(desktop, program)
        app.write_preferences(tick_sound_enabled="false")
        subprocess.run([fill_store, app.store_file, str(YEARS)], check=True)
        app.launch()
        app.do("allow", "--app", WORK)
        desktop.bring_to_front(app.windows()[0])

        def size():
            rollup = Path(f"/proc/{app.process.pid}/smaps_rollup").read_text()
            return next(int(line.split()[1]) for line in rollup.splitlines() if line.startswith("Pss:")) / 1024

        def keys(*names):
            desktop.run("xdotool", "key", "--delay", "400", *names, "sleep", "1.5")

        sizes = [size()]
        drawn = len(app.log())
        keys("ctrl+4")
        keys("Right", "Tab", "Tab", "Right", "Right", "Right", "Left", "Right")
        desktop.run("xdotool", "mousemove", "700", "600")
        for _ in range(60):
            desktop.run("xdotool", "click", "5")
            time.sleep(0.016)
        frames = frames_in(app.log()[drawn:])
        sizes.append(size())
        app.do("start", "--minutes", "60")
        drawn = len(app.log())
        (running,) = sample(app.process.pid)
        live = frames_in(app.log()[drawn:])
        app.do("stop")
        keys("ctrl+1")
        sizes.append(size())
        return sizes, frames, running, live
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
            kept = [argument for argument in arguments if argument.isdigit() or argument in SOUND_NAMES]
            runs.setdefault("/".join([name, *kept]) if not program.endswith("store") else name, []).append(run)

    def median(name, key):
        return statistics.median(run[key] for run in runs[name])

    return median


def rows_of_processes(build, program):
    minimal_window, fill_store = (str(build / "bin" / name) for name in ("bench_minimal_window", "fill_store"))
    rows = []
    desktop = Desktop()
    try:
        app = Application(desktop, program)
        # There is no sound server; the floating timer is a window of its own, measured apart.
        app.write_preferences(tick_sound_enabled="false", floating_timer_enabled="false")
        app.launch("--hidden")
        app.process.terminate()
        app.process.wait()
        for name in ("empty store", "ten years"):
            if name == "ten years":
                subprocess.run([fill_store, app.store_file, str(YEARS)], check=True)
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
    return rows


def rows_of_sounds(build, program):
    rows = []
    ticking, silent = measure_ticks(program)
    rows.append(("session running, window closed: CPU with ticks / without", f"{ticking[0] / silent[0]:.2f}",
                 f"{ticking[0]:.3f} / {silent[0]:.3f} %", "–"))
    rows.append(("session running, window closed: voluntary context switches a second with ticks / without",
                 f"{ticking[1] / silent[1]:.2f}", f"{ticking[1]:.2f} / {silent[1]:.2f}", "–"))

    quiet, rain, floating, sunk = measure_company(program)
    for what, (cpu, switches, pss), limits in (
            ("with rain", rain, ("1 more", "–", "–")), ("with the floating timer", floating, ("0.2", "6", "60")),
            ("without either", quiet, ("0.05", "2", "60")), ("its window open and sunk", sunk, ("3", "–", "–"))):
        begin = "session running" if what.startswith("its") else "session running, window closed"
        rows.append((f"{begin}, {what}: CPU, % of a core; switches a second; PSS, MB",
                     f"{cpu:.3f}; {switches:.1f}; {pss:.0f}", "", "; ".join(limits)))
    median = run_benchmarks(str(build / "bin" / "bench_sound"))
    costs = {name: median(f"makeSound/{name}", "core_percent") for name in SOUND_NAMES}
    dearest = max(costs, key=costs.get)
    rows.append(("an ambient sound made while it is heard: % of a core, median of all, dearest",
                 f"{statistics.median(costs.values()):.2f}, {costs[dearest]:.2f}", dearest, "1"))
    return rows


def rows_of_browsers(_build, program):
    rows = []
    for kind, identifier in ((Firefox, "org.mozilla.firefox"), (Chromium, "com.google.Chrome")):
        asked, silent = measure_browser(program, kind, identifier)
        for what, with_it, without in (("own process", asked[0], silent[0]), ("accessibility bus", asked[1], silent[1])):
            rows.append((f"session, {kind.name} in front: CPU of the {what}, looked into / not",
                         f"{with_it[0] / max(without[0], 0.001):.2f}", f"{with_it[0]:.3f} / {without[0]:.3f} %", "–"))

    return rows


def rows_of_store(build, _program):
    rows = []
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

    return rows


def rows_of_planning(build, program):
    rows = []
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

    return rows


def rows_of_statistics(build, program):
    rows = []
    median = run_benchmarks(str(build / "bin" / "bench_stats"))
    month, years = "30", "3652"
    sql = {"30 days": median(f"sqlMonth/{years}", "real_time"), "ten years": median(f"sqlAll/{years}", "real_time")}
    for name, store, period, limit in (("openMonth", month, "30 days", "–"), ("openMonth", years, "30 days", "10 ms"),
                                       ("openAll", years, "ten years", "500 ms")):
        own = median(f"{name}/{store}", "real_time")
        of = "a store of ten years" if store == years else "a store of 30 days"
        rows.append((f"statistics of {period} from cold, {of} / the same sums in SQL", f"{own / sql[period]:.2f}",
                     f"{own:.1f} / {sql[period]:.1f} ms", limit))
    for name, what, limit in (("switchPeriod", "another period shown, all loaded", "10 ms"),
                              ("liveSecond", "a second of a session", "1 ms"),
                              ("intervalRecorded", "an interval recorded", "–")):
        few, many = median(f"{name}/{month}", "real_time"), median(f"{name}/{years}", "real_time")
        rows.append((f"statistics: {what}, of ten years / of 30 days", f"{many / few:.2f}",
                     f"{many * 1000:.3g} / {few * 1000:.3g} µs", limit))
    rows.append(("statistics: bytes of ten years, MB", f"{median(f'switchPeriod/{years}', 'bytes') / 1e6:.1f}", "", "64"))
    (before, shown, after), frames, (cpu, switches, _), live = measure_statistics(program, str(build / "bin" / "fill_store"))
    rows.append(("statistics page over ten years: proportional set size before, with, after it, MB",
                 f"{before:.0f}, {shown:.0f}, {after:.0f}", "", "100"))
    rows.append(("statistics page opened, scrolled, other periods: longest frame / 16 ms", f"{max(frames) / 16:.2f}",
                 f"{max(frames)} ms, median {statistics.median(frames):.0f}, {len(frames)} frames", "1"))
    rows.append(("session running, statistics in front: CPU, % of a core", f"{cpu:.3f}", "", "0.2"))
    rows.append(("session running, statistics in front: voluntary context switches a second", f"{switches:.2f}", "", "6"))
    rows.append(("session running, statistics in front: longest frame / 16 ms", f"{max(live, default=0) / 16:.2f}",
                 f"{max(live, default=0)} ms, {len(live)} frames", "1"))

    return rows


PARTS = {"processes": rows_of_processes, "sounds": rows_of_sounds, "browsers": rows_of_browsers,
         "store": rows_of_store, "planning": rows_of_planning, "statistics": rows_of_statistics}


def main():
    build = Path(sys.argv[1]).resolve()
    program = str(build / "bin" / "norvin-focus")
    wanted = sys.argv[2:] or list(PARTS)
    print("| what | measured | from | at most |\n| --- | --- | --- | --- |", flush=True)
    for part in wanted:
        for row in PARTS[part](build, program):
            print("| " + " | ".join(row) + " |", flush=True)


if __name__ == "__main__":
    main()
