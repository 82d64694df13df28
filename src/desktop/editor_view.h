// Draws what the controls of the session editor do not show themselves: the cell editors over the list, the
// session's profile and total, the coloured bands of the heart-rate calculator.
#pragma once

#include <memory>

#include "desktop/binder.h"
#include "desktop/form_view.h"
#include "forms/creer_cycle.h"
#include "model/shared_state.h"
#include "widgets/movable_panel.h"

namespace Ui {
class CreerCycle;
}

namespace desktop {

class EditorView final : public FormView {
  Q_OBJECT
 public:
  EditorView(forms::CreerCycle& form, const model::SharedState& state, QWidget& page, Binder& binder);
  ~EditorView() override;
  void whenBound() override;
  void speak(const QString& text) override;
  void rescale() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void draw() override;
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
  Binder& binder_;
  bool editing_ = false;
};

}  // namespace desktop
