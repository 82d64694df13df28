#include <gmock/gmock.h>

#include "help/films.h"
#include "help/web.h"
#include "support/rig.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Help : testing::Test, support::Rig {
  help::Films films{context};
  help::Web web{context};
};

TEST_F(Help, OpensAFilmOfTheListUnseen) {
  screens.editor.Combo6.setLines({"Perdu.avi"});
  screens.editor.Combo6.pick(0);
  EXPECT_THAT(shell.opened, ElementsAre("/home/Vid/Perdu.avi"));
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(Help, LeadsNowhereWithoutANetwork) {
  shell.network = false;
  screens.main.mnPartenaire.click();
  EXPECT_THAT(shell.opened, IsEmpty());
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].title, "Impossibilité de se Connecter...");
}

}  // namespace
