"""What one start of the program has around it: folders, a bus, servers, all its own and gone with it."""
import contextlib
import ctypes
import os
import pathlib
import signal
import subprocess
import sys
import time

PR_SET_PDEATHSIG = 1
SOUND_SERVERS_PRIORITY = -11
# Nothing of the desktop that the tool is called from may be found; the sanitizers' options may.
KEPT = ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS")


def comes(what, seconds=30.0, pause=0.1):
    """Waits until `what` gives something true, and returns that; after so many seconds, what it gives then."""
    end = time.monotonic() + seconds
    while True:
        found = what()
        if found or time.monotonic() >= end:
            return found
        time.sleep(pause)


def go_first():
    with contextlib.suppress(PermissionError):
        os.setpriority(os.PRIO_PROCESS, 0, SOUND_SERVERS_PRIORITY)


class Surroundings:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.processes = []
        for name in ("home", "run", "program"):
            (self.folder / name).mkdir(mode=0o700, parents=True)
        self.program_folder = self.folder / "program"
        self.env = {name: os.environ[name] for name in KEPT if name in os.environ}
        self.env |= {"HOME": str(self.folder / "home"), "XDG_RUNTIME_DIR": str(self.folder / "run"),
                     "LANG": "C.UTF-8", "DBUS_SYSTEM_BUS_ADDRESS": "disabled:"}

    def start(self, name, *command, env=None, first=False, **more):
        """Starts a program that lasts; what it prints goes to NAME.log. `first`: it goes before others, as a
        desktop has its sound server go."""
        with open(self.log(name), "ab") as log:
            more = {"stdin": subprocess.DEVNULL, "stdout": log, "stderr": log} | more
            process = subprocess.Popen([str(word) for word in command], env=self.env | (env or {}),
                                       preexec_fn=go_first if first else None, **more)
        self.processes.append(process)
        return process

    def log(self, name):
        return self.folder / f"{name}.log"

    def run(self, *command):
        """Runs a program to its end, and gives what it printed."""
        done = subprocess.run([str(word) for word in command], env=self.env, capture_output=True, text=True,
                              timeout=60, check=False)
        return done.stdout.strip()

    def start_bus(self):
        """A session bus; everything that is started later sees it, this process included."""
        address = f"unix:path={self.folder}/run/bus"
        self.start("bus", "dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address={address}")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = address
        if not comes((self.folder / "run" / "bus").exists):
            raise RuntimeError("no session bus")

    def end(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()


def wakeups(pid):
    """How often all threads of a process have gone to sleep of their own accord."""
    count = 0
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        for line in (task / "status").read_text().splitlines():
            if line.startswith("voluntary_ctxt_switches:"):
                count += int(line.split()[1])
    return count


def wakeups_a_second(pid, seconds=10):
    before = wakeups(pid)
    time.sleep(seconds)
    return (wakeups(pid) - before) / seconds


def end_in_order():
    """Whoever ends this process, or the one that started it, has it end what it started, too."""
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("told to end"))
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGTERM)
