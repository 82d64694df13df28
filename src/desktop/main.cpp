#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>
#include <filesystem>
#include <iostream>

#include "desktop/desktop_program.h"
#include "desktop/qt_text.h"
#include "desktop/single_instance.h"
#include "desktop/theme.h"
#include "platform/program_folder.h"

namespace {

desktop::ThemeMode themeOf(const QString& asked) {
  if (asked == QLatin1String("dark")) return desktop::ThemeMode::Dark;
  if (asked == QLatin1String("light")) return desktop::ThemeMode::Light;
  return desktop::systemTheme();
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

  const desktop::ThemeMode mode = themeOf(parser.value(themeOption));
  desktop::applyTheme(mode);
  desktop::DesktopProgram program(folder, mode);
  running = &program;
  if (!program.start()) return 1;
  if (!session.isEmpty()) program.addSession(desktop::fromQt(session));
  return QApplication::exec();
}
