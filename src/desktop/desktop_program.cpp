#include "desktop/desktop_program.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDebug>
#include <functional>
#include <utility>

#include "forms/whole_ride.h"
#include "platform/documents_folder.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::ThemeMode;

using widgets::toQt;

DesktopProgram::DesktopProgram(const std::string& folder, ThemeMode system, Appearance::Choice choice)
    : connection_("Ventoria"),
      level_(connection_),
      sound_(connection_, level_,
             {.whileBlocking = [this] { repaint(); },
              .giveUp = [this] { return program_.loop().quitting() || EndSignals::raised(); },
              .onSpeaking =
                  [this](const platform::SoundClip* clip) {
                    windows_.speak(clip != nullptr ? toQt(clip->spoken) : QString());
                  },
              .onNoDevice =
                  [] {
                    qWarning().noquote() << "Pas de haut-parleur : la voix et la musique restent muettes.";
                  }}),
      dialogs_([this]() -> QWidget* { return &windows_.window(); }),
      shell_(dialogs_),
      volume_(connection_,
              [this](std::function<void()> action) {
                QMetaObject::invokeMethod(
                    this, [this, action = std::move(action)] { program_.loop().whenFree(action); },
                    Qt::QueuedConnection);
              }),
      printer_(dialogs_, [this] { repaintBlocking(); }),
      rehearsals_(files_, folder),
      program_({clock_, sound_, dialogs_, files_, screenSaver_, media_, level_, shell_, volume_, printer_,
                clipboard_},
               {folder, VENTORIA_VERSION, {}, platform::documentsFolder(), &rehearsals_}),
      windows_(program_, system, choice) {
  // Long handlers call this from time to time, so that the rider can press the button that ends them.
  program_.loop().onInput([] { QCoreApplication::processEvents(); });
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          &DesktopProgram::endWhenQuitting);
  windows_.window().onClose([this] { askToClose(); });
  obeyTheSystem();
  // Its music begins when the countdown ends.
  forms::Screens& screens = program_.screens();
  screens.main.MyFrame2.watch([this, &screens](const platform::Component&, platform::Prop prop) {
    if (prop == platform::Prop::Visible && !forms::rideMusic(screens).ticked.empty()) mpv_.prepare();
  });
  windows_.saveTakesBy([this](const std::string& path) { mpv_.save("capture", path); });
}

bool DesktopProgram::start() {
  windows_.window().showFitting();
  // Paints the window before the first prompt blocks everything.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  if (!program_.start()) return false;
  alarm_.start();
  return true;
}

void DesktopProgram::wake() {
  QWidget& window = windows_.window();
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

// A logout asks nothing of the rider: his list is kept, and he is asked about it at the next start.
void DesktopProgram::obeyTheSystem() {
  connect(&endSignals_, &EndSignals::asked, this, [this] {
    program_.endAtOnce();
    QCoreApplication::exit(0);
  });
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { program_.end(); });
}

void DesktopProgram::endWhenQuitting() {
  if (program_.loop().quitting()) QCoreApplication::exit(0);
}

void DesktopProgram::askToClose() {
  if (closing_) return;
  closing_ = true;
  windows_.binder().run([this] { program_.screens().main.Command4.click(); });
}

// Called between two printed pages: actions of the rider are held back, since they could end the document.
void DesktopProgram::repaintBlocking() {
  const platform::EventLoop::Blocking blocking(program_.loop());
  repaint();
}

void DesktopProgram::repaint() {
  windows_.catchUp();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers |
                                  QEventLoop::X11ExcludeTimers);
  // Input that Qt holds back now is handled after the sound, even if no further event wakes Qt's loop.
  if (std::exchange(inputHeld_, true)) return;
  program_.loop().whenFree([this] {
    inputHeld_ = false;
    QCoreApplication::processEvents();
  });
}

}  // namespace desktop
