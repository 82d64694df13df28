#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>
#include <filesystem>
#include <iostream>

#include "desktop/desktop_program.h"
#include "desktop/desktop_wishes.h"
#include "desktop/single_instance.h"
#include "platform/program_folder.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace {

const QString appearanceKey = QStringLiteral("appearance");

// The choice asked for on the command line, else the one that the rider made last.
desktop::Appearance::Choice choiceOf(const QString& asked) {
  return desktop::Appearance::fromWord(asked.isEmpty() ? QSettings().value(appearanceKey).toString() : asked);
}

void follow(desktop::DesktopWishes& wishes, desktop::Appearance& appearance) {
  QObject::connect(&appearance, &desktop::Appearance::chosen, [](desktop::Appearance::Choice choice) {
    QSettings().setValue(appearanceKey, desktop::Appearance::word(choice));
  });
  const auto apply = [&appearance, &wishes] {
    QApplication::setEffectEnabled(Qt::UI_General, wishes.animations());
    appearance.setSystem(wishes.colours().value_or(appearance.system()));
  };
  apply();
  QObject::connect(&wishes, &desktop::DesktopWishes::changed, apply);
}

// Puts Qt's own texts, such as those of a file chooser, into French.
void speakFrench(QTranslator& translator) {
  if (translator.load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&translator);
  }
  QLocale::setDefault(QLocale(QLocale::French));
}

}  // namespace

int main(int count, char** words) {
  QApplication application(count, words);
  QApplication::setOrganizationName(QStringLiteral("ventoria"));
  QApplication::setApplicationName(QStringLiteral("ventoria"));
  QApplication::setApplicationDisplayName(QStringLiteral("Ventoria"));
  QApplication::setApplicationVersion(QStringLiteral(VENTORIA_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("ventoria"));
  QApplication::setQuitOnLastWindowClosed(false);
  QTranslator translator;
  speakFrench(translator);

  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption folderOption(QStringLiteral("folder"), QStringLiteral("Dossier du programme."),
                                        QStringLiteral("dossier"));
  const QCommandLineOption themeOption(QStringLiteral("theme"), QStringLiteral("Couleurs : dark ou light."),
                                       QStringLiteral("couleurs"));
  parser.addOptions({folderOption, themeOption});
  parser.addPositionalArgument(QStringLiteral("séance"), QStringLiteral("Fichier .tq2 à ajouter à la liste."),
                               QStringLiteral("[séance]"));
  parser.process(application);

  const std::string asked = widgets::fromQt(parser.value(folderOption));
  const std::string folder = std::filesystem::absolute(asked.empty() ? platform::programFolder() : asked)
                                 .lexically_normal()
                                 .string();
  const QString session = parser.positionalArguments().isEmpty()
                              ? QString()
                              : QFileInfo(parser.positionalArguments().constFirst()).absoluteFilePath();
  desktop::DesktopProgram* running = nullptr;
  const desktop::SingleInstance instance(widgets::toQt(folder), [&running](const QString& path) {
    if (running == nullptr) return;
    running->wake();
    if (!path.isEmpty()) running->addSession(widgets::fromQt(path));
  });
  if (!instance.first()) {
    instance.wakeFirst(session);
    return 0;
  }

  desktop::DesktopWishes wishes;
  desktop::DesktopProgram program(folder, wishes.colours().value_or(widgets::platformTheme()),
                                  choiceOf(parser.value(themeOption)));
  running = &program;
  follow(wishes, program.appearance());
  if (!program.start()) return 1;
  if (!session.isEmpty()) program.addSession(widgets::fromQt(session));
  const int status = QApplication::exec();
  program.end();
  return status;
}
