"""The displays, and on X11 a window as its window manager holds it."""
import re
import subprocess
import time

from neighbours.surroundings import comes

WIDTH, HEIGHT = 1600, 1000


def start_x11(around, manager=True):
    server = around.start("xvfb", "Xvfb", "-displayfd", "1", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-noreset",
                          "-nolisten", "tcp", stdout=subprocess.PIPE)
    around.env["DISPLAY"] = f":{server.stdout.readline().decode().strip()}"
    if manager:
        around.start("openbox", "openbox")
        if not comes(lambda: "window id" in around.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")):
            raise RuntimeError("no window manager")


def start_wayland(around):
    around.env |= {"WAYLAND_DISPLAY": "wayland-neighbour", "QT_QPA_PLATFORM": "wayland"}
    around.start("weston", "weston", "--no-config", "--backend=headless-backend.so", "--socket=wayland-neighbour",
                 f"--width={WIDTH}", f"--height={HEIGHT}", "--idle-time=0", "--debug")
    if not comes((around.folder / "run" / "wayland-neighbour").exists):
        raise RuntimeError("no Wayland")


def wayland_windows(around):
    """What the compositor shows, as it tells it to who debugs it."""
    told = around.run("timeout", "2", "weston-debug", "scene-graph")
    point = r"\((-?\d+), (-?\d+)\)"
    return re.findall(rf"top-level window '(.*)' of (\S+), .*\n\s*position: {point} -> {point}", told)


def keys(around, *names):
    around.run("xdotool", "key", *names)


def click(around, x, y, times=1):
    around.run("xdotool", "mousemove", x, y, "click", "--repeat", times, "--delay", 60, 1)


class XWindow:
    """A window by its title, which only one has."""

    def __init__(self, around, title):
        self.around = around
        found = comes(lambda: around.run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$"))
        if not found:
            raise RuntimeError(f"no window '{title}'")
        self.id = found.split()[-1]

    def there(self):
        return "IsViewable" in self.around.run("xwininfo", "-id", self.id)

    def place(self):
        """x, y, width and height without the frame."""
        told = self.around.run("xwininfo", "-id", self.id)
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return tuple(int(re.search(rf"{name}:\s+(-?\d+)", told)[1]) for name in names)

    def numbers(self, name):
        told = self.around.run("xprop", "-id", self.id, name)
        return [int(number) for number in told.partition("=")[2].split(",") if number.strip().isdigit()]

    def state(self):
        return self.around.run("xprop", "-id", self.id, "_NET_WM_STATE")

    def title_bar(self):
        """Left, right and middle of the title bar; none without a frame."""
        extents = self.numbers("_NET_FRAME_EXTENTS")
        if len(extents) != 4 or extents[2] < 10:
            return None
        x, y, width, _ = self.place()
        return x, x + width, y - extents[2] // 2

    def drag(self, right, down):
        left, end, y = self.title_bar()
        x = (left + end) // 2
        self.around.run("xdotool", "mousemove", x, y, "mousedown", 1)
        for step in range(1, 5):
            self.around.run("xdotool", "mousemove", x + right * step // 4, y + down * step // 4)
            time.sleep(0.2)
        self.around.run("xdotool", "mouseup", 1)

    def maximise(self):
        """Or back: by the title bar."""
        left, end, y = self.title_bar()
        click(self.around, (left + end) // 2, y, times=2)

    def close(self, times=1):
        """By the button at the end of the title bar."""
        _, end, y = self.title_bar()
        click(self.around, end - 8, y, times)
