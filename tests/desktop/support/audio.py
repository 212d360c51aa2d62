"""Sound servers of a desktop's own, with an output called "norvin" that nobody hears, and what it played."""

import array
import os
import signal

from support.processes import wait_until

FRAMES_A_SECOND = 44100
# Shorter silences belong to a sound.
SILENCE = 2000

PIPEWIRE_CONFIGURATION = """context.properties = {
    default.clock.rate = 44100
    default.clock.allowed-rates = [ 44100 ]
}
context.objects = [
    { factory = adapter
        args = {
            factory.name = support.null-audio-sink
            node.name = norvin
            media.class = Audio/Sink
            audio.position = [ FL FR ]
            audio.rate = 44100
        }
    }
]
"""


class SoundServer:
    """One of the sound servers; `processes` are in the order in which they need each other."""

    def __init__(self, desktop):
        self._desktop = desktop
        self.processes = []

    def start(self):
        for name, *arguments in self._commands():
            self.processes.append(self._desktop.processes.start(
                name, [name, *arguments], self._desktop.environment | {"XDG_DATA_DIRS": "/usr/share"}))
        wait_until(lambda: "\tnorvin\t" in self._desktop.run("pactl", "list", "short", "sinks"),
                   "the sound server has its output")

    def kill(self):
        for process in reversed(self.processes):
            process.kill()
            self._desktop.processes.stop(process)
        self.processes = []

    def freeze(self):
        self._send(signal.SIGSTOP)

    def thaw(self):
        self._send(signal.SIGCONT)

    def _send(self, number):
        for process in self.processes:
            process.send_signal(number)

    def _commands(self):
        raise NotImplementedError


class PulseAudio(SoundServer):
    def _commands(self):
        # What an output takes back to begin a sound sooner has been recorded already; this one takes nothing back.
        return [("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "-L", "module-native-protocol-unix",
                 "-L", "module-null-sink sink_name=norvin rate=44100 channels=2 format=float32le norewinds=1")]


class PipeWire(SoundServer):
    def _commands(self):
        directory = os.path.join(self._desktop.environment["XDG_CONFIG_HOME"], "pipewire", "pipewire.conf.d")
        os.makedirs(directory, exist_ok=True)
        with open(os.path.join(directory, "norvin.conf"), "w", encoding="utf-8") as file:
            file.write(PIPEWIRE_CONFIGURATION)
        return [("pipewire",), ("wireplumber",), ("pipewire-pulse",)]


class Recording:
    """Everything that the output plays from now on, in two channels."""

    def __init__(self, desktop, name="recording"):
        self._path = desktop.path(name)
        self._read = 0  # bytes
        self._channels = (array.array("f"), array.array("f"))
        self._process = desktop.processes.start(
            "parec", ["parec", "--device=norvin.monitor", "--raw", "--format=float32le", f"--rate={FRAMES_A_SECOND}",
                      "--channels=2", "--latency-msec=20", self._path], desktop.environment)
        wait_until(lambda: os.path.exists(self._path) and os.path.getsize(self._path) > 0, "the recording runs")

    def channels(self):
        """The frames so far, left and right."""
        self._take_in()
        return self._channels

    def sounds(self):
        """The sounds so far that have ended, each as (first frame, samples); both channels have to be alike."""
        self._take_in()
        left, right = self._channels
        assert left == right, "one channel plays something else"
        sounds, begin, end = [], None, 0
        for frame, sample in enumerate(left):
            if sample == 0.0:
                continue
            if begin is not None and frame - end > SILENCE:
                sounds.append((begin, left[begin:end]))
                begin = None
            if begin is None:
                begin = frame
            end = frame + 1
        if begin is not None and len(left) - end > SILENCE:
            sounds.append((begin, left[begin:end]))
        return sounds

    def _take_in(self):
        with open(self._path, "rb") as file:
            file.seek(self._read)
            data = file.read()
        data = data[:len(data) // 8 * 8]
        self._read += len(data)
        samples = array.array("f", data)
        for number, channel in enumerate(self._channels):
            channel.extend(samples[number::2])
