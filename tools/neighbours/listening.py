"""What a ride is to say, which the program itself tells on its simulated clock, laid over what was heard."""
import dataclasses
import pathlib
import subprocess
import wave

import numpy

from neighbours.sound import RATE

ROOT = pathlib.Path(__file__).resolve().parents[2]
BANK = ROOT / "assets" / "voice" / "bank"
SESSION = ROOT / "assets" / "sessions" / "Petit essai.tq2"

# Every announcement, and a countdown of two seconds.
SETTINGS = "0111111111012 1               "
# Seconds of a ride, from the press that starts its countdown: the pause falls between two prompts.
PAUSE, RESUME, LENGTH = 43, 49, 216

READY_TO_RIDE = "ready to ride"
SCRIPT = f"""press MainForm.MyButton5
answer {SESSION}
press CreerCycle.MyButton4
advance 6
press CreerCycle.MyButton5
advance 4
journal prompt
echo {READY_TO_RIDE}
at {PAUSE} press MainForm.Command7
at {RESUME} press MainForm.Command7
press MainForm.MyButton3
advance {LENGTH}
expect MainForm.Label18 Prêt pour une Nouvelle Séance d'Entraînement
journal prompt
"""

WALK = 90.0  # seconds that may pass with other things before the ride
LATE = 3.0  # seconds: a prompt may come so much earlier or later after the one before it than on the simulated clock
ALIKE = 0.92  # of 1: how alike what is heard must be; two prompts that differ in one word reach 0.8
LOUD = 0.01  # of full scale: what nobody should have heard


@dataclasses.dataclass
class Prompt:
    at: float  # seconds
    number: str
    free: bool = False  # comes when the rider likes


def expected(console, folder):
    """The prompts of the ride, in their order."""
    folder.mkdir()
    (folder / "par.tq3").write_text(SETTINGS)
    done = subprocess.run([console, "--folder", folder, "--sound", "timed"], input=SCRIPT, capture_output=True,
                          text=True, check=False)
    parts = [[line.split("\t") for line in part.splitlines()] for part in done.stdout.split(f"{READY_TO_RIDE}\n")]
    whole = len(parts) == 2 and all(parts) and all(len(line) == 4 for part in parts for line in part)
    if done.returncode != 0 or not whole:
        raise RuntimeError(f"the console tells no ride: {done.stdout}{done.stderr}")
    return [Prompt(float(line[0]), line[2], free=line is part[0]) for part in parts for line in part]


def clip(number):
    with wave.open(str(BANK / f"{number}.wav")) as file:
        samples = numpy.frombuffer(file.readframes(file.getnframes()), numpy.uint8) - 128.0
        return resampled(samples, file.getframerate())


def resampled(samples, rate):
    length = len(samples) * RATE // rate
    spectrum = numpy.fft.rfft(samples)
    wanted = numpy.zeros(length // 2 + 1, complex)
    wanted[:min(len(spectrum), len(wanted))] = spectrum[:len(wanted)]
    return numpy.fft.irfft(wanted, length) * length / len(samples)


def correlation(heard, sought):
    """How alike the sought samples and those heard from each place on are, whatever their loudness."""
    size = 1 << (len(heard) + len(sought)).bit_length()
    spectrum = numpy.fft.rfft(heard, size) * numpy.conj(numpy.fft.rfft(sought, size))
    product = numpy.fft.irfft(spectrum, size)[:len(heard) - len(sought) + 1]
    energy = numpy.concatenate(([0.0], numpy.cumsum(heard * heard)))
    energy = energy[len(sought):] - energy[:-len(sought)]
    floor = len(sought) * (LOUD * 32768) ** 2 / 100  # where nothing sounds nothing is alike
    return product / numpy.sqrt(numpy.maximum(energy, floor) * numpy.sum(sought * sought))


class Listener:
    def __init__(self, path):
        self.heard = numpy.fromfile(path, numpy.int16).astype(float)
        self.rest = self.heard.copy()

    def find(self, sought, begin, end):
        """The first place between two seconds that is alike enough, else the best one, and how alike it is."""
        first = max(0, int(begin * RATE))
        part = self.heard[first:int(end * RATE) + len(sought)]
        if len(part) < len(sought):
            return 0.0, 0.0
        alike = correlation(part, sought)
        enough = numpy.nonzero(alike >= ALIKE)[0]
        best = int(numpy.argmax(alike[:enough[0] + RATE // 20] if len(enough) else alike))
        return (first + best) / RATE, float(alike[best])

    def take(self, begin, end):
        self.rest[max(0, int((begin - 0.05) * RATE)):int((end + 0.2) * RATE)] = 0

    def loud_rest(self):
        """The seconds in which something sounds that belongs to no prompt."""
        frame = RATE // 20
        frames = self.rest[:len(self.rest) // frame * frame].reshape(-1, frame)
        level = numpy.sqrt(numpy.mean(frames * frames, axis=1)) / 32768
        return sorted({int(i) // 20 for i in numpy.nonzero(level > LOUD)[0]})


def window(prompt, last, heard_at):
    """The seconds between which a prompt has to begin, from the one before it and when that was heard."""
    if last is None:
        return 0.0, 30.0
    near = heard_at + prompt.at - last.at
    return (heard_at + 0.1, near + WALK) if prompt.free else (max(near - LATE, heard_at + 0.1), near + LATE)


def compare(path, prompts):
    """Gives what was heard, in words, and what was wrong."""
    listener = Listener(path)
    problems, found, deviation = [], 0, 0.0
    last, heard_at = None, 0.0
    for prompt in prompts:
        sought = clip(prompt.number)
        at, alike = listener.find(sought, *window(prompt, last, heard_at))
        if alike < ALIKE:
            problems.append(f"prompt {prompt.number} at {prompt.at:.1f} s not heard (likeness {alike:.2f})")
            continue
        found += 1
        if last is not None and not prompt.free:
            deviation = max(deviation, abs(at - heard_at - prompt.at + last.at))
        listener.take(at, at + len(sought) / RATE)
        last, heard_at = prompt, at
    problems += [f"something else at {second} s of the recording" for second in listener.loud_rest()[:5]]
    return f"{found} / {len(prompts)}, ± {deviation:.1f} s", problems
