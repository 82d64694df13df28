"""The neighbourhoods. Each starts what it needs, has the program ridden there to the end, and compares."""
import os
import time

from neighbours import listening, screens, sound
from neighbours.closing import close_both_ways
from neighbours.pages import walk_pages
from neighbours.ride import NO_PORTAL, NO_SAVER, NO_SPEAKER, READY
from neighbours.surroundings import comes

LONG = 240  # seconds within which a ride comes to its end


class Reading:
    """Hands that press what a screen reader reads."""

    def __init__(self, reader):
        self.reader = reader

    def begin(self):
        self.reader.press("Start", "push button")

    def countdown(self):
        self.reader.press("Démarrer Chrono")

    def pause(self):
        self.reader.press("Pause")

    def resume(self):
        self.reader.press("REPRENDRE")


class Keyboard:
    """Hands at the keys, with one click where no key leads."""

    def __init__(self, around, countdown_at):
        self.around, self.countdown_at = around, countdown_at

    def begin(self):
        screens.keys(self.around, "F5")

    def countdown(self):
        screens.click(self.around, *self.countdown_at())

    def pause(self):
        screens.keys(self.around, "space")

    resume = pause


def start_reader(around):
    """This process has one session bus for good, so it is told before anything looks for it."""
    os.environ.update(around.env)
    from neighbours import accessible
    accessible.ask_for_names()
    return accessible


def rides_to_the_end(here, reader):
    here.report.check("ridden to the end", reader.waits_for(READY, LONG) and here.running())
    time.sleep(6)  # the last words, and that nothing follows them


def x11(here, prompts):
    """X11 with a window manager, PulseAudio."""
    around = here.around
    around.start_bus()
    screens.start_x11(around)
    sound.start_pulseaudio(around)
    accessible = start_reader(around)
    recording = sound.Recording(around)
    here.start(listening.SESSION)
    reader = accessible.Reader()
    window = screens.XWindow(around, "Ventoria")
    reader.control("Start", "push button")
    move_about(here.report, window)
    hands = Keyboard(around, lambda: reader.middle("Démarrer Chrono"))
    hands.begin()
    reader.control("Démarrer Chrono")

    def refuse():
        screens.keys(around, "Escape")
        question = screens.XWindow(around, "Séance en Cours.*")
        here.report.check("the question has a title bar", question.title_bar())
        question.close()
        here.report.check("refused by the close button", comes(lambda: not question.there(), 10) and here.running())

    def hide_and_wake():
        around.run("xdotool", "windowminimize", window.id)
        here.report.check("minimised", comes(lambda: not window.there(), 10))
        here.start_again()
        here.report.check("woken by a second start", comes(window.there, 10))

    # While nothing is said.
    here.ride(hands, [(78, hide_and_wake), (92, refuse), (97, lambda: fill_screen(here.report, window))])
    rides_to_the_end(here, reader)
    here.compare(recording, prompts)
    window.close()
    here.ends("the close button")
    here.told(NO_PORTAL, NO_SAVER)
    close_both_ways(here, accessible)


def move_about(report, window):
    """What a rider does with a title bar."""
    if not report.check("title bar", comes(window.title_bar, 10)):
        return
    before = window.place()
    window.drag(60, 40)
    time.sleep(1)
    moved = window.place()
    ways = [now - then for now, then in zip(moved, before)]
    # The window follows from the step on with which the manager knows that it is a move.
    report.check("moved", 30 <= ways[0] <= 60 and 20 <= ways[1] <= 40 and ways[2:] == [0, 0], f"{before} to {moved}")
    window.maximise()
    report.check("maximised", comes(lambda: "MAXIMIZED_VERT" in window.state() and window.place()[2] == screens.WIDTH,
                                    10), f"{window.state()} {window.place()}")
    window.maximise()
    report.check("and back", comes(lambda: window.place() == moved, 10), f"{window.place()}, not {moved}")
    fill_screen(report, window)


def fill_screen(report, window):
    before = window.place()
    whole = (0, 0, screens.WIDTH, screens.HEIGHT)
    screens.keys(window.around, "F11")
    report.check("full screen", comes(lambda: "FULLSCREEN" in window.state() and window.place() == whole, 10),
                 f"{window.state()} {window.place()}")
    screens.keys(window.around, "F11")
    report.check("and back", comes(lambda: window.place() == before, 10), f"{window.place()}, not {before}")


def wayland(here, prompts):
    """Wayland, PipeWire with its pulse server."""
    around = here.around
    around.start_bus()
    screens.start_wayland(around)
    sound.start_pipewire(around)
    accessible = start_reader(around)
    recording = sound.Recording(around)
    here.start(listening.SESSION)
    reader = accessible.Reader()
    reader.control("Start", "push button")
    windows = screens.wayland_windows(around)
    one = [window[:2] for window in windows] == [("Ventoria", "ventoria")]
    here.report.check("one window by its name", one, f"{windows}")
    left, top, right, bottom = map(int, windows[0][2:])
    here.report.check("whole on the screen", 0 <= left and 1280 <= right - left and right <= screens.WIDTH and
                      0 <= top and 800 <= bottom - top and bottom <= screens.HEIGHT, f"{windows}")
    hands = Reading(reader)
    hands.begin()
    reader.control("Démarrer Chrono")
    here.ride(hands)
    rides_to_the_end(here, reader)
    here.compare(recording, prompts)
    reader.press("Quitter")
    here.ends("Quitter")
    here.told(NO_PORTAL, NO_SAVER)


def screen_reader(here, prompts):
    """AT-SPI: every page is walked, then a ride pressed through."""
    around = here.around
    around.start_bus()
    screens.start_x11(around)
    sound.start_pulseaudio(around)
    accessible = start_reader(around)
    recording = sound.Recording(around)
    here.start()
    reader = accessible.Reader()
    window = screens.XWindow(around, "Ventoria")
    around.run("xdotool", "windowfocus", "--sync", window.id)
    walk_pages(here, reader)
    hands = Reading(reader)
    hands.begin()
    reader.control("Démarrer Chrono")
    here.ride(hands)
    rides_to_the_end(here, reader)
    here.compare(recording, prompts)
    reader.press("Quitter")
    here.ends("Quitter")
    here.told(NO_PORTAL, NO_SAVER)


def no_sound(here, _prompts):
    """No sound server: the ride goes on in silence."""
    around = here.around
    around.start_bus()
    screens.start_x11(around, manager=False)
    accessible = start_reader(around)
    here.start(listening.SESSION)
    reader = accessible.Reader()
    reader.control("Start", "push button")
    here.rests()
    hands = Reading(reader)
    hands.begin()
    reader.control("Démarrer Chrono")
    shown = []
    wanted = [f"{number}/4" for number in range(1, 5)]

    def look():
        shown.extend(text for text in wanted if text in reader.window() and text not in shown)

    here.ride(hands, [(second, look) for second in range(20, 175, 5) if abs(second - listening.PAUSE) > 4])
    here.report.check("every sequence shown", shown == wanted, f"{shown}")
    rides_to_the_end(here, reader)
    reader.press("Quitter")
    here.ends("Quitter")
    here.told(NO_SPEAKER, NO_PORTAL, NO_SAVER)


def no_bus(here, prompts):
    """No bus, so neither portal nor screen reader, and no window manager."""
    around = here.around
    screens.start_x11(around, manager=False)
    sound.start_pulseaudio(around)
    around.env["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
    recording = sound.Recording(around)
    here.start(listening.SESSION)
    window = screens.XWindow(around, "Ventoria")
    around.run("xdotool", "windowfocus", "--sync", window.id)
    time.sleep(8)  # the first words, and the list
    here.rests()
    hands = Keyboard(around, lambda: (860, 747))
    hands.begin()
    time.sleep(3)
    begun = here.ride(hands)
    time.sleep(max(0, begun + listening.LENGTH + 15 - time.monotonic()))
    here.compare(recording, prompts)
    here.report.check("still there", here.running())
    here.program.terminate()
    here.ends("the system")
    here.told(NO_PORTAL, NO_SAVER)


PLACES = {
    "X11, openbox, PulseAudio": x11,
    "Wayland, PipeWire": wayland,
    "screen reader (AT-SPI)": screen_reader,
    "no sound server": no_sound,
    "no bus": no_bus,
}
