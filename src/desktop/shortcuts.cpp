#include "desktop/shortcuts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <functional>
#include <utility>

#include "desktop/qt_dialogs.h"

namespace desktop {
namespace {

void press(const platform::Button& button) {
  if (platform::canBeSeen(button) && platform::isEnabled(button)) button.click();
}

void choose(const platform::MenuItem& entry) {
  if (entry.enabled) entry.click();
}

}  // namespace

Shortcuts::Shortcuts(app::Program& program, Binder& binder, MainWindow& window)
    : main_(program.screens().main),
      editor_(program.screens().editor),
      state_(program.state()),
      binder_(binder),
      window_(window) {}

void Shortcuts::addToMain(QWidget& page) {
  add(page, Qt::Key_F5, [this] { press(main_.MyButton1); });
  add(page, Qt::Key_Space, [this] { pauseOrPress(); });
  add(page, Qt::Key_Escape, [this] { offerToCancel(); });
  add(page, Qt::Key_F11, [this] { fillScreen(); });
  for (const Qt::Key key : {Qt::Key_MediaPlay, Qt::Key_MediaPause, Qt::Key_MediaTogglePlayPause})
    add(page, key, [this] { pause(); });
  add(page, Qt::Key_MediaStop, [this] { offerToCancel(); });
  if (auto* chrono = page.findChild<QWidget*>(QStringLiteral("chrono"))) chrono->installEventFilter(this);
}

// A target for a finger, as large as the digits.
bool Shortcuts::eventFilter(QObject* watched, QEvent* event) {
  const bool pressed = event->type() == QEvent::MouseButtonRelease &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
  if (!pressed || !riding()) return QObject::eventFilter(watched, event);
  binder_.run([this] { pause(); });
  return true;
}

void Shortcuts::pause() {
  if (riding()) press(main_.Command7);
}

void Shortcuts::addToEditor(QWidget& page) {
  add(page, Qt::Key_F5, [this] { press(editor_.MyButton5); });
  add(page, QKeySequence::Open, [this] { press(editor_.Command5); });
  add(page, QKeySequence::Save, [this] { press(editor_.Command6); });
  add(page, QKeySequence::Undo, [this] { choose(editor_.mnUndo); });
  add(page, Qt::CTRL | Qt::Key_Y, [this] { choose(editor_.mnRedo); });
  add(page, Qt::Key_F11, [this] { fillScreen(); });
}

void Shortcuts::add(QWidget& page, const QKeySequence& keys, std::function<void()> action) {
  auto* shortcut = new QShortcut(keys, &page);
  shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(shortcut, &QShortcut::activated, &page,
                   [this, action = std::move(action)] { binder_.run(action); });
}

// Outside a ride the space bar presses the widget that has the focus, as usual.
void Shortcuts::pauseOrPress() {
  if (riding()) {
    press(main_.Command7);
    return;
  }
  QWidget* focused = QApplication::focusWidget();
  if (focused == nullptr || binder_.pressByKey(*focused, Qt::Key_Space)) return;
  // Straight to the widget: sent through the application, the key would come back here.
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    static_cast<QObject*>(focused)->event(&key);
  }
}

void Shortcuts::offerToCancel() {
  if (platform::canBeSeen(main_.MyButton2)) {
    press(main_.MyButton2);
  } else if (platform::canBeSeen(main_.Picture1)) {
    press(main_.MyButton6);
  } else if (riding() && confirmed()) {
    press(main_.MyButton4);
  } else if (!riding() && window_.isFullScreen()) {
    window_.showNormal();
  }
}

void Shortcuts::fillScreen() {
  window_.isFullScreen() ? window_.showNormal() : window_.showFullScreen();
}

bool Shortcuts::confirmed() {
  QtDialogs dialogs([this]() -> QWidget* { return &window_; });
  return dialogs.message({platform::MessageKind::Exclamation, platform::MessageButtons::OkCancel,
                          "Séance en Cours", "Voulez-vous Annuler la Séance d'Entraînement en cours ?"}) ==
         platform::Answer::Ok;
}

}  // namespace desktop
