"""The close button of the title bar does what "Quitter" does, also in a ride and with a list that is not saved."""
from neighbours import listening, screens
from neighbours.surroundings import comes

OTHER = listening.SESSION.with_name("Circuit vallonne.tq2")


def close_both_ways(here, accessible):
    ways = {"Quitter": press_quitter, "the close button": press_close, "the close button twice": press_close_twice}
    left = {way: leave(here, accessible, way, press) for way, press in ways.items()}
    same = len(set(left.values())) == 1 and None not in left.values()
    here.report.check("closing is Quitter", same, f"{left}")


def leave(here, accessible, way, press):
    """Leaves a ride under way by this way; gives what is left then."""
    around = here.around
    folder = around.folder / way.replace(" ", "-")
    folder.mkdir()
    (folder / "par.tq3").write_text(listening.SETTINGS)
    program = here.start(listening.SESSION, name=folder.name, folder=folder)
    reader = accessible.Reader()
    reader.control("Start", "push button")
    here.start_again(OTHER, folder=folder)
    comes(lambda: (folder / "brouillon.tq2").exists(), 20)  # two sessions make a list of the rider's own
    screens.keys(around, "F5")
    click_on(around, reader, "Démarrer Chrono")
    comes(lambda: reader.waits_for("Pause", 1), 20)
    press(around, reader)
    if not comes(lambda: program.poll() is not None, 30):
        return None
    kept = sorted(path.name for path in folder.iterdir())
    rows = (folder / "brouillon.tq2").read_bytes().count(b"\nligne\t") if "brouillon.tq2" in kept else 0
    return program.returncode, rows, tuple(kept)


def click_on(around, reader, name):
    screens.click(around, *reader.middle(name))


def press_quitter(around, reader):
    click_on(around, reader, "Quitter")


def press_close(around, _reader):
    screens.XWindow(around, "Ventoria").close()


def press_close_twice(around, _reader):
    screens.XWindow(around, "Ventoria").close(times=2)
