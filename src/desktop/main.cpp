#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>
#include <filesystem>
#include <iostream>

#include "desktop/desktop_program.h"
#include "desktop/qt_text.h"
#include "desktop/single_instance.h"
#include "desktop/system_look.h"
#include "desktop/theme.h"
#include "platform/program_folder.h"

namespace {

// The windows wear what was asked for at the start, else what the rider chose last, else what the desktop
// wants.
void wear(desktop::Appearance& appearance, desktop::SystemLook& system, const QString& asked) {
  QSettings settings;
  const QString key = QStringLiteral("appearance");
  const QString word = asked.isEmpty() ? settings.value(key).toString() : asked;
  appearance.choose(desktop::Appearance::fromWord(word));
  QObject::connect(&appearance, &desktop::Appearance::chosen, [key](desktop::Appearance::Choice choice) {
    QSettings().setValue(key, desktop::Appearance::word(choice));
  });
  const auto follow = [&appearance, &system] {
    QApplication::setEffectEnabled(Qt::UI_General, system.animations());
    appearance.setSystem(system.colours().value_or(appearance.system()));
  };
  follow();
  QObject::connect(&system, &desktop::SystemLook::changed, follow);
}

// Qt's own words, such as a file chooser's, in French.
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

  const std::string asked = desktop::fromQt(parser.value(folderOption));
  const std::string folder = std::filesystem::absolute(asked.empty() ? platform::programFolder() : asked)
                                 .lexically_normal()
                                 .string();
  const QString session = parser.positionalArguments().isEmpty()
                              ? QString()
                              : QFileInfo(parser.positionalArguments().constFirst()).absoluteFilePath();
  desktop::DesktopProgram* running = nullptr;
  const desktop::SingleInstance instance(desktop::toQt(folder), [&running](const QString& path) {
    if (running == nullptr) return;
    running->wake();
    if (!path.isEmpty()) running->addSession(desktop::fromQt(path));
  });
  if (!instance.first()) {
    instance.wakeFirst(session);
    return 0;
  }

  desktop::SystemLook system;
  const desktop::ThemeMode mode = system.colours().value_or(desktop::platformTheme());
  desktop::applyTheme(mode);
  desktop::DesktopProgram program(folder, mode);
  running = &program;
  wear(program.appearance(), system, parser.value(themeOption));
  if (!program.start()) return 1;
  if (!session.isEmpty()) program.addSession(desktop::fromQt(session));
  return QApplication::exec();
}
