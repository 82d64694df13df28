#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help/addresses.h"
#include "help/films.h"
#include "help/web.h"
#include "support/rig.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Help : testing::Test, support::Rig {
  help::Films films{tools};
  help::Web web{tools};
};

TEST_F(Help, OpensTheFilmOfEachButtonIfItIsThere) {
  forms::AideTQ& page = screens.films;
  for (const auto& [button, film] : {std::pair{&page.MyButton1, "Création d'une Séance"},
                                     {&page.MyButton2, "Création d'une Séance"},
                                     {&page.MyButton3, "Enregistrer Une Séance"},
                                     {&page.MyButton4, "Supprimer Une Ligne"},
                                     {&page.MyButton5, "Compte à Rebours"},
                                     {&page.MyButton6, "Infos & Vidéos"},
                                     {&page.MyButton7, "Ambiance Musicale"},
                                     {&page.MyButton8, "Enregistrer Une Annonce Vocale"}}) {
    const std::string path = std::string("/home/Vid/") + film + ".avi";
    shell.opened.clear();
    dialogs.messages.clear();
    files.files.clear();
    button->click();
    EXPECT_THAT(shell.opened, IsEmpty());
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, "Impossible car Le Fichier Vidéo a Disparu...!");
    files.put(path, "");
    button->click();
    EXPECT_THAT(shell.opened, ElementsAre(path));
  }
}

TEST_F(Help, OpensAFilmOfTheListUnseen) {
  screens.editor.Combo6.setLines({"Perdu.avi"});
  screens.editor.Combo6.pick(0);
  EXPECT_THAT(shell.opened, ElementsAre("/home/Vid/Perdu.avi"));
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(Help, LeadsToTheWebOnlyWithANetwork) {
  forms::MainForm& main = screens.main;
  const std::vector<std::pair<platform::MenuItem*, std::string>> entries{
      {&main.mnVisitSite, help::address::author},
      {&main.mnMenuVentoria, help::address::product},
      {&main.mnPartenaire, help::address::partner}};
  for (const auto& [entry, address] : entries) {
    entry->click();
    EXPECT_EQ(shell.opened.back(), address);
  }
  shell.network = false;
  for (const auto& [entry, address] : entries) entry->click();
  EXPECT_EQ(shell.opened.size(), 3U);
  ASSERT_EQ(dialogs.messages.size(), 3U);
  EXPECT_EQ(dialogs.messages[0].title, "Impossibilité de se Connecter...");
}

}  // namespace
