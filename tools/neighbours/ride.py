"""One neighbourhood's visit: the program is started, ridden with a pause, listened to and ended, and told about."""
import contextlib
import dataclasses
import json
import time
import traceback

from neighbours import listening
from neighbours.surroundings import Surroundings, comes, wakeups_a_second

READY = "Prêt pour une Nouvelle Séance d'Entraînement"
# What the program tells on its standard error of a neighbour that it lacks.
NO_SPEAKER = "Pas de haut-parleur"
NO_SAVER = "Pas d'écran de veille"
NO_PORTAL = "Pas de portail du bureau"


@dataclasses.dataclass
class Report:
    tried: list = dataclasses.field(default_factory=list)
    heard: str = "-"
    lacks: list = dataclasses.field(default_factory=list)
    problems: list = dataclasses.field(default_factory=list)

    def check(self, what, good, else_told=""):
        """Notes a thing that was tried."""
        self.tried.append(what)
        if not good:
            self.problems.append(f"{what}: {else_told or 'no'}")
        return good

    def save(self, path):
        path.write_text(json.dumps(dataclasses.asdict(self)))


class Visit:
    def __init__(self, programs, folder):
        self.programs = programs
        self.around = Surroundings(folder)
        self.report = Report()
        self.program = None
        (self.around.program_folder / "par.tq3").write_text(listening.SETTINGS)

    def start(self, *words, name="ventoria", folder=None):
        """The program, its folder made ready; what else is given are its arguments."""
        command = [self.programs / "ventoria", "--folder", folder or self.around.program_folder, *words]
        self.program = self.around.start(name, *command)
        return self.program

    def start_again(self, *words, folder=None):
        """A second start, which wakes the first and ends."""
        return self.around.run(self.programs / "ventoria", "--folder", folder or self.around.program_folder, *words)

    def running(self):
        return self.program.poll() is None

    def ride(self, hands, meanwhile=()):
        """Presses through the ride: hands give countdown, pause and resume; meanwhile gives (seconds, action)."""
        begun = time.monotonic()
        moments = [(0, hands.countdown), (listening.PAUSE, hands.pause), (listening.RESUME, hands.resume), *meanwhile]
        for at, action in sorted(moments, key=lambda moment: moment[0]):
            time.sleep(max(0, begun + at - time.monotonic()))
            if not self.running():
                raise RuntimeError(f"the program has ended: {self.program.returncode}")
            action()
        return begun

    def compare(self, recording, prompts):
        self.report.heard, problems = listening.compare(recording.end(), prompts)
        self.report.problems += problems

    def rests(self):
        """Wake-ups at rest, which a moment's work of another program may raise once."""
        rates = []
        while len(rates) < 3 and (not rates or rates[-1] > 5):
            rates.append(wakeups_a_second(self.program.pid))
        self.report.check(f"at rest {rates[-1]:.1f} wake-ups/s", rates[-1] <= 5)

    def ends(self, why):
        """The program has been told to end, and does."""
        self.report.check(f"ended by {why}", comes(lambda: not self.running(), 20) and self.program.returncode == 0,
                          f"status {self.program.poll()}")

    def told(self, *lacks):
        """Each lack is told once, and nothing else."""
        lines = self.around.log("ventoria").read_text(errors="replace").splitlines()
        self.report.lacks = [lack.rstrip(" :") for lack in lacks]
        for lack in lacks:
            count = sum(line.startswith(lack) for line in lines)
            if count != 1:
                self.report.problems.append(f"'{lack}' told {count} times")
        self.report.problems += [f"told: {line}" for line in lines if not line.startswith(lacks)]


@contextlib.contextmanager
def visit(programs, folder):
    """Ends everything that was started, and keeps the report, however the visit ends."""
    here = Visit(programs, folder / "around")
    try:
        yield here
    except BaseException as error:  # a neighbour that does not come up is a failure like another
        here.report.problems.append(f"{type(error).__name__}: {error}")
        traceback.print_exc()
    finally:
        here.around.end()
        here.report.save(folder / "report.json")
