// Draws what the controls of the session editor do not show themselves: the cell editors over the list, the
// session's profile and total, the coloured bands of the heart-rate calculator.
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "desktop/binder.h"
#include "forms/creer_cycle.h"
#include "model/shared_state.h"
#include "widgets/movable_panel.h"

namespace Ui {
class CreerCycle;
}

namespace desktop {

class EditorView final : public QObject {
  Q_OBJECT
 public:
  EditorView(forms::CreerCycle& form, const model::SharedState& state, QWidget& page, Binder& binder);
  ~EditorView() override;
  // To be called once the page's widgets are bound to the form.
  void whenBound();
  void speak(const QString& text);
  void refresh();
  // To be called when the window's scale has changed.
  void rescale();
  // Shows the whole list alone, or the profile too.
  void setListMode(bool whole);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void focusCellEditor();
  void dropTypedDuration();
  void leaveCellEditor();
  [[nodiscard]] int columnUnder(const platform::Control& over) const;
  bool leaveHelp();
  void placeFloating();
  void refreshFilms();
  void refreshProfile();
  void refreshCalculator();
  [[nodiscard]] QString headerTip(int column) const;

  forms::CreerCycle& editor_;
  const model::SharedState& state_;
  std::unique_ptr<Ui::CreerCycle> ui_;
  widgets::MovablePanel* help_ = nullptr;
  QWidget& page_;
  Binder& binder_;
  QTimer pending_;
  bool editing_ = false;
};

}  // namespace desktop
