"""The sound servers, each with one loudspeaker that plays to nobody, and the recording of what it plays."""
from neighbours.surroundings import comes

RATE = 22050  # of the recording: twice that of the prompts
SPEAKER = "haut_parleur"

PULSE = f"""load-module module-native-protocol-unix
load-module module-null-sink sink_name={SPEAKER} rate=44100 channels=2 norewinds=1
set-default-sink {SPEAKER}
"""


def start_pulseaudio(around):
    setup = around.folder / "pulseaudio.setup"
    setup.write_text(PULSE)
    # The server looks for a bus of its own accord, which belongs to the one that a system starts.
    around.start("pulseaudio", "pulseaudio", "-n", "--system=no", "--daemonize=no", "--use-pid-file=no",
                 "--exit-idle-time=-1", "--realtime=no", "--high-priority=yes", "--log-level=error", "-F", setup,
                 env={"DBUS_SESSION_BUS_ADDRESS": "disabled:"})
    make_ready(around)


def start_pipewire(around):
    for name in ("pipewire", "wireplumber", "pipewire-pulse"):
        around.start(name, name, first=True)
        comes((around.folder / "run" / "pipewire-0").exists)
    comes(lambda: around.run("pactl", "info"))
    around.run("pactl", "load-module", "module-null-sink", f"sink_name={SPEAKER}", "rate=48000", "channels=2")
    comes(lambda: SPEAKER in around.run("pactl", "list", "short", "sinks"))
    around.run("pactl", "set-default-sink", SPEAKER)
    make_ready(around)


def make_ready(around):
    if not comes(lambda: f"Default Sink: {SPEAKER}" in around.run("pactl", "info")):
        raise RuntimeError("the sound server does not come up")
    around.run("pactl", "set-sink-volume", SPEAKER, "80%")


class Recording:
    """Everything that the loudspeaker plays, from now on."""

    def __init__(self, around):
        self.path = around.folder / "heard.raw"
        with open(self.path, "wb") as out:
            self.process = around.start("parec", "parec", f"--device={SPEAKER}.monitor", "--raw", "--format=s16le",
                                        f"--rate={RATE}", "--channels=1", "--latency-msec=200", first=True,
                                        stdout=out)
        if not comes(lambda: self.path.stat().st_size > 0):
            raise RuntimeError("the loudspeaker gives nothing")

    def end(self):
        self.process.terminate()
        self.process.wait()
        return self.path
