#include "desktop/shortcuts.h"

#include <QApplication>
#include <QKeyEvent>
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

class Keys {
 public:
  Keys(app::Program& program, Binder& binder, MainWindow& window)
      : main_(program.screens().main), state_(program.state()), binder_(binder), window_(window) {}

  void add(QWidget& page, const QKeySequence& keys, std::function<void()> action) const {
    auto* shortcut = new QShortcut(keys, &page);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &page,
                     [&binder = binder_, action = std::move(action)] { binder.run(action); });
  }
  // Outside a ride the space bar presses the widget that has the focus, as usual.
  void pauseOrPress() const {
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
  void offerToCancel() const {
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
  void fillScreen() const { window_.isFullScreen() ? window_.showNormal() : window_.showFullScreen(); }

 private:
  [[nodiscard]] bool riding() const { return state_.plan.started(); }
  [[nodiscard]] bool confirmed() const {
    QtDialogs dialogs([this]() -> QWidget* { return &window_; });
    return dialogs.message({platform::MessageKind::Exclamation, platform::MessageButtons::OkCancel,
                            "Séance en Cours", "Voulez-vous Annuler la Séance d'Entraînement en cours ?"}) ==
           platform::Answer::Ok;
  }

  forms::MainForm& main_;
  model::SharedState& state_;
  Binder& binder_;
  MainWindow& window_;
};

}  // namespace

void addShortcuts(app::Program& program, Binder& binder, MainWindow& window, QWidget& mainPage,
                  QWidget& editorPage) {
  forms::MainForm& main = program.screens().main;
  forms::CreerCycle& editor = program.screens().editor;
  const Keys keys(program, binder, window);
  keys.add(mainPage, Qt::Key_F5, [&main] { press(main.MyButton1); });
  keys.add(mainPage, Qt::Key_Space, [keys] { keys.pauseOrPress(); });
  keys.add(mainPage, Qt::Key_Escape, [keys] { keys.offerToCancel(); });
  keys.add(editorPage, Qt::Key_F5, [&editor] { press(editor.MyButton5); });
  keys.add(editorPage, QKeySequence::Open, [&editor] { press(editor.Command5); });
  keys.add(editorPage, QKeySequence::Save, [&editor] { press(editor.Command6); });
  keys.add(editorPage, QKeySequence::Undo, [&editor] { choose(editor.mnUndo); });
  keys.add(editorPage, Qt::CTRL | Qt::Key_Y, [&editor] { choose(editor.mnRedo); });
  for (QWidget* page : {&mainPage, &editorPage}) keys.add(*page, Qt::Key_F11, [keys] { keys.fillScreen(); });
}

}  // namespace desktop
