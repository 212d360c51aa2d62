"""The ticks of real sessions, as a sound server plays them."""

import math
import unittest

from support.application import Application, DesktopTestCase
from support.audio import FRAMES_A_SECOND, PipeWire, PulseAudio, Recording
from support.desktop import Desktop
from support.processes import wait_until

# Of the ticks that a session has unless its user chooses others.
TICK, TOCK = 1100, 860  # Hz
FRAMES = 3087
VOLUME = 0.5


def expected_tick(frequency):
    """All frames but the first, which is silence."""
    samples = []
    for i in range(1, FRAMES):
        envelope = i / 132 if i < 132 else math.exp(-12 * (i - 132) / (FRAMES - 132))
        samples.append(math.sin(2 * math.pi * frequency * i / FRAMES_A_SECOND) * envelope * VOLUME)
    return samples


EXPECTED = {frequency: expected_tick(frequency) for frequency in (TICK, TOCK)}


def deviation(samples, frequency):
    """The largest difference from a tick of that pitch; none where the length is another."""
    expected = EXPECTED[frequency]
    if len(samples) != len(expected):
        return math.inf
    return max(abs(a - b) for a, b in zip(samples, expected))


class Ticks(DesktopTestCase):
    def start(self, desktop, server, **preferences):
        """The program, not in a session yet, the server, and a recording of what it plays."""
        server.start()
        recording = Recording(desktop)
        app = Application(desktop)
        app.write_preferences(**preferences)
        app.launch("--hidden")
        return app, recording

    def test_a_session_of_a_minute_is_sixty_ticks_on_either_server(self):
        other = Desktop()
        self.addCleanup(other.close)
        servers = {"PulseAudio": (self.desktop, PulseAudio(self.desktop)), "PipeWire": (other, PipeWire(other))}
        running = {name: self.start(desktop, server) for name, (desktop, server) in servers.items()}
        for app, _ in running.values():
            app.do("start", "--minutes", "1")
        for name, (app, recording) in running.items():
            with self.subTest(server=name):
                app.wait_for(lambda s: s["state"] == "completed", "the minute passes", 90)
                sounds = wait_until(lambda taken=recording: (found := taken.sounds())[59:] and found,
                                    lambda taken=recording: f"sixty ticks are heard, not {len(taken.sounds())}")
                self.assertEqual(len(sounds), 60)
                for number, (_, samples) in enumerate(sounds):
                    pitch = TOCK if number % 2 else TICK
                    self.assertLessEqual(deviation(samples, pitch), 1e-7, f"tick {number + 1}")

    def test_ticks_come_back_with_their_server(self):
        server = PulseAudio(self.desktop)
        app, recording = self.start(self.desktop, server)
        app.do("start")
        wait_until(lambda: len(recording.sounds()) >= 2, "the session ticks")
        self.assertNotIn("missing  Ticks and ambient sound", app.command("doctor")[1])

        server.kill()
        wait_until(lambda: "missing  Ticks and ambient sound" in app.command("doctor")[1], "the doctor misses the server")
        server.start()
        recording = Recording(self.desktop, "recording after the restart")
        wait_until(lambda: len(recording.sounds()) >= 2, "the session ticks again")
        self.assertNotIn("missing  Ticks and ambient sound", app.command("doctor")[1])

        server.freeze()
        # The program that waited for the server would not answer before the command gives up.
        before = app.status()["timeRemaining"]
        app.wait_for(lambda s: s["timeRemaining"] <= before - 4, "the session goes on without the server")
        self.assertIn("missing  Ticks and ambient sound", app.command("doctor")[1])
        heard = len(recording.sounds())
        server.thaw()
        sounds = wait_until(lambda: (found := recording.sounds())[heard + 2:] and found, "ticks after the pause")
        for _, samples in sounds:
            self.assertLessEqual(min(deviation(samples, TICK), deviation(samples, TOCK)), 1e-7,
                                 "none was made up for, none cut")
        self.assertEqual(app.status()["state"], "running")

    def test_silence_where_the_user_wants_none(self):
        app, recording = self.start(self.desktop, PulseAudio(self.desktop), tick_sound_enabled="false")
        app.do("start")
        app.wait_for(lambda s: s["initialDuration"] - s["timeRemaining"] >= 3, "the session runs")
        self.assertEqual(recording.sounds(), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
