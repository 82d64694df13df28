// What the session editor draws beside its controls: the cell editors over the grid, the session's profile
// and its total, the coloured bands of the heart-rate calculator. It only reads the form.
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
  // The page's widgets are tied to the form.
  void whenBound();
  void speak(const QString& text);
  void refresh();
  // The window has another scale.
  void rescale();
  // The list alone, without the profile.
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
