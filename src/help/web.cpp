#include "help/web.h"

#include "help/addresses.h"

namespace help {

Web::Web(const context::Context& context) : context_(context) {
  forms::MainForm& main = context_.screens.main;
  main.mnVisitSite.click.handle([this] { visit(address::author); });
  main.mnMenuVentoria.click.handle([this] { visit(address::product); });
  main.mnPartenaire.click.handle([this] { visit(address::partner); });
  // A click on the product's name shows whom to contact.
  main.Label30.click.handle([&main] { main.Picture12.visible = true; });
}

void Web::visit(const std::string& address) {
  if (context_.outside.shell.connected()) {
    context_.outside.shell.openAddress(address);
  } else {
    context_.outside.dialogs.message(
        {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Impossibilité de se Connecter...",
         "Vous n'êtes pas Connecté à Internet, veuillez essayer ultérieurement."});
  }
}

}  // namespace help
