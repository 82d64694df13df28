// Draws what the main screen's controls do not show themselves: covered pages, the colour of the present
// effort, what comes next, the profile, the spoken text. It only reads the form and the shared state.
#pragma once

#include <QString>
#include <QTimer>
#include <memory>
#include <vector>

#include "desktop/form_view.h"
#include "forms/main_form.h"
#include "model/training_model.h"
#include "widgets/effort_views.h"

namespace Ui {
class MainForm;
}

namespace desktop {

class MainView final : public FormView {
  Q_OBJECT
 public:
  MainView(forms::MainForm& form, const model::SharedState& state, QWidget& page);
  ~MainView() override;
  void speak(const QString& text) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void draw() override;
  void refreshPages();
  void refreshRoom();
  [[nodiscard]] int largestDigits(bool hours) const;
  void followWindow();
  void refreshRide();
  void refreshCards();
  void refreshProfile();
  void refreshCountdown();
  [[nodiscard]] model::EffortFamily barFamily(model::EffortFamily present) const;
  [[nodiscard]] bool riding() const { return state_.plan.started(); }
  [[nodiscard]] static QString factsOf(const model::PlanRow& row);
  [[nodiscard]] int nextRow() const;

  forms::MainForm& main_;
  const model::SharedState& state_;
  std::unique_ptr<Ui::MainForm> ui_;
  QTimer headerStays_;  // in full screen, after the pointer has moved
};

}  // namespace desktop
