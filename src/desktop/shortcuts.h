// The keyboard shortcuts of the main page, the editor and the window.
#pragma once

#include <QKeySequence>
#include <QWidget>
#include <functional>

#include "app/program.h"
#include "desktop/binder.h"
#include "desktop/main_window.h"

namespace desktop {

// Space pauses and resumes a ride, and so do the keys for music and a press on the chronometer; Escape offers
// to cancel it, F11 fills the screen. In the editor the usual keys open, save, undo, redo and start.
class Shortcuts final : public QObject {
 public:
  Shortcuts(app::Program& program, Binder& binder, MainWindow& window);

  void addToMain(QWidget& page);
  void addToEditor(QWidget& page);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void add(QWidget& page, const QKeySequence& keys, std::function<void()> action);
  void pause();
  void pauseOrPress();
  void offerToCancel();
  void fillScreen();
  [[nodiscard]] bool riding() const { return state_.plan.started(); }
  [[nodiscard]] bool confirmed();

  forms::MainForm& main_;
  forms::CreerCycle& editor_;
  const model::SharedState& state_;
  Binder& binder_;
  MainWindow& window_;
};

}  // namespace desktop
