"""The ambient sound of real sessions, as a sound server plays it."""

import math
import unittest

from support.application import Application, DesktopTestCase
from support.audio import FRAMES_A_SECOND, PipeWire, PulseAudio, Recording
from support.desktop import Desktop
from support.processes import wait_until

PIECE = FRAMES_A_SECOND // 10


class Listener:
    """Levels of the recording, in tenths of a second."""

    def __init__(self, desktop, name="recording"):
        self._recording = Recording(desktop, name)
        self._levels = []

    def levels(self):
        left, _ = self._recording.channels()
        for i in range(len(self._levels) * PIECE, len(left) - PIECE, PIECE):
            self._levels.append(math.sqrt(sum(sample * sample for sample in left[i:i + PIECE]) / PIECE))
        return self._levels

    def wait_for_levels(self, condition, what):
        wait_until(lambda: condition(self.levels()), what, 30, 0.2)


class Ambience(DesktopTestCase):
    def start(self, desktop, server, **preferences):
        server.start()
        listener = Listener(desktop)
        app = Application(desktop)
        app.write_preferences(tick_sound_enabled="false", **preferences)
        app.launch("--hidden")
        return app, listener

    def test_sound_lies_under_a_session_on_either_server(self):
        other = Desktop()
        self.addCleanup(other.close)
        servers = {"PulseAudio": (self.desktop, PulseAudio(self.desktop)), "PipeWire": (other, PipeWire(other))}
        running = {name: self.start(desktop, server, selected_ambient_sound="brown_noise", ambient_sound_volume="1.0")
                   for name, (desktop, server) in servers.items()}
        for name, (app, listener) in running.items():
            with self.subTest(server=name):
                app.do("start")
                listener.wait_for_levels(lambda found: len([level for level in found if level > 0.05]) > 80,
                                         "eight seconds of sound")
                levels = listener.levels()
                begin = next(i for i, level in enumerate(levels) if level > 0)
                self.assertLess(levels[begin + 2], levels[begin + 25] / 2, "it fades in")
                self.assertGreater(min(levels[begin + 40:-2]), 0.02, "there is no gap")

                app.do("pause")
                listener.wait_for_levels(lambda found: max(found[-5:]) == 0, "a pause is silent")
                app.do("resume")
                listener.wait_for_levels(lambda found: min(found[-5:]) > 0.02, "it goes on")
                app.do("stop")
                listener.wait_for_levels(lambda found: max(found[-5:]) == 0, "the end is silent")

    def test_silence_where_no_sound_is_chosen_and_in_breaks(self):
        app, listener = self.start(self.desktop, PulseAudio(self.desktop), selected_ambient_sound="rain")
        app.do("start", "--phase", "break")
        app.wait_for(lambda s: s["initialDuration"] - s["timeRemaining"] >= 2, "the break runs")
        self.assertEqual(max(listener.levels()), 0)

    def test_it_comes_back_with_its_server(self):
        server = PulseAudio(self.desktop)
        app, listener = self.start(self.desktop, server, selected_ambient_sound="rain")
        app.do("start")
        listener.wait_for_levels(lambda found: max(found) > 0.001, "sound")
        server.kill()
        wait_until(lambda: "missing  Ticks and ambient sound" in app.command("doctor")[1], "the doctor misses the server")
        server.start()
        listener = Listener(self.desktop, "recording after the restart")
        listener.wait_for_levels(lambda found: max(found, default=0) > 0.001, "sound again")
        self.assertNotIn("missing  Ticks and ambient sound", app.command("doctor")[1])


if __name__ == "__main__":
    unittest.main(verbosity=2)
