"""Every page of the program, walked with a screen reader and the keys."""
from neighbours import listening, screens

MENU = "Annonces Vocales et Ambiance Musicale"
LIBRARY = "Mettre une Ambiance Musicale pendant la (Séance d'Entraînement)"

# The page, what leads there (a button, or the menu and its entries), something on it, and what leaves it.
FROM_MAIN = (
    ("sound settings", ("Menu", "Réglage Paramètres des Avertissements Sonores"), "Confirmer", "Fermer"),
    ("recording", ("Menu", MENU, "Enregistrer une Annonce Vocale"), "Enregistrer la Voix", "Quitter"),
    ("volume", ("Menu", MENU, "Régler le Volume Général du Son"), "Propriétés Audio", "Sortir"),
    ("music library", ("Menu", MENU, LIBRARY), "Importer une Musique dans votre Bibliothèque Musicale", "Quitter"),
    ("films", ("Aide en Vidéo",), "Compte à Rebours", "Fermer cette Page"),
    ("help", ("Afficher/Enlever l'Aide...",), "Quitter", "Afficher/Enlever l'Aide..."),
)
FROM_EDITOR = (
    ("heart rate", ("Fréquence Cardiaque",), "Afficher les Résultats", "Fermer Infos"),
    ("printing", ("Imprimer la Liste",), "Imprimer", "Sortir"),
)


def walk_pages(here, reader):
    """From the main screen to the editor with its list."""
    around = here.around
    reader.control("Séances")
    named(here, reader, "main screen")
    walk(here, reader, FROM_MAIN)
    reader.press("Séances")
    reader.control("Page Principale")
    named(here, reader, "empty list")
    screens.keys(around, "ctrl+o")
    reader.control("Annuler")
    named(here, reader, "file dialog")
    around.run("xdotool", "type", "--delay", "30", str(listening.SESSION))
    screens.keys(around, "Return")
    reader.control("Start", "push button")
    named(here, reader, "list")
    walk(here, reader, FROM_EDITOR)


def walk(here, reader, pages):
    for page, way, on_it, back in pages:
        reader.press(way[0])
        if len(way) > 1:
            reader.choose(here.around, *way[1:])
        reader.control(on_it)
        named(here, reader, page)
        reader.press(back)


def named(here, reader, page):
    """Each control that can be seen has a role and a name."""
    nameless = list(reader.nameless())
    here.report.check(page, not nameless, ", ".join(nameless))
