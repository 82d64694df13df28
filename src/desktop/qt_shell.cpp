#include "desktop/qt_shell.h"

#include <QDesktopServices>
#include <QNetworkInformation>
#include <QNetworkInterface>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <array>

#include "widgets/qt_text.h"

namespace desktop {

using widgets::toQt;

namespace {

struct Settings {
  const char* program;
  const char* page;  // its one argument; null for none
};

constexpr std::array<Settings, 3> soundSettings{{
    {"gnome-control-center", "sound"},
    {"systemsettings", "kcm_pulseaudio"},
    {"pavucontrol", nullptr},
}};

bool anyInterfaceUp() {
  const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
  return std::any_of(all.begin(), all.end(), [](const QNetworkInterface& one) {
    const auto flags = one.flags();
    return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack) && !one.addressEntries().isEmpty();
  });
}

}  // namespace

void QtShell::openFile(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(path)));
}

void QtShell::openAddress(const std::string& url) {
  if (QDesktopServices::openUrl(QUrl(toQt(url)))) return;
  dialogs_.message({platform::MessageKind::Exclamation, platform::MessageButtons::Ok,
                    "Navigateur Introuvable...",
                    "Impossible d'Ouvrir l'Adresse « " + url +
                        " » : aucun Navigateur n'a été trouvé sur cet Ordinateur."});
}

void QtShell::openSoundSettings() {
  for (const Settings& settings : soundSettings) {
    const QString program = QStandardPaths::findExecutable(QLatin1String(settings.program));
    if (program.isEmpty()) continue;
    const QStringList page = settings.page ? QStringList{QLatin1String(settings.page)} : QStringList{};
    if (QProcess::startDetached(program, page)) return;
  }
  dialogs_.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Propriétés Audio...",
       "Impossible d'Afficher les Propriétés Audio : aucun Panneau de Réglage du Son n'a été trouvé sur cet Ordinateur."});
}

bool QtShell::connected() {
  using Reachability = QNetworkInformation::Reachability;
  QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
  const QNetworkInformation* network = QNetworkInformation::instance();
  const Reachability reach = network ? network->reachability() : Reachability::Unknown;
  return reach == Reachability::Unknown ? anyInterfaceUp() : reach != Reachability::Disconnected;
}

}  // namespace desktop
