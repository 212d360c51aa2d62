"""Child processes that never outlive a test, and waiting for a condition."""

import os
import select
import subprocess
import time


def wait_until(condition, what, timeout=15.0, interval=0.02):
    """Returns the first true value of condition(); fails after timeout seconds.

    `what` is said in the failure; a function is called for it, so that it can show the last state."""
    deadline = time.monotonic() + timeout
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() >= deadline:
            raise AssertionError(f"not within {timeout:g} s: {what() if callable(what) else what}")
        time.sleep(interval)


class ProcessGroup:
    """Starts processes with their output in files, and ends all of them in the opposite order."""

    def __init__(self, log_directory):
        self._logs = log_directory
        self._running = []

    def start(self, name, arguments, environment, **options):
        path = os.path.join(self._logs, f"{name}.log")
        with open(path, "ab") as log:
            options.setdefault("stdin", subprocess.DEVNULL)
            options.setdefault("stdout", log)
            process = subprocess.Popen(arguments, env=environment,
                                       stderr=subprocess.STDOUT if options["stdout"] is log else log,
                                       **options)
        process.log_path = path
        self._running.append(process)
        return process

    def stop(self, process):
        """Ends one process and waits for it; a process that has ended already is only forgotten."""
        if process in self._running:
            self._running.remove(process)
        if process.poll() is None:
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait(10)
        for stream in (process.stdin, process.stdout, process.stderr):
            if stream:
                stream.close()

    def stop_all(self):
        for process in reversed(self._running[:]):
            self.stop(process)


def read_line(descriptor, what, timeout=15.0):
    """What appears on a descriptor up to the end of a line, without that end; usually one line, but all that came
    at once."""
    deadline = time.monotonic() + timeout
    received = b""
    while not received.endswith(b"\n"):
        remaining = deadline - time.monotonic()
        ready = remaining > 0 and select.select([descriptor], [], [], remaining)[0]
        chunk = os.read(descriptor, 4096) if ready else b""
        if not chunk:
            raise AssertionError(f"{what} did not start: {received!r}")
        received += chunk
    return received.decode().strip()
